import QtQuick
import Tarnwick

// A plain-text field of a form, which grows with its text.
TextEdit {
    textFormat: TextEdit.PlainText
    wrapMode: TextEdit.Wrap
    font { family: Look.family; pixelSize: Look.headline }
    color: Look.text
    selectionColor: Look.tint
    selectedTextColor: "white"
    selectByMouse: true
    activeFocusOnTab: true

    // Tab leaves the field, as a form needs no tab characters.
    Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

    Accessible.role: Accessible.EditableText
}
