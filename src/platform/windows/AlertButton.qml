import QtQuick
import Tarnwick

// A button in an alert's panel: a caption in the application's tint, under a separator.
PushButton {
    id: button

    required property AlertPanel panel
    required property int index

    width: panel.sideBySide ? panel.width / 2 : panel.width
    captionColor: Look.tint
    focusRingRadius: 10
    font.bold: index === 0
    // The alert moves the focus: in the order in which buttons stand there.
    activeFocusOnTab: false
    // No shortcut of what lies below.
    Keys.onShortcutOverride: event => event.accepted = true
    onClicked: panel.buttonClicked(index)

    background: Item {
        clip: true

        // What the button and the whole panel have in common lights up: corners stay round.
        Rectangle {
            visible: button.pressed
            x: -button.x
            y: button.panel.buttonArea.contentY - button.panel.buttonArea.y - button.y
            width: button.panel.width
            height: button.panel.height
            radius: button.panel.radius
            color: Qt.rgba(0, 0, 0, 0.1)
        }

        Hairline {
            visible: button.y > 0
            width: parent.width
            height: button.panel.hairline
        }
    }
}
