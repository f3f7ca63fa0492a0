import QtQuick
import Tarnwick

// A row of the menu: a symbol, a name, and the segue that leaves it.
BareButton {
    id: cell

    property string reuseIdentifier
    property string symbol
    property int selectionStyle: 0
    // Whether a task of the screen is under way.
    property bool busy: false
    readonly property int graySelection: 2

    width: parent?.width ?? 0
    height: 30 + Math.round(24 * Look.textScale)
    leftPadding: 20
    rightPadding: 12
    spacing: 16
    font.pixelSize: Look.headline
    segueName: reuseIdentifier
    Accessible.description: busy ? "under way" : ""

    contentItem: Item {
        SymbolView {
            id: icon

            anchors.verticalCenter: parent.verticalCenter
            width: Math.round(24 * Look.textScale)
            height: width
            name: cell.symbol
            color: "#cfe2ff"
        }

        WrappedText {
            anchors { left: icon.right; leftMargin: cell.spacing; right: mark.left; verticalCenter: parent.verticalCenter }
            text: cell.text
            color: "white"
            font: cell.font
        }

        Rectangle {
            id: mark

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            visible: cell.busy
            width: 10
            height: width
            radius: width / 2
            color: "#7fd0ff"

            SequentialAnimation on opacity {
                running: cell.busy
                loops: Animation.Infinite

                NumberAnimation { from: 1; to: 0.25; duration: 700; easing.type: Easing.InOutSine }
                NumberAnimation { from: 0.25; to: 1; duration: 700; easing.type: Easing.InOutSine }
            }
        }
    }

    background: Rectangle {
        visible: cell.selectionStyle === cell.graySelection
        color: Qt.rgba(1, 1, 1, cell.pressed ? 0.22 : cell.hovered ? 0.08 : 0)
    }
}
