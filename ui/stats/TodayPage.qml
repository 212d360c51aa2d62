pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import NorvinFocus.Ui

/// The statistics of today.
StatsScroll {
    id: root

    required property StatsScreen stats
    readonly property TodayStatsView model: root.stats.today

    column.objectName: "todayContent"

    TodayFigures {
        model: root.model
        onExplained: what => root.stats.explain(what, "")
    }

    StatsSection {
        icon: "chart.bar.fill"
        title: qsTrId("timeline_focus_title")
        subtitle: qsTrId("per_hour_today_subtitle")

        BarChart {
            objectName: "hourlyChart"
            Layout.fillWidth: true
            visible: root.model.hasHours
            model: root.model.hourly
            title: qsTrId("timeline_focus_title")
            valueLabel: qsTrId("chart_minutes") + " · " + qsTrId("session_subtitle")
            axisLabel: qsTrId("chart_hour")
            onExplained: key => root.stats.explain("hour", key)
        }

        EmptyStateBlock {
            visible: !root.model.hasHours
            icon: "clock.badge.xmark"
            message: qsTrId("no_sessions_today")
        }
    }

    StatsSection {
        icon: "chart.xyaxis.line"
        title: qsTrId("score_evolution_title")

        LineChart {
            objectName: "scoreChart"
            Layout.fillWidth: true
            visible: root.model.hasScores
            model: root.model.scores
            title: qsTrId("score_evolution_title")
            valueLabel: qsTrId("kpi_score")
            axisLabel: qsTrId("chart_time")
            scale: ChartLayout.Score
            threshold: 5
            thresholdName: qsTrId("chart_threshold")
            onExplained: key => root.stats.explain("session", key)
        }

        EmptyStateBlock {
            visible: !root.model.hasScores
            icon: "star.slash"
            message: qsTrId("no_scores_today")
        }
    }

    StatsSection {
        icon: "app.connected.to.app.below.fill"
        title: qsTrId("apps_used_title")
        subtitle: qsTrId("daily_distribution_subtitle") + " · " + qsTrId("sessions_completed_subtitle")

        UsageBreakdown {
            visible: root.model.hasUsage
            categoriesTitle: qsTrId("by_category")
            appsTitle: qsTrId("history_period_usage_subtitle")
            categories: root.model.categories
            apps: root.model.topApps
            onExplained: (what, key) => root.stats.explain(what, key)
        }

        EmptyStateBlock {
            visible: !root.model.hasUsage
            icon: "app.badge.checkmark"
            title: qsTrId("clean_state_title")
            message: qsTrId("no_app_data_today")
        }
    }

    StatsSection {
        icon: "calendar.day.timeline.left"
        title: qsTrId("today_sessions_title")
        actions: IconButton {
            objectName: "refreshStats"
            symbol: "arrow.clockwise"
            text: qsTrId("refresh_data_help")
            onClicked: root.stats.refresh()
        }

        ColumnLayout {
            Layout.fillWidth: true
            visible: root.model.hasSessions
            spacing: 0

            Repeater {
                model: root.model.sessions

                TimelineSessionRow {
                    id: row

                    required property int index
                    required property string sessionId

                    objectName: "timelineRow"
                    Layout.fillWidth: true
                    isLast: row.index === root.model.sessions.count - 1
                    onExplained: root.stats.explain("session", row.sessionId)
                }
            }
        }

        EmptyStateBlock {
            visible: !root.model.hasSessions
            icon: "moon.zzz"
            message: qsTrId("no_sessions_today")
            subtitle: qsTrId("ready_to_start_subtitle")
        }
    }
}
