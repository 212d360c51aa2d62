pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// A late task or subtask, with what can be done about it.
Item {
    id: root

    required property int index
    required property string title
    required property string parentTitle
    required property string projectName
    required property string projectColor
    required property string dueText
    required property string plannedText
    required property bool isOverdue
    required property bool isPlannedForToday
    readonly property bool isCurrent: root.ListView.isCurrentItem && root.ListView.view.activeFocus
    readonly property bool isReached: hover.hovered || root.isCurrent

    signal opened
    signal plannedForToday
    signal dayAsked

    function withFact(text: string, fact: string): string {
        return fact.length > 0 ? text + ", " + fact : text;
    }

    function spokenText(): string {
        const parent = root.parentTitle.length > 0 ? qsTrId("subtask_of").arg(root.parentTitle) : "";
        const due = root.dueText.length > 0 ? qsTrId("chip_due").arg(root.dueText) : "";
        const planned = root.plannedText.length > 0 ? qsTrId("chip_planned").arg(root.plannedText) : "";
        return root.withFact(root.withFact(root.withFact(root.withFact(root.title, parent), root.projectName), due), planned);
    }

    implicitHeight: words.implicitHeight + 2 * Theme.gap2
    Accessible.role: Accessible.ListItem
    Accessible.name: root.spokenText()

    Rectangle {
        anchors.fill: parent
        radius: Theme.radiusSmall
        color: root.isReached ? Theme.surfaceRaised : "transparent"

        HoverHandler {
            id: hover
        }

        TapHandler {
            onTapped: root.opened()
        }

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: Theme.gap3
            anchors.rightMargin: Theme.gap2
            spacing: Theme.gap1

            ColumnLayout {
                id: words

                Layout.fillWidth: true
                spacing: 2

                ThemedText {
                    Layout.fillWidth: true
                    text: root.title
                    wrapMode: Text.Wrap
                    maximumLineCount: 2
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }

                ThemedText {
                    Layout.fillWidth: true
                    visible: root.parentTitle.length > 0
                    text: qsTrId("subtask_of").arg(root.parentTitle)
                    color: Theme.textMuted
                    font.pixelSize: Theme.caption
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }

                RowLayout {
                    spacing: Theme.gap4

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
                        symbol: "folder"
                        text: root.projectName
                        symbolColor: root.projectColor.length > 0 ? root.projectColor : Theme.textFaint
                    }

                    Item {
                        Layout.fillWidth: true
                    }
                }
            }

            PushButton {
                objectName: "planForToday"
                implicitHeight: Theme.controlHeightSmall
                leftPadding: Theme.gap3
                visible: !root.isPlannedForToday
                kind: PushButton.Kind.Quiet
                font.weight: Font.Normal
                text: qsTrId("plan_for_today")
                onClicked: root.plannedForToday()
            }

            IconButton {
                objectName: "planForDay"
                symbol: "calendar"
                text: qsTrId("plan_for_day")
                onClicked: root.dayAsked()
            }
        }

        FocusRing {
            shown: root.isCurrent
            distance: -1
        }
    }
}
