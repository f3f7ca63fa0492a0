import QtQuick
import Tarnwick

Page {
    spacing: 16

    Steps { current: "cloud" }

    WrappedText {
        width: parent.width
        text: "Keep a copy elsewhere"
        horizontalAlignment: Text.AlignHCenter
        font { pixelSize: Math.round(Look.headline * 1.2); bold: true }

        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    Tagline { text: "The archives of your data stay on this device. Copy them to another machine before a wipe; over SSH, \u201ctarnwick export\u201d sends all of them as one file." }

    Tagline { text: "The list of installed packages that you saved last is mailed as a text file, to whom you choose." }
    Tagline { objectName: "packageListState" }
    Tagline { objectName: "mailerState" }

    ScreenButton { objectName: "sendBackupButton"; text: "Send Backup"; actionName: "sendBackup" }
}
