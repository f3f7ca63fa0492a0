import QtQuick

// The content of a page: line by line, from the left to the right.
Flow {
    property int columns: 1
    // Of what stands beside its like, in points.
    readonly property real columnWidth: Math.floor((width - (columns - 1) * spacing) / columns)

    spacing: 10
}
