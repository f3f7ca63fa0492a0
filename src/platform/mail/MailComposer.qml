import QtQuick
import Tarnwick

// A sheet to write a mail on: a bar, the lines of the head, what is attached, the text. What it
// does is C++'s.
FocusScope {
    id: composer

    required property color barTint
    required property color itemTint
    required property color titleColor
    required property string subject
    required property string body
    required property var attachments
    // Stands above the form; empty for none.
    required property string notice
    property bool canSend: false
    // Says what goes on while nothing can be written; empty otherwise.
    property string busyWith
    readonly property bool busy: busyWith !== ""
    readonly property int margin: 16

    Accessible.role: Accessible.Dialog
    Accessible.name: title.text

    Keys.onEscapePressed: event => { if (!event.isAutoRepeat && cancelButton.enabled) cancelButton.clicked() }

    component BarButton: BareButton {
        width: Math.ceil(implicitContentWidth) + 2 * composer.margin
        height: bar.height
        font.pixelSize: Look.headline
        opacity: enabled ? (pressed ? 0.5 : 1) : 0.45
        focusRingColor: composer.itemTint
        focusRingRadius: 8
        Accessible.ignored: false
        Accessible.description: enabled ? "" : "not available"

        contentItem: Text {
            text: parent.text
            textFormat: Text.PlainText
            font: parent.font
            color: composer.itemTint
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }

    Rectangle {
        anchors.fill: parent
        color: "white"
    }

    Flickable {
        id: form
        objectName: "form"

        y: bar.height
        width: composer.width
        height: composer.height - y
        contentHeight: Math.max(height, words.y + words.height)
        boundsBehavior: Flickable.StopAtBounds
        flickableDirection: Flickable.VerticalFlick
        clip: true
        enabled: !composer.busy

        Accessible.role: Accessible.List

        Column {
            id: head

            width: form.width

            Text {
                visible: text !== ""
                width: parent.width
                padding: composer.margin
                text: composer.notice
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                font { pixelSize: Look.body; bold: true }
                color: "#9a3412"

                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            TextLine {
                label: "To"
                fieldName: "recipientsField"
                focus: true
                inputMethodHints: Qt.ImhEmailCharactersOnly | Qt.ImhNoAutoUppercase
                onAccepted: subjectLine.forceActiveFocus(Qt.TabFocusReason)
            }

            TextLine {
                id: subjectLine

                label: "Subject"
                fieldName: "subjectField"
                text: composer.subject
                onAccepted: words.forceActiveFocus(Qt.TabFocusReason)
            }

            Repeater {
                model: composer.attachments

                Item {
                    id: attachment

                    required property var modelData

                    width: head.width
                    height: Math.max(44, names.height + 16)

                    Accessible.role: Accessible.StaticText
                    Accessible.name: "Attached: " + modelData.name + ", " + modelData.size

                    Column {
                        id: names

                        x: composer.margin
                        anchors.verticalCenter: parent.verticalCenter
                        width: parent.width - 2 * x
                        spacing: 2

                        Text {
                            width: parent.width
                            text: attachment.modelData.name
                            textFormat: Text.PlainText
                            font.pixelSize: Look.headline
                            color: "black"
                            wrapMode: Text.Wrap
                        }

                        Text {
                            width: parent.width
                            text: attachment.modelData.size
                            textFormat: Text.PlainText
                            font.pixelSize: Look.body
                            color: Qt.rgba(0.24, 0.24, 0.26, 0.8)
                            wrapMode: Text.Wrap
                        }
                    }

                    Hairline {
                        x: composer.margin
                        y: parent.height - height
                        width: parent.width - x
                        height: 1
                    }
                }
            }
        }

        TextLineField {
            id: words
            objectName: "bodyField"

            y: head.height
            width: form.width
            height: Math.max(implicitHeight, form.height - y)
            text: composer.body
            padding: composer.margin
            topPadding: 12

            Accessible.name: "Message"
            Accessible.multiLine: true
        }

        ScrollMark {
            area: form
        }
    }

    Rectangle {
        id: bar

        width: composer.width
        height: Math.max(44, title.implicitHeight + 16)
        color: composer.barTint

        BarButton {
            id: cancelButton

            text: "Cancel"
            actionName: "cancel"
            enabled: !composer.busy
        }

        Text {
            id: title

            // Between the buttons if there is room; they tell enough.
            visible: implicitWidth <= bar.width - 2 * Math.max(cancelButton.width, sendButton.width)
            anchors.centerIn: parent
            text: composer.busy ? composer.busyWith : "New Message"
            textFormat: Text.PlainText
            font.pixelSize: Look.headline
            font.bold: true
            color: composer.titleColor

            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        BarButton {
            id: sendButton

            anchors.right: parent.right
            text: "Send"
            actionName: "send"
            enabled: composer.canSend && !composer.busy
        }
    }
}
