import QtQuick

// The fill and border of a layer, at first invisible.
Rectangle {
    property alias borderWidth: rectangle.border.width
    property alias borderColor: rectangle.border.color

    id: rectangle
    color: "transparent"
    border.width: 0
}
