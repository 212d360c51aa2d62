#include "stats/export/StatsDocument.h"

#include "stats/HistoryStatsView.h"
#include "stats/StatsFormats.h"
#include "stats/TodayStatsView.h"

#include <QLocale>

namespace norvin {

namespace {

constexpr double highestScore = 10;
constexpr double scoreThreshold = 5;

QString dateOf(const QDateTime& now, const QLocale& locale) {
    return qtTrId("stats_paper_date_format")
        .arg(locale.toString(now.date(), QLocale::LongFormat),
             locale.toString(now.time(), QLocale::ShortFormat));
}

StatsDocument::Section section(const QString& title, const QString& emptyText) {
    StatsDocument::Section section;
    section.title = title;
    section.emptyText = emptyText;
    return section;
}

StatsDocument::Section applications(const AppTotalRows& apps, const QString& title,
                                    const QString& emptyText) {
    StatsDocument::Section result = section(title, emptyText);
    for (int row = 0; row < apps.rowCount(); ++row) {
        const auto of = [&apps, row](AppTotalRows::Role role) { return apps.data(apps.index(row), role); };
        result.rows.append({.lead = of(AppTotalRows::RankRole).toString(),
                            .name = of(AppTotalRows::NameRole).toString(),
                            .value = of(AppTotalRows::DurationRole).toString(),
                            .note = of(AppTotalRows::CategoryRole).toString(),
                            .share = of(AppTotalRows::ShareRole).toDouble()});
    }
    return result;
}

enum class Lead { time, dateAndTime };

StatsDocument::Section sessions(const StatsSessionRows& rows, Lead lead, const QString& title,
                                const QString& emptyText) {
    StatsDocument::Section result = section(title, emptyText);
    for (int row = 0; row < rows.rowCount(); ++row) {
        const auto of = [&rows, row](StatsSessionRows::Role role) {
            return rows.data(rows.index(row), role).toString();
        };
        const QString time = of(StatsSessionRows::TimeRole);
        result.rows.append(
            {.lead = lead == Lead::time ? time : of(StatsSessionRows::DateRole) + QStringLiteral(", ") + time,
             .name = of(StatsSessionRows::TitleRole),
             .value = of(StatsSessionRows::DurationRole),
             .note = of(StatsSessionRows::ScoreTextRole),
             .share = {}});
    }
    return result;
}

StatsDocument::Section chart(const ChartModel& model, StatsDocument::ChartKind kind, bool hasValues,
                             const QString& title, const QString& emptyText) {
    StatsDocument::Section result = section(title, emptyText);
    result.kind = kind;
    if (hasValues)
        result.points = model.points();
    return result;
}

} // namespace

StatsDocument documentOf(const TodayStatsView& today, const QDateTime& now, const QLocale& locale) {
    using Kind = StatsDocument::ChartKind;
    StatsDocument document{
        .title = qtTrId("stats_paper_title"),
        .period = locale.toString(now.date(), QLocale::LongFormat),
        .date = dateOf(now, locale),
        .pageFormat = qtTrId("stats_paper_page_format"),
        .figures = {{qtTrId("kpi_sessions"), today.sessionsText(), qtTrId("kpi_completed")},
                    {qtTrId("kpi_focus"), today.focusText(), qtTrId("kpi_total_time")},
                    {qtTrId("kpi_score"), today.scoreText(), qtTrId("kpi_average")},
                    {qtTrId("kpi_streak"), today.streakText(), qtTrId("kpi_consecutive")},
                    {qtTrId("kpi_apps"), today.appsText(), qtTrId("kpi_used")}},
        .sections = {}};
    document.sections.append(chart(*today.hourly(), Kind::bars, today.hasHours(),
                                   qtTrId("timeline_focus_title"), qtTrId("no_sessions_today")));
    StatsDocument::Section scores = chart(*today.scores(), Kind::line, today.hasScores(),
                                          qtTrId("score_evolution_title"), qtTrId("no_scores_today"));
    scores.top = highestScore;
    scores.threshold = scoreThreshold;
    scores.thresholdName = qtTrId("chart_threshold");
    document.sections.append(scores);
    document.sections.append(chart(*today.categories(), Kind::shares, today.hasUsage(), qtTrId("by_category"),
                                   qtTrId("no_app_data_today")));
    document.sections.append(
        applications(*today.topApps(), qtTrId("apps_used_title"), qtTrId("no_app_data_today")));
    document.sections.append(
        sessions(*today.sessions(), Lead::time, qtTrId("today_sessions_title"), qtTrId("no_sessions_today")));
    return document;
}

StatsDocument documentOf(const HistoryStatsView& history, const QDateTime& now, const QLocale& locale) {
    using Kind = StatsDocument::ChartKind;
    StatsDocument document{
        .title = qtTrId("stats_paper_title"),
        .period = history.periodText(),
        .date = dateOf(now, locale),
        .pageFormat = qtTrId("stats_paper_page_format"),
        .figures =
            {{qtTrId("history_sessions_title"), history.sessionsText(), qtTrId("history_completed_label")},
             {qtTrId("history_total_focus_title"), history.focusText(), qtTrId("history_cumulated_label")},
             {qtTrId("history_focus_score_title"), history.scoreText(), qtTrId("history_average_label")},
             {qtTrId("history_best_day_title"), history.bestDayText(), history.bestDayDate()}},
        .sections = {}};
    document.sections.append(
        chart(*history.focus(), Kind::line, history.hasSessions() || history.focus()->largest() > 0,
              qtTrId("history_focus_evolution_title"), qtTrId("history_no_sessions_period")));
    document.sections.append(chart(*history.weekdays(), Kind::bars, history.hasDistribution(),
                                   qtTrId("history_weekly_distribution_subtitle"),
                                   qtTrId("history_no_distribution_data")));
    document.sections.append(chart(*history.categories(), Kind::shares, history.hasUsage(),
                                   qtTrId("history_by_category_title"),
                                   qtTrId("history_no_app_data_period")));
    document.sections.append(applications(*history.topApps(), qtTrId("history_top_apps_title"),
                                          qtTrId("history_no_app_data_period")));
    document.sections.append(sessions(*history.recent(), Lead::dateAndTime,
                                      qtTrId("history_recent_sessions_title"),
                                      qtTrId("history_no_sessions_period")));
    return document;
}

} // namespace norvin
