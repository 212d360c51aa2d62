pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The sheet of one task, over the page. Open as long as it is there.
Item {
    id: root

    required property TaskSheet model
    readonly property TaskSheet sheet: root.model

    function leave(): void {
        // What is being typed counts as said.
        main.commit();
        root.sheet.close();
    }

    function acceptNew(): void {
        main.commit();
        if (!root.sheet.create())
            main.focusTitle();
    }

    T.Popup {
        id: popup

        objectName: "taskSheet"
        parent: T.Overlay.overlay
        anchors.centerIn: parent
        modal: true
        focus: true
        visible: true
        padding: 0
        implicitWidth: 920
        implicitHeight: Math.min(parent ? parent.height - 2 * Theme.gap6 : 760, root.sheet.isNew ? 640 : 760)
        closePolicy: T.Popup.NoAutoClose

        onOpened: main.focusTitle()

        T.Overlay.modal: Rectangle {
            color: Theme.shade
        }

        FocusScope {
            anchors.fill: parent
            focus: true

            Keys.onEscapePressed: root.leave()
            Accessible.role: Accessible.Dialog
            Accessible.name: root.sheet.isNew ? qsTrId("task_new_title") : qsTrId("task_detail_title")

            Shortcut {
                sequences: ["Ctrl+Return", "Ctrl+Enter"]
                enabled: root.sheet.isNew
                onActivated: root.acceptNew()
            }

            ColumnLayout {
                anchors.fill: parent
                spacing: 0

                TaskSheetHeader {
                    Layout.fillWidth: true
                    Layout.margins: Theme.gap6
                    Layout.bottomMargin: Theme.gap2
                    sheet: root.sheet
                    onDeleteAsked: question.active = true
                    onExited: root.leave()
                }

                RowLayout {
                    Layout.margins: Theme.gap6
                    Layout.topMargin: 0
                    spacing: Theme.gap6

                    TaskSheetMain {
                        id: main

                        Layout.fillWidth: true
                        Layout.fillHeight: true
                        focus: true
                        sheet: root.sheet
                        onAccepted: {
                            if (root.sheet.isNew)
                                root.acceptNew();
                        }
                    }

                    TaskSheetFields {
                        Layout.preferredWidth: 280
                        Layout.fillHeight: true
                        sheet: root.sheet
                    }
                }

                RowLayout {
                    Layout.margins: Theme.gap6
                    Layout.topMargin: 0
                    visible: root.sheet.isNew
                    spacing: Theme.gap3

                    ThemedText {
                        Layout.fillWidth: true
                        text: qsTrId("task_create_keys_hint")
                        color: Theme.textFaint
                        font.pixelSize: Theme.caption
                        wrapMode: Text.WordWrap
                    }

                    PushButton {
                        implicitHeight: Theme.controlHeightLarge
                        text: qsTrId("cancel_button")
                        onClicked: root.sheet.close()
                    }

                    PushButton {
                        objectName: "taskCreateButton"
                        kind: PushButton.Kind.Primary
                        text: qsTrId("task_create_button")
                        enabled: main.hasTitle
                        onClicked: root.acceptNew()
                    }
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

    Deferred {
        id: question

        QuestionDialog {
            visible: true
            title: qsTrId("confirm_delete_task_title")
            message: qsTrId("confirm_delete_task_message") + " " + root.sheet.deletionConsequences()
            acceptText: qsTrId("delete_button")
            rejectText: qsTrId("cancel_button")
            onAccepted: root.sheet.deleteTask()
            onClosed: question.active = false
        }
    }
}
