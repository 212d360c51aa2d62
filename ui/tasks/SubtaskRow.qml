pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// One subtask, with what can be done to it.
Item {
    id: root

    required property int index
    required property string title
    required property int depth
    required property bool isDone
    required property bool isFirst
    required property bool isLast
    required property int subtaskCount
    required property int completedSubtaskCount
    required property SubtaskState section

    readonly property bool isCurrent: root.ListView.isCurrentItem && root.ListView.view.activeFocus
    readonly property bool isReached: hover.hovered || root.isCurrent
    // A row that goes has no index.
    readonly property bool isTyping: root.index >= 0 && root.section.typingRow === root.index
    readonly property bool isRenaming: root.index >= 0 && root.section.renamingRow === root.index
    readonly property int indent: 24 * Math.min(root.depth, 8)

    implicitHeight: body.height + (root.isTyping ? Theme.controlHeight + Theme.gap1 : 0)
    z: handle.pressed ? 2 : 0
    Accessible.role: Accessible.ListItem
    Accessible.name: root.isDone ? qsTrId("task_done_name").arg(root.title) : root.title

    Rectangle {
        id: body

        x: root.indent
        width: parent.width - x
        height: Theme.controlHeight
        radius: Theme.radiusSmall
        color: handle.pressed ? Theme.surfacePressed : root.isReached ? Theme.surfaceHover : Theme.surfaceRaised
        transform: Translate {
            y: handle.pressed ? handle.offset : 0
        }

        HoverHandler {
            id: hover
        }

        TapHandler {
            onTapped: root.section.rowAsked(root.index)
            onDoubleTapped: root.section.sheet.showSubtask(root.index)
        }

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.gap1
            anchors.rightMargin: Theme.gap1
            spacing: 0

            CheckCircle {
                checked: root.isDone
                focusPolicy: Qt.NoFocus
                text: root.isDone ? qsTrId("task_reopen").arg(root.title) : qsTrId("task_tick").arg(root.title)
                onClicked: root.section.sheet.toggleSubtask(root.index)
            }

            ThemedText {
                Layout.fillWidth: true
                Layout.leftMargin: Theme.gap1
                visible: !root.isRenaming
                text: root.title
                color: root.isDone ? Theme.textFaint : Theme.text
                font.strikeout: root.isDone
                elide: Text.ElideRight
                Accessible.ignored: true
            }

            Deferred {
                id: rename

                Layout.fillWidth: true
                active: root.isRenaming

                InlineField {
                    initialText: root.title
                    onAcceptedText: text => root.section.sheet.renameSubtask(root.index, text)
                    onExited: {
                        const section = root.section;
                        const row = root.index;
                        section.renamingRow = -1;
                        section.rowAsked(row);
                    }
                }
            }

            ThemedText {
                Layout.rightMargin: Theme.gap2
                visible: root.subtaskCount > 0 && !root.isReached
                text: qsTrId("subtasks_done").arg(root.completedSubtaskCount).arg(root.subtaskCount)
                color: Theme.textMuted
                font.pixelSize: Theme.caption
            }

            SubtaskActions {
                id: actions

                visible: root.isReached && !root.isRenaming
                section: root.section
                index: root.index
                title: root.title
                isFirst: root.isFirst
                isLast: root.isLast
            }

            Item {
                implicitWidth: 24
                implicitHeight: 32
                visible: root.isReached && !(root.isFirst && root.isLast)

                Symbol {
                    anchors.centerIn: parent
                    name: "line.3.horizontal"
                    color: Theme.textFaint
                    size: 16
                }

                SubtaskDragArea {
                    id: handle

                    objectName: "subtaskHandle"
                    anchors.fill: parent
                    section: root.section
                    index: root.index
                    rowHeight: body.height + root.section.spacing
                    content: root.ListView.view.contentItem
                }
            }
        }

        FocusRing {
            shown: root.isCurrent
            distance: -1
        }
    }

    Deferred {
        x: root.indent + Theme.gap6
        y: body.height + Theme.gap1
        width: parent.width - x
        active: root.isTyping

        InlineField {
            placeholderText: qsTrId("subtask_placeholder")
            keepsOpen: true
            onAcceptedText: text => root.section.sheet.addSubtask(root.index, text)
            onExited: {
                const section = root.section;
                const row = root.index;
                section.typingRow = -1;
                section.rowAsked(row);
            }
        }
    }
}
