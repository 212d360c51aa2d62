pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// Where the user's data is, its backups, and the end of all of it.
ColumnLayout {
    id: root

    required property DataSettings settings

    spacing: Theme.gap4

    SettingsCard {
        title: qsTrId("data_place_title")
        explanation: qsTrId("data_place_text")

        SettingRow {
            label: root.settings.storeFile
            hint: root.settings.sizeText

            PushButton {
                objectName: "openStoreFolder"
                symbol: "folder"
                text: qsTrId("data_open_folder_button")
                onClicked: Qt.openUrlExternally(root.settings.storeFolder)
            }
        }

        RowLayout {
            spacing: Theme.gap3

            Symbol {
                name: "clock.arrow.circlepath"
                color: Theme.textFaint
            }

            ThemedText {
                objectName: "recordsText"
                Layout.fillWidth: true
                text: root.settings.recordsText
                color: Theme.textMuted
                wrapMode: Text.WordWrap
            }
        }
    }

    BackupCard {
        settings: root.settings
    }

    SettingsCard {
        title: qsTrId("erase_title")
        explanation: qsTrId("erase_text")

        PushButton {
            id: eraseButton

            objectName: "eraseButton"
            enabled: root.settings.canReplace && !root.settings.isWorking
            symbol: "trash"
            symbolColor: Theme.dangerText
            text: qsTrId("erase_open_button")
            onClicked: erasing.active = true
        }

        ThemedText {
            Layout.fillWidth: true
            visible: !root.settings.canReplace
            text: qsTrId("data_refused_session")
            color: Theme.textMuted
            wrapMode: Text.WordWrap
        }
    }

    Deferred {
        id: erasing

        visible: false

        EraseDialog {
            settings: root.settings
            onClosed: {
                erasing.active = false;
                eraseButton.forceActiveFocus(Qt.TabFocusReason);
            }
        }
    }
}
