pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The card that follows the pointer while it is dragged. Columns take it by its payload: texts, the first of which
/// is the id of the task.
Item {
    id: root

    required property KanbanState board
    readonly property list<string> payload: [root.board.draggedTaskId]
    property point grip

    function forget(): void {
        root.board.draggedTaskId = "";
        root.board.draggedTitle = "";
    }

    Connections {
        target: root.board

        function onDragStarted(card: Item, place: point): void {
            const dragged = card as KanbanCardView;
            root.grip = dragged.mapFromItem(null, place.x, place.y);
            ghost.width = dragged.width;
            root.board.draggedTitle = dragged.title;
            root.board.draggedTaskId = dragged.taskId;
        }

        function onDragMoved(place: point): void {
            const inside = root.mapFromItem(null, place.x, place.y);
            ghost.x = inside.x - root.grip.x;
            ghost.y = inside.y - root.grip.y;
        }

        function onDragEnded(): void {
            ghost.Drag.drop();
            root.forget();
        }

        function onDragCanceled(): void {
            ghost.Drag.cancel();
            root.forget();
        }
    }

    Rectangle {
        id: ghost

        objectName: "draggedCard"
        height: title.implicitHeight + 2 * Theme.gap3
        visible: root.board.isDragging
        radius: Theme.radius
        color: Theme.surfacePressed
        border.width: 2
        border.color: Theme.accentBright
        rotation: Theme.motion > 0 ? 1.5 : 0

        Drag.active: root.board.isDragging
        Drag.source: root
        Drag.keys: ["task"]
        Drag.hotSpot: root.grip

        ThemedText {
            id: title

            x: Theme.gap3
            y: Theme.gap3
            width: parent.width - 2 * Theme.gap3
            text: root.board.draggedTitle
            wrapMode: Text.Wrap
            maximumLineCount: 3
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
