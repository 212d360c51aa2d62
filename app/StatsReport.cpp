#include "app/StatsReport.h"

#include "model/ModelContext.h"
#include "stats/HistoryStatsView.h"
#include "stats/StatsRecords.h"
#include "stats/TodayStatsView.h"
#include "stats/export/RecordStamps.h"

#include <QJsonArray>

namespace norvin {

namespace {

QString dayText(qint64 day) {
    return QDate::fromJulianDay(day).toString(Qt::ISODate);
}

QString stampText(Instant instant, const StatsRecords& records) {
    return QString::fromLatin1(RecordStamps(records.tables().days().zone()).local(instant));
}

QJsonObject headOf(const char* page, const StatsRecords& records) {
    return {{QStringLiteral("page"), QLatin1String(page)},
            {QStringLiteral("date"), dayText(records.today())},
            {QStringLiteral("timeZone"), QString::fromUtf8(records.tables().days().zone().id())}};
}

QJsonArray categoriesOf(const ChartModel& chart) {
    QJsonArray list;
    for (const ChartPoint& point : chart.points()) {
        list.append(
            QJsonObject{{QStringLiteral("category"), point.key}, {QStringLiteral("seconds"), point.value}});
    }
    return list;
}

QJsonArray applicationsOf(const AppTotalRows& apps) {
    QJsonArray list;
    int row = 0;
    for (const AppTotal& app : apps.rows()) {
        const double share = apps.data(apps.index(row++), AppTotalRows::ShareRole).toDouble();
        list.append(QJsonObject{{QStringLiteral("bundleId"), app.bundleID},
                                {QStringLiteral("name"), app.name},
                                {QStringLiteral("category"), app.category},
                                {QStringLiteral("seconds"), app.duration},
                                {QStringLiteral("share"), share}});
    }
    return list;
}

QJsonArray sessionsOf(const StatsSessionRows& sessions, const StatsRecords& records,
                      const ModelContext& context) {
    QJsonArray list;
    for (const SessionRow& session : sessions.rows()) {
        const TaskItem* const task = session.task ? context.task(*session.task) : nullptr;
        list.append(QJsonObject{
            {QStringLiteral("id"), session.id.toString()},
            {QStringLiteral("start"), stampText(session.start, records)},
            {QStringLiteral("minutes"), session.durationMinutes},
            {QStringLiteral("score"), session.score ? QJsonValue(*session.score) : QJsonValue()},
            {QStringLiteral("taskId"), session.task ? QJsonValue(session.task->toString()) : QJsonValue()},
            {QStringLiteral("task"), task != nullptr ? QJsonValue(task->title()) : QJsonValue()}});
    }
    return list;
}

QJsonArray minutesOf(const ChartModel& chart) {
    QJsonArray list;
    for (const ChartPoint& point : chart.points())
        list.append(point.value);
    return list;
}

QString unitName(BucketUnit unit) {
    switch (unit) {
    case BucketUnit::hour:
        return QStringLiteral("hour");
    case BucketUnit::day:
        return QStringLiteral("day");
    case BucketUnit::month:
        break;
    }
    return QStringLiteral("month");
}

} // namespace

QJsonObject todayReport(const TodayStatsView& today, const StatsRecords& records,
                        const ModelContext& context) {
    QJsonObject report = headOf("today", records);
    report[QStringLiteral("sessions")] = today.sessionCount();
    report[QStringLiteral("focusMinutes")] = today.todayFocusMinutes();
    report[QStringLiteral("averageScore")] = today.todayAverageScore();
    report[QStringLiteral("streakDays")] = today.streak();
    report[QStringLiteral("applicationMinutes")] = today.todayAppMinutes();
    report[QStringLiteral("hours")] = minutesOf(*today.hourly());
    report[QStringLiteral("categories")] = categoriesOf(*today.categories());
    report[QStringLiteral("topApplications")] = applicationsOf(*today.topApps());
    report[QStringLiteral("sessionList")] = sessionsOf(*today.sessions(), records, context);
    return report;
}

QJsonObject historyReport(const HistoryStatsView& history, const StatsRecords& records,
                          const ModelContext& context) {
    QJsonObject report = headOf("history", records);
    report[QStringLiteral("period")] = history.period();
    report[QStringLiteral("sessions")] = history.sessionCount();
    report[QStringLiteral("focusMinutes")] = history.periodFocusMinutes();
    report[QStringLiteral("averageScore")] = history.avgPeriodScore();
    report[QStringLiteral("bestDay")] = QJsonValue();
    if (const std::optional<BestDay>& best = history.bestDay()) {
        report[QStringLiteral("bestDay")] = QJsonObject{{QStringLiteral("date"), dayText(best->day)},
                                                        {QStringLiteral("minutes"), best->minutes}};
    }
    QJsonArray buckets;
    // The chart's points have the work phase that runs; the stretches behind them do not.
    const QList<ChartPoint>& points = history.focus()->points();
    for (qsizetype i = 0; i < points.size(); ++i) {
        const Instant start = history.buckets().at(static_cast<size_t>(i)).date;
        buckets.append(QJsonObject{{QStringLiteral("start"), stampText(start, records)},
                                   {QStringLiteral("minutes"), points.at(i).value}});
    }
    report[QStringLiteral("chart")] =
        QJsonObject{{QStringLiteral("unit"), unitName(bucketUnit(history.statsPeriod()))},
                    {QStringLiteral("buckets"), buckets}};
    report[QStringLiteral("weekdays")] = minutesOf(*history.weekdays());
    report[QStringLiteral("usageSeconds")] = history.usageSeconds();
    report[QStringLiteral("categories")] = categoriesOf(*history.categories());
    report[QStringLiteral("topApplications")] = applicationsOf(*history.topApps());
    report[QStringLiteral("sessionList")] = sessionsOf(*history.recent(), records, context);
    return report;
}

} // namespace norvin
