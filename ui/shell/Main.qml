pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Window
import NorvinFocus.Ui

/// The main window.
Window {
    id: root

    required property DeepWorkScreen deepWork
    required property ApplicationListModel applications
    required property TrackingHealthModel health
    property string storeProblem: ""
    property int page: 0
    readonly property bool live: root.visible && root.visibility !== Window.Minimized && root.visibility !== Window.Hidden
    readonly property bool isPhaseUnderWay: root.deepWork.state === "running" || root.deepWork.state === "paused"

    signal quitConfirmed

    function showPage(number: int): void {
        root.page = number;
        if (number === 0)
            deepWorkView.focusStart();
    }

    function askToQuit(): void {
        if (root.isPhaseUnderWay)
            quitQuestion.active = true;
        else
            root.quitConfirmed();
    }

    width: 1200
    height: 820
    minimumWidth: 1200
    minimumHeight: 820
    title: "Norvin Focus"
    color: Theme.background

    Component.onCompleted: deepWorkView.focusStart()

    Shortcut {
        sequences: ["Ctrl+1"]
        onActivated: root.showPage(0)
    }

    Shortcut {
        sequences: ["Ctrl+2"]
        onActivated: root.showPage(1)
    }

    Shortcut {
        sequences: ["Ctrl+3"]
        onActivated: root.showPage(2)
    }

    Shortcut {
        sequences: ["Ctrl+Q"]
        context: Qt.ApplicationShortcut
        onActivated: root.askToQuit()
    }

    RowLayout {
        anchors.fill: parent
        spacing: 0

        Sidebar {
            Layout.preferredWidth: 228
            Layout.fillHeight: true
            page: root.page
            problemCount: root.health.problemCount
            onPageChosen: number => root.showPage(number)
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

            StackLayout {
                currentIndex: root.page

                DeepWorkView {
                    id: deepWorkView

                    focus: true
                    screen: root.deepWork
                    live: root.live && root.page === 0
                }

                LazyPage {
                    wanted: root.page === 1
                    file: "../blocklists/BlockListsView.qml"
                    model: root.applications
                }

                LazyPage {
                    wanted: root.page === 2
                    file: "../health/HealthView.qml"
                    model: root.health
                }
            }
        }
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
