pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The backups, how to make one, and how to go back to one.
SettingsCard {
    id: root

    required property DataSettings settings

    function ask(row: BackupRow): void {
        if (!row || !row.isUsable || !row.canRestore)
            return;
        question.file = row.file;
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

        // A list that was read anew has lost its place.
        onCountChanged: list.currentIndex = Math.max(list.currentIndex, 0)

        Keys.onReturnPressed: root.ask(list.currentItem as BackupRow)
        Keys.onEnterPressed: root.ask(list.currentItem as BackupRow)

        T.ScrollBar.vertical: ScrollBarThin {}

        delegate: BackupRow {
            id: row

            required property int index

            width: list.width - Theme.gap3
            hasKeyboard: list.activeFocus
            canRestore: root.settings.canReplace && !root.settings.isWorking
            onRestoreChosen: {
                list.currentIndex = row.index;
                root.ask(row);
            }
        }
    }

    Deferred {
        id: question

        property string file: ""

        visible: false

        QuestionDialog {
            visible: true
            title: qsTrId("restore_title")
            message: root.settings.restoreQuestion(question.file)
            acceptText: qsTrId("restore_button")
            rejectText: qsTrId("cancel_button")
            onAccepted: root.settings.restore(question.file)
            onClosed: {
                question.active = false;
                list.forceActiveFocus(Qt.TabFocusReason);
            }
        }
    }
}
