import QtQuick
import Tarnwick

Page {
    // A caption and the figure that belongs to it.
    component Figure: Item {
        property alias caption: name.text
        property alias figure: value.objectName

        width: parent.width
        height: Math.max(name.height, value.height) + 12

        Accessible.role: Accessible.StaticText
        Accessible.name: name.text + " " + value.text

        Text {
            id: name

            anchors.verticalCenter: parent.verticalCenter
            textFormat: Text.PlainText
            color: "#4a5563"
            font.pixelSize: Look.callout
        }

        Text {
            id: value

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            text: "\u2026"
            textFormat: Text.PlainText
            color: "#111820"
            font { pixelSize: Look.callout; bold: true }
        }
    }

    Tagline { objectName: "mainOptions" }

    SectionHeading { objectName: "applicationFilesAndFoldersTitle"; text: "Application Files and Folders" }
    ScreenButton { objectName: "recreateApplicationFoldersButton"; text: "Create Application Folders"; actionName: "recreateApplicationFolders" }
    ScreenButton { objectName: "removeSafeguardButton"; text: "Remove Backup Folders"; actionName: "removeSafeguard" }
    ScreenButton { objectName: "removeSourcesListButton"; text: "Remove TWKSources"; actionName: "removeSourcesList" }

    SectionHeading { objectName: "applyChangesOptionsTitle"; text: "Apply Changes" }
    ScreenButton { objectName: "respringButton"; text: "Respring"; actionName: "respring" }
    ScreenButton { objectName: "rebootButton"; text: "Reboot"; actionName: "reboot" }

    SectionHeading { objectName: "miscellaneousTitle"; text: "Miscellaneous" }
    Figure { caption: "Total Space"; figure: "totalUserMemory" }
    Figure { caption: "Free Space"; figure: "freeUserMemory" }
    ScreenButton { objectName: "backupSizeButton"; text: "Backup Size"; actionName: "backupSize" }
}
