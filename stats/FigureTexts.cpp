#include "stats/FigureTexts.h"

#include "stats/StatsFormats.h"

#include <QStringList>
#include <QtGlobal>

namespace norvin {

namespace {

QString withSum(const QString& count, const QString& sum) {
    return qtTrId("explain_sum_format").arg(count, sum);
}

} // namespace

QString figureTitle(const FigureQuestion& question, const QString& pointName, const QLocale& locale) {
    const bool isToday = !question.period;
    switch (question.figure) {
    case Figure::sessions:
        return isToday ? qtTrId("kpi_sessions") : qtTrId("history_sessions_title");
    case Figure::focus:
        return isToday ? qtTrId("kpi_focus") : qtTrId("history_total_focus_title");
    case Figure::score:
        return isToday ? qtTrId("kpi_score") : qtTrId("history_focus_score_title");
    case Figure::streak:
        return qtTrId("kpi_streak");
    case Figure::apps:
        return isToday ? qtTrId("kpi_apps") : qtTrId("history_app_analysis_title");
    case Figure::bestDay:
        return qtTrId("history_best_day_title");
    case Figure::category:
        return categoryName(question.key);
    case Figure::day:
        return locale.toString(QDate::fromJulianDay(question.key.toLongLong()), QLocale::LongFormat);
    case Figure::hour:
    case Figure::bucket:
    case Figure::weekday:
    case Figure::application:
        break;
    }
    return pointName;
}

QString figureScope(const FigureQuestion& question) {
    // Days in a row know no period.
    if (question.figure == Figure::day || question.figure == Figure::streak)
        return {};
    return periodDescription(question.period.value_or(StatsPeriod::today));
}

QString figureRule(Figure figure) {
    switch (figure) {
    case Figure::sessions:
        return qtTrId("explain_sessions_rule");
    case Figure::focus:
        return qtTrId("explain_focus_rule");
    case Figure::score:
        return qtTrId("explain_score_rule");
    case Figure::streak:
        return qtTrId("explain_streak_rule");
    case Figure::apps:
        return qtTrId("explain_apps_rule");
    case Figure::bestDay:
        return qtTrId("explain_best_day_rule");
    case Figure::hour:
        return qtTrId("explain_hour_rule");
    case Figure::bucket:
        return qtTrId("explain_bucket_rule");
    case Figure::weekday:
        return qtTrId("explain_weekday_rule");
    case Figure::category:
        return qtTrId("explain_category_rule");
    case Figure::application:
        return qtTrId("explain_application_rule");
    case Figure::day:
        break;
    }
    return qtTrId("explain_day_rule");
}

QString figureValue(Figure figure, const FigureSum& sum) {
    switch (figure) {
    case Figure::sessions:
        return QString::number(sum.sessions);
    case Figure::score:
        return formatScore(sum.scores.mean());
    case Figure::streak:
        return qtTrId("kpi_streak_unit", sum.days);
    case Figure::apps:
        return formatTime(static_cast<int>(sum.seconds / 60));
    case Figure::category:
    case Figure::application:
        return formatSeconds(sum.seconds);
    case Figure::focus:
    case Figure::bestDay:
    case Figure::hour:
    case Figure::bucket:
    case Figure::weekday:
    case Figure::day:
        break;
    }
    return formatTime(static_cast<int>(sum.minutes));
}

QString figureSumText(Figure figure, const FigureSum& sum) {
    switch (figure) {
    case Figure::score:
        return sum.scores.count == 0
                   ? qtTrId("explain_sessions", 0)
                   : qtTrId("explain_score_sum", sum.scores.count).arg(sum.scores.sum, 0, 'f', 2);
    case Figure::sessions:
    case Figure::streak:
        return qtTrId("explain_sessions", sum.sessions);
    case Figure::apps:
    case Figure::category:
    case Figure::application:
        return withSum(qtTrId("explain_applications", sum.applications), exactSeconds(sum.seconds));
    default:
        break;
    }
    const QString sessions = qtTrId("explain_sessions", sum.sessions);
    return withSum(sum.hasLive ? qtTrId("explain_with_live_format").arg(sessions) : sessions,
                   qtTrId("time_minutes_short").arg(sum.minutes));
}

QString intervalSumText(const UsageSum& sum) {
    return withSum(qtTrId("explain_intervals", static_cast<int>(sum.intervals)),
                   exactSeconds(sum.total.duration));
}

QString exactSeconds(qint64 seconds) {
    QStringList parts;
    if (seconds >= 3600)
        parts.append(qtTrId("time_hours_short").arg(seconds / 3600));
    if (seconds / 60 % 60 != 0)
        parts.append(qtTrId("time_minutes_short").arg(seconds / 60 % 60));
    if (seconds % 60 != 0 || parts.isEmpty())
        parts.append(qtTrId("time_seconds_short").arg(seconds % 60));
    return parts.join(QLatin1Char(' '));
}

} // namespace norvin
