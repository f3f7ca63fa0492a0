import QtQuick
import Tarnwick

// Plain text of any number of lines, which break where a typographer would break them; those of
// centred text are of like length. The lines are in the middle of a higher item.
Item {
    id: block

    // As it is given; what is drawn may hold invisible characters besides.
    property string text
    property real topPadding: 0
    property alias font: lines.font
    property alias color: lines.color
    property alias lineHeight: lines.lineHeight
    property alias maximumLineCount: lines.maximumLineCount
    readonly property alias lineCount: lines.lineCount
    property alias horizontalAlignment: lines.horizontalAlignment
    readonly property bool isCentred: horizontalAlignment === Text.AlignHCenter

    implicitWidth: Math.ceil(lines.implicitWidth)
    implicitHeight: topPadding + lines.height

    Text {
        id: lines

        anchors.centerIn: parent
        anchors.verticalCenterOffset: Math.round(block.topPadding / 2)
        width: block.isCentred ? Typesetting.balancedWidth(text, font, block.width) : block.width
        text: Typesetting.prepared(block.text)
        textFormat: Text.PlainText
        font.family: Look.family
        color: Look.text
        wrapMode: Text.Wrap
    }
}
