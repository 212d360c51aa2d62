pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// Start, pause, resume on one button that stays where it is, so that it keeps the keyboard; and stop.
RowLayout {
    id: root

    required property DeepWorkScreen screen
    required property bool ticksAreOn
    /// Null for none.
    required property AmbientSoundService ambientSounds
    readonly property string timerState: root.screen.state

    signal tickSoundsWanted
    signal ambienceWanted

    function toggle(): void {
        if (root.screen.state === "running")
            root.screen.pause();
        else if (root.screen.state === "paused")
            root.screen.resume();
        else
            root.screen.start();
    }

    function focusPrimary(): void {
        primary.forceActiveFocus(Qt.TabFocusReason);
    }

    spacing: Theme.gap3

    // Keeps the other buttons in the middle.
    Item {
        implicitWidth: root.ambientSounds ? 2 * Theme.controlHeightLarge + root.spacing : Theme.controlHeightLarge
    }

    PushButton {
        id: primary

        objectName: "primaryButton"
        kind: PushButton.Kind.Primary
        symbol: root.timerState === "running" ? "pause" : "play"
        text: root.timerState === "running" ? qsTrId("pause_button") : root.timerState === "paused" ? qsTrId("resume_button") : qsTrId("start_button")
        onClicked: root.toggle()
    }

    PushButton {
        objectName: "stopButton"
        implicitHeight: Theme.controlHeightLarge
        visible: root.timerState === "running" || root.timerState === "paused"
        symbol: "stop"
        text: qsTrId("stop_button")
        onClicked: root.screen.stop()
    }

    IconButton {
        objectName: "tickSoundsButton"
        implicitWidth: Theme.controlHeightLarge
        implicitHeight: Theme.controlHeightLarge
        symbol: root.ticksAreOn ? "metronome" : "metronome.slash"
        symbolColor: hovered || visualFocus ? Theme.text : Theme.textMuted
        symbolSize: 24
        text: root.ticksAreOn ? qsTrId("tick_sounds_button_on") : qsTrId("tick_sounds_button_off")
        onClicked: root.tickSoundsWanted()
    }

    IconButton {
        objectName: "ambienceButton"
        implicitWidth: Theme.controlHeightLarge
        implicitHeight: Theme.controlHeightLarge
        visible: root.ambientSounds !== null
        symbol: "headphones"
        symbolColor: hovered || visualFocus ? Theme.text : root.ambientSounds?.isPlaying ? Theme.accentText : Theme.textMuted
        symbolSize: 24
        text: Localization.language.length > 0 ? qsTrId("ambience_button").arg(root.ambientSounds?.soundName(root.ambientSounds.selectedSound) ?? "") : ""
        onClicked: root.ambienceWanted()
    }
}
