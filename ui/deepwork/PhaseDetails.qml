pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What stands below the countdown, or in its place when a phase is over: the task, the controls, and what belongs to
/// the phase.
ColumnLayout {
    id: root

    required property DeepWorkScreen screen
    required property LiveSession session
    /// Null for none.
    required property AmbientSoundService ambientSounds
    required property bool ticksAreOn
    readonly property bool isIdle: root.screen.state === "idle"
    readonly property bool isCompleted: root.screen.state === "completed"
    readonly property bool measures: !root.isIdle && !root.isCompleted && root.screen.phase === "work"

    signal tickSoundsWanted
    signal ambienceWanted

    /// Puts the keyboard where the next step most likely is.
    function focusStart(): void {
        if (completed.item)
            (completed.item as Item).forceActiveFocus(Qt.TabFocusReason);
        else
            controls.focusPrimary();
    }

    /// Starts, pauses or resumes.
    function toggle(): void {
        controls.toggle();
    }

    function taskLine(): string {
        if (root.screen.activeTaskTitle.length === 0)
            return root.isIdle ? qsTrId("active_task_none_idle") : "";
        return root.isIdle ? qsTrId("active_task_next").arg(root.screen.activeTaskTitle) : root.screen.activeTaskTitle;
    }

    spacing: Theme.gap5

    ThemedText {
        objectName: "activeTaskLine"
        Layout.fillWidth: true
        visible: !root.isCompleted && text.length > 0
        text: root.taskLine()
        color: root.isIdle ? Theme.textMuted : Theme.text
        font.pixelSize: Theme.bodyLarge
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        maximumLineCount: 2
        elide: Text.ElideRight
    }

    DurationChoice {
        Layout.alignment: Qt.AlignHCenter
        visible: root.isIdle
        screen: root.screen
    }

    SessionControls {
        id: controls

        Layout.alignment: Qt.AlignHCenter
        visible: !root.isCompleted
        screen: root.screen
        ticksAreOn: root.ticksAreOn
        onTickSoundsWanted: root.tickSoundsWanted()
        ambientSounds: root.ambientSounds
        onAmbienceWanted: root.ambienceWanted()
    }

    ThemedText {
        Layout.alignment: Qt.AlignHCenter
        visible: root.isIdle
        text: qsTrId("space_hint")
        color: Theme.textFaint
        font.pixelSize: Theme.caption
    }

    LatePart {
        Layout.fillWidth: true
        wanted: root.measures
        file: Qt.resolvedUrl("SessionPanel.qml")
        values: () => ({
                screen: root.screen,
                session: root.session
            })
    }

    ThemedText {
        Layout.alignment: Qt.AlignHCenter
        Layout.maximumWidth: 420
        visible: !root.isIdle && !root.isCompleted && root.screen.phase !== "work"
        text: root.screen.phase === "break_time" ? qsTrId("break_subtitle") : qsTrId("rearming_subtitle")
        color: Theme.textMuted
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
    }

    LatePart {
        id: completed

        Layout.fillWidth: true
        wanted: root.isCompleted
        file: Qt.resolvedUrl("CompletedPanel.qml")
        values: () => ({
                screen: root.screen,
                session: root.session
            })
    }

    // Keeps what is centred in the middle while nothing else is as wide as the page.
    Item {
        Layout.fillWidth: true
        Layout.topMargin: -Theme.gap5
    }
}
