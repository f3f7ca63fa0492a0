import QtQuick
import Tarnwick

// An alert's rounded panel, centred over its parent: texts above, buttons below. If the screen is
// too low for both, each scrolls in its part. What the panel does is C++'s.
RoundedBox {
    id: panel

    required property string title
    required property string message
    required property bool hasCancelButton
    required property real hairline
    readonly property alias textArea: textArea
    readonly property alias buttonArea: buttonArea
    // The buttons are put here, from the top down.
    readonly property alias buttonGrid: buttonGrid
    readonly property bool sideBySide: buttonGrid.children.length === 2
        && Math.max(buttonGrid.children[0].implicitWidth, buttonGrid.children[1].implicitWidth) <= width / 2

    signal buttonClicked(int index)

    readonly property int screenMargin: 16
    readonly property int padding: 16
    readonly property real widest: (parent?.width ?? 0) - 2 * screenMargin
    readonly property real highest: (parent?.height ?? 0) - 2 * screenMargin
    readonly property bool hasText: title !== "" || message !== ""

    // Even, so that two buttons share it in whole points.
    width: 2 * Math.round(Math.min(270 * Look.textScale, widest) / 2)
    height: textArea.height + buttonArea.height
    x: screenMargin + Math.round((widest - width) / 2)
    y: screenMargin + Math.round((highest - height) / 2)
    radius: 14
    color: Qt.rgba(0.97, 0.97, 0.97, 0.99)

    Accessible.role: Accessible.AlertMessage
    Accessible.name: title !== "" ? title : message
    Accessible.description: title !== "" ? message : ""

    Flickable {
        id: textArea

        width: panel.width
        height: Math.min(contentHeight, Math.max(panel.highest - buttonArea.contentHeight, Math.round(panel.highest / 3)))
        contentHeight: panel.hasText ? texts.height + 2 * (panel.padding + 2) : 0
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive

        Column {
            id: texts

            x: panel.padding
            y: panel.padding + 2
            width: panel.width - 2 * panel.padding
            spacing: 4

            Text {
                visible: text !== ""
                width: parent.width
                text: panel.title
                textFormat: Text.PlainText
                font.pixelSize: Look.headline
                font.bold: true
                color: "black"
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }

            Text {
                visible: text !== ""
                width: parent.width
                text: panel.message
                textFormat: Text.PlainText
                font.pixelSize: Look.body
                color: "black"
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
        }

        ScrollMark {
            area: textArea
        }
    }

    Flickable {
        id: buttonArea

        y: textArea.height
        width: panel.width
        height: Math.min(contentHeight, panel.highest - textArea.height)
        contentHeight: buttonGrid.height
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive

        Accessible.role: Accessible.List

        Grid {
            id: buttonGrid

            columns: panel.sideBySide ? 2 : 1
            // The cancel button is the last one below each other, and the left one of two.
            layoutDirection: panel.sideBySide && panel.hasCancelButton ? Qt.RightToLeft : Qt.LeftToRight
        }

        ScrollMark {
            area: buttonArea
        }
    }

    Hairline {
        visible: panel.hasText && buttonArea.height > 0
        y: buttonArea.y
        width: panel.width
        height: panel.hairline
    }

    Hairline {
        visible: panel.sideBySide
        x: panel.width / 2
        y: buttonArea.y
        width: panel.hairline
        height: buttonArea.height
    }
}
