pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// What fills the main window: the way between the pages, and the page.
FocusScope {
    id: root

    required property DeepWorkScreen deepWork
    required property PlanningScreens planning
    required property StatsScreen stats
    required property TickSoundSettings tickSounds
    required property BlockListsScreen blockLists
    required property TrackingHealthModel health
    required property AICoachService coach
    required property PreferencesScreen preferences
    required property WindowActions actions
    required property CommandPalette palette
    /// Empty while the store is well.
    required property string storeProblem
    required property int page
    /// Whether anybody can see the window.
    required property bool live
    /// Whether what the first picture does without is wanted.
    required property bool furnished

    signal pageChosen(int number)

    function focusStart(): void {
        deepWorkView.focusStart();
    }

    Keys.onEscapePressed: event => {
        event.accepted = root.page === Main.PageNumber.DeepWork && root.coach !== null && root.coach.isVisible;
        if (event.accepted)
            root.coach.dismissMessage();
    }
    Component.onCompleted: root.focusStart()

    Loader {
        id: backdrop

        anchors.fill: parent
    }

    RowLayout {
        anchors.fill: parent
        spacing: 0

        Sidebar {
            Layout.preferredWidth: 228
            Layout.fillHeight: true
            page: root.page
            problemCount: root.health.problemCount
            lateCount: root.planning.agenda.overdueCount
            todayCount: root.planning.agenda.todayCount
            queueCount: root.deepWork.queue.taskCount
            projectCount: root.planning.projects.projectCount
            actions: root.actions
            palette: root.palette
            furnished: root.furnished
            onPageChosen: number => root.pageChosen(number)
        }

        ColumnLayout {
            spacing: 0

            Banner {
                objectName: "storeBanner"
                Layout.fillWidth: true
                Layout.margins: Theme.gap4
                Layout.bottomMargin: 0
                visible: root.storeProblem.length > 0
                text: qsTrId("store_problem_banner").arg(root.storeProblem)
            }

            LatePart {
                Layout.fillWidth: true
                Layout.margins: Theme.gap4
                Layout.bottomMargin: 0
                wanted: root.furnished && root.preferences.data !== null && root.preferences.data.startNotice.length > 0
                file: Qt.resolvedUrl("../settings/StartNotice.qml")
                values: () => ({
                        settings: root.preferences.data
                    })
            }

            LatePart {
                Layout.fillWidth: true
                Layout.margins: Theme.gap4
                Layout.bottomMargin: 0
                wanted: root.furnished && root.preferences.outside !== null && root.preferences.outside.updater.isNoticeShown
                file: Qt.resolvedUrl("../services/UpdateNotice.qml")
                values: () => ({
                        model: root.preferences.outside.updater
                    })
            }

            StackLayout {
                currentIndex: root.page

                DeepWorkView {
                    id: deepWorkView

                    focus: true
                    screen: root.deepWork
                    coach: root.coach
                    tickSounds: root.tickSounds
                    ambientSounds: root.preferences.ambientSounds
                    immersion: root.preferences.immersion
                    live: root.live && root.page === Main.PageNumber.DeepWork
                    furnished: root.furnished
                }

                LazyPage {
                    wanted: root.page === Main.PageNumber.Agenda
                    file: "../agenda/AgendaPage.qml"
                    model: root.planning.agenda
                }

                LazyPage {
                    wanted: root.page === Main.PageNumber.Projects
                    file: "../projects/ProjectsPage.qml"
                    model: root.planning
                }

                LazyPage {
                    wanted: root.page === Main.PageNumber.Statistics
                    file: "../stats/StatsPage.qml"
                    model: root.stats
                }

                LazyPage {
                    wanted: root.page === Main.PageNumber.BlockLists
                    file: "../blocklists/BlockListsView.qml"
                    model: root.blockLists
                }

                LazyPage {
                    wanted: root.page === Main.PageNumber.Health
                    file: "../health/HealthView.qml"
                    model: root.health
                }

                LazyPage {
                    wanted: root.page === Main.PageNumber.Preferences
                    file: "../settings/PreferencesPage.qml"
                    model: root.preferences
                }
            }
        }
    }

    // Over the pages; loaded with the first session that is immersed.
    Loader {
        id: immersion

        readonly property bool wanted: root.preferences.immersion !== null && root.preferences.immersion.effectiveDepth > 0

        anchors.fill: parent
        onWantedChanged: {
            if (immersion.item)
                return;
            backdrop.setSource("../immersion/ImmersionBackdrop.qml", {
                service: root.preferences.immersion
            });
            immersion.setSource("../immersion/ImmersionOverlayView.qml", {
                service: root.preferences.immersion
            });
        }
    }
}
