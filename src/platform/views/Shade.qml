import QtQuick

// Dims what lies below it, at first not at all. Assistive technology, which cannot tap beside what
// lies over it, presses it instead.
Rectangle {
    id: shade

    property string text

    signal clicked

    opacity: 0
    color: "black"

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.ignored: opacity === 0
    // The call on the accessibility bus returns before the work begins.
    Accessible.onPressAction: Qt.callLater(shade.clicked)
}
