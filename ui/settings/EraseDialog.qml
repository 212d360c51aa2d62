pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// Says what erasing takes, offers a backup before, and wants a word typed. Open as long as it is there.
T.Popup {
    id: root

    required property DataSettings settings

    function erase(): void {
        if (!eraseButton.enabled)
            return;
        root.settings.erase(word.text, settingsToo.checked, backupsToo.checked);
        root.close();
    }

    objectName: "eraseDialog"
    parent: T.Overlay.overlay
    anchors.centerIn: parent
    visible: true
    modal: true
    focus: true
    padding: Theme.gap6
    implicitWidth: 560
    implicitHeight: content.implicitHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnEscape

    onOpened: word.forceActiveFocus(Qt.TabFocusReason)

    T.Overlay.modal: Rectangle {
        color: Theme.shade
    }

    ColumnLayout {
        id: content

        width: root.availableWidth
        spacing: Theme.gap4
        Accessible.role: Accessible.Dialog
        Accessible.name: qsTrId("erase_title")

        ThemedText {
            Layout.fillWidth: true
            text: qsTrId("erase_title")
            font.pixelSize: Theme.title
            font.weight: Font.DemiBold
            wrapMode: Text.WordWrap
        }

        ThemedText {
            Layout.fillWidth: true
            text: qsTrId("erase_message")
            color: Theme.textMuted
            wrapMode: Text.WordWrap
            lineHeight: 1.25
        }

        SettingRow {
            label: qsTrId("erase_settings_label")
            hint: qsTrId("erase_settings_hint")

            ToggleSwitch {
                id: settingsToo

                objectName: "eraseSettings"
                text: qsTrId("erase_settings_label")
            }
        }

        SettingRow {
            label: qsTrId("erase_backups_label")
            hint: qsTrId("erase_backups_hint")

            ToggleSwitch {
                id: backupsToo

                objectName: "eraseBackups"
                text: qsTrId("erase_backups_label")
            }
        }

        SettingRow {
            label: root.settings.notice.length > 0 ? root.settings.notice : root.settings.isWorking ? root.settings.workText : qsTrId("erase_backup_offer")

            PushButton {
                objectName: "eraseBackUp"
                enabled: !root.settings.isWorking && !backupsToo.checked
                symbol: "square.and.arrow.down"
                text: qsTrId("backup_now_button")
                onClicked: root.settings.backUpNow()
            }
        }

        SettingRow {
            label: qsTrId("erase_word_label").arg(root.settings.eraseWord)

            EntryField {
                id: word

                objectName: "eraseWord"
                Layout.preferredWidth: 200
                Accessible.name: qsTrId("erase_word_label").arg(root.settings.eraseWord)
                onAccepted: root.erase()
            }
        }

        RowLayout {
            Layout.topMargin: Theme.gap2
            Layout.alignment: Qt.AlignRight
            spacing: Theme.gap3

            PushButton {
                implicitHeight: Theme.controlHeightLarge
                text: qsTrId("cancel_button")
                onClicked: root.close()
            }

            PushButton {
                id: eraseButton

                objectName: "eraseConfirm"
                kind: PushButton.Kind.Danger
                enabled: root.settings.isEraseWord(word.text) && !root.settings.isWorking
                text: qsTrId("erase_button")
                onClicked: root.erase()
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
