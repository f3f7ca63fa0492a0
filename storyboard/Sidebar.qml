import QtQuick
import Tarnwick

Rectangle {
    id: sidebar

    // Points at the right that the front screen uncovers only while it is dragged too far.
    readonly property int neverSeen: 60

    color: "#1d2733"

    Flickable {
        id: flickable

        anchors.fill: parent
        contentWidth: width
        contentHeight: rows.height
        flickableDirection: Flickable.VerticalFlick

        Accessible.role: Accessible.List

        Column {
            id: rows

            objectName: "rows"
            width: flickable.width - sidebar.neverSeen
        }
    }

    Item {
        objectName: "prototypes"
        visible: false

        Item {
            property string reuseIdentifier: "title"
            property int selectionStyle: 0

            width: parent?.width ?? 0
            height: 60 + Math.round(24 * Look.textScale)

            SymbolView {
                id: shield

                x: 20
                width: Math.round(24 * Look.textScale)
                height: width
                anchors { bottom: parent.bottom; bottomMargin: 18 }
                name: "shield"
                color: "#4da3ff"
            }

            Text {
                anchors { left: shield.right; leftMargin: 16; verticalCenter: shield.verticalCenter }
                text: "Tarnwick"
                color: "white"
                font { family: Look.family; pixelSize: Look.headline + 5; bold: true }

                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            Rectangle {
                anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
                height: 1
                color: Qt.rgba(1, 1, 1, 0.12)
            }
        }

        MenuCell { reuseIdentifier: "backup"; text: "Backup"; symbol: "backup" }
        MenuCell { reuseIdentifier: "restore"; text: "Restore"; symbol: "restore" }
        MenuCell { reuseIdentifier: "cloud"; text: "Cloud"; symbol: "cloud" }
        MenuCell { reuseIdentifier: "options"; text: "Options"; symbol: "options" }
        MenuCell { reuseIdentifier: "help"; text: "Help"; symbol: "help" }
    }
}
