pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import NorvinFocus.Ui

/// The Deep Work screen. Space starts, pauses and resumes wherever no field or button has the keyboard.
FocusScope {
    id: root

    required property DeepWorkScreen screen
    required property AICoachService coach
    required property TickSoundSettings tickSounds
    /// Each may be null: then there is no button for them.
    required property AmbientSoundService ambientSounds
    required property ImmersionService immersion
    /// Whether anybody can see the screen.
    required property bool live
    /// Whether the tasks are wanted already: they are left out of the first picture, which is there sooner so.
    required property bool furnished
    readonly property KeyboardScope tasks: tasksLoader.item as KeyboardScope
    readonly property bool isIdle: root.screen.state === "idle"
    readonly property bool isCompleted: root.screen.state === "completed"

    /// Puts the keyboard where the next step most likely is.
    function focusStart(): void {
        if (root.isIdle && root.tasks?.wantsKeyboard)
            root.tasks.keyboardGiven();
        else
            details.focusStart();
    }

    /// The button that had the keyboard may just have gone.
    function keepKeyboard(): void {
        const holder = root.Window.activeFocusItem;
        if (root.visible && (!holder || !holder.visible || holder === nowhere || holder === root))
            root.focusStart();
    }

    function openTickSounds(): void {
        if (sheets.begin())
            sheets.setSource("../sound/TickSoundSettingsSheet.qml", {
                settings: root.tickSounds,
                host: sheets
            });
    }

    function openAmbience(): void {
        if (root.ambientSounds && sheets.begin())
            sheets.setSource("../sound/AmbienceSheet.qml", {
                sounds: root.ambientSounds,
                immersion: root.immersion,
                host: sheets
            });
    }

    function phaseName(): string {
        if (root.isIdle)
            return qsTrId("phase_idle");
        if (root.screen.phase === "work")
            return qsTrId("phase_work");
        return root.screen.phase === "break_time" ? qsTrId("phase_break") : qsTrId("phase_rearming");
    }

    onFurnishedChanged: tasksLoader.setSource("TaskPanel.qml", {
        screen: root.screen
    })

    Shortcut {
        sequences: ["Ctrl+T"]
        enabled: root.visible
        onActivated: root.openTickSounds()
    }

    Shortcut {
        sequences: ["Ctrl+M"]
        enabled: root.visible
        onActivated: root.openAmbience()
    }

    Keys.onSpacePressed: {
        if (!root.isCompleted)
            details.toggle();
    }

    LiveSession {
        id: session

        source: root.screen
        live: root.live
    }

    // A press beside everything takes the keyboard out of the text fields.
    Item {
        id: nowhere

        focus: true
    }

    TapHandler {
        onTapped: nowhere.forceActiveFocus(Qt.MouseFocusReason)
    }

    // By then the panels have made room for each other.
    Timer {
        id: afterwards

        interval: 0
        onTriggered: root.keepKeyboard()
    }

    Connections {
        target: root.screen

        function onStateChanged(): void {
            afterwards.start();
        }
    }

    SheetLoader {
        id: sheets
    }

    RowLayout {
        anchors.fill: parent
        spacing: 0

        Flickable {
            id: page

            readonly property int margin: Theme.gap8
            readonly property int room: page.height - 2 * page.margin - heading.implicitHeight - details.implicitHeight - 2 * column.spacing
            // Before the window has a height, the size that it will most likely get: a font of another one would be
            // loaded for nothing.
            readonly property int ringSize: page.height > 0 ? Math.round(Math.min(Math.max(360, page.height * 0.38), Math.max(150, page.room))) : 360

            Layout.fillWidth: true
            Layout.fillHeight: true
            contentWidth: width
            contentHeight: Math.max(height, column.implicitHeight + 2 * page.margin)
            boundsBehavior: Flickable.StopAtBounds
            interactive: contentHeight > height
            clip: true

            T.ScrollBar.vertical: ScrollBarThin {}

            ColumnLayout {
                id: column

                anchors.centerIn: parent
                width: Math.min(parent.width - 2 * page.margin, 620)
                spacing: Theme.gap5

                ThemedText {
                    id: heading

                    Layout.alignment: Qt.AlignHCenter
                    visible: !root.isCompleted
                    text: root.phaseName()
                    font.pixelSize: Theme.headline
                    font.weight: Font.DemiBold
                    Accessible.role: Accessible.Heading
                }

                CountdownRing {
                    objectName: "countdown"
                    Layout.alignment: Qt.AlignHCenter
                    Layout.preferredWidth: page.ringSize
                    Layout.preferredHeight: page.ringSize
                    visible: !root.isCompleted
                    timeText: session.timeText
                    minutes: session.minutes
                    progress: session.progress
                    color: root.screen.state === "paused" ? Theme.amber : root.isIdle ? Theme.accentBright : Theme.phaseColor(root.screen.phase)
                    symbol: root.screen.phaseSymbol
                    caption: root.isIdle ? qsTrId("ring_idle") : root.screen.state === "paused" ? qsTrId("ring_paused") : qsTrId("ring_running")
                }

                PhaseDetails {
                    id: details

                    Layout.fillWidth: true
                    screen: root.screen
                    session: session
                    ambientSounds: root.ambientSounds
                    ticksAreOn: root.tickSounds.isEnabled
                    onTickSoundsWanted: root.openTickSounds()
                    onAmbienceWanted: root.openAmbience()
                }
            }
        }

        Rectangle {
            Layout.preferredWidth: 344
            Layout.fillHeight: true
            color: Theme.sidebar

            Loader {
                id: tasksLoader

                anchors.fill: parent
                onLoaded: root.focusStart()
            }
        }
    }

    // Why nothing can be started; made where there is such a reason.
    Deferred {
        active: root.screen.closedGateKey.length > 0 && root.isIdle
        x: page.margin
        y: Theme.gap4
        width: page.width - 2 * page.margin

        Banner {
            objectName: "closedGate"
            width: parent.width
            height: implicitHeight
            text: root.screen.closedGateKey.length > 0 ? qsTrId(root.screen.closedGateKey) : ""
            actionText: qsTrId("licence_enter_button")
            onActionChosen: root.screen.gateHelpWanted()
        }
    }

    // The coach speaks over the page, which stays as it is. Loaded when there is a first message.
    Loader {
        id: coachLoader

        readonly property bool wanted: root.coach !== null && root.coach.isVisible

        objectName: "coachPlace"
        x: Math.round((page.width - width) / 2)
        // Instead of the heading, where there is one, rather than over half of it.
        y: heading.visible ? Math.max(Theme.gap2, Math.round(column.y + heading.y + (heading.height - height) / 2 - page.contentY)) : Theme.gap4
        width: column.width
        onWantedChanged: {
            if (!coachLoader.item)
                coachLoader.setSource("../coach/CoachOverlayView.qml", {
                    coach: root.coach
                });
        }
    }
}
