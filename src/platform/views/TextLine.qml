import QtQuick
import Tarnwick

// A row of a form: a label and a field to write in. Return goes on to the next row.
FocusScope {
    id: line

    property string label
    property alias text: field.text
    property alias fieldName: field.objectName
    property alias inputMethodHints: field.inputMethodHints
    readonly property int margin: 16

    signal accepted

    width: parent.width
    height: field.height

    Text {
        id: caption

        x: line.margin
        y: field.topPadding
        text: line.label + ":"
        textFormat: Text.PlainText
        font: field.font
        color: Look.quietText
        Accessible.ignored: true
    }

    // The whole row can be tapped.
    TextLineField {
        id: field

        width: line.width
        height: Math.max(44, implicitHeight)
        leftPadding: caption.x + caption.width + 8
        rightPadding: line.margin
        topPadding: 12
        bottomPadding: 12
        focus: true

        // The cursor starts behind the text.
        Component.onCompleted: cursorPosition = length

        Keys.onReturnPressed: line.accepted()
        Keys.onEnterPressed: line.accepted()

        Accessible.name: line.label
    }

    Hairline {
        x: line.margin
        y: line.height - height
        width: line.width - x
        height: 1
    }
}
