import QtQuick

// The title in the middle of a bar, as all bars of the application have it.
Item {
    id: title

    required property string text
    required property color color
    required property font font
    required property color shadowColor
    required property point shadowOffset
    // In points; what does not fit is elided.
    property real widest: Infinity

    implicitWidth: words.implicitWidth
    implicitHeight: words.implicitHeight

    component Words: Text {
        width: Math.min(implicitWidth, title.widest)
        text: title.text
        textFormat: Text.PlainText
        elide: Text.ElideRight
        font: title.font
    }

    Words {
        anchors.centerIn: parent
        anchors.horizontalCenterOffset: title.shadowOffset.x
        anchors.verticalCenterOffset: title.shadowOffset.y
        color: title.shadowColor
    }

    Words {
        id: words

        anchors.centerIn: parent
        color: title.color
    }

    Accessible.role: Accessible.Heading
    Accessible.name: text
}
