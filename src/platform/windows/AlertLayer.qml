import QtQuick

// Holds the alerts; its scrim dims the screen under them.
Item {
    readonly property alias scrim: scrim

    visible: false
    anchors.fill: parent

    Rectangle {
        id: scrim

        anchors.fill: parent
        opacity: 0
        color: Qt.rgba(0, 0, 0, 0.4)
    }
}
