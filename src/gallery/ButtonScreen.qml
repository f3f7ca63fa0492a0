import QtQuick
import Tarnwick

// Buttons that scroll.
Rectangle {
    property BarButtonItem leftBarButtonItem: BarButtonItem {
        objectName: "sidebarButton"
        title: "Menu"
        symbol: "menu"
    }

    color: "#eaf2fc"

    Flickable {
        anchors.fill: parent
        contentHeight: buttons.height + 32
        flickableDirection: Flickable.VerticalFlick

        Column {
            id: buttons

            x: 16
            y: 16
            width: parent.width - 32
            spacing: 8

            Repeater {
                model: 14

                PushButton {
                    required property int index

                    width: parent.width
                    text: "Button " + (index + 1)
                }
            }
        }
    }
}
