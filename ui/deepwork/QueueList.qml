pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The queue. Arrow keys go through it; Enter works on a task, Control+Enter ticks it off, Plus adds a subtask,
/// Delete removes it, Alt with an arrow moves it.
ListView {
    id: root

    required property DeepWorkScreen screen

    function move(row: int, places: int): void {
        root.screen.moveInQueue(row, places);
        // The current row follows its task, but only once the list has taken note of the move.
        root.forceLayout();
    }

    objectName: "queue"
    clip: true
    spacing: 2
    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    // Tasks of a session are few; with all rows there, Tab and the reader reach every one.
    cacheBuffer: 2000
    model: root.screen.queue
    Accessible.role: Accessible.List
    Accessible.name: qsTrId("tasks_title")

    onActiveFocusChanged: {
        // Whoever comes back is to find the row, not the button that was pressed last.
        if (!root.activeFocus && root.currentItem)
            root.currentItem.focus = true;
    }

    Keys.onPressed: event => {
        root.forceLayout();
        const row = root.currentIndex;
        event.accepted = true;
        if (event.key === Qt.Key_Up && event.modifiers & Qt.AltModifier)
            root.move(row, -1);
        else if (event.key === Qt.Key_Down && event.modifiers & Qt.AltModifier)
            root.move(row, 1);
        else if ((event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && event.modifiers & Qt.ControlModifier)
            root.screen.toggleDone(row);
        else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
            root.screen.makeActive(row);
        else if (event.key === Qt.Key_Delete)
            root.screen.removeFromQueue(row);
        else if (event.key === Qt.Key_Plus)
            queueState.subtaskRow = row;
        else
            event.accepted = false;
    }

    QueueState {
        id: queueState

        screen: root.screen
        onMoveAsked: (row, places) => root.move(row, places)
        onRowAsked: row => {
            root.currentIndex = row;
            root.forceActiveFocus(Qt.TabFocusReason);
        }
        onDraggedTo: y => {
            const under = root.itemAt(root.width / 2, y) as QueueRow;
            if (under)
                queueState.dropPlace = under.queueIndex;
        }
    }

    T.ScrollBar.vertical: ScrollBarThin {}

    delegate: QueueRow {
        width: root.width
        queue: queueState
    }
}
