pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The cards of a column. Arrow keys go through them and to the neighbouring columns; Control with an arrow moves a
/// card to the neighbouring column, Enter opens it, P plans it, Delete asks, the Menu key shows what else there is,
/// N begins a new one.
ListView {
    id: root

    required property KanbanState board
    required property KanbanColumnView column
    required property int place
    readonly property KanbanCardView card: root.currentItem as KanbanCardView

    /// A new card is wanted.
    signal newAsked

    function goTo(row: int): void {
        root.forceLayout();
        root.currentIndex = Math.max(0, Math.min(row, root.count - 1));
        root.positionViewAtIndex(root.currentIndex, ListView.Contain);
        root.forceActiveFocus(Qt.TabFocusReason);
    }

    function aside(event: KeyEvent, step: int): void {
        if (!(event.modifiers & Qt.ControlModifier))
            root.board.rowAsked(Math.max(0, Math.min(root.place + step, 2)), root.currentIndex);
        else if (root.card)
            root.board.move(root.card.taskId, root.place + step);
    }

    clip: true
    spacing: Theme.gap2
    activeFocusOnTab: true
    reuseItems: true
    cacheBuffer: 400
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    model: root.column
    Accessible.role: Accessible.List
    Accessible.name: qsTrId("board_column_name").arg(root.column.title).arg(qsTrId("tasks_count_format", root.column.count))

    T.ScrollBar.vertical: ScrollBarThin {}

    displaced: Transition {
        NumberAnimation {
            property: "y"
            duration: Theme.motion
            easing.type: Easing.OutCubic
        }
    }

    onActiveFocusChanged: {
        if (root.activeFocus && root.currentIndex < 0)
            root.currentIndex = 0;
    }

    Keys.onPressed: event => {
        event.accepted = true;
        if ((event.key === Qt.Key_Left || event.key === Qt.Key_Right) && !(event.modifiers & (Qt.AltModifier | Qt.ShiftModifier)))
            root.aside(event, event.key === Qt.Key_Left ? -1 : 1);
        else if (event.key === Qt.Key_N && event.modifiers === Qt.NoModifier)
            root.newAsked();
        else if (!root.card)
            event.accepted = false;
        else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space)
            root.board.board.openTask(root.card.taskId);
        else if (event.key === Qt.Key_P && event.modifiers === Qt.NoModifier)
            root.board.board.planTask(root.card.taskId);
        else if (event.key === Qt.Key_Delete)
            root.board.deletionAsked(root.card.taskId);
        else if (event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier))
            root.board.menuAsked(root.place, root.card, Theme.gap4, Theme.gap6);
        else if (event.key === Qt.Key_Home || event.key === Qt.Key_End)
            root.goTo(event.key === Qt.Key_Home ? 0 : root.count - 1);
        else
            event.accepted = false;
    }

    CardDragArea {
        board: root.board
        place: root.place
        list: root
    }

    FocusRing {
        parent: root
        shown: root.activeFocus && root.count === 0
        distance: -2
        innerRadius: Theme.radius
    }

    delegate: KanbanCardView {
        width: root.width - Theme.gap2
        isDone: root.column.statusValue === "Done"
        showsPhase: root.board.board.selectedPhaseID.length === 0
        isDragged: root.board.draggedTaskId === taskId
        onMenuAsked: (x, y) => {
            root.board.rowAsked(root.place, index);
            root.board.menuAsked(root.place, root.card, x, y);
        }
    }
}
