pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What a session sounds like, and how deep the window sinks.
ColumnLayout {
    id: root

    required property PreferencesScreen model
    readonly property TickSoundSettings ticks: root.model.tickSounds

    spacing: Theme.gap4

    SettingsCard {
        title: qsTrId("tick_sounds_title")

        SettingRow {
            label: qsTrId("tick_sounds_switch")
            hint: qsTrId("tick_sounds_subtitle")

            ToggleSwitch {
                id: toggle

                objectName: "preferencesTicks"
                text: qsTrId("tick_sounds_switch")
                checked: root.ticks.isEnabled
                onToggled: root.ticks.isEnabled = toggle.checked
            }
        }

        Banner {
            Layout.fillWidth: true
            visible: root.ticks.problemKey.length > 0
            text: visible ? qsTrId(root.ticks.problemKey) + " " + qsTrId(root.ticks.problemKey + "_remedy") : ""
        }

        TickSoundTypeList {
            Layout.fillWidth: true
            settings: root.ticks
        }

        RowLayout {
            spacing: Theme.gap3

            LevelSlider {
                id: volume

                objectName: "preferencesTickVolume"
                Layout.fillWidth: true
                name: qsTrId("tick_sounds_volume")
                value: root.ticks.volumePercent
                onMoved: {
                    root.ticks.volumePercent = Math.round(volume.value);
                    // A drag is heard once it has ended, a key at once.
                    if (!volume.pressed)
                        root.ticks.playSample();
                }
                onPressedChanged: {
                    if (!volume.pressed)
                        root.ticks.playSample();
                }
            }

            ThemedText {
                Layout.preferredWidth: 44
                text: qsTrId("tick_sounds_volume_value").arg(root.ticks.volumePercent)
                color: Theme.textMuted
                horizontalAlignment: Text.AlignRight
                Accessible.ignored: true
            }
        }
    }

    SettingsCard {
        visible: root.model.ambientSounds !== null
        title: qsTrId("ambience_title")

        Deferred {
            Layout.fillWidth: true
            active: root.model.ambientSounds !== null

            AmbientSoundPicker {
                service: root.model.ambientSounds
            }
        }
    }

    SettingsCard {
        visible: root.model.immersion !== null
        title: qsTrId("immersion_title")

        Deferred {
            Layout.fillWidth: true
            active: root.model.immersion !== null

            ImmersionControl {
                service: root.model.immersion
            }
        }
    }
}
