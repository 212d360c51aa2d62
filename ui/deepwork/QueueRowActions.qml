pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The buttons of a row of the queue.
Row {
    id: root

    required property QueueRow row
    readonly property DeepWorkScreen screen: root.row.list.screen
    readonly property int taskCount: root.screen.queue.taskCount

    IconButton {
        implicitWidth: 28
        visible: !root.row.isActive && !root.row.isDone && root.row.isTask
        symbol: "scope"
        text: qsTrId("task_make_active").arg(root.row.title)
        onClicked: root.screen.makeActive(root.row.index)
    }

    IconButton {
        implicitWidth: 28
        visible: root.row.isTask && root.taskCount > 1
        enabled: root.row.queueIndex > 0
        opacity: enabled ? 1 : 0.35
        symbol: "chevron.up"
        text: qsTrId("task_move_up").arg(root.row.title)
        onClicked: root.row.list.move(root.row.index, -1)
    }

    IconButton {
        implicitWidth: 28
        visible: root.row.isTask && root.taskCount > 1
        enabled: root.row.queueIndex < root.taskCount - 1
        opacity: enabled ? 1 : 0.35
        symbol: "chevron.down"
        text: qsTrId("task_move_down").arg(root.row.title)
        onClicked: root.row.list.move(root.row.index, 1)
    }

    IconButton {
        implicitWidth: 28
        symbol: "plus"
        text: qsTrId("subtask_add").arg(root.row.title)
        onClicked: root.row.list.subtaskRow = root.row.index
    }

    IconButton {
        implicitWidth: 28
        visible: root.row.isTask
        symbol: "xmark"
        text: qsTrId("task_remove").arg(root.row.title)
        onClicked: root.screen.removeFromQueue(root.row.index)
    }
}
