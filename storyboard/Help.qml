import QtQuick
import Tarnwick

Page {
    component Question: Text {
        width: parent.width
        topPadding: 10
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        color: Look.tint
        font { pixelSize: Look.headline - 1; bold: true }

        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    component Reply: Text {
        width: parent.width
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        lineHeight: 1.15
        color: "#222b36"
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
