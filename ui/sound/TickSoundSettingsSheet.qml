pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// Whether, how and how loud a session ticks. Open as long as it is there; what is set counts at once.
Item {
    id: root

    required property TickSoundSettings settings
    /// What loaded the sheet lets go of it when it is closed.
    required property Loader host

    T.Popup {
        id: sheet

        objectName: "tickSoundSheet"
        parent: T.Overlay.overlay
        anchors.centerIn: parent
        visible: true
        modal: true
        focus: true
        padding: Theme.gap6
        implicitWidth: 480
        implicitHeight: content.implicitHeight + topPadding + bottomPadding
        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

        onOpened: toggle.forceActiveFocus(Qt.TabFocusReason)
        onClosed: root.host.setSource("")

        T.Overlay.modal: Rectangle {
            color: Theme.shade
        }

        ColumnLayout {
            id: content

            width: sheet.availableWidth
            spacing: Theme.gap5
            Accessible.role: Accessible.Dialog
            Accessible.name: qsTrId("tick_sounds_title")

            RowLayout {
                spacing: Theme.gap3

                ColumnLayout {
                    spacing: Theme.gap1

                    ThemedText {
                        Layout.fillWidth: true
                        text: qsTrId("tick_sounds_title")
                        font.pixelSize: Theme.title
                        font.weight: Font.DemiBold
                        Accessible.role: Accessible.Heading
                    }

                    ThemedText {
                        Layout.fillWidth: true
                        text: qsTrId("tick_sounds_subtitle")
                        color: Theme.textMuted
                        wrapMode: Text.WordWrap
                        Accessible.ignored: true
                    }
                }

                ToggleSwitch {
                    id: toggle

                    objectName: "tickSoundSwitch"
                    text: qsTrId("tick_sounds_switch")
                    checked: root.settings.isEnabled
                    onToggled: root.settings.isEnabled = toggle.checked
                }
            }

            Banner {
                objectName: "tickSoundProblem"
                Layout.fillWidth: true
                visible: root.settings.problemKey.length > 0
                text: visible ? qsTrId(root.settings.problemKey) + " " + qsTrId(root.settings.problemKey + "_remedy") : ""
            }

            ColumnLayout {
                spacing: Theme.gap2

                ThemedText {
                    text: qsTrId("tick_sounds_type_label")
                    color: Theme.textMuted
                }

                TickSoundTypeList {
                    objectName: "tickTypes"
                    Layout.fillWidth: true
                    settings: root.settings
                }
            }

            ColumnLayout {
                spacing: Theme.gap1

                RowLayout {
                    ThemedText {
                        Layout.fillWidth: true
                        text: qsTrId("tick_sounds_volume")
                        color: Theme.textMuted
                        Accessible.ignored: true
                    }

                    ThemedText {
                        text: qsTrId("tick_sounds_volume_value").arg(root.settings.volumePercent)
                        Accessible.ignored: true
                    }
                }

                LevelSlider {
                    id: volume

                    objectName: "tickVolume"
                    Layout.fillWidth: true
                    name: qsTrId("tick_sounds_volume")
                    value: root.settings.volumePercent
                    onMoved: {
                        root.settings.volumePercent = Math.round(volume.value);
                        // A drag is heard once it has ended, a key at once.
                        if (!volume.pressed)
                            root.settings.playSample();
                    }
                    onPressedChanged: {
                        if (!volume.pressed)
                            root.settings.playSample();
                    }
                }
            }

            RowLayout {
                Layout.topMargin: Theme.gap1
                spacing: Theme.gap3

                PushButton {
                    objectName: "tickSample"
                    implicitHeight: Theme.controlHeightLarge
                    symbol: "speaker.wave.2"
                    text: qsTrId("tick_sounds_sample_button")
                    onClicked: root.settings.playSample()
                }

                Item {
                    Layout.fillWidth: true
                }

                PushButton {
                    kind: PushButton.Kind.Primary
                    text: qsTrId("tick_sounds_done_button")
                    onClicked: sheet.close()
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
}
