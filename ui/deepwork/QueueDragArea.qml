pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The handle that a task of the queue is dragged by.
MouseArea {
    id: root

    required property QueueRow row
    property real startY: 0
    /// How far the row was dragged, in pixels.
    property real offset: 0

    function update(mouse: MouseEvent): void {
        const list = root.row.list;
        const y = root.mapToItem(list.contentItem, mouse.x, mouse.y).y;
        root.offset = y - root.startY;
        const under = list.itemAt(list.width / 2, y) as QueueRow;
        if (under)
            list.dropPlace = under.queueIndex;
    }

    preventStealing: true
    cursorShape: root.pressed ? Qt.ClosedHandCursor : Qt.OpenHandCursor

    onPressed: mouse => {
        root.startY = root.mapToItem(root.row.list.contentItem, mouse.x, mouse.y).y;
        root.offset = 0;
        root.row.list.draggedPlace = root.row.queueIndex;
        root.row.list.dropPlace = root.row.queueIndex;
    }
    onPositionChanged: mouse => root.update(mouse)
    onReleased: {
        const list = root.row.list;
        const places = list.dropPlace - root.row.queueIndex;
        list.dropPlace = -1;
        list.draggedPlace = -1;
        list.move(root.row.index, places);
    }
    onCanceled: {
        root.row.list.dropPlace = -1;
        root.row.list.draggedPlace = -1;
    }
}
