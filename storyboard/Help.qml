import QtQuick
import Tarnwick

Page {
    component Question: WrappedText {
        width: parent.width
        topPadding: 12
        color: Look.link
        font { pixelSize: Look.headline - 1; bold: true }

        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    component Reply: WrappedText {
        width: parent.width
        lineHeight: 1.15
        font.pixelSize: Look.callout

        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Question { text: "The way through a wipe" }
    Reply { text: "1. Save: \u201cAll in One\u201d and the two buttons above it, on the Backup screen.\n2. Copy away: the archives stay on this device. Over SSH, \u201ctarnwick check\u201d says whether all is saved, and \u201ctarnwick export\u201d sends it to another machine.\n3. After the wipe, \u201ctarnwick import\u201d brings it back. Then use the Restore screen: the sources first, then the packages, then \u201cAll in One\u201d." }

    Reply { objectName: "mainHelp" }
    Question { objectName: "questionUntether" }
    Reply { objectName: "replyUntether" }
    Question { objectName: "questionMajorIosUpdate" }
    Reply { objectName: "replyMAjorIosUpdate" }
    Question { objectName: "questionTime" }
    Reply { objectName: "replyTime" }
    Question { objectName: "questionCydia" }
    Reply { objectName: "replyCydia" }
}
