pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The projects, or the board of the one that is opened.
Page {
    id: root

    required property PlanningScreens model
    property bool isComplete: false
    readonly property bool showsBoard: root.model.board.hasProject

    heading: qsTrId("projects_title")
    introduction: ""
    showsHeading: false

    Component.onCompleted: root.isComplete = true
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
            planning: root.model
        },
        LazyPage {
            id: board

            anchors.fill: parent
            visible: root.showsBoard
            wanted: root.isComplete && root.showsBoard
            file: "../kanban/KanbanPage.qml"
            model: root.model.board
        }
    ]
}
