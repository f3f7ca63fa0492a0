import QtQuick
import Tarnwick

// The sentence at the top of a screen.
WrappedText {
    width: parent.width
    horizontalAlignment: Text.AlignHCenter
    color: Look.quietText
    font.pixelSize: Look.callout

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
