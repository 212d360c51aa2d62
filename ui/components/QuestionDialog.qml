pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// A question inside the window, with one answer that does something and one that does not. The harmless one
/// has the keyboard first; Escape is the harmless one as well.
T.Popup {
    id: root

    required property string title
    required property string message
    required property string acceptText
    required property string rejectText

    signal accepted

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    modal: true
    focus: true
    padding: Theme.gap6
    implicitWidth: 440
    implicitHeight: content.implicitHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnEscape

    onOpened: rejectButton.forceActiveFocus(Qt.TabFocusReason)

    T.Overlay.modal: Rectangle {
        color: Theme.shade
    }

    ColumnLayout {
        id: content

        width: root.availableWidth
        spacing: Theme.gap3
        Accessible.role: Accessible.Dialog
        Accessible.name: root.title

        ThemedText {
            Layout.fillWidth: true
            text: root.title
            font.pixelSize: Theme.title
            font.weight: Font.DemiBold
            wrapMode: Text.WordWrap
        }

        ThemedText {
            Layout.fillWidth: true
            text: root.message
            color: Theme.textMuted
            wrapMode: Text.WordWrap
            lineHeight: 1.25
        }

        RowLayout {
            Layout.topMargin: Theme.gap3
            Layout.alignment: Qt.AlignRight
            spacing: Theme.gap3

            PushButton {
                id: rejectButton

                implicitHeight: Theme.controlHeightLarge
                text: root.rejectText
                onClicked: root.close()
            }

            PushButton {
                kind: PushButton.Kind.Danger
                text: root.acceptText
                onClicked: {
                    root.close();
                    root.accepted();
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
