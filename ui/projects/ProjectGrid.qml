pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The tiles of the projects. Arrow keys go through them; Enter opens, F2 and E edit, Delete asks, the Menu key shows
/// what else there is.
GridView {
    id: root

    required property AllProjectsView screen
    /// The project that the menu or the question is about.
    property string menuProjectId: ""
    property string menuProjectName: ""

    signal deletionAsked(string projectId, string name)
    /// The keyboard wants to leave the grid upwards.
    signal leftUpwards

    function card(): ProjectCard {
        root.forceLayout();
        return root.currentItem as ProjectCard;
    }

    function showMenu(x: real, y: real): void {
        const card = root.card();
        if (!card)
            return;
        root.menuProjectId = card.projectId;
        root.menuProjectName = card.name;
        menu.active = true;
        (menu.object as ContextMenu).popup(card, x, y);
    }

    function askForDeletion(): void {
        const card = root.card();
        if (card)
            root.deletionAsked(card.projectId, card.name);
    }

    objectName: "projectGrid"
    clip: true
    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    cellWidth: Math.floor(root.width / Math.max(1, Math.floor(root.width / 272)))
    cellHeight: 184
    keyNavigationEnabled: true
    highlightMoveDuration: 0
    model: root.screen.projects
    Accessible.role: Accessible.List
    Accessible.name: qsTrId("projects_title")

    T.ScrollBar.vertical: ScrollBarThin {}

    onActiveFocusChanged: {
        if (root.activeFocus && root.currentIndex < 0)
            root.currentIndex = 0;
    }

    Keys.onPressed: event => {
        const card = root.card();
        const columns = Math.max(1, Math.floor(root.width / root.cellWidth));
        event.accepted = true;
        if (event.key === Qt.Key_Up && root.currentIndex < columns)
            root.leftUpwards();
        else if (card && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space))
            root.screen.openProject(card.projectId);
        else if (card && (event.key === Qt.Key_F2 || event.key === Qt.Key_E))
            root.screen.editProject(card.projectId);
        else if (event.key === Qt.Key_Delete)
            root.askForDeletion();
        else if (event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier))
            root.showMenu(Theme.gap6, Theme.gap10);
        else if (event.key === Qt.Key_Home)
            root.currentIndex = 0;
        else if (event.key === Qt.Key_End)
            root.currentIndex = root.count - 1;
        else
            event.accepted = false;
    }

    Deferred {
        id: menu

        ContextMenu {
            objectName: "projectMenu"
            onFinished: choice => {
                root.forceActiveFocus(Qt.PopupFocusReason);
                if (choice === "open")
                    root.screen.openProject(root.menuProjectId);
                else if (choice === "edit")
                    root.screen.editProject(root.menuProjectId);
                else if (choice === "delete")
                    root.deletionAsked(root.menuProjectId, root.menuProjectName);
            }

            ContextMenuItem {
                choice: "open"
                symbol: "rectangle.split.3x1"
                text: qsTrId("project_open_button")
            }

            ContextMenuItem {
                choice: "edit"
                symbol: "pencil"
                text: qsTrId("edit_project")
            }

            ContextMenuItem {
                choice: "delete"
                symbol: "trash"
                isDangerous: true
                text: qsTrId("project_delete_button")
            }
        }
    }

    delegate: ProjectCard {
        width: root.cellWidth
        height: root.cellHeight
        onPressed: row => {
            root.currentIndex = row;
            root.forceActiveFocus(Qt.MouseFocusReason);
        }
        onOpened: id => root.screen.openProject(id)
        onMenuAsked: (row, x, y) => {
            root.currentIndex = row;
            root.showMenu(x, y);
        }
    }
}
