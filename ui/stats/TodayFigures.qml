pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The headline figures of today.
RowLayout {
    id: root

    required property TodayStatsView model

    /// The records behind a figure are asked for.
    signal explained(string what)

    Layout.fillWidth: true
    spacing: Theme.gap3

    KPIHeroCard {
        objectName: "kpiSessions"
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        Layout.fillHeight: true
        symbol: "timer"
        title: qsTrId("kpi_sessions")
        value: root.model.sessionsText
        subtitle: qsTrId("kpi_completed")
        color: Theme.accentText
        onExplained: root.explained("sessions")
    }

    KPIHeroCard {
        objectName: "kpiFocus"
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        Layout.fillHeight: true
        symbol: "hourglass"
        title: qsTrId("kpi_focus")
        value: root.model.focusText
        subtitle: qsTrId("kpi_total_time")
        color: Theme.legitimate
        onExplained: root.explained("focus")
    }

    KPIHeroCard {
        objectName: "kpiScore"
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        Layout.fillHeight: true
        symbol: "star.fill"
        title: qsTrId("kpi_score")
        value: root.model.scoreText
        subtitle: qsTrId("kpi_average")
        color: Theme.amber
        onExplained: root.explained("score")
    }

    KPIHeroCard {
        objectName: "kpiStreak"
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        Layout.fillHeight: true
        symbol: "flame.fill"
        title: qsTrId("kpi_streak")
        value: root.model.streakText
        subtitle: qsTrId("kpi_consecutive")
        color: Theme.flame
        onExplained: root.explained("streak")
    }

    KPIHeroCard {
        objectName: "kpiApps"
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        Layout.fillHeight: true
        symbol: "app.badge.fill"
        title: qsTrId("kpi_apps")
        value: root.model.appsText
        subtitle: qsTrId("kpi_used")
        color: Theme.azure
        onExplained: root.explained("apps")
    }
}
