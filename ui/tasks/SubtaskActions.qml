pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The buttons of a subtask.
Row {
    id: root

    required property SubtaskState section
    required property int index
    required property string title
    required property bool isFirst
    required property bool isLast

    IconButton {
        implicitWidth: 28
        visible: !(root.isFirst && root.isLast)
        enabled: !root.isFirst
        opacity: enabled ? 1 : 0.35
        symbol: "chevron.up"
        text: qsTrId("task_move_up").arg(root.title)
        onClicked: root.section.moveAsked(root.index, -1)
    }

    IconButton {
        implicitWidth: 28
        visible: !(root.isFirst && root.isLast)
        enabled: !root.isLast
        opacity: enabled ? 1 : 0.35
        symbol: "chevron.down"
        text: qsTrId("task_move_down").arg(root.title)
        onClicked: root.section.moveAsked(root.index, 1)
    }

    IconButton {
        implicitWidth: 28
        symbol: "plus"
        text: qsTrId("subtask_add").arg(root.title)
        onClicked: root.section.typingRow = root.index
    }

    IconButton {
        implicitWidth: 28
        symbol: "pencil"
        text: qsTrId("subtask_rename").arg(root.title)
        onClicked: root.section.renamingRow = root.index
    }

    IconButton {
        implicitWidth: 28
        symbol: "trash"
        text: qsTrId("subtask_delete").arg(root.title)
        onClicked: root.section.sheet.deleteSubtask(root.index)
    }
}
