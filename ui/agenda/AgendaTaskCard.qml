pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A task of the day, with what can be done to it.
Item {
    id: root

    required property int index
    required property string title
    required property int priorityValue
    required property string priorityLabel
    required property string projectName
    required property string projectColor
    required property string dueText
    required property string plannedText
    required property bool isLate
    required property bool isOverdue
    readonly property bool isHovered: hover.hovered
    readonly property bool isCurrent: root.ListView.isCurrentItem && root.ListView.view.activeFocus
    readonly property bool isReached: root.isHovered || root.isCurrent

    signal completed
    signal unscheduled
    signal opened
    signal menuAsked(point place)

    function withFact(text: string, fact: string): string {
        return fact.length > 0 ? text + ", " + fact : text;
    }

    function spokenText(): string {
        const row = qsTrId("agenda_row_name").arg(root.index + 1).arg(root.title);
        const due = root.dueText.length > 0 ? qsTrId("chip_due").arg(root.dueText) : "";
        const planned = root.plannedText.length > 0 ? qsTrId("chip_planned").arg(root.plannedText) : "";
        const late = root.isLate ? qsTrId("task_late_mark") : "";
        return root.withFact(root.withFact(root.withFact(root.withFact(root.withFact(row, late), root.priorityLabel), root.projectName), due), planned);
    }

    implicitHeight: Math.max(64, words.implicitHeight + 2 * Theme.gap3)
    Accessible.role: Accessible.ListItem
    Accessible.name: root.spokenText()

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: root.isReached ? Theme.surfaceRaised : Theme.surface

        HoverHandler {
            id: hover
        }

        TapHandler {
            onTapped: root.opened()
        }

        TapHandler {
            acceptedButtons: Qt.RightButton
            onTapped: eventPoint => root.menuAsked(eventPoint.position)
        }

        Rectangle {
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            width: 3
            height: parent.height - 2 * Theme.gap3
            radius: 1.5
            visible: root.isLate
            color: Theme.amber
        }

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.gap3
            anchors.rightMargin: Theme.gap3
            spacing: Theme.gap2

            ThemedText {
                Layout.preferredWidth: 24
                text: String(root.index + 1)
                color: Theme.textFaint
                horizontalAlignment: Text.AlignRight
                font.pixelSize: Theme.caption
                Accessible.ignored: true
            }

            CheckCircle {
                objectName: "agendaTick"
                focusPolicy: Qt.NoFocus
                checked: false
                text: qsTrId("task_tick").arg(root.title)
                onClicked: root.completed()
            }

            ColumnLayout {
                id: words

                Layout.fillWidth: true
                spacing: Theme.gap1

                ThemedText {
                    Layout.fillWidth: true
                    text: root.title
                    font.weight: Font.Medium
                    wrapMode: Text.Wrap
                    maximumLineCount: 2
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }

                RowLayout {
                    spacing: Theme.gap4

                    PriorityMark {
                        priorityValue: root.priorityValue
                        label: root.priorityLabel
                    }

                    RowFact {
                        symbol: "folder"
                        text: root.projectName
                        symbolColor: root.projectColor.length > 0 ? root.projectColor : Theme.textFaint
                    }

                    RowFact {
                        symbol: "clock.fill"
                        text: root.dueText
                        color: root.isOverdue ? Theme.amber : Theme.textMuted
                        symbolColor: root.isOverdue ? Theme.amber : Theme.textFaint
                    }

                    RowFact {
                        symbol: "calendar"
                        text: root.plannedText
                    }

                    RowFact {
                        symbol: "calendar.badge.exclamationmark"
                        text: root.isLate ? qsTrId("task_late_mark") : ""
                        color: Theme.amber
                        symbolColor: Theme.amber
                    }

                    Item {
                        Layout.fillWidth: true
                    }
                }
            }

            IconButton {
                objectName: "agendaUnschedule"
                focusPolicy: Qt.NoFocus
                enabled: root.isReached
                opacity: root.isReached ? 1 : 0
                Accessible.ignored: !root.isReached
                symbol: "calendar.badge.minus"
                text: qsTrId("unschedule_task")
                onClicked: root.unscheduled()
            }
        }

        FocusRing {
            shown: root.isCurrent
            distance: -1
            innerRadius: Theme.radius
        }
    }
}
