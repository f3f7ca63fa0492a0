import QtQuick
import Tarnwick

// A row for each scene, under its group's heading.
Rectangle {
    id: menu

    property var scenes: []
    signal chosen(int place)

    component MenuRow: BareButton {
        id: row

        width: 260
        height: 44

        background: Rectangle {
            color: row.pressed ? "#4a5a6e" : "transparent"
        }
        contentItem: Text {
            leftPadding: 24
            verticalAlignment: Text.AlignVCenter
            text: row.text
            color: "white"
            font.pixelSize: 15
            elide: Text.ElideRight
        }
    }

    color: "#2b3440"

    Flickable {
        anchors.fill: parent
        contentWidth: width
        contentHeight: rows.height

        Column {
            id: rows

            Repeater {
                model: menu.scenes

                Column {
                    id: entry

                    required property var modelData
                    required property int index

                    Text {
                        visible: entry.index === 0 || entry.modelData.group !== menu.scenes[entry.index - 1].group
                        leftPadding: 16
                        topPadding: 16
                        bottomPadding: 4
                        text: entry.modelData.group
                        color: "#9fb2c8"
                        font { pixelSize: 13; bold: true }
                        Accessible.name: text
                        Accessible.role: Accessible.Heading
                    }

                    MenuRow {
                        text: entry.modelData.title
                        onClicked: menu.chosen(entry.index)
                    }
                }
            }
        }
    }
}
