pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The card of a task on the board. The column under it takes presses and drags.
Item {
    id: root

    required property int index
    required property string taskId
    required property string title
    required property int priorityValue
    required property string dueText
    required property bool isOverdue
    required property string plannedText
    required property bool isPlannedLate
    required property int subtaskCount
    required property int completedSubtaskCount
    required property int resourceCount
    required property string phaseName
    required property bool isDone
    /// Whether the name of the phase says something that the tab does not.
    required property bool showsPhase
    required property bool isDragged
    readonly property bool isCurrent: root.ListView.isCurrentItem && root.ListView.view.activeFocus
    readonly property bool isHovered: hover.hovered
    readonly property bool isReached: root.isHovered || root.isCurrent

    signal menuAsked(real x, real y)

    function priorityName(): string {
        switch (root.priorityValue) {
        case 0:
            return qsTrId("priority_low");
        case 1:
            return qsTrId("priority_medium");
        case 2:
            return qsTrId("priority_high");
        default:
            return "";
        }
    }

    function priorityColor(): color {
        return root.priorityValue === 2 ? Theme.amber : root.priorityValue === 1 ? Theme.textMuted : Theme.textFaint;
    }

    function spokenDay(day: string, late: bool): string {
        return late ? qsTrId("card_late_name").arg(day) : day;
    }

    function spokenName(): string {
        let name = root.title;
        if (root.priorityName().length > 0)
            name += ", " + qsTrId("card_priority_name").arg(root.priorityName());
        if (root.dueText.length > 0)
            name += ", " + root.spokenDay(qsTrId("card_due_name").arg(root.dueText), root.isOverdue);
        if (root.plannedText.length > 0)
            name += ", " + root.spokenDay(qsTrId("card_planned_name").arg(root.plannedText), root.isPlannedLate);
        if (root.subtaskCount > 0)
            name += ", " + qsTrId("subtasks_done").arg(root.completedSubtaskCount).arg(root.subtaskCount);
        if (root.resourceCount > 0)
            name += ", " + qsTrId("count_files", root.resourceCount);
        return name;
    }

    implicitHeight: body.height
    opacity: root.isDragged ? 0.35 : 1
    Accessible.role: Accessible.ListItem
    Accessible.name: root.spokenName()

    Rectangle {
        id: body

        width: parent.width
        height: content.implicitHeight + 2 * Theme.gap3
        radius: Theme.radius
        color: root.isReached ? Theme.surfaceHover : Theme.surfaceRaised

        HoverHandler {
            id: hover
        }

        Column {
            id: content

            x: Theme.gap3
            y: Theme.gap3
            width: parent.width - 2 * Theme.gap3
            spacing: Theme.gap2

            ThemedText {
                // The button beside it comes and goes; the words stay where they are.
                width: parent.width - Theme.gap6
                text: root.title
                color: root.isDone ? Theme.textMuted : Theme.text
                font.strikeout: root.isDone
                wrapMode: Text.Wrap
                maximumLineCount: 3
                elide: Text.ElideRight
                lineHeight: 1.1
                Accessible.ignored: true
            }

            Flow {
                width: parent.width
                spacing: Theme.gap2

                Row {
                    visible: root.priorityName().length > 0
                    spacing: Theme.gap1 + 2

                    Rectangle {
                        anchors.verticalCenter: parent.verticalCenter
                        width: 6
                        height: 6
                        radius: 3
                        color: root.priorityColor()
                    }

                    ThemedText {
                        text: root.priorityName()
                        color: root.priorityColor()
                        font.pixelSize: Theme.caption
                        Accessible.ignored: true
                    }
                }

                CardFact {
                    symbol: root.isOverdue ? "calendar.badge.exclamationmark" : "clock.fill"
                    text: root.dueText
                    color: root.isOverdue ? Theme.dangerText : Theme.textMuted
                }

                CardFact {
                    symbol: "calendar"
                    text: root.plannedText
                    color: root.isPlannedLate ? Theme.amber : Theme.textMuted
                }

                CardFact {
                    symbol: "checklist"
                    text: root.subtaskCount > 0 ? root.completedSubtaskCount + "/" + root.subtaskCount : ""
                    color: root.completedSubtaskCount === root.subtaskCount ? Theme.legitimate : Theme.textMuted
                }

                CardFact {
                    symbol: "paperclip"
                    text: root.resourceCount > 0 ? String(root.resourceCount) : ""
                }
            }

            ThemedText {
                width: parent.width
                visible: root.showsPhase && root.phaseName.length > 0
                text: visible ? root.phaseName : ""
                color: Theme.textFaint
                font.pixelSize: Theme.caption
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }

        Deferred {
            x: parent.width - width - Theme.gap1
            y: Theme.gap1
            width: Theme.controlHeightSmall
            active: root.isReached

            IconButton {
                id: more

                objectName: "cardMenuButton"
                focusPolicy: Qt.NoFocus
                symbol: "ellipsis"
                text: qsTrId("card_more_button").arg(root.title)
                onClicked: {
                    const place = more.mapToItem(root, 0, more.height);
                    root.menuAsked(place.x, place.y);
                }
            }
        }

        FocusRing {
            shown: root.isCurrent
            distance: 0
            innerRadius: Theme.radius
        }
    }
}
