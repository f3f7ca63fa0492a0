import QtQuick
import Tarnwick

// Stands above the buttons of a section, at their left and with space above; its label is framed
// by its controller.
Item {
    id: heading

    property alias label: words.objectName
    property string text

    width: parent.width
    height: words.y + words.height

    Text {
        id: words

        y: 10
        width: Math.min(Math.ceil(implicitWidth), parent.width)
        topPadding: 5
        bottomPadding: 5
        leftPadding: 10
        rightPadding: 10
        text: Typesetting.prepared(heading.text)
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        color: Look.quietText
        font { family: Look.family; pixelSize: Look.body + 1; bold: true }

        Accessible.role: Accessible.Heading
        Accessible.name: heading.text
    }
}
