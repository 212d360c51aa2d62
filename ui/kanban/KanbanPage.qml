pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The board of one project.
Page {
    id: root

    required property KanbanBoardView model
    property int lastPlace: 0

    function columnAt(place: int): KanbanColumn {
        if (place === 0)
            return toDo;
        if (place === 1)
            return inProgress;
        return done;
    }

    function goTo(place: int, row: int): void {
        root.lastPlace = place;
        root.columnAt(place).goTo(row);
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

    Connections {
        target: root.model

        function onShowManagePhasesChanged(): void {
            if (!root.model.showManagePhases)
                header.takeKeyboard();
        }
    }

    KanbanHeader {
        id: header

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

        KanbanColumn {
            id: toDo

            board: state
            column: root.model.toDo
            place: 0
        }

        KanbanColumn {
            id: inProgress

            board: state
            column: root.model.inProgress
            place: 1
        }

        KanbanColumn {
            id: done

            board: state
            column: root.model.done
            place: 2
        }
    }

    Deferred {
        id: menu

        property string taskId: ""
        property int place: 0

        visible: false

        CardMenu {
            id: cardMenu

            board: state
            taskId: menu.taskId
            place: menu.place
            onFinished: choice => {
                root.columnAt(root.lastPlace).takeKeyboard();
                cardMenu.act(choice);
            }
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
                root.columnAt(root.lastPlace).takeKeyboard();
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
