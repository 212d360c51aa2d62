pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The handle that a subtask is dragged by, among its siblings.
MouseArea {
    id: root

    required property SubtaskState section
    required property int index
    /// Distance from one row to the next.
    required property real rowHeight
    required property Item content
    property real startY: 0
    /// How far the row was dragged, in pixels.
    property real offset: 0

    preventStealing: true
    cursorShape: root.pressed ? Qt.ClosedHandCursor : Qt.OpenHandCursor

    onPressed: mouse => root.startY = root.mapToItem(root.content, mouse.x, mouse.y).y
    onPositionChanged: mouse => {
        // The row moves under the pointer, and the handle with it.
        root.offset = root.mapToItem(root.content, mouse.x, mouse.y).y - root.startY;
    }
    onReleased: {
        const rows = Math.round(root.offset / root.rowHeight);
        root.offset = 0;
        if (rows !== 0)
            root.section.sheet.moveSubtaskByRows(root.index, rows);
    }
    onCanceled: root.offset = 0
}
