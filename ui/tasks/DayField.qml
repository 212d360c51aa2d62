pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// Shows one of the days of the task and lets another be chosen, or none. Delete clears it.
FocusScope {
    id: root

    required property TaskSheet sheet
    /// "plannedDate" or "dueDate".
    required property string field
    required property string name
    /// Empty for no day.
    required property string dayText
    required property bool isLate
    readonly property bool hasDay: root.dayText.length > 0

    function leave(): void {
        choices.active = false;
        button.forceActiveFocus(Qt.TabFocusReason);
    }

    function clearDay(): void {
        root.sheet.clearDay(root.field);
        button.forceActiveFocus(Qt.TabFocusReason);
    }

    implicitWidth: 240
    implicitHeight: Theme.controlHeight

    Keys.onDeletePressed: root.clearDay()

    PushButton {
        id: button

        width: parent.width
        focus: true
        font.weight: Font.Normal
        alignsLeft: true
        symbolColor: root.isLate ? Theme.amber : Theme.text
        symbol: root.isLate ? "calendar.badge.exclamationmark" : "calendar"
        text: root.hasDay ? root.dayText : qsTrId("task_no_day")
        Accessible.name: root.name + ", " + button.text + (root.isLate ? ", " + qsTrId("task_is_late") : "")
        onClicked: {
            root.sheet.chooseDay(root.field);
            choices.active = true;
        }
    }

    IconButton {
        anchors.right: parent.right
        anchors.rightMargin: Theme.gap1
        anchors.verticalCenter: parent.verticalCenter
        visible: root.hasDay
        symbol: "xmark"
        symbolSize: 14
        text: qsTrId("task_clear_day").arg(root.name)
        onClicked: root.clearDay()
    }

    Deferred {
        id: choices

        width: parent.width

        DayChoices {
            sheet: root.sheet
            field: root.field
            onExited: root.leave()
        }
    }
}
