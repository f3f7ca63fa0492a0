import QtQuick
import Tarnwick

// The sentence at the top of a screen.
Text {
    width: parent.width
    bottomPadding: 6
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    horizontalAlignment: Text.AlignHCenter
    color: "#4a5563"
    font.pixelSize: Look.callout

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
