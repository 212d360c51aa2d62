pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The statistics of a period of the past.
StatsScroll {
    id: root

    required property StatsScreen stats
    readonly property HistoryStatsView model: root.stats.history

    column.objectName: "historyContent"

    RowLayout {
        Layout.fillWidth: true
        spacing: Theme.gap4

        SegmentedChoice {
            objectName: "periodChoice"
            name: qsTrId("stats_period_label")
            values: root.model.periods
            labels: root.model.periodNames
            value: root.model.period
            onChosen: value => root.model.period = value
        }

        ThemedText {
            objectName: "periodText"
            Layout.fillWidth: true
            text: root.model.periodText
            color: Theme.textMuted
            wrapMode: Text.WordWrap
        }
    }

    HistoryFigures {
        model: root.model
        onExplained: what => root.stats.explain(what, "")
    }

    StatsSection {
        icon: "water.waves.and.arrow.up"
        title: qsTrId("history_focus_evolution_title")

        LineChart {
            objectName: "focusChart"
            Layout.fillWidth: true
            visible: root.model.hasSessions
            model: root.model.focus
            title: qsTrId("history_focus_evolution_title")
            valueLabel: qsTrId("chart_minutes")
            axisLabel: qsTrId("chart_date")
            onExplained: key => root.stats.explain("bucket", key)
        }

        EmptyStateBlock {
            visible: !root.model.hasSessions
            icon: "chart.line.downtrend.xyaxis"
            message: qsTrId("history_no_sessions_period")
        }
    }

    StatsSection {
        icon: "calendar"
        title: qsTrId("history_weekly_distribution_title")
        subtitle: qsTrId("history_weekly_distribution_subtitle")

        WeekdayChart {
            objectName: "weekdayChart"
            Layout.fillWidth: true
            visible: root.model.hasDistribution
            model: root.model.weekdays
            title: qsTrId("history_weekly_distribution_title")
            onExplained: key => root.stats.explain("weekday", key)
        }

        EmptyStateBlock {
            visible: !root.model.hasDistribution
            icon: "calendar"
            message: qsTrId("history_no_distribution_data")
        }
    }

    StatsSection {
        icon: "app.connected.to.app.below.fill"
        title: qsTrId("history_app_analysis_title")
        subtitle: qsTrId("history_period_usage_subtitle")

        UsageBreakdown {
            visible: root.model.hasUsage
            categoriesTitle: qsTrId("history_by_category_title")
            appsTitle: qsTrId("history_top_apps_title")
            categories: root.model.categories
            apps: root.model.topApps
            onExplained: (what, key) => root.stats.explain(what, key)
        }

        EmptyStateBlock {
            visible: !root.model.hasUsage
            icon: "app.badge.checkmark"
            message: qsTrId("history_no_app_data_period")
        }
    }

    StatsSection {
        icon: "clock.arrow.circlepath"
        title: qsTrId("history_recent_sessions_title")
        subtitle: qsTrId("history_last_10_subtitle")

        ColumnLayout {
            Layout.fillWidth: true
            visible: root.model.hasSessions
            spacing: 0

            Repeater {
                model: root.model.recent

                HistorySessionRow {
                    id: row

                    required property string sessionId

                    objectName: "historyRow"
                    Layout.fillWidth: true
                    onExplained: root.stats.explain("session", row.sessionId)
                }
            }
        }

        EmptyStateBlock {
            visible: !root.model.hasSessions
            icon: "calendar.day.timeline.left"
            message: qsTrId("history_no_sessions_period")
        }
    }
}
