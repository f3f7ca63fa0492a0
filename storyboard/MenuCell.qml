import QtQuick
import Tarnwick

// A row of the menu: a symbol, a name, and the segue that leaves it.
BareButton {
    id: cell

    property string reuseIdentifier
    property string symbol
    property int selectionStyle: 0
    readonly property int graySelection: 2

    width: parent?.width ?? 0
    height: 54
    leftPadding: 20
    rightPadding: 20
    spacing: 16
    font.pixelSize: Look.headline
    segueName: reuseIdentifier

    contentItem: Item {
        SymbolView {
            id: icon

            anchors.verticalCenter: parent.verticalCenter
            name: cell.symbol
            color: "#cfe2ff"
        }

        Text {
            anchors { left: icon.right; leftMargin: cell.spacing; right: parent.right; verticalCenter: parent.verticalCenter }
            text: cell.text
            textFormat: Text.PlainText
            elide: Text.ElideRight
            color: "white"
            font: cell.font
        }
    }

    background: Rectangle {
        visible: cell.pressed && cell.selectionStyle === cell.graySelection
        color: Qt.rgba(1, 1, 1, 0.22)
    }
}
