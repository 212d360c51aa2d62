pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The headline figures of a period.
RowLayout {
    id: root

    required property HistoryStatsView model

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
        title: qsTrId("history_sessions_title")
        value: root.model.sessionsText
        subtitle: qsTrId("history_completed_label")
        color: Theme.accentText
        onExplained: root.explained("sessions")
    }

    KPIHeroCard {
        objectName: "kpiFocus"
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        Layout.fillHeight: true
        symbol: "hourglass"
        title: qsTrId("history_total_focus_title")
        value: root.model.focusText
        subtitle: qsTrId("history_cumulated_label")
        color: Theme.legitimate
        onExplained: root.explained("focus")
    }

    KPIHeroCard {
        objectName: "kpiScore"
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        Layout.fillHeight: true
        symbol: "star.fill"
        title: qsTrId("history_focus_score_title")
        value: root.model.scoreText
        subtitle: qsTrId("history_average_label")
        color: Theme.amber
        onExplained: root.explained("score")
    }

    KPIHeroCard {
        objectName: "kpiBestDay"
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        Layout.fillHeight: true
        symbol: "trophy.fill"
        title: qsTrId("history_best_day_title")
        value: root.model.bestDayText
        subtitle: root.model.bestDayDate
        color: Theme.flame
        onExplained: root.explained("best_day")
    }
}
