import QtQuick
import Tarnwick

// A front screen: a column that scrolls, in the middle of wide screens.
Rectangle {
    id: page

    property BarButtonItem leftBarButtonItem: BarButtonItem {
        objectName: "sidebarButton"
        title: "Menu"
        symbol: "menu"
    }
    property alias spacing: column.spacing
    default property alias content: column.data

    readonly property int margin: 16
    readonly property int widestColumn: 560

    color: "#f4f5f7"

    Flickable {
        id: flickable

        anchors.fill: parent
        contentWidth: width
        contentHeight: contentView.height
        flickableDirection: Flickable.VerticalFlick

        Accessible.role: Accessible.List

        Item {
            id: contentView

            objectName: "contentView"
            height: column.height + 2 * page.margin

            Column {
                id: column

                x: Math.round((contentView.width - width) / 2)
                y: page.margin
                width: Math.min(contentView.width - 2 * page.margin, page.widestColumn)
                spacing: 10
            }
        }
    }

    ScrollMark { area: flickable }
}
