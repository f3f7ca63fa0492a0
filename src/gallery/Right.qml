import QtQuick

Rectangle {
    color: "#7a2e3f"

    Text {
        anchors { right: parent.right; top: parent.top; margins: 24 }
        text: "The right screen"
        color: "white"
        font.pixelSize: 17
        Accessible.name: text
        Accessible.role: Accessible.StaticText
    }
}
