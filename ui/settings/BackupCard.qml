pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The backups, how to make one, and how to go back to one.
SettingsCard {
    id: root

    required property DataSettings settings

    function ask(row: int): void {
        if (!root.settings.canReplace || root.settings.isWorking)
            return;
        question.row = row;
        question.active = true;
    }

    title: qsTrId("backups_title")
    explanation: qsTrId("backups_text")

    SettingRow {
        label: root.settings.lastBackupText
        hint: root.settings.backupPath

        PushButton {
            objectName: "openBackupFolder"
            symbol: "folder"
            text: qsTrId("data_open_folder_button")
            onClicked: Qt.openUrlExternally(root.settings.backupFolder)
        }

        PushButton {
            objectName: "backUpNow"
            enabled: !root.settings.isWorking
            symbol: "square.and.arrow.down"
            text: qsTrId("backup_now_button")
            onClicked: root.settings.backUpNow()
        }
    }

    ColumnLayout {
        visible: root.settings.isWorking
        spacing: Theme.gap2

        ThemedText {
            Layout.fillWidth: true
            text: root.settings.workText
            color: Theme.textMuted
        }

        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 6
            radius: 3
            color: Theme.track
            Accessible.role: Accessible.ProgressBar
            Accessible.name: root.settings.workText

            Rectangle {
                width: parent.width * root.settings.percent / 100
                height: parent.height
                radius: 3
                color: Theme.accentBright
            }
        }
    }

    Banner {
        objectName: "dataNotice"
        Layout.fillWidth: true
        visible: root.settings.notice.length > 0
        symbol: root.settings.isNoticeProblem ? "exclamationmark.triangle" : "checkmark.circle.fill"
        foreground: root.settings.isNoticeProblem ? Theme.amber : Theme.legitimate
        color: root.settings.isNoticeProblem ? Theme.amberSurface : Theme.legitimateSurface
        text: root.settings.notice
        isDismissible: true
        onDismissed: root.settings.dismissNotice()
    }

    ListView {
        id: list

        objectName: "backupList"
        Layout.fillWidth: true
        Layout.preferredHeight: Math.min(contentHeight, 5.5 * 60)
        visible: count > 0
        clip: true
        spacing: Theme.gap1
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        model: root.settings.backups
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("backups_title")

        Keys.onReturnPressed: root.ask(list.currentIndex)
        Keys.onEnterPressed: root.ask(list.currentIndex)

        T.ScrollBar.vertical: ScrollBarThin {}

        delegate: BackupRow {
            required property int index

            width: list.width - Theme.gap3
            hasKeyboard: list.activeFocus
            canRestore: root.settings.canReplace && !root.settings.isWorking
            onRestoreChosen: {
                list.currentIndex = index;
                root.ask(index);
            }
        }
    }

    Deferred {
        id: question

        property int row: -1

        visible: false

        QuestionDialog {
            visible: true
            title: qsTrId("restore_title")
            message: root.settings.restoreQuestion(question.row)
            acceptText: qsTrId("restore_button")
            rejectText: qsTrId("cancel_button")
            onAccepted: root.settings.restore(question.row)
            onClosed: {
                question.active = false;
                list.forceActiveFocus(Qt.TabFocusReason);
            }
        }
    }
}
