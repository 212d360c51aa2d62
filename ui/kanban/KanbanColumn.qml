pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// One column of the board: its title, its cards, and the way to a new one. Cards can be dropped on all of it.
Rectangle {
    id: root

    required property KanbanState board
    required property KanbanColumnView column
    /// From the left, counted from 0.
    required property int place
    readonly property color tint: root.place === 0 ? Theme.textFaint : root.place === 1 ? Theme.accentBright : Theme.legitimate

    function goTo(row: int): void {
        list.goTo(row);
    }

    function takeKeyboard(): void {
        list.forceActiveFocus(Qt.PopupFocusReason);
    }

    function beginNew(): void {
        field.active = true;
    }

    Layout.fillWidth: true
    Layout.fillHeight: true
    Layout.preferredWidth: 1
    radius: Theme.radiusLarge
    color: root.column.isDropTargeted ? Theme.accentSurface : Theme.surface
    border.width: root.column.isDropTargeted ? 2 : 0
    border.color: Theme.accentBright

    Behavior on color {
        ColorAnimation {
            duration: Theme.motionFast
        }
    }

    DropArea {
        id: drops

        anchors.fill: parent
        keys: ["task"]
        onEntered: root.column.isDropTargeted = true
        onExited: root.column.isDropTargeted = false
        onDropped: drop => {
            root.column.isDropTargeted = false;
            const payload = (drop.source as KanbanDragLayer).payload;
            if (!root.column.drop(payload))
                return;
            drop.accept();
            root.board.rowAsked(root.place, root.board.board.rowOf(payload[0], root.column));
        }
    }

    // While a card is held near an end of the list, the list goes that way.
    Timer {
        readonly property real depth: 56
        readonly property real top: drops.drag.y - list.y
        readonly property real bottom: list.y + list.height - drops.drag.y
        readonly property int direction: top < depth ? -1 : bottom < depth ? 1 : 0

        interval: 16
        repeat: true
        running: drops.containsDrag && direction !== 0
        onTriggered: list.contentY = Math.max(list.originY, Math.min(list.contentY + 8 * direction, list.originY + Math.max(0, list.contentHeight - list.height)))
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.gap3
        anchors.rightMargin: Theme.gap1
        spacing: Theme.gap2

        RowLayout {
            Layout.leftMargin: Theme.gap1
            Layout.rightMargin: Theme.gap2
            spacing: Theme.gap2

            Rectangle {
                implicitWidth: 10
                implicitHeight: 10
                radius: 5
                color: root.tint
            }

            ThemedText {
                text: root.column.title
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }

            ThemedText {
                Layout.fillWidth: true
                objectName: "columnCount"
                text: String(root.column.count)
                color: Theme.textMuted
                Accessible.name: qsTrId("tasks_count_format", root.column.count)
            }

            IconButton {
                objectName: "columnAdd" + root.place
                symbol: "plus"
                text: qsTrId("board_new_task_name").arg(root.column.title)
                onClicked: root.beginNew()
            }
        }

        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            EmptyColumnView {
                anchors.fill: parent
                anchors.rightMargin: Theme.gap2
                visible: root.column.count === 0
                status: root.column.statusValue
                tint: root.tint
            }

            KanbanCardList {
                id: list

                objectName: "cards" + root.place
                anchors.fill: parent
                board: root.board
                column: root.column
                place: root.place
                onNewAsked: root.beginNew()
            }
        }

        Deferred {
            id: field

            Layout.fillWidth: true
            Layout.rightMargin: Theme.gap2

            InlineField {
                objectName: "newTask"
                keepsOpen: true
                placeholderText: qsTrId("board_new_task_placeholder")
                Accessible.name: qsTrId("board_new_task_name").arg(root.column.title)
                onAcceptedText: text => {
                    root.board.board.addTask(text, root.column.statusValue);
                    list.forceLayout();
                    list.positionViewAtEnd();
                }
                onExited: {
                    field.active = false;
                    list.goTo(list.count - 1);
                }
            }
        }
    }
}
