pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The tasks of the day. Arrow keys go through them; Enter opens one, Space ticks it off, Delete asks to take it off
/// the agenda, the menu key shows all of that.
ListView {
    id: root

    required property FilteredTaskList tasks

    signal emptied

    function openMenu(row: int, place: point): void {
        root.currentIndex = row;
        menu.row = row;
        menu.popup(root.itemAtIndex(row), place.x, place.y);
    }

    objectName: "agendaList"
    clip: true
    spacing: Theme.gap2
    activeFocusOnTab: root.count > 0
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: 0
    model: root.tasks
    Accessible.role: Accessible.List
    Accessible.name: qsTrId("daily_objectives")

    onActiveFocusChanged: {
        if (root.activeFocus && root.currentIndex < 0)
            root.currentIndex = 0;
    }
    onCountChanged: {
        if (root.count === 0 && root.activeFocus)
            root.emptied();
    }

    Keys.onPressed: event => {
        // The row that the last key took away must not be the one that this key is for.
        root.forceLayout();
        const row = root.currentIndex;
        event.accepted = row >= 0;
        if (row < 0)
            return;
        if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
            root.tasks.openAt(row);
        else if (event.key === Qt.Key_Space)
            root.tasks.completeAt(row);
        else if (event.key === Qt.Key_Delete)
            root.tasks.requestUnscheduleAt(row);
        else if (event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier))
            root.openMenu(row, Qt.point(root.width / 3, root.currentItem.height / 2));
        else
            event.accepted = false;
    }

    T.ScrollBar.vertical: ScrollBarThin {}

    delegate: AgendaTaskCard {
        id: card

        width: root.width - (root.contentHeight > root.height ? Theme.gap3 : 0)
        onOpened: {
            root.currentIndex = card.index;
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.tasks.openAt(card.index);
        }
        onCompleted: root.tasks.completeAt(card.index)
        onUnscheduled: root.tasks.requestUnscheduleAt(card.index)
        onMenuAsked: place => root.openMenu(card.index, place)
    }

    ContextMenu {
        id: menu

        property int row: -1

        objectName: "agendaMenu"

        ContextMenuItem {
            symbol: "doc.on.doc"
            text: qsTrId("task_open_detail")
            onTriggered: root.tasks.openAt(menu.row)
        }

        ContextMenuItem {
            symbol: "checkmark"
            text: qsTrId("task_menu_done")
            onTriggered: root.tasks.completeAt(menu.row)
        }

        ContextMenuItem {
            symbol: "calendar.badge.minus"
            text: qsTrId("unschedule_task")
            onTriggered: root.tasks.requestUnscheduleAt(menu.row)
        }
    }
}
