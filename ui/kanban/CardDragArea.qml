pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Takes the presses and drags of a column's cards. It lies under them in the list's content, so that a card that
/// scrolls away during a drag does not take the drag with it.
MouseArea {
    id: root

    required property KanbanState board
    required property int place
    required property ListView list
    property point pressPlace
    property KanbanCardView pressedCard: null

    function scenePlace(mouse: MouseEvent): point {
        return root.mapToItem(null, mouse.x, mouse.y);
    }

    parent: root.list.contentItem
    z: -1
    width: root.list.width
    height: Math.max(root.list.contentHeight, root.list.height)
    acceptedButtons: Qt.LeftButton | Qt.RightButton
    preventStealing: true

    onPressed: mouse => {
        root.pressPlace = root.scenePlace(mouse);
        root.pressedCard = root.list.itemAt(mouse.x, mouse.y) as KanbanCardView;
        if (!root.pressedCard) {
            root.list.forceActiveFocus(Qt.MouseFocusReason);
            return;
        }
        root.board.rowAsked(root.place, root.pressedCard.index);
        if (mouse.button === Qt.RightButton) {
            const at = root.mapToItem(root.pressedCard, mouse.x, mouse.y);
            root.board.menuAsked(root.place, root.pressedCard, at.x, at.y);
            root.pressedCard = null;
        }
    }
    onPositionChanged: mouse => {
        const place = root.scenePlace(mouse);
        if (root.board.isDragging) {
            root.board.dragMoved(place);
            return;
        }
        const distance = Math.abs(place.x - root.pressPlace.x) + Math.abs(place.y - root.pressPlace.y);
        if (!root.pressedCard || distance < Application.styleHints.startDragDistance)
            return;
        root.board.dragStarted(root.pressedCard, root.pressPlace);
        root.board.dragMoved(place);
    }
    onReleased: {
        const card = root.pressedCard;
        root.pressedCard = null;
        if (root.board.isDragging)
            root.board.dragEnded();
        else if (card)
            root.board.board.openTask(card.taskId);
    }
    onCanceled: {
        root.pressedCard = null;
        root.board.dragCanceled();
    }
}
