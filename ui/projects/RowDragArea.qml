pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The handle that a row is dragged by, among rows of one height.
MouseArea {
    id: root

    /// Distance from one row to the next.
    required property real rowHeight
    /// What the list scrolls; heights are measured in it.
    required property Item content
    property real startY: 0
    /// How far the row was dragged, in pixels.
    property real offset: 0

    /// The row goes by that many rows, negative for up.
    signal dropped(int rows)

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
            root.dropped(rows);
    }
    onCanceled: root.offset = 0

    Symbol {
        anchors.centerIn: parent
        name: "line.3.horizontal"
        color: root.containsMouse || root.pressed ? Theme.text : Theme.textFaint
        size: 16
    }
}
