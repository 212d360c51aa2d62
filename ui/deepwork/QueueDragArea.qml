pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The handle that a task of the queue is dragged by.
MouseArea {
    id: root

    required property QueueState queue
    required property int index
    required property int queueIndex
    /// What the list scrolls; heights are measured in it.
    required property Item content
    property real startY: 0
    /// How far the row was dragged, in pixels.
    property real offset: 0

    function forget(): void {
        root.queue.dropPlace = -1;
        root.queue.draggedPlace = -1;
        root.offset = 0;
    }

    preventStealing: true
    cursorShape: root.pressed ? Qt.ClosedHandCursor : Qt.OpenHandCursor

    onPressed: mouse => {
        root.startY = root.mapToItem(root.content, mouse.x, mouse.y).y;
        root.queue.draggedPlace = root.queueIndex;
        root.queue.dropPlace = root.queueIndex;
    }
    onPositionChanged: mouse => {
        // The row moves under the pointer, and the handle with it.
        const y = root.mapToItem(root.content, mouse.x, mouse.y).y;
        root.offset = y - root.startY;
        root.queue.draggedTo(y);
    }
    onReleased: {
        const places = root.queue.dropPlace - root.queueIndex;
        root.forget();
        root.queue.moveAsked(root.index, places);
    }
    onCanceled: root.forget()
}
