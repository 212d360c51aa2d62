pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// What the columns of a board share, and what they ask of the page.
QtObject {
    id: root

    required property KanbanBoardView board
    /// While a card is dragged: its task, and its title; empty otherwise.
    property string draggedTaskId: ""
    property string draggedTitle: ""
    readonly property bool isDragging: root.draggedTaskId.length > 0

    /// The keyboard goes to a row of a column, by their places; to the nearest one where there is no such row.
    signal rowAsked(int column, int row)
    /// The pointer began to drag a card, is somewhere, has let go, or was taken away.
    signal dragStarted(Item card, point place)
    signal dragMoved(point place)
    signal dragEnded
    signal dragCanceled
    signal menuAsked(int column, KanbanCardView card, real x, real y)
    signal deletionAsked(string taskId)

    /// From the left, counted from 0.
    function columnAt(place: int): KanbanColumnView {
        if (place === 0)
            return root.board.toDo;
        if (place === 1)
            return root.board.inProgress;
        return root.board.done;
    }

    /// Moves a card to a column, as dropping it there does, and the keyboard with it.
    function move(taskId: string, place: int): void {
        if (place < 0 || place > 2)
            return;
        const column = root.columnAt(place);
        if (column.drop([taskId]))
            root.rowAsked(place, root.board.rowOf(taskId, column));
    }
}
