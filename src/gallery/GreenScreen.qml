import QtQuick

ButtonScreen { color: "#d9f2e0" }
