import QtQuick
import QtQuick.Templates as T

// A button without a look of its own: it is pressed by touch, mouse, keys and assistive technology,
// and a ring shows where the keyboard is.
T.AbstractButton {
    id: button

    // What pressing it does: one of its controller's actions, or a segue that leaves its scene.
    property string actionName
    property string segueName
    property color focusRingColor: "white"
    property real focusRingRadius: 3

    focusPolicy: Qt.StrongFocus

    // A key that is held down since before the button had the keyboard does not press it.
    Keys.onSpacePressed: event => event.accepted = event.isAutoRepeat
    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) button.clicked() }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) button.clicked() }

    Accessible.role: Accessible.Button
    Accessible.name: text
    // Whoever asks over the bus has its answer before the work begins.
    Accessible.onPressAction: if (enabled) Qt.callLater(button.clicked)

    Rectangle {
        visible: button.visualFocus
        anchors.fill: parent
        anchors.margins: 3
        radius: button.focusRingRadius
        color: "transparent"
        border.width: 2
        border.color: button.focusRingColor
    }
}
