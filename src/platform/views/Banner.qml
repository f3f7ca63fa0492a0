import QtQuick
import Tarnwick

// A sentence at the bottom of a window, over whatever is there. It takes no input.
Rectangle {
    id: banner

    property string text
    readonly property int margin: 16

    anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: margin }
    width: Math.min(words.implicitWidth + 2 * words.x, parent.width - 2 * margin)
    height: words.height
    radius: Math.min(height / 2, 20)
    z: 1
    color: Qt.rgba(0.11, 0.15, 0.2, 0.96)

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Text {
        id: words

        x: 18
        width: banner.width - 2 * x
        topPadding: 10
        bottomPadding: 10
        text: banner.text
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        color: "white"
        font { family: Look.family; pixelSize: Look.callout; bold: true }
    }
}
