pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The way between the pages, with what waits on them, and the menu.
Rectangle {
    id: root

    required property int page
    required property WindowActions actions
    required property CommandPalette palette
    required property int problemCount
    /// Tasks whose day is over.
    required property int lateCount
    /// Open tasks of today, tasks in the queue, and projects.
    required property int todayCount
    required property int queueCount
    required property int projectCount
    /// Whether what the first picture does without is wanted.
    required property bool furnished

    signal pageChosen(int number)

    color: Theme.sidebar
    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTrId("sidebar_label")

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: Theme.gap4
        anchors.topMargin: Theme.gap6
        spacing: Theme.gap1

        RowLayout {
            Layout.leftMargin: Theme.gap2
            // The symbol of the menu ends where the entries do.
            Layout.rightMargin: -Theme.gap2
            Layout.bottomMargin: Theme.gap4
            spacing: Theme.gap2

            Symbol {
                name: "brain"
                color: Theme.accentText
                size: 28
            }

            ThemedText {
                Layout.fillWidth: true
                text: "Norvin Focus"
                font.pixelSize: Theme.bodyLarge
                font.weight: Font.DemiBold
            }

            LatePart {
                Layout.preferredWidth: Theme.controlHeightSmall
                Layout.preferredHeight: Theme.controlHeightSmall
                wanted: root.furnished
                file: Qt.resolvedUrl("WindowMenu.qml")
                values: () => ({
                        actions: root.actions,
                        palette: root.palette
                    })
            }
        }

        SidebarEntry {
            symbol: "timer"
            text: qsTrId("sidebar_deep_work")
            keys: "Ctrl+1"
            amount: root.furnished ? root.queueCount : 0
            amountName: root.queueCount > 0 ? qsTrId("queued_tasks", root.queueCount) : ""
            isCurrent: root.page === Main.PageNumber.DeepWork
            onClicked: root.pageChosen(Main.PageNumber.DeepWork)
        }

        SidebarEntry {
            symbol: "calendar"
            text: qsTrId("sidebar_agenda")
            keys: "Ctrl+2"
            isCurrent: root.page === Main.PageNumber.Agenda
            badge: root.furnished ? root.lateCount : 0
            badgeName: root.lateCount > 0 ? qsTrId("late_tasks", root.lateCount) : ""
            amount: root.furnished ? root.todayCount : 0
            amountName: root.todayCount > 0 ? qsTrId("tasks_today", root.todayCount) : ""
            onClicked: root.pageChosen(Main.PageNumber.Agenda)
        }

        SidebarEntry {
            symbol: "folder"
            text: qsTrId("sidebar_projects")
            keys: "Ctrl+3"
            amount: root.furnished ? root.projectCount : 0
            amountName: root.projectCount > 0 ? qsTrId("project_count", root.projectCount) : ""
            isCurrent: root.page === Main.PageNumber.Projects
            onClicked: root.pageChosen(Main.PageNumber.Projects)
        }

        SidebarEntry {
            symbol: "chart.bar"
            text: qsTrId("sidebar_statistics")
            keys: "Ctrl+4"
            isCurrent: root.page === Main.PageNumber.Statistics
            onClicked: root.pageChosen(Main.PageNumber.Statistics)
        }

        SidebarEntry {
            symbol: "hand.raised"
            text: qsTrId("sidebar_block_lists")
            keys: "Ctrl+5"
            isCurrent: root.page === Main.PageNumber.BlockLists
            onClicked: root.pageChosen(Main.PageNumber.BlockLists)
        }

        SidebarEntry {
            symbol: "waveform.path.ecg"
            text: qsTrId("sidebar_health")
            keys: "Ctrl+6"
            isCurrent: root.page === Main.PageNumber.Health
            badge: root.furnished ? root.problemCount : 0
            badgeName: root.problemCount > 0 ? qsTrId("health_problems", root.problemCount) : ""
            onClicked: root.pageChosen(Main.PageNumber.Health)
        }

        Item {
            Layout.fillHeight: true
        }

        SidebarEntry {
            symbol: "gearshape"
            text: qsTrId("preferences_title")
            keys: "Ctrl+7"
            isCurrent: root.page === Main.PageNumber.Preferences
            onClicked: root.pageChosen(Main.PageNumber.Preferences)
        }
    }
}
