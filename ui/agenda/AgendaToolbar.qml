pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What stands beside the agenda's heading: the late tasks, the way back to today, the calendar and the planning
/// sheet.
RowLayout {
    id: root

    required property DailyAgendaView model
    /// The button that opened the popup that is open.
    property Item opener: null

    signal todayChosen
    /// A popup has closed, and the keyboard has to go somewhere.
    signal calledOff

    /// Gives the keyboard to the button that opened the last popup. @return whether that is there
    function takeKeyboardBack(): bool {
        if (!root.opener?.visible)
            return false;
        root.opener.forceActiveFocus(Qt.PopupFocusReason);
        return true;
    }

    spacing: Theme.gap3

    Connections {
        function onShowCalendarChanged(): void {
            if (!root.model.showCalendar)
                root.calledOff();
        }

        function onShowLateTasksChanged(): void {
            if (!root.model.showLateTasks)
                root.calledOff();
        }

        target: root.model
    }

    PushButton {
        id: lateButton

        objectName: "lateTasksButton"
        visible: root.model.overdueCount > 0
        symbol: "calendar.badge.exclamationmark"
        symbolColor: Theme.amber
        text: qsTrId("late_tasks", root.model.overdueCount)
        onClicked: {
            root.opener = lateButton;
            root.model.showLateTasks = true;
        }
    }

    PushButton {
        objectName: "goToToday"
        visible: !root.model.isToday
        text: qsTrId("go_to_today_button")
        onClicked: {
            root.model.goToToday();
            root.todayChosen();
        }
    }

    PushButton {
        id: calendarButton

        objectName: "calendarButton"
        symbol: "calendar"
        text: qsTrId("calendar_open")
        onClicked: {
            root.opener = calendarButton;
            root.model.showCalendar = true;
        }

        Deferred {
            width: calendarButton.width
            height: calendarButton.height
            active: root.model.showCalendar

            CalendarPopup {
                height: calendarButton.height
                calendar: root.model.calendar
                onClosed: root.model.showCalendar = false
            }
        }
    }

    PushButton {
        objectName: "planButton"
        // An empty day offers it below.
        visible: root.model.list.count > 0
        symbol: "plus.circle"
        text: qsTrId("add_to_my_agenda")
        onClicked: root.model.plan("")
    }
}
