import QtQuick
import Tarnwick

// A bar with a screen's title and one button on the left, which F10 presses too.
Rectangle {
    id: bar

    property string title
    property color itemTint
    property color titleColor
    property font titleFont
    property color titleShadowColor
    property point titleShadowOffset
    property BarButtonItem leftItem: null

    BareButton {
        id: button

        // A button that does nothing is not shown.
        visible: bar.leftItem?.hasAction ?? false
        x: 4
        width: Math.max(bar.height, words.visible ? words.implicitWidth + 24 : 0)
        height: bar.height
        text: bar.leftItem?.title ?? ""
        focusRingColor: bar.itemTint
        focusRingRadius: 8
        onClicked: bar.leftItem.press()

        background: BarButtonShade { button: button }

        contentItem: Item {
            SymbolView {
                id: symbol

                anchors.centerIn: parent
                // As the texts grow, within the bar.
                width: Math.min(Math.round(24 * Look.textScale), bar.height - 12)
                height: width
                name: bar.leftItem?.symbol ?? ""
                color: bar.itemTint
            }

            Text {
                id: words

                anchors.centerIn: parent
                visible: symbol.name === ""
                text: button.text
                textFormat: Text.PlainText
                color: bar.itemTint
                font { family: Look.family; pixelSize: Look.caption; bold: true }
            }
        }

        Shortcut {
            sequence: "F10"
            enabled: button.visible && button.enabled
            onActivated: {
                button.forceActiveFocus(Qt.ShortcutFocusReason);
                button.clicked();
            }
        }
    }

    BarTitle {
        anchors.centerIn: parent
        text: bar.title
        color: bar.titleColor
        font: bar.titleFont
        shadowColor: bar.titleShadowColor
        shadowOffset: bar.titleShadowOffset
        widest: bar.width - 2 * (button.x + button.width)
    }
}
