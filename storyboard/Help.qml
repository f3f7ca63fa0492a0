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
