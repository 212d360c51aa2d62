pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The feedback form over the page, beside what it will send. Escape closes it; what was written is kept.
T.Popup {
    id: root

    required property FeedbackForm model
    readonly property bool isSent: root.model.state === "sent"

    function problemText(): string {
        if (root.model.problemKey.length === 0)
            return "";
        const words = qsTrId(root.model.problemKey);
        return (root.model.problemArgument.length > 0 ? words.arg(root.model.problemArgument) : words) + " " + qsTrId("feedback_kept");
    }

    objectName: "feedbackSheet"
    parent: T.Overlay.overlay
    anchors.centerIn: parent
    modal: true
    focus: true
    visible: true
    padding: Theme.gap6
    implicitWidth: root.isSent ? 480 : 912
    implicitHeight: root.isSent ? thanks.implicitHeight + topPadding + bottomPadding : Math.min(parent ? parent.height - 2 * Theme.gap6 : 600, 600)
    closePolicy: T.Popup.NoAutoClose

    onOpened: fields.focusStart()
    onIsSentChanged: {
        if (root.isSent)
            done.forceActiveFocus(Qt.TabFocusReason);
    }

    T.Overlay.modal: Rectangle {
        color: Theme.shade
    }

    FocusScope {
        anchors.fill: parent
        focus: true
        Accessible.role: Accessible.Dialog
        Accessible.name: qsTrId("feedback_title")

        Keys.onEscapePressed: root.model.dismiss()
        Keys.onPressed: event => {
            event.accepted = (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && event.modifiers & Qt.ControlModifier;
            if (event.accepted)
                root.model.send();
        }

        ColumnLayout {
            anchors.fill: parent
            visible: !root.isSent
            spacing: Theme.gap4

            ThemedText {
                Layout.fillWidth: true
                text: qsTrId("feedback_title")
                font.pixelSize: Theme.title
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }

            Banner {
                objectName: "feedbackProblem"
                Layout.fillWidth: true
                visible: root.model.problemKey.length > 0
                text: root.problemText()
            }

            RowLayout {
                Layout.fillWidth: true
                Layout.fillHeight: true
                spacing: Theme.gap6

                FeedbackFields {
                    id: fields

                    Layout.preferredWidth: 440
                    Layout.maximumWidth: 440
                    Layout.fillHeight: true
                    form: root.model
                }

                FeedbackPreview {
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    form: root.model
                }
            }

            RowLayout {
                spacing: Theme.gap3

                ThemedText {
                    Layout.fillWidth: true
                    text: qsTrId("feedback_keys_hint")
                    color: Theme.textFaint
                    font.pixelSize: Theme.caption
                    wrapMode: Text.WordWrap
                }

                PushButton {
                    objectName: "feedbackClose"
                    implicitHeight: Theme.controlHeightLarge
                    text: qsTrId("feedback_close_button")
                    onClicked: root.model.dismiss()
                }

                PushButton {
                    objectName: "feedbackSend"
                    kind: PushButton.Kind.Primary
                    symbol: "envelope"
                    enabled: root.model.canSend
                    text: root.model.state === "sending" ? qsTrId("feedback_sending") : root.model.problemKey.length > 0 ? qsTrId("feedback_retry_button") : qsTrId("feedback_send_button")
                    onClicked: root.model.send()
                }
            }
        }

        ColumnLayout {
            id: thanks

            anchors.left: parent.left
            anchors.right: parent.right
            visible: root.isSent
            spacing: Theme.gap4

            Symbol {
                Layout.alignment: Qt.AlignHCenter
                name: "checkmark.circle.fill"
                color: Theme.legitimate
                size: 44
            }

            ThemedText {
                Layout.fillWidth: true
                text: qsTrId("feedback_thanks")
                font.pixelSize: Theme.bodyLarge
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
            }

            PushButton {
                id: done

                objectName: "feedbackDone"
                Layout.alignment: Qt.AlignHCenter
                kind: PushButton.Kind.Primary
                text: qsTrId("feedback_close_button")
                onClicked: root.model.dismiss()
            }
        }
    }

    background: Rectangle {
        radius: Theme.radiusLarge
        color: Theme.surface
        border.width: 1
        border.color: Theme.outline
    }
}
