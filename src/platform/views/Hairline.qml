import QtQuick
import Tarnwick

// A separator.
Rectangle {
    color: Look.separator
}
