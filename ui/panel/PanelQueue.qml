pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The queue, short: to tick off, to go on to another task, and to add one. The arrow keys go through it, Enter
/// works on a task, Space ticks it off.
ColumnLayout {
    id: root

    required property DeepWorkScreen screen
    readonly property int rowHeight: 36
    readonly property int mostRows: 5

    spacing: Theme.gap2

    RowLayout {
        spacing: Theme.gap2

        ThemedText {
            Layout.fillWidth: true
            text: qsTrId("tasks_title")
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }

        ThemedText {
            text: root.screen.queue.taskCount > 0 ? qsTrId("tasks_count", root.screen.queue.taskCount) : ""
            color: Theme.textMuted
        }
    }

    ListView {
        id: list

        objectName: "panelQueue"
        Layout.fillWidth: true
        Layout.preferredHeight: Math.min(list.count, root.mostRows) * root.rowHeight
        visible: root.screen.queue.taskCount > 0
        clip: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        model: root.screen.queue
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("tasks_title")

        T.ScrollBar.vertical: ScrollBarThin {}

        Keys.onReturnPressed: root.screen.makeActive(list.currentIndex)
        Keys.onEnterPressed: root.screen.makeActive(list.currentIndex)
        Keys.onSpacePressed: root.screen.toggleDone(list.currentIndex)

        delegate: PanelQueueRow {
            width: list.width
            height: root.rowHeight
            screen: root.screen
        }
    }

    EntryField {
        id: field

        objectName: "panelTaskField"
        Layout.fillWidth: true
        symbol: "plus"
        placeholderText: qsTrId("panel_task_placeholder")
        maximumLength: 500
        onAccepted: {
            if (root.screen.addTask(field.text))
                field.clear();
        }
    }
}
