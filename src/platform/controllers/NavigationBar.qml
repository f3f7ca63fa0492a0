import QtQuick
import Tarnwick

// A bar with a screen's title and one button on the left.
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

        visible: bar.leftItem !== null
        x: 4
        width: Math.max(bar.height, words.visible ? words.implicitWidth + 24 : 0)
        height: bar.height
        text: bar.leftItem?.title ?? ""
        opacity: pressed ? 0.4 : 1
        focusRingColor: bar.itemTint
        focusRingRadius: 8
        onClicked: bar.leftItem.press()

        contentItem: Item {
            SymbolView {
                id: symbol

                anchors.centerIn: parent
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
                font.pixelSize: Look.headline
            }
        }
    }

    component Title: Text {
        width: Math.min(implicitWidth, bar.width - 2 * (button.x + button.width))
        text: bar.title
        textFormat: Text.PlainText
        elide: Text.ElideRight
        font: bar.titleFont
    }

    Title {
        anchors.centerIn: parent
        anchors.horizontalCenterOffset: bar.titleShadowOffset.x
        anchors.verticalCenterOffset: bar.titleShadowOffset.y
        color: bar.titleShadowColor
        Accessible.ignored: true
    }

    Title {
        anchors.centerIn: parent
        color: bar.titleColor
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
}
