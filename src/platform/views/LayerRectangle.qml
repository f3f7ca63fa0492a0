import QtQuick

// What a layer draws: nothing until it is told.
Rectangle {
    property alias borderWidth: rectangle.border.width
    property alias borderColor: rectangle.border.color

    id: rectangle
    color: "transparent"
    border.width: 0
}
