pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// Whose board it is, and what can be done to the whole of it.
RowLayout {
    id: root

    required property KanbanBoardView board

    /// The keyboard goes back to where the sheet of phases was asked for.
    function takeKeyboard(): void {
        phases.forceActiveFocus(Qt.PopupFocusReason);
    }

    spacing: Theme.gap3

    IconButton {
        objectName: "boardBack"
        implicitWidth: Theme.controlHeight
        implicitHeight: Theme.controlHeight
        symbol: "chevron.left"
        symbolSize: 20
        text: qsTrId("board_back_button")
        onClicked: root.board.close()
    }

    ProjectEmblem {
        emoji: root.board.projectEmoji
        colorHex: root.board.projectColor
    }

    ColumnLayout {
        spacing: 0

        ThemedText {
            objectName: "boardTitle"
            Layout.fillWidth: true
            text: root.board.projectName
            font.pixelSize: Theme.title
            font.weight: Font.DemiBold
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
        }

        ThemedText {
            Layout.fillWidth: true
            text: qsTrId("tasks_count_format", root.board.taskCount)
            color: Theme.textMuted
            elide: Text.ElideRight
        }
    }

    PushButton {
        id: phases

        objectName: "boardPhases"
        symbol: "rectangle.split.3x1"
        text: qsTrId("phases_label")
        onClicked: root.board.showManagePhases = true
    }

    PushButton {
        objectName: "boardEdit"
        symbol: "pencil"
        text: qsTrId("edit_project")
        onClicked: root.board.showEditProject = true
    }

    PushButton {
        objectName: "boardAdd"
        kind: PushButton.Kind.Primary
        implicitHeight: Theme.controlHeight
        leftPadding: Theme.gap4
        symbol: "plus"
        text: qsTrId("add_button")
        onClicked: root.board.requestTask("To Do")
    }
}
