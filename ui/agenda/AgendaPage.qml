pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The daily agenda: a strip of days, the tasks of the chosen one, and the ways to plan.
Page {
    id: root

    required property DailyAgendaView model
    readonly property bool isEmpty: root.model.list.count === 0

    function focusStart(): void {
        quickField.forceActiveFocus(Qt.TabFocusReason);
    }

    function takeKeyboardBack(): void {
        if (!toolbar.takeKeyboardBack())
            root.focusStart();
    }

    heading: qsTrId("daily_agenda")
    introduction: root.model.dateText

    onEntered: root.focusStart()

    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_N && (event.modifiers & Qt.ControlModifier);
        if (event.accepted)
            root.model.plan("quickAdd");
    }

    Binding {
        target: root.model
        property: "isShown"
        value: root.visible && root.Window.visibility !== Window.Hidden && root.Window.visibility !== Window.Minimized
    }

    headingContent: AgendaToolbar {
        id: toolbar

        model: root.model
        onCalledOff: root.takeKeyboardBack()
        onTodayChosen: {
            strip.positionViewAtBeginning();
            strip.forceActiveFocus(Qt.TabFocusReason);
        }
    }

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

    // Only when the answer, which comes after the question has closed, has been heard.
    Timer {
        id: afterAnswer

        interval: 0
        onTriggered: {
            root.model.list.cancelUnschedule();
            if (root.isEmpty)
                root.focusStart();
            else
                list.forceActiveFocus(Qt.PopupFocusReason);
        }
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
            onClosed: afterAnswer.start()
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
