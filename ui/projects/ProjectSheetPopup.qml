pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The sheet of one project, over the page. It is there as long as the sheet is presented.
T.Popup {
    id: root

    required property ProjectSheet model

    function leave(): void {
        if (root.model.hasChanges)
            question.active = true;
        else
            root.model.isPresented = false;
    }

    objectName: "projectSheet"
    parent: T.Overlay.overlay
    anchors.centerIn: parent
    modal: true
    focus: true
    visible: true
    padding: Theme.gap6
    implicitWidth: 872
    implicitHeight: Math.min(parent ? parent.height - 2 * Theme.gap6 : 584, 584)
    closePolicy: T.Popup.NoAutoClose

    onOpened: fields.focusName()

    T.Overlay.modal: Rectangle {
        color: Theme.shade
    }

    FocusScope {
        anchors.fill: parent
        focus: true
        Accessible.role: Accessible.Dialog
        Accessible.name: title.text

        Keys.onEscapePressed: root.leave()
        Keys.onPressed: event => {
            event.accepted = (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && event.modifiers & Qt.ControlModifier;
            if (event.accepted)
                root.model.saveProject();
        }

        ColumnLayout {
            anchors.fill: parent
            spacing: Theme.gap5

            ThemedText {
                id: title

                Layout.fillWidth: true
                text: root.model.isEditing ? qsTrId("edit_project") : qsTrId("create_project_title")
                font.pixelSize: Theme.title
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }

            RowLayout {
                Layout.fillWidth: true
                Layout.fillHeight: true
                spacing: Theme.gap8

                ProjectFields {
                    id: fields

                    Layout.preferredWidth: 432
                    Layout.maximumWidth: 432
                    Layout.alignment: Qt.AlignTop
                    sheet: root.model
                }

                PhaseNameList {
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    sheet: root.model
                }
            }

            RowLayout {
                spacing: Theme.gap3

                ThemedText {
                    Layout.fillWidth: true
                    text: qsTrId("project_keys_hint")
                    color: Theme.textFaint
                    font.pixelSize: Theme.caption
                    wrapMode: Text.WordWrap
                }

                PushButton {
                    objectName: "projectCancel"
                    implicitHeight: Theme.controlHeightLarge
                    text: qsTrId("cancel_button")
                    onClicked: root.model.isPresented = false
                }

                PushButton {
                    objectName: "projectSave"
                    kind: PushButton.Kind.Primary
                    symbol: "checkmark"
                    enabled: root.model.canSave
                    text: root.model.isEditing ? qsTrId("save_project_action") : qsTrId("create_project_action")
                    onClicked: root.model.saveProject()
                }
            }
        }
    }

    Deferred {
        id: question

        QuestionDialog {
            objectName: "discardQuestion"
            visible: true
            title: qsTrId("project_discard_title")
            message: qsTrId("project_discard_message")
            acceptText: qsTrId("project_discard_button")
            rejectText: qsTrId("project_keep_button")
            onAccepted: root.model.isPresented = false
            onClosed: {
                question.active = false;
                fields.focusName();
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
