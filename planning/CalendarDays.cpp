#include "planning/CalendarDays.h"

#include <QTimeZone>

namespace norvin {

QDateTime startOfDate(QDate day, const QDateTime& now) {
    if (now.timeSpec() == Qt::TimeZone)
        return day.startOfDay(now.timeZone());
    return day.startOfDay(now.timeSpec(), now.offsetFromUtc());
}

QDateTime inZoneOf(const QDateTime& instant, const QDateTime& now) {
    switch (now.timeSpec()) {
    case Qt::TimeZone:
        return instant.toTimeZone(now.timeZone());
    case Qt::OffsetFromUTC:
        return instant.toOffsetFromUtc(now.offsetFromUtc());
    case Qt::UTC:
        return instant.toUTC();
    case Qt::LocalTime:
        break;
    }
    return instant.toLocalTime();
}

QDate dateOf(Instant instant, const QDateTime& now) {
    return instant.isNone() ? QDate() : inZoneOf(instant.dateTime(), now).date();
}

AgendaDay agendaDayOf(QDate day, const QDateTime& now) {
    // A place that changes to the other side of the date line leaves a day out.
    constexpr int daysLeftOut = 2;
    QDateTime start = startOfDate(day, now);
    for (int skipped = 1; !start.isValid() && skipped <= daysLeftOut; ++skipped)
        start = startOfDate(day.addDays(skipped), now);
    QDateTime end = startOfDate(day.addDays(1), now);
    for (int skipped = 2; !end.isValid() && skipped <= daysLeftOut + 1; ++skipped)
        end = startOfDate(day.addDays(skipped), now);
    if (!start.isValid() || !end.isValid())
        qFatal("The calendar has no %s", qPrintable(day.toString(Qt::ISODate)));
    return {Instant(start), Instant(end)};
}

} // namespace norvin
