import QtQuick
import Tarnwick

// Darkens the bar behind a button that is pressed or that the pointer is on.
Rectangle {
    required property BareButton button

    visible: button.enabled && (button.hovered || button.pressed)
    radius: 8
    color: Qt.rgba(0, 0, 0, button.pressed ? 0.25 : 0.1)
}
