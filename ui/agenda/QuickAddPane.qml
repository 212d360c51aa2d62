pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// New tasks, a line each: what the line says is shown while it is typed, and can be chosen below instead. Enter adds.
FocusScope {
    id: root

    required property QuickAddEntry entry

    function focusStart(): void {
        field.forceActiveFocus(Qt.TabFocusReason);
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: Theme.gap3

        EntryField {
            id: field

            objectName: "quickAddLine"
            Layout.fillWidth: true
            implicitHeight: Theme.controlHeightLarge
            focus: true
            symbol: "plus.circle"
            placeholderText: qsTrId("quick_add_hint")
            Accessible.name: qsTrId("quick_add_name")
            Accessible.description: qsTrId("quick_add_help")
            maximumLength: 500
            onTextEdited: root.entry.line = field.text
            onAccepted: root.entry.add()

            Binding {
                target: field
                property: "text"
                value: root.entry.line
            }
        }

        Flow {
            Layout.fillWidth: true
            Layout.minimumHeight: Theme.controlHeightSmall
            spacing: Theme.gap2

            Repeater {
                model: root.entry.chips

                EntryChip {
                    id: chip

                    onClicked: {
                        root.focusStart();
                        root.entry.removeChip(chip.index);
                    }
                }
            }

            ThemedText {
                width: parent.width
                visible: root.entry.chips.count === 0
                text: qsTrId("quick_add_help")
                color: Theme.textMuted
                font.pixelSize: Theme.caption
                wrapMode: Text.WordWrap
                lineHeight: 1.2
                Accessible.ignored: true
            }
        }

        RowLayout {
            Layout.topMargin: Theme.gap3
            spacing: Theme.gap4

            LabelledItem {
                Layout.alignment: Qt.AlignTop
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                label: qsTrId("task_project_label")

                ChoiceBox {
                    objectName: "quickAddProject"
                    width: parent.width
                    name: qsTrId("task_project_label")
                    model: root.entry.projects
                    chosenId: root.entry.projectId
                    onChosen: choiceId => root.entry.projectId = choiceId
                }
            }

            LabelledItem {
                Layout.alignment: Qt.AlignTop
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                opacity: root.entry.phases.length > 1 ? 1 : 0
                label: qsTrId("task_phase_label")

                ChoiceBox {
                    objectName: "quickAddPhase"
                    width: parent.width
                    enabled: root.entry.phases.length > 1
                    name: qsTrId("task_phase_label")
                    model: root.entry.phases
                    chosenId: root.entry.phaseId
                    onChosen: choiceId => root.entry.phaseId = choiceId
                }
            }
        }

        RowLayout {
            spacing: Theme.gap4

            LabelledItem {
                Layout.alignment: Qt.AlignTop
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                label: qsTrId("task_priority_label")

                SegmentedChoice {
                    objectName: "quickAddPriority"
                    name: qsTrId("task_priority_label")
                    values: ["low", "medium", "high"]
                    labels: [qsTrId("priority_low"), qsTrId("priority_medium"), qsTrId("priority_high")]
                    value: root.entry.priority
                    onChosen: value => root.entry.priority = value
                }
            }

            LabelledItem {
                Layout.alignment: Qt.AlignTop
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                label: qsTrId("planning_day_label")

                PushButton {
                    id: day

                    objectName: "quickAddDay"
                    width: parent.width
                    symbol: "calendar"
                    alignsLeft: true
                    font.weight: Font.Normal
                    text: root.entry.dayText
                    Accessible.name: qsTrId("planning_day_label") + ", " + root.entry.dayText
                    onClicked: root.entry.showCalendar = true

                    Deferred {
                        width: day.width
                        height: day.height
                        active: root.entry.showCalendar

                        CalendarPopup {
                            height: day.height
                            calendar: root.entry.calendar
                            onClosed: root.entry.showCalendar = false
                        }
                    }
                }
            }
        }

        Item {
            Layout.fillHeight: true
        }

        RowLayout {
            spacing: Theme.gap3

            ThemedText {
                objectName: "quickAddReport"
                Layout.fillWidth: true
                text: root.entry.report
                color: root.entry.isProblem ? Theme.amber : Theme.legitimate
                wrapMode: Text.Wrap
                maximumLineCount: 2
                elide: Text.ElideRight
                Accessible.role: Accessible.AlertMessage
                Accessible.name: root.entry.report
            }

            PushButton {
                objectName: "quickAddButton"
                kind: PushButton.Kind.Primary
                symbol: "plus"
                text: qsTrId("quick_add_button")
                enabled: root.entry.title.length > 0
                onClicked: {
                    root.entry.add();
                    root.focusStart();
                }
            }
        }
    }
}
