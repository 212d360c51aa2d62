pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The daily agenda: a strip of days, the tasks of the chosen one, and the ways to plan.
Page {
    id: root

    required property DailyAgendaView model
    readonly property bool isEmpty: root.model.list.count === 0
    /// What opened the popup that is open.
    property Item opener: null

    function focusStart(): void {
        quickField.forceActiveFocus(Qt.TabFocusReason);
    }

    function takeKeyboardBack(): void {
        if (root.opener?.visible)
            root.opener.forceActiveFocus(Qt.PopupFocusReason);
        else
            root.focusStart();
    }

    heading: qsTrId("daily_agenda")
    introduction: root.model.dateText

    onEntered: root.focusStart()

    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_N && (event.modifiers & Qt.ControlModifier);
        if (event.accepted)
            root.model.plan("");
    }

    Binding {
        target: root.model
        property: "isShown"
        value: root.visible && root.Window.visibility !== Window.Hidden && root.Window.visibility !== Window.Minimized
    }

    headingContent: [
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
        },
        PushButton {
            objectName: "goToToday"
            visible: !root.model.isToday
            text: qsTrId("go_to_today_button")
            onClicked: {
                root.model.goToToday();
                strip.positionViewAtBeginning();
                strip.forceActiveFocus(Qt.TabFocusReason);
            }
        },
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
        },
        PushButton {
            objectName: "planButton"
            visible: !root.isEmpty
            symbol: "plus.circle"
            text: qsTrId("add_to_my_agenda")
            onClicked: root.model.plan("")
        }
    ]

    DateStrip {
        id: strip

        Layout.fillWidth: true
        Layout.topMargin: Theme.gap2
        picker: root.model.datePicker
    }

    EntryField {
        id: quickField

        objectName: "quickTaskField"
        Layout.fillWidth: true
        Layout.topMargin: Theme.gap2
        symbol: "plus.circle"
        placeholderText: qsTrId("quick_add_placeholder")
        maximumLength: 500
        onTextEdited: root.model.list.quickTaskTitle = quickField.text
        onAccepted: root.model.list.createQuickTaskWithoutProject()

        Keys.onEscapePressed: event => {
            event.accepted = quickField.length > 0;
            root.model.list.quickTaskTitle = "";
        }
        Keys.onDownPressed: {
            if (!root.isEmpty)
                list.forceActiveFocus(Qt.TabFocusReason);
        }

        Binding {
            target: quickField
            property: "text"
            value: root.model.list.quickTaskTitle
        }
    }

    DayProgress {
        Layout.fillWidth: true
        visible: !root.isEmpty
        tasks: root.model.list
    }

    AgendaList {
        id: list

        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: !root.isEmpty
        tasks: root.model.list
        onEmptied: root.focusStart()
    }

    ThemedText {
        Layout.fillWidth: true
        Layout.bottomMargin: Theme.gap4
        visible: !root.isEmpty
        text: qsTrId("agenda_keys_hint")
        color: Theme.textFaint
        font.pixelSize: Theme.caption
        wrapMode: Text.WordWrap
        horizontalAlignment: Text.AlignHCenter
    }

    EmptyAgendaView {
        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: root.isEmpty
        onPlanningAsked: tab => root.model.plan(tab)
    }

    Connections {
        function onShowCalendarChanged(): void {
            if (!root.model.showCalendar)
                root.takeKeyboardBack();
        }

        function onShowLateTasksChanged(): void {
            if (!root.model.showLateTasks)
                root.takeKeyboardBack();
        }

        target: root.model
    }

    Connections {
        function onTaskToUnscheduleChanged(): void {
            if (!root.model.list.asksToUnschedule)
                list.forceActiveFocus(Qt.PopupFocusReason);
        }

        target: root.model.list
    }

    Deferred {
        visible: false
        active: root.model.list.asksToUnschedule

        QuestionDialog {
            visible: true
            title: qsTrId("confirm_unschedule_task_title")
            message: qsTrId("quoted_format").arg(root.model.list.titleToUnschedule) + "\n" + qsTrId("confirm_unschedule_task_message")
            acceptText: qsTrId("unschedule_button")
            rejectText: qsTrId("cancel_button")
            onAccepted: root.model.list.confirmUnschedule()
            // Only when the answer, which comes after this, has been heard.
            onClosed: Qt.callLater(root.model.list.cancelUnschedule)
        }
    }

    Deferred {
        visible: false
        active: root.model.showLateTasks

        LateTasksPopup {
            agenda: root.model
            tasks: root.model.lateTasks
        }
    }
}
