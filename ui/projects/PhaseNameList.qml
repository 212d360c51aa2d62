pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The phases in the sheet of a project, and the field for another one.
ColumnLayout {
    id: root

    required property ProjectSheet sheet

    function move(row: int, rows: int): void {
        const to = Math.max(0, Math.min(row + rows, list.count - 1));
        if (to === row)
            return;
        root.sheet.movePhase(row, to > row ? to + 1 : to);
        list.forceLayout();
        root.edit(to);
    }

    function edit(row: int): void {
        list.positionViewAtIndex(row, ListView.Contain);
        (list.itemAtIndex(row) as PhaseNameRow)?.edit();
    }

    function remove(row: int): void {
        // The field that had the keyboard goes with its row.
        added.forceActiveFocus(Qt.TabFocusReason);
        root.sheet.removePhase(row);
        list.forceLayout();
        if (list.count > 0)
            root.edit(Math.min(row, list.count - 1));
    }

    function add(): void {
        root.sheet.addPhase();
        list.forceLayout();
        list.positionViewAtEnd();
    }

    spacing: Theme.gap2

    ThemedText {
        Layout.fillWidth: true
        text: qsTrId("default_phases_label")
        color: Theme.textMuted
        font.pixelSize: Theme.caption
        Accessible.role: Accessible.Heading
    }

    ThemedText {
        Layout.fillWidth: true
        text: list.count > 0 ? qsTrId("default_phases_hint") : qsTrId("default_phases_empty")
        color: Theme.textFaint
        font.pixelSize: Theme.caption
        elide: Text.ElideRight
    }

    ListView {
        id: list

        objectName: "phaseNames"
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.minimumHeight: 88
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        // Phases are few; with all rows there, Tab reaches every one.
        cacheBuffer: 4000
        model: root.sheet.phases
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("default_phases_label")

        T.ScrollBar.vertical: ScrollBarThin {}

        displaced: Transition {
            NumberAnimation {
                property: "y"
                duration: Theme.motionFast
            }
        }

        delegate: PhaseNameRow {
            width: list.width - Theme.gap2
            count: list.count
            content: list.contentItem
            onRenamed: (row, name) => root.sheet.renamePhase(row, name)
            onRemoved: row => root.remove(row)
            onMoved: (row, rows) => root.move(row, rows)
            onAccepted: added.forceActiveFocus(Qt.TabFocusReason)
        }
    }

    // Keeps its place while it is empty, so that nothing moves under the pointer.
    ThemedText {
        objectName: "removalNote"
        Layout.fillWidth: true
        text: root.sheet.removalNote
        color: Theme.amber
        font.pixelSize: Theme.caption
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text
        Accessible.ignored: text.length === 0
    }

    RowLayout {
        spacing: Theme.gap2

        EntryField {
            id: added

            objectName: "newPhase"
            Layout.fillWidth: true
            symbol: "plus"
            maximumLength: 120
            placeholderText: qsTrId("phase_placeholder")
            text: root.sheet.newPhaseName
            onTextEdited: root.sheet.newPhaseName = added.text
            onAccepted: root.add()
        }

        PushButton {
            objectName: "newPhaseAdd"
            visible: added.text.trim().length > 0
            text: qsTrId("phase_add_button")
            onClicked: {
                added.forceActiveFocus(Qt.OtherFocusReason);
                root.add();
            }
        }
    }
}
