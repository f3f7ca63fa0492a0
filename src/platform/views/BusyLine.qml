import QtQuick
import Tarnwick

// A thin line along which something moves for as long as work is under way.
Rectangle {
    id: line

    property bool busy: false

    visible: busy
    height: 3
    clip: true
    color: "#cfe2ff"

    Accessible.role: Accessible.ProgressBar
    Accessible.name: "Work under way"

    Rectangle {
        width: Math.round(line.width * 0.3)
        height: line.height
        radius: height / 2
        color: Look.tint

        NumberAnimation on x {
            running: line.busy
            loops: Animation.Infinite
            from: -0.3 * line.width
            to: line.width
            duration: 1400
            easing.type: Easing.InOutSine
        }
    }
}
