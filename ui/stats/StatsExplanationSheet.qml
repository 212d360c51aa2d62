pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// Where a figure comes from, over the page: the records behind it, down to a single session or interval. Enter goes
/// into a row, Escape a level back and at last out. Open as long as it is there.
Item {
    id: root

    required property StatsExplanation model
    readonly property StatsExplanation explanation: root.model
    readonly property int level: root.explanation?.level ?? StatsExplanation.Records

    function focusLevel(): void {
        if (!root.explanation.isPresented)
            return;
        switch (root.explanation.level) {
        case StatsExplanation.Records:
            records.focusStart();
            break;
        case StatsExplanation.Intervals:
            intervals.focusStart();
            break;
        case StatsExplanation.OneSession:
            session.focusStart();
            break;
        default:
            tasks.focusStart();
        }
    }

    Connections {
        target: root.explanation

        function onLevelChanged(): void {
            focusing.restart();
        }
    }

    Timer {
        id: focusing

        // What is to have the keyboard must be shown first.
        interval: 0
        onTriggered: root.focusLevel()
    }

    T.Popup {
        objectName: "explanationSheet"
        parent: T.Overlay.overlay
        anchors.centerIn: parent
        modal: true
        focus: true
        visible: true
        padding: Theme.gap6
        implicitWidth: 720
        implicitHeight: Math.min(parent ? parent.height - 2 * Theme.gap10 : 660, 660)
        closePolicy: T.Popup.NoAutoClose

        onOpened: root.focusLevel()

        T.Overlay.modal: Rectangle {
            color: Theme.shade
        }

        FocusScope {
            anchors.fill: parent
            focus: true

            Keys.onEscapePressed: root.explanation.back()
            Accessible.role: Accessible.Dialog
            Accessible.name: header.words

            ColumnLayout {
                anchors.fill: parent
                spacing: Theme.gap4

                StatsExplanationHeader {
                    id: header

                    Layout.fillWidth: true
                    explanation: root.explanation
                }

                StatsExplanationList {
                    id: records

                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    visible: root.level === StatsExplanation.Records
                    explanation: root.explanation
                }

                StatsExplanationIntervals {
                    id: intervals

                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    visible: root.level === StatsExplanation.Intervals
                    intervals: root.explanation?.intervals ?? null
                }

                SessionDetailPane {
                    id: session

                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    visible: root.level === StatsExplanation.OneSession
                    session: root.explanation?.session ?? null
                    onTaskAsked: root.explanation.chooseTask()
                    onDeletionAsked: root.explanation.deleteSession()
                }

                SessionDetailTasks {
                    id: tasks

                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    visible: root.level === StatsExplanation.TaskChoice
                    tasks: root.explanation?.session?.tasks ?? null
                    onChosen: row => root.explanation.setTask(row)
                }

                StatsExplanationSum {
                    Layout.fillWidth: true
                    visible: root.level === StatsExplanation.Records || root.level === StatsExplanation.Intervals
                    explanation: root.explanation
                }
            }
        }

        background: Rectangle {
            radius: Theme.radiusLarge
            color: Theme.surface
            border.width: 1
            border.color: Theme.outline
        }
    }
}
