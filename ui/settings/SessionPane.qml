pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// How long phases are, when a rest counts as one, and what a session shows and blocks.
ColumnLayout {
    id: root

    required property PreferencesScreen model
    readonly property bool canFloat: root.model.floatingTimerProblemKey.length === 0

    spacing: Theme.gap4

    SettingsCard {
        title: qsTrId("preferences_phases_title")
        explanation: qsTrId("preferences_phases_text")

        RowLayout {
            spacing: Theme.gap3

            PhaseLength {
                phase: "work"
                name: qsTrId("phase_work")
                minutes: root.model.workMinutes
            }

            PhaseLength {
                phase: "break_time"
                name: qsTrId("phase_break")
                minutes: root.model.breakMinutes
            }

            PhaseLength {
                phase: "rearming"
                name: qsTrId("phase_rearming")
                minutes: root.model.rearmingMinutes
            }
        }
    }

    SettingsCard {
        title: qsTrId("preferences_inactivity_title")

        SettingRow {
            label: qsTrId("inactivity_switch")
            hint: qsTrId("inactivity_hint")

            ToggleSwitch {
                id: detector

                objectName: "inactivitySwitch"
                text: qsTrId("inactivity_switch")
                checked: root.model.detectsInactivity
                onToggled: root.model.detectsInactivity = detector.checked
            }
        }

        SettingRow {
            label: qsTrId("inactivity_threshold_label")
            enabled: root.model.detectsInactivity
            opacity: enabled ? 1 : 0.5

            SegmentedChoice {
                objectName: "inactivityThreshold"
                name: qsTrId("inactivity_threshold_label")
                values: Array.from(root.model.inactivityChoices, minutes => minutes.toString())
                labels: Array.from(root.model.inactivityChoices, minutes => Localization.formats.minutes(minutes))
                value: root.model.inactivityMinutes.toString()
                segmentPadding: Theme.gap2
                onChosen: value => root.model.inactivityMinutes = Number(value)
            }
        }
    }

    SettingsCard {
        title: qsTrId("preferences_around_title")

        SettingRow {
            label: qsTrId("floating_timer_switch")
            hint: root.canFloat ? qsTrId("floating_timer_hint") : qsTrId("floating_timer_unavailable") + " " + qsTrId(root.model.floatingTimerProblemKey + "_remedy")

            ToggleSwitch {
                id: floating

                objectName: "floatingTimerSwitch"
                text: qsTrId("floating_timer_switch")
                enabled: root.canFloat
                checked: root.model.hasFloatingTimer && root.canFloat
                onToggled: root.model.hasFloatingTimer = floating.checked
            }
        }

        SettingRow {
            label: qsTrId("preferences_lists_label")
            hint: qsTrId("preferences_lists_hint")

            PushButton {
                objectName: "openBlockLists"
                symbol: "hand.raised"
                text: qsTrId("preferences_lists_button")
                onClicked: root.model.blockListsWanted()
            }
        }
    }
}
