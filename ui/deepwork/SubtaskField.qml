pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Where subtasks of a row are typed, one after the other.
EntryField {
    id: root

    required property QueueRow row

    function close(): void {
        const list = root.row.list;
        list.subtaskRow = -1;
        list.forceActiveFocus(Qt.TabFocusReason);
    }

    objectName: "subtaskField"
    implicitHeight: Theme.controlHeightSmall + 4
    placeholderText: qsTrId("subtask_placeholder")
    maximumLength: 500

    Component.onCompleted: root.forceActiveFocus(Qt.TabFocusReason)

    onAccepted: {
        if (root.row.list.screen.addSubtask(root.row.index, root.text))
            root.clear();
        else
            root.close();
    }

    Keys.onEscapePressed: root.close()
}
