import QtQuick
import Tarnwick

// A button in an alert's panel: a caption in the application's tint, or in red, under a separator.
PushButton {
    id: button

    required property AlertPanel panel
    required property int index
    property bool isDestructive: false

    width: panel.sideBySide ? panel.width / 2 : panel.width
    height: panel.rowHeight
    captionColor: isDestructive ? Look.destructive : Look.link
    focusRingRadius: 10
    font { pixelSize: Look.headline; bold: index === 0 }
    // The alert moves the focus: in the order in which buttons stand there.
    activeFocusOnTab: false
    // No shortcut of what lies below.
    Keys.onShortcutOverride: event => event.accepted = true
    onClicked: panel.buttonClicked(index)

    background: Item {
        clip: true

        // What the button and the whole panel have in common lights up: corners stay round.
        Rectangle {
            visible: button.pressed || button.hovered
            x: -button.x
            y: button.panel.buttonArea.contentY - button.panel.buttonArea.y - button.y
            width: button.panel.width
            height: button.panel.height
            radius: button.panel.radius
            color: Qt.tint(button.panel.color, button.shade)
        }

        Hairline {
            visible: button.y > 0
            width: parent.width
            height: button.panel.hairline
        }
    }
}
