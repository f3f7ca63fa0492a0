import QtQuick
import Tarnwick

// A row for each scene, under its group's heading.
Rectangle {
    id: menu

    property var scenes: []
    signal chosen(int place)

    color: "#2b3440"

    ListView {
        anchors.fill: parent
        model: menu.scenes
        delegate: BareButton {
            id: row

            required property var modelData
            required property int index

            readonly property bool startsGroup:
                index === 0 || modelData.group !== menu.scenes[index - 1].group

            width: 260
            height: startsGroup ? 80 : 44
            topPadding: height - 44
            text: modelData.title
            onClicked: menu.chosen(index)

            Text {
                visible: row.startsGroup
                x: 16
                y: 16
                text: row.modelData.group
                color: "#9fb2c8"
                font { pixelSize: 13; bold: true }
                Accessible.name: text
                Accessible.role: Accessible.Heading
            }

            background: Rectangle {
                anchors { fill: parent; topMargin: row.topPadding }
                color: row.pressed ? "#4a5a6e" : "transparent"
            }
            contentItem: Text {
                leftPadding: 32
                verticalAlignment: Text.AlignVCenter
                text: row.text
                color: "white"
                font.pixelSize: 16
                elide: Text.ElideRight
            }
        }
    }
}
