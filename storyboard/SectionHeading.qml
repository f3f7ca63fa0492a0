import QtQuick
import Tarnwick

// Stands above the buttons of a section; it is framed by its controller.
Text {
    width: parent.width
    topPadding: 8
    bottomPadding: 8
    leftPadding: 8
    rightPadding: 8
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    horizontalAlignment: Text.AlignHCenter
    color: "#3c4653"
    font { pixelSize: Look.callout; bold: true }

    Accessible.role: Accessible.Heading
    Accessible.name: text
}
