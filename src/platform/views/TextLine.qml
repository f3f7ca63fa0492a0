import QtQuick
import Tarnwick

// A line of a form: what is asked for, and a field to write it in. Return leads on.
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
        color: Qt.rgba(0.24, 0.24, 0.26, 0.8)
        Accessible.ignored: true
    }

    // The whole line takes the finger.
    TextLineField {
        id: field

        width: line.width
        height: Math.max(44, implicitHeight)
        leftPadding: caption.x + caption.width + 8
        rightPadding: line.margin
        topPadding: 12
        bottomPadding: 12
        focus: true

        // Who comes here goes on writing.
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
