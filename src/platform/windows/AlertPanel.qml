import QtQuick
import Tarnwick

// An alert's rounded panel, centred over its parent: texts above, buttons below. If the screen is
// too low for both, each scrolls in its part, by whole lines and whole buttons, and an arrow says
// that there are more buttons. What the panel does is C++'s.
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
    readonly property int buttonCount: buttonGrid.children.length
    readonly property bool sideBySide: buttonCount === 2
        && Math.max(buttonGrid.children[0].implicitWidth, buttonGrid.children[1].implicitWidth) <= width / 2

    signal buttonClicked(int index)

    readonly property int screenMargin: 16
    readonly property int padding: 16
    readonly property real screenWidth: parent?.width ?? 0
    readonly property real screenHeight: parent?.height ?? 0
    readonly property real widest: screenWidth - 2 * screenMargin
    readonly property real highest: screenHeight - 2 * screenMargin
    // A choice among many needs the height of a screen on its side for the buttons.
    readonly property int usualWidth: buttonCount > 3 && screenWidth > screenHeight ? 420 : 288
    readonly property bool hasText: title !== "" || message !== ""
    readonly property int leastRows: 3
    // All buttons are as high as the highest.
    readonly property real rowHeight: [].reduce.call(buttonGrid.children, (highest, button) => Math.max(highest, button.implicitHeight), 0)
    readonly property bool scrollsButtons: buttonArea.height < buttonGrid.height

    // Even, so that two buttons share it in whole points.
    width: 2 * Math.round(Math.min(usualWidth * Look.textScale, widest) / 2)
    height: textArea.height + buttonArea.height + (scrollsButtons ? more.height : 0)
    x: screenMargin + Math.round((widest - width) / 2)
    y: screenMargin + Math.round((highest - height) / 2)
    radius: 14
    color: Look.panel

    Accessible.role: Accessible.AlertMessage
    Accessible.name: panel.title !== "" ? panel.title : panel.message
    Accessible.description: panel.title !== "" ? panel.message : ""

    Flickable {
        id: textArea

        readonly property real room: panel.highest - Math.min(buttonGrid.height, panel.leastRows * panel.rowHeight + more.height)
        readonly property real aboveLines: texts.y + message.y
        readonly property real lineHeight: message.height / Math.max(message.lineCount, 1)

        width: panel.width
        height: contentHeight <= room ? contentHeight
            : Math.round(aboveLines + lineHeight * Math.max(1, Math.floor((room - aboveLines) / lineHeight)))
        contentHeight: panel.hasText ? texts.height + 2 * texts.y : 0
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive

        Column {
            id: texts

            x: panel.padding
            y: panel.padding + 2
            width: panel.width - 2 * panel.padding
            spacing: 4

            WrappedText {
                visible: text !== ""
                width: parent.width
                text: panel.title
                font { pixelSize: Look.headline; bold: true }
                horizontalAlignment: Text.AlignHCenter
            }

            WrappedText {
                id: message

                visible: text !== ""
                width: parent.width
                text: panel.message
                font.pixelSize: Look.body
                horizontalAlignment: Text.AlignHCenter
            }
        }

        ScrollMark {
            area: textArea
        }
    }

    Flickable {
        id: buttonArea

        readonly property real room: panel.highest - textArea.height

        y: textArea.height
        width: panel.width
        height: contentHeight <= room ? contentHeight
            : panel.rowHeight * Math.max(1, Math.floor((room - more.height) / panel.rowHeight))
        contentHeight: buttonGrid.height
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        onMovementEnded: settling.start()

        Accessible.role: Accessible.List

        // Comes to rest on whole buttons.
        NumberAnimation {
            id: settling

            target: buttonArea
            property: "contentY"
            to: panel.rowHeight * Math.round(buttonArea.contentY / panel.rowHeight)
            duration: 150
        }

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

    SymbolView {
        id: more

        visible: panel.scrollsButtons && !buttonArea.atYEnd
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom }
        width: 24
        height: 24
        name: "more"
        color: Look.quietText
    }

    Hairline {
        visible: panel.scrollsButtons
        y: buttonArea.y + buttonArea.height
        width: panel.width
        height: panel.hairline
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
