import QtQuick
import Tarnwick

// The way through a wipe, at the top of the three screens that it leads over: which of them this is
// shows in symbol and tint.
Item {
    id: steps

    required property string current
    readonly property var all: [
        { screen: "backup", text: "Save", tint: Look.tint },
        { screen: "cloud", text: "Copy away", tint: "#0a7466" },
        { screen: "restore", text: "Restore", tint: "#b4530a" }
    ]
    readonly property int place: all.findIndex(step => step.screen === current)
    readonly property int circle: Math.round(44 * Look.textScale)

    width: parent.width
    height: row.height + 6

    Accessible.role: Accessible.StaticText
    Accessible.name: "Step " + (place + 1) + " of 3: " + all[place].text

    // Leads from one to the next.
    Rectangle {
        x: row.x + row.cell / 2
        y: Math.round(steps.circle / 2) - 1
        width: 2 * row.cell
        height: 2
        color: Look.separator
    }

    Row {
        id: row

        readonly property int cell: Math.round(Math.min(steps.width / 3, 2.4 * steps.circle))

        anchors.horizontalCenter: parent.horizontalCenter

        Repeater {
            model: steps.all

            Column {
                id: step

                required property var modelData
                required property int index
                readonly property bool isCurrent: index === steps.place

                width: row.cell
                spacing: 4

                Rectangle {
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: steps.circle
                    height: width
                    radius: width / 2
                    color: step.isCurrent ? step.modelData.tint : Look.screen
                    border { width: step.isCurrent ? 0 : 2; color: Look.separator }

                    SymbolView {
                        anchors.centerIn: parent
                        name: step.modelData.screen
                        color: step.isCurrent ? "white" : Look.quietText
                    }
                }

                WrappedText {
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    text: step.modelData.text
                    color: step.isCurrent ? Look.text : Look.quietText
                    font { pixelSize: Look.body; bold: step.isCurrent }
                }
            }
        }
    }
}
