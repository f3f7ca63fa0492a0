import QtQuick
import Tarnwick

// A sheet to write a mail on: a bar, the lines of the head, what is attached, the text. What it
// does is C++'s.
FocusScope {
    id: composer

    required property color barTint
    required property color itemTint
    required property color titleColor
    required property font titleFont
    required property color titleShadowColor
    required property point titleShadowOffset
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
        id: barButton

        width: Math.ceil(implicitContentWidth) + 2 * 12
        height: bar.height
        font { pixelSize: Look.caption; bold: true }
        opacity: enabled ? 1 : 0.45
        focusRingColor: composer.itemTint
        focusRingRadius: 8
        Accessible.ignored: false
        Accessible.description: enabled ? "" : "not available"

        contentItem: Text {
            text: barButton.text
            textFormat: Text.PlainText
            font: barButton.font
            color: composer.itemTint
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }

        background: BarButtonShade { button: barButton }
    }

    Rectangle {
        anchors.fill: parent
        color: Look.sheet
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
                color: Look.destructive

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
                            font { family: Look.family; pixelSize: Look.headline }
                            color: Look.text
                            wrapMode: Text.Wrap
                        }

                        Text {
                            width: parent.width
                            text: attachment.modelData.size
                            textFormat: Text.PlainText
                            font { family: Look.family; pixelSize: Look.body }
                            color: Look.quietText
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

        BarTitle {
            id: title

            // Between the buttons if there is room; they tell enough.
            visible: implicitWidth <= sendButton.x - cancelButton.width
            x: Math.round(Math.max(cancelButton.width, Math.min((bar.width - width) / 2, sendButton.x - width)))
            anchors.verticalCenter: parent.verticalCenter
            text: composer.busy ? composer.busyWith : "New Message"
            color: composer.titleColor
            font: composer.titleFont
            shadowColor: composer.titleShadowColor
            shadowOffset: composer.titleShadowOffset
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
