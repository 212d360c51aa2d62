pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The head of the sheet that manages phases, with the field for a new one.
ColumnLayout {
    id: root

    required property ManagePhasesSheet sheet

    /// The keyboard wants to go to the phases below.
    signal leftDownwards

    function takeKeyboard(): void {
        added.forceActiveFocus(Qt.TabFocusReason);
    }

    spacing: Theme.gap1

    ThemedText {
        Layout.fillWidth: true
        text: qsTrId("manage_phases_title")
        font.pixelSize: Theme.title
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }

    ThemedText {
        Layout.fillWidth: true
        text: qsTrId("manage_phases_subtitle")
        color: Theme.textMuted
        wrapMode: Text.WordWrap
    }

    RowLayout {
        Layout.topMargin: Theme.gap3
        spacing: Theme.gap2

        EntryField {
            id: added

            objectName: "managedNew"
            Layout.fillWidth: true
            symbol: "plus"
            maximumLength: 120
            placeholderText: qsTrId("phase_placeholder")
            text: root.sheet.newPhaseName
            onTextEdited: root.sheet.newPhaseName = added.text
            onAccepted: root.sheet.addPhase()

            Keys.onDownPressed: root.leftDownwards()
        }

        PushButton {
            objectName: "managedAdd"
            visible: added.text.trim().length > 0
            text: qsTrId("phase_add_button")
            onClicked: {
                root.takeKeyboard();
                root.sheet.addPhase();
            }
        }
    }
}
