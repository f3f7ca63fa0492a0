import QtQuick
import Tarnwick

// Shows at the right edge of a scrolling area which part of it is visible.
Rectangle {
    required property Flickable area
    readonly property int inset: 8  // clears rounded corners
    readonly property real track: area.height - 2 * inset

    visible: area.contentHeight > area.height
    parent: area
    x: area.width - width - 3
    y: inset + track * Math.max(0, area.visibleArea.yPosition)
    width: 3
    height: Math.max(12, track * area.visibleArea.heightRatio)
    radius: width / 2
    color: Look.mark
}
