pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A task or subtask of the queue, with what can be done to it.
Item {
    id: root

    required property int index
    required property string taskId
    required property string title
    required property int depth
    required property bool isDone
    required property bool isActive
    required property string projectName
    required property string projectColor
    required property int subtaskCount
    required property int completedSubtaskCount
    required property int queueIndex
    required property QueueState queue

    readonly property bool isTask: root.depth === 0
    readonly property bool isCurrent: root.ListView.isCurrentItem && root.ListView.view.activeFocus
    readonly property bool isReached: hover.hovered || root.isCurrent
    readonly property bool showsDetail: root.isTask && (root.projectName.length > 0 || root.subtaskCount > 0)
    // A row that is being taken away has the index −1, which also stands for no row.
    readonly property bool isTyping: root.index >= 0 && root.queue.subtaskRow === root.index

    function detail(): string {
        const steps = root.subtaskCount > 0 ? qsTrId("subtasks_done").arg(root.completedSubtaskCount).arg(root.subtaskCount) : "";
        return root.projectName.length > 0 && steps.length > 0 ? root.projectName + " · " + steps : root.projectName + steps;
    }

    implicitHeight: body.height + (root.isTyping ? subtask.height + Theme.gap1 : 0)
    z: handle.pressed ? 2 : 0
    Accessible.role: Accessible.ListItem
    Accessible.name: root.isDone ? qsTrId("task_done_name").arg(root.title) : root.isActive ? qsTrId("task_active_name").arg(root.title) : root.title

    Rectangle {
        id: body

        width: parent.width
        height: Math.max(root.isTask ? 44 : 38, words.implicitHeight + 2 * Theme.gap3)
        radius: Theme.radius
        color: handle.pressed ? Theme.surfacePressed : root.isActive && root.isTask ? Theme.accentSurface : root.isReached ? Theme.surfaceRaised : root.isTask ? Theme.surface : "transparent"
        transform: Translate {
            y: handle.pressed ? handle.offset : 0
        }

        HoverHandler {
            id: hover
        }

        TapHandler {
            onTapped: root.queue.rowAsked(root.index)
            onDoubleTapped: root.queue.screen.makeActive(root.index)
        }

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.gap1 + 24 * Math.min(root.depth, 4)
            anchors.rightMargin: Theme.gap1
            spacing: 0

            CheckCircle {
                Layout.alignment: Qt.AlignTop
                Layout.topMargin: root.isTask ? 6 : 3
                checked: root.isDone
                text: root.isDone ? qsTrId("task_reopen").arg(root.title) : qsTrId("task_tick").arg(root.title)
                onClicked: root.queue.screen.toggleDone(root.index)
            }

            ColumnLayout {
                id: words

                Layout.fillWidth: true
                Layout.leftMargin: Theme.gap1
                spacing: 0

                ThemedText {
                    Layout.fillWidth: true
                    text: root.title
                    color: root.isDone ? Theme.textFaint : root.isTask ? Theme.text : Theme.textMuted
                    font.strikeout: root.isDone
                    font.weight: root.isActive && root.isTask ? Font.DemiBold : Font.Normal
                    wrapMode: Text.Wrap
                    maximumLineCount: 2
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }

                RowLayout {
                    visible: root.showsDetail
                    spacing: Theme.gap1

                    Rectangle {
                        implicitWidth: 8
                        implicitHeight: 8
                        radius: 4
                        visible: root.projectName.length > 0
                        color: root.projectColor.length > 0 ? root.projectColor : Theme.textFaint
                    }

                    ThemedText {
                        Layout.fillWidth: true
                        text: root.detail()
                        color: Theme.textMuted
                        font.pixelSize: Theme.caption
                        elide: Text.ElideRight
                    }
                }

                QueueRowActions {
                    Layout.topMargin: Theme.gap1
                    Layout.leftMargin: -Theme.gap2
                    objectName: "queueRowActions"
                    visible: root.isCurrent
                    queue: root.queue
                    index: root.index
                    queueIndex: root.queueIndex
                    taskId: root.taskId
                    title: root.title
                    isTask: root.isTask
                    canBecomeActive: root.isTask && !root.isActive && !root.isDone
                }
            }

            Item {
                Layout.alignment: Qt.AlignTop
                Layout.topMargin: 6
                implicitWidth: 24
                implicitHeight: 32
                visible: root.isTask && root.isReached && root.queue.screen.queue.taskCount > 1

                Symbol {
                    anchors.centerIn: parent
                    name: "line.3.horizontal"
                    color: Theme.textFaint
                    size: 16
                }

                QueueDragArea {
                    id: handle

                    objectName: "dragHandle"
                    anchors.fill: parent
                    queue: root.queue
                    index: root.index
                    queueIndex: root.queueIndex
                    content: root.ListView.view.contentItem
                }
            }
        }

        FocusRing {
            shown: root.isCurrent
            distance: -1
            innerRadius: Theme.radius
        }
    }

    // Where the dragged task would land.
    Rectangle {
        width: parent.width
        height: 2
        radius: 1
        y: root.queue.dropPlace > root.queue.draggedPlace ? body.height : -2
        color: Theme.accentText
        visible: root.isTask && root.queue.dropPlace === root.queueIndex && root.queue.dropPlace !== root.queue.draggedPlace
    }

    Deferred {
        id: subtask

        x: Theme.gap8
        y: body.height + Theme.gap1
        width: parent.width - x
        active: root.isTyping

        SubtaskField {
            queue: root.queue
            index: root.index
        }
    }
}
