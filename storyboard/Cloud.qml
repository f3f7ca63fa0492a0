import QtQuick
import Tarnwick

Page {
    id: page

    spacing: 16

    Item {
        width: parent.width
        height: symbol.height + 2 * page.margin

        SymbolView {
            id: symbol

            anchors.centerIn: parent
            // Low screens are for the words.
            width: Math.max(40, Math.min(96, Math.round(page.height * 0.15)))
            height: width
            name: "cloud"
            color: Look.tint
        }
    }

    Text {
        width: parent.width
        text: "Keep a copy elsewhere"
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        color: "#111820"
        font { pixelSize: Math.round(Look.headline * 1.2); bold: true }

        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    Tagline { text: "The list of installed packages that you saved last is mailed as a text file, to whom you choose." }

    ScreenButton { objectName: "sendBackupButton"; text: "Send Backup"; actionName: "sendBackup" }
}
