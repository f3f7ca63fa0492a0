import QtQuick
import Tarnwick

// A button as wide as a column; it is filled by its controller.
PushButton {
    id: button

    width: (parent as PageFlow)?.columnWidth ?? 0
    background: null

    Rectangle {
        anchors.fill: parent
        z: -0.5  // over the fill
        radius: 5
        color: button.shade
    }
}
