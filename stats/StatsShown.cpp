#include "stats/StatsShown.h"

#include "stats/StatsFormats.h"

#include <QtGlobal>

#include <algorithm>
#include <iterator>

namespace norvin {

QList<ChartPoint> categoryPoints(const QList<CategoryTotal>& totals) {
    QList<ChartPoint> points;
    for (const CategoryTotal& total : totals) {
        const QString name = categoryName(total.category);
        points.append({.label = name,
                       .name = name,
                       .value = static_cast<double>(total.duration),
                       .valueText = formatSeconds(total.duration),
                       .key = total.category});
    }
    return points;
}

std::vector<SessionRow> completedRows(SessionSpan sessions) {
    std::vector<SessionRow> rows;
    std::copy_if(sessions.begin(), sessions.end(), std::back_inserter(rows),
                 [](const SessionRow& row) { return row.completed; });
    return rows;
}

QString bucketName(Instant date, BucketUnit unit, const StatsDays& days, const QLocale& locale) {
    const QDateTime start = days.dateTime(date);
    switch (unit) {
    case BucketUnit::hour:
        return locale.toString(start.time(), QLocale::ShortFormat);
    case BucketUnit::day:
        return locale.toString(start.date(), QLocale::LongFormat);
    case BucketUnit::month:
        break;
    }
    return locale.toString(start.date(), qtTrId("date_month_year"));
}

ChartPoint minutesPoint(const QString& label, const QString& name, int minutes, int key) {
    return {.label = label,
            .name = name,
            .value = static_cast<double>(minutes),
            .valueText = formatTime(minutes),
            .key = QString::number(key)};
}

} // namespace norvin
