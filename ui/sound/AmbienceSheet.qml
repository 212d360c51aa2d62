pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// What lies under and over a session: the ambient sound and the immersion. Open as long as it is there; what is set
/// counts at once.
Item {
    id: root

    required property AmbientSoundService sounds
    required property ImmersionService immersion
    /// What loaded the sheet lets go of it when it is closed.
    required property Loader host

    T.Popup {
        id: sheet

        objectName: "ambienceSheet"
        parent: T.Overlay.overlay
        anchors.centerIn: parent
        visible: true
        modal: true
        focus: true
        padding: Theme.gap6
        implicitWidth: 480
        implicitHeight: content.implicitHeight + topPadding + bottomPadding
        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

        onOpened: picker.takeKeyboard()
        onClosed: root.host.setSource("")

        T.Overlay.modal: Rectangle {
            color: Theme.shade
        }

        ColumnLayout {
            id: content

            width: sheet.availableWidth
            spacing: Theme.gap5
            Accessible.role: Accessible.Dialog
            Accessible.name: qsTrId("ambience_title")

            ColumnLayout {
                spacing: Theme.gap1

                ThemedText {
                    Layout.fillWidth: true
                    text: qsTrId("ambience_title")
                    font.pixelSize: Theme.title
                    font.weight: Font.DemiBold
                    Accessible.role: Accessible.Heading
                }

                ThemedText {
                    Layout.fillWidth: true
                    text: qsTrId("ambience_subtitle")
                    color: Theme.textMuted
                    wrapMode: Text.WordWrap
                }
            }

            AmbientSoundPicker {
                id: picker

                service: root.sounds
            }

            ColumnLayout {
                spacing: Theme.gap1
                visible: root.immersion !== null

                ThemedText {
                    Layout.fillWidth: true
                    text: qsTrId("immersion_title")
                    font.weight: Font.DemiBold
                    Accessible.role: Accessible.Heading
                }

                ThemedText {
                    Layout.fillWidth: true
                    text: qsTrId("immersion_subtitle")
                    color: Theme.textMuted
                    wrapMode: Text.WordWrap
                }

                Deferred {
                    Layout.fillWidth: true
                    active: root.immersion !== null

                    ImmersionControl {
                        service: root.immersion
                    }
                }
            }

            PushButton {
                Layout.alignment: Qt.AlignRight
                Layout.topMargin: Theme.gap1
                objectName: "ambienceDone"
                kind: PushButton.Kind.Primary
                text: qsTrId("tick_sounds_done_button")
                onClicked: sheet.close()
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
