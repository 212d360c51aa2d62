pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What the phase that just ended came to, and what could be next. Nothing starts by itself.
ColumnLayout {
    id: root

    required property DeepWorkScreen screen
    required property LiveSession session
    readonly property bool wasWork: root.screen.phase === "work"
    readonly property TextFormats formats: Localization.formats

    function headline(): string {
        if (root.wasWork)
            return qsTrId("completed_work_title");
        return root.screen.phase === "break_time" ? qsTrId("completed_break_title") : qsTrId("completed_rearming_title");
    }

    spacing: Theme.gap6

    onActiveFocusChanged: {
        if (root.activeFocus)
            primary.forceActiveFocus(Qt.TabFocusReason);
    }

    ColumnLayout {
        Layout.fillWidth: true
        spacing: Theme.gap3

        Symbol {
            Layout.alignment: Qt.AlignHCenter
            name: "checkmark.circle.fill"
            color: Theme.phaseColor(root.screen.phase)
            size: 72
        }

        ThemedText {
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            text: root.headline()
            font.pixelSize: Theme.headline
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }

        ThemedText {
            Layout.alignment: Qt.AlignHCenter
            Layout.maximumWidth: root.width
            text: root.wasWork && !root.screen.completedRecorded ? qsTrId("completed_not_recorded") : qsTrId("completed_minutes", root.screen.completedMinutes)
            color: Theme.textMuted
            font.pixelSize: Theme.bodyLarge
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
        }
    }

    GridLayout {
        Layout.fillWidth: true
        visible: root.wasWork && root.screen.completedRecorded
        columns: 3
        rowSpacing: Theme.gap3
        columnSpacing: Theme.gap3

        SummaryTile {
            label: qsTrId("score_label")
            value: root.session.scoreHasEnoughData ? root.formats.decimal(root.session.score) : "–"
            valueColor: Theme.accentText
        }

        SummaryTile {
            label: qsTrId("activity_legitimate")
            value: root.formats.duration(root.session.legitimateSeconds)
            valueColor: Theme.legitimate
        }

        SummaryTile {
            label: qsTrId("activity_distracted")
            value: root.formats.duration(root.session.distractedSeconds)
            valueColor: Theme.distracted
        }

        SummaryTile {
            label: qsTrId("summary_interruptions")
            value: String(root.session.interruptionCount)
        }

        SummaryTile {
            label: qsTrId("summary_attempts")
            value: String(root.session.blockedAttemptsCount + root.session.blockedSiteAttemptsCount)
        }

        SummaryTile {
            label: qsTrId("summary_tasks")
            value: String(root.session.completedTasksCount)
        }
    }

    ThemedText {
        Layout.alignment: Qt.AlignHCenter
        text: qsTrId("next_step_label")
        color: Theme.textMuted
    }

    ColumnLayout {
        Layout.alignment: Qt.AlignHCenter
        Layout.topMargin: -Theme.gap3
        spacing: Theme.gap4

        PushButton {
            id: primary

            objectName: "completedPrimary"
            Layout.alignment: Qt.AlignHCenter
            kind: PushButton.Kind.Primary
            symbol: root.wasWork ? "cup.and.saucer.fill" : "play"
            text: root.wasWork ? qsTrId("break_button") : qsTrId("another_work_button")
            onClicked: root.wasWork ? root.screen.startBreak() : root.screen.start()
        }

        RowLayout {
            Layout.alignment: Qt.AlignHCenter
            spacing: Theme.gap3

            PushButton {
                symbol: "arrow.clockwise"
                text: qsTrId("rearming_button")
                visible: root.screen.phase !== "rearming"
                onClicked: root.screen.startRearming()
            }

            PushButton {
                symbol: root.wasWork ? "play" : "cup.and.saucer.fill"
                text: root.wasWork ? qsTrId("another_work_button") : qsTrId("break_button")
                visible: root.screen.phase !== "break_time"
                onClicked: root.wasWork ? root.screen.start() : root.screen.startBreak()
            }

            PushButton {
                objectName: "doneButton"
                kind: PushButton.Kind.Quiet
                symbol: "checkmark"
                text: qsTrId("done_button")
                onClicked: root.screen.stop()
            }
        }
    }
}
