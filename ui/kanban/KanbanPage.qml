pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The board of one project.
Page {
    id: root

    required property KanbanBoardView model
    property int lastPlace: 0

    function goTo(place: int, row: int): void {
        root.lastPlace = place;
        (columns.itemAt(place) as KanbanColumn).goTo(row);
    }

    heading: root.model.projectName
    introduction: ""
    showsHeading: false
    maximumWidth: 1680

    onEntered: {
        root.model.refresh();
        root.goTo(root.model.toDo.count > 0 || root.model.inProgress.count === 0 ? 0 : 1, 0);
    }

    Keys.onEscapePressed: root.model.close()
    Keys.onPressed: event => {
        const goesBack = event.key === Qt.Key_Back || (event.key === Qt.Key_Left && event.modifiers & Qt.AltModifier);
        event.accepted = goesBack || event.matches(StandardKey.New);
        if (goesBack)
            root.model.close();
        else if (event.accepted)
            root.model.requestTask("To Do");
    }

    KanbanState {
        id: state

        board: root.model
        onRowAsked: (column, row) => root.goTo(column, row)
        onMenuAsked: (column, card, x, y) => {
            menu.taskId = card.taskId;
            menu.place = column;
            menu.active = true;
            (menu.object as CardMenu).popup(card, x, y);
        }
        onDeletionAsked: taskId => {
            question.taskId = taskId;
            question.active = true;
        }
    }

    KanbanHeader {
        Layout.fillWidth: true
        board: root.model
    }

    PhaseTabs {
        objectName: "boardTabs"
        Layout.fillWidth: true
        visible: root.model.phases.count > 0
        board: root.model
    }

    RowLayout {
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.bottomMargin: Theme.gap6
        spacing: Theme.gap4

        Repeater {
            id: columns

            model: 3

            KanbanColumn {
                required property int index

                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: 1
                board: state
                column: state.columnAt(index)
                place: index
            }
        }
    }

    Deferred {
        id: menu

        property string taskId: ""
        property int place: 0

        visible: false

        CardMenu {
            board: state
            taskId: menu.taskId
            place: menu.place
            onClosed: (columns.itemAt(root.lastPlace) as KanbanColumn).takeKeyboard()
        }
    }

    Deferred {
        id: question

        property string taskId: ""

        visible: false

        QuestionDialog {
            objectName: "deleteTaskQuestion"
            visible: true
            title: qsTrId("confirm_delete_task_title")
            message: (qsTrId("confirm_delete_task_message") + " " + root.model.consequencesOfDeletion(question.taskId)).trim()
            acceptText: qsTrId("delete_button")
            rejectText: qsTrId("cancel_button")
            onAccepted: root.model.deleteTask(question.taskId)
            onClosed: {
                question.active = false;
                (columns.itemAt(root.lastPlace) as KanbanColumn).takeKeyboard();
            }
        }
    }

    Deferred {
        active: root.model.showManagePhases
        visible: false

        ManagePhasesPopup {
            board: root.model
        }
    }

    data: KanbanDragLayer {
        anchors.fill: parent
        z: 10
        board: state
    }
}
