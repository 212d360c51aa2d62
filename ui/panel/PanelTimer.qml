pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The timer and what can be done with it.
FocusScope {
    id: root

    required property DeepWorkScreen screen
    required property LiveSession session
    readonly property bool isRunning: root.screen.state === "running"
    readonly property bool isPaused: root.screen.state === "paused"
    readonly property bool isUnderWay: root.isRunning || root.isPaused
    readonly property bool isCompleted: root.screen.state === "completed"

    function phaseName(): string {
        if (root.screen.state === "idle")
            return qsTrId("phase_idle");
        switch (root.screen.phase) {
        case "work":
            return root.isCompleted ? qsTrId("completed_work_title") : qsTrId("phase_work");
        case "break_time":
            return root.isCompleted ? qsTrId("completed_break_title") : qsTrId("phase_break");
        default:
            return root.isCompleted ? qsTrId("completed_rearming_title") : qsTrId("phase_rearming");
        }
    }

    function caption(): string {
        if (root.isUnderWay)
            return root.isPaused ? qsTrId("ring_paused") : qsTrId("ring_running");
        return root.isCompleted ? "" : qsTrId("ring_idle");
    }

    function act(): void {
        if (root.isRunning)
            root.screen.pause();
        else if (root.isPaused)
            root.screen.resume();
        else
            root.screen.start();
    }

    implicitHeight: column.implicitHeight

    ColumnLayout {
        id: column

        anchors.left: parent.left
        anchors.right: parent.right
        spacing: Theme.gap3

        ThemedText {
            objectName: "panelPhase"
            Layout.fillWidth: true
            text: root.phaseName()
            font.pixelSize: Theme.title
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.Heading
        }

        CountdownRing {
            objectName: "panelCountdown"
            Layout.alignment: Qt.AlignHCenter
            Layout.preferredWidth: 184
            Layout.preferredHeight: 184
            timeText: root.session.timeText
            minutes: root.session.minutes
            progress: root.session.progress
            color: root.isPaused ? Theme.amber : root.screen.state === "idle" ? Theme.accentBright : Theme.phaseColor(root.screen.phase)
            symbol: root.screen.phaseSymbol
            caption: root.caption()
        }

        ThemedText {
            objectName: "panelTask"
            Layout.fillWidth: true
            visible: root.isUnderWay && text.length > 0
            text: root.screen.activeTaskTitle
            color: Theme.textMuted
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
        }

        RowLayout {
            Layout.alignment: Qt.AlignHCenter
            spacing: Theme.gap2

            PushButton {
                objectName: "panelPrimary"
                kind: PushButton.Kind.Primary
                symbol: root.isRunning ? "pause" : "play"
                text: root.isRunning ? qsTrId("pause_button") : root.isPaused ? qsTrId("resume_button") : qsTrId("start_button")
                focus: true
                onClicked: root.act()
            }

            PushButton {
                objectName: "panelStop"
                implicitHeight: Theme.controlHeightLarge
                visible: root.isUnderWay || root.isCompleted
                symbol: root.isCompleted ? "checkmark" : "stop"
                text: root.isCompleted ? qsTrId("done_button") : qsTrId("stop_button")
                onClicked: root.screen.stop()
            }
        }

        RowLayout {
            Layout.alignment: Qt.AlignHCenter
            visible: !root.isUnderWay
            spacing: Theme.gap2

            PushButton {
                objectName: "panelBreak"
                kind: PushButton.Kind.Quiet
                leftPadding: Theme.gap2
                symbol: "cup.and.saucer.fill"
                text: qsTrId("break_button")
                onClicked: root.screen.startBreak()
            }

            PushButton {
                objectName: "panelRearming"
                kind: PushButton.Kind.Quiet
                leftPadding: Theme.gap2
                symbol: "arrow.clockwise"
                text: qsTrId("rearming_button")
                onClicked: root.screen.startRearming()
            }
        }
    }
}
