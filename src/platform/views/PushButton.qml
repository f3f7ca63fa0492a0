import QtQuick
import Tarnwick

// A push button, filled with the application's tint. It looks the same when disabled, as every
// button below an alert is.
BareButton {
    id: button

    property color captionColor: "white"

    padding: 8
    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Math.max(44, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    font.pixelSize: Look.headline
    focusRingColor: captionColor

    contentItem: Text {
        text: button.text
        textFormat: Text.PlainText
        font: button.font
        color: button.captionColor
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
    }

    background: Rectangle {
        radius: 5
        color: button.pressed ? Qt.darker(Look.tint, 1.25) : Look.tint
    }
}
