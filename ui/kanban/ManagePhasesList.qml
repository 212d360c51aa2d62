pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The phases in the sheet that manages them. F2 or Enter renames, Alt with an arrow moves, Delete deletes.
ListView {
    id: root

    required property ManagePhasesSheet sheet

    signal deletionAsked(int row)

    function move(row: int, rows: int): void {
        const to = Math.max(0, Math.min(row + rows, root.count - 1));
        if (to === row)
            return;
        root.sheet.movePhase([row], to > row ? to + 1 : to);
        root.goTo(to);
    }

    function goTo(row: int): void {
        root.forceLayout();
        root.currentIndex = Math.max(0, Math.min(row, root.count - 1));
        root.forceActiveFocus(Qt.TabFocusReason);
    }

    objectName: "managedPhases"
    clip: true
    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    cacheBuffer: 4000
    model: root.sheet.phases
    Accessible.role: Accessible.List
    Accessible.name: qsTrId("manage_phases_title")

    T.ScrollBar.vertical: ScrollBarThin {}

    displaced: Transition {
        NumberAnimation {
            property: "y"
            duration: Theme.motionFast
        }
    }

    onActiveFocusChanged: {
        if (root.activeFocus && root.currentIndex < 0)
            root.currentIndex = 0;
    }

    Keys.onPressed: event => {
        const row = root.currentItem as ManagePhaseRow;
        const isArrow = event.key === Qt.Key_Up || event.key === Qt.Key_Down;
        event.accepted = row !== null;
        if (!row)
            return;
        if (isArrow && event.modifiers & Qt.AltModifier)
            root.move(row.index, event.key === Qt.Key_Up ? -1 : 1);
        else if (event.key === Qt.Key_F2 || event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
            root.sheet.beginEdit(row.phaseId);
        else if (event.key === Qt.Key_Delete)
            root.deletionAsked(row.index);
        else
            event.accepted = false;
    }

    delegate: ManagePhaseRow {
        width: root.width - Theme.gap2
        count: root.count
        sheet: root.sheet
        onPressed: row => root.goTo(row)
        onExited: row => root.goTo(row)
        onMoved: (row, rows) => root.move(row, rows)
        onDeletionAsked: row => root.deletionAsked(row)
    }
}
