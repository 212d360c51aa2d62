pragma ComponentBehavior: Bound

import QtQuick
import NorvinFocus.Ui

/// The main window.
Window {
    id: root

    /// The pages, in the order of the sidebar.
    enum PageNumber {
        DeepWork,
        Agenda,
        Projects,
        Statistics,
        BlockLists,
        Health,
        Preferences
    }

    required property DeepWorkScreen deepWork
    required property PlanningScreens planning
    required property StatsScreen stats
    required property TickSoundSettings tickSounds
    required property BlockListsScreen blockLists
    required property TrackingHealthModel health
    required property PreferencesScreen preferences
    required property WelcomeScreen welcome
    required property WindowActions actions
    required property CommandPalette palette
    property AICoachService coach: null
    property string storeProblem: ""
    /// What is there: 0 the bare window, 1 what the first picture shows, 2 everything.
    property int stage: 0
    readonly property Shell shell: content.item as Shell
    property int page: Main.PageNumber.DeepWork
    readonly property bool live: root.visible && root.visibility !== Window.Minimized && root.visibility !== Window.Hidden
    readonly property bool isPhaseUnderWay: root.deepWork.state === "running" || root.deepWork.state === "paused"

    signal quitConfirmed

    function showPage(number: int): void {
        root.page = number;
        if (number === Main.PageNumber.DeepWork)
            root.shell?.focusStart();
    }

    function askToQuit(): void {
        if (!root.isPhaseUnderWay) {
            root.quitConfirmed();
            return;
        }
        // Asked for in another window, perhaps, while this one is hidden.
        root.show();
        root.raise();
        root.requestActivate();
        root.stage = Math.max(root.stage, 1);
        quitQuestion.active = true;
    }

    width: 1200
    height: 820
    minimumWidth: 1200
    minimumHeight: 820
    title: "Norvin Focus"
    color: Theme.background

    Instantiator {
        active: root.stage > 1
        model: 7

        Shortcut {
            required property int index

            sequences: ["Ctrl+" + (index + 1)]
            onActivated: root.showPage(index)
        }
    }

    Shortcut {
        sequences: ["Ctrl+K"]
        enabled: root.stage > 1
        onActivated: root.palette.present()
    }

    Shortcut {
        sequences: ["Ctrl+Q"]
        context: Qt.ApplicationShortcut
        onActivated: root.askToQuit()
    }

    Connections {
        target: root.actions

        function onPageWanted(number: int): void {
            root.showPage(number);
        }
        function onQuitWanted(): void {
            root.askToQuit();
        }
    }

    Deferred {
        id: content

        active: root.stage > 0
        anchors.fill: parent

        Shell {
            height: content.height
            focus: true
            deepWork: root.deepWork
            planning: root.planning
            stats: root.stats
            tickSounds: root.tickSounds
            blockLists: root.blockLists
            health: root.health
            preferences: root.preferences
            coach: root.coach
            actions: root.actions
            palette: root.palette
            storeProblem: root.storeProblem
            page: root.page
            live: root.live
            furnished: root.stage > 1
            onPageChosen: number => root.showPage(number)
        }
    }

    LatePart {
        wanted: root.stage > 1
        file: Qt.resolvedUrl("Sheets.qml")
        values: () => ({
                planning: root.planning,
                stats: root.stats,
                palette: root.palette,
                outside: root.preferences.outside,
                welcome: root.welcome
            })
    }

    Deferred {
        id: quitQuestion

        QuestionDialog {
            visible: true
            title: qsTrId("quit_title")
            message: qsTrId("quit_message")
            acceptText: qsTrId("quit_button")
            rejectText: qsTrId("quit_cancel_button")
            onAccepted: root.quitConfirmed()
            onClosed: quitQuestion.active = false
        }
    }
}
