import QtQuick
import Tarnwick

// A button for what can be saved: a symbol of what it does with it, its name, and what is saved of
// it.
ScreenButton {
    id: button

    property string symbol
    // Empty until it is known.
    property string detail

    leftPadding: 12
    rightPadding: 12
    Accessible.description: detail

    contentItem: Item {
        implicitWidth: words.x + name.implicitWidth
        implicitHeight: words.height

        SymbolView {
            id: icon

            anchors.verticalCenter: parent.verticalCenter
            width: Math.round(24 * Look.textScale)
            height: width
            name: button.symbol
            color: button.captionColor
        }

        Column {
            id: words

            anchors.verticalCenter: parent.verticalCenter
            x: icon.width + 12
            width: parent.width - x
            spacing: 3

            WrappedText {
                id: name

                width: parent.width
                text: button.text
                font: button.font
                color: button.captionColor
            }

            // Small text needs a darker ground than a caption does. Its place is kept until it is
            // known.
            Rectangle {
                width: Math.min(state.implicitWidth + 2 * state.x, parent.width)
                height: state.implicitHeight + 2
                radius: 4
                color: Qt.rgba(0, 0, 0, 0.28)
                opacity: button.detail === "" ? 0 : 1

                Text {
                    id: state

                    x: 6
                    y: 1
                    width: parent.width - 2 * x
                    text: button.detail
                    textFormat: Text.PlainText
                    font { family: Look.family; pixelSize: Look.body }
                    color: button.captionColor
                    elide: Text.ElideRight
                }
            }
        }
    }
}
