import QtQuick
import Tarnwick

// A front screen: content that scrolls, from the top down in the middle of wide screens. Where
// there is room, it stands in columns: buttons are read from the left to the right then.
Rectangle {
    id: page

    property BarButtonItem leftBarButtonItem: BarButtonItem {
        objectName: "sidebarButton"
        title: "Menu"
        symbol: "menu"
    }
    property int mostColumns: 1
    property alias spacing: flow.spacing
    default property alias content: flow.data

    readonly property int margin: 16
    readonly property int widestColumn: 560
    readonly property int widestColumns: 800
    readonly property int leastWidthForColumns: 700

    color: Look.screen

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
            height: flow.height + 2 * page.margin

            PageFlow {
                id: flow

                columns: page.width < page.leastWidthForColumns ? 1 : page.mostColumns
                x: Math.round((contentView.width - width) / 2)
                y: page.margin
                width: Math.min(contentView.width - 2 * page.margin, columns > 1 ? page.widestColumns : page.widestColumn)
            }
        }
    }

    ScrollMark { area: flickable }
}
