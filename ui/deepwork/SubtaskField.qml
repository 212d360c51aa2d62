pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Where subtasks of a row are typed, one after the other.
EntryField {
    id: root

    required property QueueState queue
    required property int index

    function close(): void {
        const queue = root.queue;
        const row = root.index;
        queue.subtaskRow = -1;
        queue.rowAsked(row);
    }

    objectName: "subtaskField"
    implicitHeight: Theme.controlHeightSmall + 4
    placeholderText: qsTrId("subtask_placeholder")
    maximumLength: 500

    Component.onCompleted: root.forceActiveFocus(Qt.TabFocusReason)

    onAccepted: {
        if (root.queue.screen.addSubtask(root.index, root.text))
            root.clear();
        else
            root.close();
    }

    // The queue below must not hear the keys that were meant for the field.
    Keys.priority: Keys.AfterItem
    Keys.onEscapePressed: root.close()
    Keys.onReturnPressed: event => event.accepted = true
    Keys.onEnterPressed: event => event.accepted = true
}
