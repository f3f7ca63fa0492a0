import QtQuick
import Tarnwick

// A push button, filled with the application's tint. It looks the same when disabled, as every
// button below an alert is.
BareButton {
    id: button

    property color captionColor: "white"
    // Lies over the fill.
    readonly property color shade: Qt.rgba(0, 0, 0, pressed ? 0.25 : hovered ? 0.1 : 0)

    padding: 8
    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Math.max(44, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    font { pixelSize: Look.caption; bold: true }
    focusRingColor: captionColor

    contentItem: WrappedText {
        text: button.text
        font: button.font
        color: button.captionColor
        horizontalAlignment: Text.AlignHCenter
    }

    background: Rectangle {
        radius: 5
        color: Qt.tint(Look.tint, button.shade)
    }
}
