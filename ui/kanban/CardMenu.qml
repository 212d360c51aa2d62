pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// What can be done to a card.
ContextMenu {
    id: root

    required property KanbanState board
    required property string taskId
    /// The column that the card is in.
    required property int place

    objectName: "cardMenu"

    ContextMenuItem {
        symbol: "scope"
        text: qsTrId("card_open_button")
        onTriggered: root.board.board.openTask(root.taskId)
    }

    ContextMenuItem {
        symbol: "calendar.badge.plus"
        text: qsTrId("card_plan_button")
        onTriggered: root.board.board.planTask(root.taskId)
    }

    CardMoveItem {
        board: root.board
        taskId: root.taskId
        target: root.place === 0 ? 1 : 0
    }

    CardMoveItem {
        board: root.board
        taskId: root.taskId
        target: root.place === 2 ? 1 : 2
    }

    ContextMenuItem {
        symbol: "trash"
        isDangerous: true
        text: qsTrId("card_delete_button")
        onTriggered: root.board.deletionAsked(root.taskId)
    }
}
