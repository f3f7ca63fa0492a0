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
        implicitWidth: icon.width + words.x + words.implicitWidth
        implicitHeight: words.height

        SymbolView {
            id: icon

            anchors.verticalCenter: parent.verticalCenter
            name: button.symbol
            color: button.captionColor
        }

        Column {
            id: words

            anchors.verticalCenter: parent.verticalCenter
            x: icon.width + 12
            width: parent.width - x
            spacing: 1

            Text {
                width: parent.width
                text: button.text
                textFormat: Text.PlainText
                font: button.font
                color: button.captionColor
                wrapMode: Text.Wrap
            }

            Text {
                width: parent.width
                // Its place is kept until it is known.
                text: button.detail === "" ? " " : button.detail
                textFormat: Text.PlainText
                font { pixelSize: Look.body; bold: true }
                color: button.captionColor
                elide: Text.ElideRight
            }
        }
    }
}
