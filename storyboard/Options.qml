import QtQuick
import Tarnwick

Page {
    mostColumns: 2

    component Figures: Column {
        width: (parent as PageFlow)?.columnWidth ?? 0
    }
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
            color: Look.quietText
            font { family: Look.family; pixelSize: Look.callout }
        }

        Text {
            id: value

            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            text: "\u2026"
            textFormat: Text.PlainText
            color: Look.text
            font { family: Look.family; pixelSize: Look.callout; bold: true }
        }
    }

    Tagline { objectName: "mainOptions" }

    SectionHeading { label: "applicationFilesAndFoldersTitle"; text: "Application Files and Folders" }
    ScreenButton { objectName: "recreateApplicationFoldersButton"; text: "Create Application Folders"; actionName: "recreateApplicationFolders" }
    ScreenButton { objectName: "removeSafeguardButton"; text: "Remove Backup Folders"; actionName: "removeSafeguard" }
    ScreenButton { objectName: "removeSourcesListButton"; text: "Remove TWKSources"; actionName: "removeSourcesList" }

    SectionHeading { label: "applyChangesOptionsTitle"; text: "Apply Changes" }
    ScreenButton { objectName: "respringButton"; text: "Respring"; actionName: "respring" }
    ScreenButton { objectName: "rebootButton"; text: "Reboot"; actionName: "reboot" }

    SectionHeading { label: "miscellaneousTitle"; text: "Miscellaneous" }
    Figures {
        Figure { caption: "Total Space"; figure: "totalUserMemory" }
        Figure { caption: "Free Space"; figure: "freeUserMemory" }
    }
    ScreenButton { objectName: "backupSizeButton"; text: "Backup Size"; actionName: "backupSize" }
}
