import QtQuick
import QtQuick.Templates as T
import Tarnwick

// A button without a look of its own. It can be pressed by touch, mouse, keyboard and assistive
// technology; a ring shows the keyboard focus.
T.AbstractButton {
    id: button

    // What a press does: an action of the scene's controller, or a segue that leaves the scene.
    property string actionName
    property string segueName
    property color focusRingColor: "white"
    property real focusRingRadius: 3

    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    font.family: Look.family

    // A key that was already held when the button got the focus does not press it.
    Keys.onSpacePressed: event => event.accepted = event.isAutoRepeat
    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) button.clicked() }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) button.clicked() }

    Accessible.role: Accessible.Button
    Accessible.name: text
    // What cannot be pressed is not offered.
    Accessible.ignored: !enabled
    // The call on the accessibility bus returns before the work begins. Whoever calls may have kept
    // the button from before it was covered or hidden.
    Accessible.onPressAction: Qt.callLater(button.clickIfReachable)

    function clickIfReachable() {
        if (enabled && visible)
            clicked()
    }

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
