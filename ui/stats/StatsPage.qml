pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The statistics: today, and the past.
Page {
    id: root

    required property StatsScreen model
    readonly property bool isSeen: root.visible && root.Window.visibility !== Window.Hidden && root.Window.visibility !== Window.Minimized
    readonly property bool showsHistory: root.model.tab === "history"

    function follow(): void {
        if (root.isSeen)
            root.model.open();
        else
            root.model.close();
    }

    // Each of the two is made when it is first shown, and then stays.
    function make(): void {
        if (root.showsHistory)
            history.active = true;
        else
            today.active = true;
    }

    heading: qsTrId("stats_title")
    introduction: qsTrId("stats_introduction")
    maximumWidth: 1080

    onEntered: tabs.forceActiveFocus(Qt.TabFocusReason)
    onIsSeenChanged: root.follow()
    onShowsHistoryChanged: root.make()
    Component.onCompleted: {
        root.make();
        root.follow();
    }

    headingContent: [
        SegmentedChoice {
            id: tabs

            objectName: "statsTabs"
            name: qsTrId("stats_tabs_label")
            values: ["today", "history"]
            labels: [qsTrId("tab_today"), qsTrId("tab_history")]
            value: root.model.tab
            onChosen: value => root.model.tab = value
        },
        StatsExportMenu {
            model: root.model.files
        }
    ]

    StatsExportNotice {
        Layout.fillWidth: true
        model: root.model.files
        onKeyboardLeft: tabs.forceActiveFocus(Qt.TabFocusReason)
    }

    WaitingLine {
        Layout.fillWidth: true
        Layout.topMargin: -Theme.gap2
        Layout.bottomMargin: -Theme.gap2
        isShown: root.model.isWaiting
    }

    Banner {
        objectName: "statsProblem"
        Layout.fillWidth: true
        visible: root.model.problem.length > 0
        text: qsTrId("stats_problem").arg(root.model.problem)
    }

    Item {
        Layout.fillWidth: true
        Layout.fillHeight: true

        Deferred {
            id: today

            anchors.fill: parent
            anchors.leftMargin: -Theme.gap1
            anchors.topMargin: -Theme.gap1
            visible: !root.showsHistory && root.model.hasFigures

            TodayPage {
                height: today.height
                stats: root.model
            }
        }

        Deferred {
            id: history

            anchors.fill: parent
            anchors.leftMargin: -Theme.gap1
            anchors.topMargin: -Theme.gap1
            visible: root.showsHistory && root.model.hasFigures

            HistoryPage {
                height: history.height
                stats: root.model
            }
        }
    }
}
