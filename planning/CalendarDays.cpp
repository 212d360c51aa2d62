#include "planning/CalendarDays.h"

#include <QTimeZone>
#include <QtGlobal>

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

QString dateInWords(QDate day, QDate today, const QLocale& locale) {
    const QString number = day.day() == 1 ? qtTrId("date_first_of_month") : locale.toString(day.day());
    const QString text = qtTrId("agenda_date_format")
                             .arg(locale.dayName(day.dayOfWeek()), number, locale.monthName(day.month()));
    return day.year() == today.year()
               ? text
               : qtTrId("agenda_date_year_format").arg(text, QString::number(day.year()));
}

QString dayInWords(QDate day, QDate today, const QLocale& locale) {
    if (day == today)
        return qtTrId("today");
    return day == today.addDays(1) ? qtTrId("tomorrow") : dateInWords(day, today, locale);
}

} // namespace norvin
