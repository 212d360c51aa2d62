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

    function moveText(place: int): string {
        return qsTrId("card_move_format").arg(root.board.columnAt(place).title);
    }

    function act(choice: string): void {
        if (choice === "open")
            root.board.board.openTask(root.taskId);
        else if (choice === "plan")
            root.board.board.planTask(root.taskId);
        else if (choice === "delete")
            root.board.deletionAsked(root.taskId);
        else if (choice.length > 0)
            root.board.move(root.taskId, Number(choice));
    }

    objectName: "cardMenu"

    ContextMenuItem {
        choice: "open"
        symbol: "scope"
        text: qsTrId("card_open_button")
    }

    ContextMenuItem {
        choice: "plan"
        symbol: "calendar.badge.plus"
        text: qsTrId("card_plan_button")
    }

    ContextMenuItem {
        choice: root.place === 0 ? "1" : "0"
        symbol: "arrow.left.arrow.right"
        text: root.moveText(root.place === 0 ? 1 : 0)
    }

    ContextMenuItem {
        choice: root.place === 2 ? "1" : "2"
        symbol: "arrow.left.arrow.right"
        text: root.moveText(root.place === 2 ? 1 : 2)
    }

    ContextMenuItem {
        choice: "delete"
        symbol: "trash"
        isDangerous: true
        text: qsTrId("card_delete_button")
    }
}
