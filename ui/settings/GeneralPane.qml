pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// Who uses the program, in which language, and when it starts.
ColumnLayout {
    id: root

    required property PreferencesScreen model

    spacing: Theme.gap4

    SettingsCard {
        title: qsTrId("preferences_you_title")

        SettingRow {
            label: qsTrId("language_label")

            SegmentedChoice {
                objectName: "preferencesLanguage"
                name: qsTrId("language_label")
                values: Localization.languages
                labels: Localization.languageNames
                value: Localization.language
                onChosen: value => Localization.language = value
            }
        }

        SettingRow {
            label: qsTrId("profile_name_label")
            hint: qsTrId("profile_name_hint")

            EntryField {
                objectName: "profileName"
                Layout.preferredWidth: 260
                placeholderText: qsTrId("profile_name_placeholder")
                Accessible.name: qsTrId("profile_name_label")
                maximumLength: 60
                text: root.model.profileName
                onTextEdited: root.model.profileName = text
                // What is kept has no blanks around it.
                onEditingFinished: text = root.model.profileName
            }
        }
    }

    SettingsCard {
        title: qsTrId("preferences_start_title")

        SettingRow {
            label: qsTrId("autostart_label")
            hint: qsTrId("autostart_hint")

            ToggleSwitch {
                id: autostart

                objectName: "autostartSwitch"
                text: qsTrId("autostart_label")
                checked: root.model.startsAtLogin
                onToggled: {
                    root.model.startsAtLogin = autostart.checked;
                    // Where it could not be changed, or is answered later.
                    autostart.checked = Qt.binding(() => root.model.startsAtLogin);
                }
            }
        }

        Banner {
            objectName: "autostartProblem"
            Layout.fillWidth: true
            visible: root.model.autostartProblemKey.length > 0
            text: visible ? qsTrId(root.model.autostartProblemKey) + " " + qsTrId(root.model.autostartProblemKey + "_remedy") : ""
        }

        SettingRow {
            label: qsTrId("welcome_again_label")
            hint: qsTrId("welcome_again_hint")

            PushButton {
                objectName: "welcomeAgain"
                symbol: "sparkles"
                text: qsTrId("welcome_again_button")
                onClicked: root.model.welcomeWanted()
            }
        }
    }
}
