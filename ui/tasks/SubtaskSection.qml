pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The subtasks of the task, nested as deep as they are, and the field that adds more. Arrow keys go through them;
/// Space ticks one off, F2 renames it, Plus adds below it, Delete removes it, Alt with an arrow moves it, Enter opens
/// it.
ColumnLayout {
    id: root

    required property TaskSheet sheet

    function move(row: int, places: int): void {
        root.sheet.moveSubtask(row, places);
        list.forceLayout();
    }

    function goTo(row: int): void {
        list.currentIndex = row;
        // The list would give the keyboard back to the field that is going.
        if (list.currentItem)
            list.currentItem.forceActiveFocus(Qt.TabFocusReason);
    }

    spacing: Theme.gap2

    SubtaskState {
        id: shared

        sheet: root.sheet
        onMoveAsked: (row, places) => root.move(row, places)
        onRowAsked: row => root.goTo(row)
    }

    RowLayout {
        ThemedText {
            Layout.fillWidth: true
            text: qsTrId("subtasks_title")
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }

        ThemedText {
            visible: list.activeFocus
            text: qsTrId("subtasks_keys_hint")
            color: Theme.textFaint
            font.pixelSize: Theme.caption
        }
    }

    ListView {
        id: list

        objectName: "subtasks"
        Layout.fillWidth: true
        implicitHeight: contentHeight
        visible: list.count > 0
        interactive: false
        activeFocusOnTab: true
        highlightMoveDuration: 0
        spacing: shared.spacing
        model: root.sheet.subtasks
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("subtasks_title")

        Keys.onPressed: event => {
            list.forceLayout();
            const row = list.currentIndex;
            event.accepted = true;
            if (event.key === Qt.Key_Up && event.modifiers & Qt.AltModifier)
                root.move(row, -1);
            else if (event.key === Qt.Key_Down && event.modifiers & Qt.AltModifier)
                root.move(row, 1);
            else if (event.key === Qt.Key_Space)
                root.sheet.toggleSubtask(row);
            else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
                root.sheet.showSubtask(row);
            else if (event.key === Qt.Key_F2)
                shared.renamingRow = row;
            else if (event.key === Qt.Key_Plus)
                shared.typingRow = row;
            else if (event.key === Qt.Key_Delete)
                root.sheet.deleteSubtask(row);
            else
                event.accepted = false;
        }

        delegate: SubtaskRow {
            width: list.width
            section: shared
        }
    }

    EntryField {
        id: field

        objectName: "newSubtask"
        Layout.fillWidth: true
        symbol: "plus"
        placeholderText: qsTrId("subtask_placeholder")
        maximumLength: 500
        onAccepted: {
            if (root.sheet.addSubtask(-1, field.text))
                field.clear();
        }
    }
}
