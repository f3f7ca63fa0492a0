import QtQuick
import Tarnwick

// A field of a form for plain text, which grows with what is written in it.
TextEdit {
    textFormat: TextEdit.PlainText
    wrapMode: TextEdit.Wrap
    font.pixelSize: Look.headline
    color: "black"
    selectionColor: Look.tint
    selectByMouse: true
    activeFocusOnTab: true

    // A form has no use for tabulators, and the keyboard must find its way out.
    Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

    Accessible.role: Accessible.EditableText
}
