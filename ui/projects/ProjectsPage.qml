pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The projects, or the board of the one that is opened.
Page {
    id: root

    required property PlanningScreens model
    readonly property bool showsBoard: root.model.board.hasProject

    heading: qsTrId("projects_title")
    introduction: ""
    showsHeading: false

    onEntered: {
        if (root.showsBoard)
            (board.item as Page).enter();
        else
            list.enter();
    }
    onShowsBoardChanged: {
        if (!root.showsBoard)
            list.enter();
    }

    data: [
        AllProjectsPage {
            id: list

            anchors.fill: parent
            visible: !root.showsBoard
            model: root.model.projects
        },
        LazyPage {
            id: board

            anchors.fill: parent
            visible: root.showsBoard
            wanted: root.showsBoard
            file: "../kanban/KanbanPage.qml"
            model: root.model.board
        }
    ]
}
