pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The entry of a card's menu that moves it to another column.
ContextMenuItem {
    id: root

    required property KanbanState board
    required property string taskId
    required property int target

    symbol: "arrow.left.arrow.right"
    text: qsTrId("card_move_format").arg(root.board.columnAt(root.target).title)
    onTriggered: root.board.move(root.taskId, root.target)
}
