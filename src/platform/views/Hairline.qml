import QtQuick

// A separator.
Rectangle {
    color: Qt.rgba(0.24, 0.24, 0.26, 0.33)
}
