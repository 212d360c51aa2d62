pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The buttons of a row of the queue.
Row {
    id: root

    required property QueueState queue
    required property int index
    required property int queueIndex
    required property string taskId
    required property string title
    required property bool isTask
    required property bool canBecomeActive
    readonly property DeepWorkScreen screen: root.queue.screen
    readonly property int taskCount: root.screen.queue.taskCount

    IconButton {
        implicitWidth: 28
        visible: root.canBecomeActive
        symbol: "scope"
        text: qsTrId("task_make_active").arg(root.title)
        onClicked: root.screen.makeActive(root.index)
    }

    IconButton {
        implicitWidth: 28
        visible: root.isTask && root.taskCount > 1
        enabled: root.queueIndex > 0
        opacity: enabled ? 1 : 0.35
        symbol: "chevron.up"
        text: qsTrId("task_move_up").arg(root.title)
        onClicked: root.queue.moveAsked(root.index, -1)
    }

    IconButton {
        implicitWidth: 28
        visible: root.isTask && root.taskCount > 1
        enabled: root.queueIndex < root.taskCount - 1
        opacity: enabled ? 1 : 0.35
        symbol: "chevron.down"
        text: qsTrId("task_move_down").arg(root.title)
        onClicked: root.queue.moveAsked(root.index, 1)
    }

    IconButton {
        implicitWidth: 28
        symbol: "plus"
        text: qsTrId("subtask_add").arg(root.title)
        onClicked: root.queue.subtaskRow = root.index
    }

    IconButton {
        objectName: "openTask"
        implicitWidth: 28
        symbol: "pencil"
        text: qsTrId("task_open_sheet").arg(root.title)
        onClicked: (root.Window.window as Main)?.planning.showTask(root.taskId)
    }

    IconButton {
        implicitWidth: 28
        visible: root.isTask
        symbol: "xmark"
        text: qsTrId("task_remove").arg(root.title)
        onClicked: root.screen.removeFromQueue(root.index)
    }
}
