import QtQuick
import Tarnwick

// A button as wide as its column; it is filled by its controller.
PushButton {
    id: button

    width: parent.width
    background: null

    Rectangle {
        anchors.fill: parent
        visible: button.pressed
        radius: 5
        color: Qt.rgba(0, 0, 0, 0.2)
    }
}
