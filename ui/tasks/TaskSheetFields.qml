pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// Everything about the task that is chosen rather than written, and the time spent on it.
Flickable {
    id: root

    required property TaskSheet sheet

    contentHeight: column.implicitHeight + Theme.gap1
    clip: true
    boundsBehavior: Flickable.StopAtBounds

    T.ScrollBar.vertical: ScrollBarThin {}

    ColumnLayout {
        id: column

        x: Theme.gap1
        y: Theme.gap1
        width: root.width - 2 * Theme.gap1 - Theme.gap1
        spacing: Theme.gap4

        LabelledItem {
            Layout.fillWidth: true
            label: qsTrId("task_status_label")

            SegmentedChoice {
                objectName: "taskStatus"
                segmentPadding: Theme.gap2
                name: qsTrId("task_status_label")
                values: ["To Do", "In Progress", "Done"]
                labels: [qsTrId("task_status_todo_short"), qsTrId("task_status_in_progress_short"), qsTrId("task_status_done_short")]
                optionNames: [qsTrId("task_status_todo"), qsTrId("task_status_in_progress"), qsTrId("task_status_done")]
                value: root.sheet.statusValue
                onChosen: value => root.sheet.statusValue = value
            }
        }

        LabelledItem {
            Layout.fillWidth: true
            label: qsTrId("task_priority_label")

            SegmentedChoice {
                objectName: "taskPriority"
                segmentPadding: Theme.gap2
                name: qsTrId("task_priority_label")
                values: ["0", "1", "2"]
                labels: [qsTrId("priority_low"), qsTrId("priority_medium"), qsTrId("priority_high")]
                value: String(root.sheet.priorityValue)
                onChosen: value => root.sheet.priorityValue = Number(value)
            }
        }

        LabelledItem {
            Layout.fillWidth: true
            label: qsTrId("task_project_label")

            ChoiceBox {
                objectName: "taskProject"
                width: parent.width
                name: qsTrId("task_project_label")
                model: root.sheet.projects
                chosenId: root.sheet.projectId
                onChosen: choiceId => root.sheet.projectId = choiceId
            }
        }

        LabelledItem {
            Layout.fillWidth: true
            visible: root.sheet.projectId.length > 0
            label: qsTrId("task_phase_label")

            ChoiceBox {
                objectName: "taskPhase"
                width: parent.width
                name: qsTrId("task_phase_label")
                model: root.sheet.phases
                chosenId: root.sheet.phaseId
                onChosen: choiceId => root.sheet.phaseId = choiceId
            }
        }

        LabelledItem {
            Layout.fillWidth: true
            label: qsTrId("task_planned_label")

            DayField {
                objectName: "taskPlanned"
                width: parent.width
                sheet: root.sheet
                field: "plannedDate"
                name: qsTrId("task_planned_label")
                dayText: root.sheet.plannedText
                isLate: root.sheet.isPlannedLate
            }
        }

        LabelledItem {
            Layout.fillWidth: true
            label: qsTrId("task_due_label")

            DayField {
                objectName: "taskDue"
                width: parent.width
                sheet: root.sheet
                field: "dueDate"
                name: qsTrId("task_due_label")
                dayText: root.sheet.dueText
                isLate: root.sheet.isOverdue
            }
        }

        SessionSection {
            Layout.fillWidth: true
            visible: !root.sheet.isNew
            sessions: root.sheet.sessions
        }
    }
}
