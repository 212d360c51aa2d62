#include "planning/exchange/UserDays.h"

#include "platform/Clock.h"

#include <QRegularExpression>
#include <QTimeZone>

namespace norvin {

namespace {

// Further away, milliseconds do not fit into 64 bits any more.
constexpr int outermostYear = 290'000'000;

} // namespace

QDateTime UserDays::here(const QDateTime& instant) const {
    switch (m_now.timeSpec()) {
    case Qt::TimeZone:
        return instant.toTimeZone(m_now.timeZone());
    case Qt::OffsetFromUTC:
        return instant.toOffsetFromUtc(m_now.offsetFromUtc());
    case Qt::UTC:
        return instant.toUTC();
    case Qt::LocalTime:
        break;
    }
    return instant.toLocalTime();
}

QDateTime UserDays::at(QDate day, QTime time) const {
    if (!day.isValid() || !time.isValid())
        return {};
    QDateTime instant = m_now;
    // At noon first: the time of day as it is now need not exist on that day.
    instant.setTime(QTime(12, 0));
    instant.setDate(day);
    instant.setTime(time);
    return instant;
}

QDateTime UserDays::startOf(QDate day) const {
    return day.isValid() ? norvin::startOfDay(at(day, QTime(12, 0))) : QDateTime();
}

QString dayText(QDate day) {
    return day.toString(Qt::ISODate);
}

std::optional<QDate> dayFromText(const QString& text) {
    static const QRegularExpression shape(
        QRegularExpression::anchoredPattern(QStringLiteral("\\d{4}-\\d\\d-\\d\\d")));
    if (!shape.match(text).hasMatch())
        return std::nullopt;
    const QDate day = QDate::fromString(text, Qt::ISODate);
    return day.isValid() ? std::optional(day) : std::nullopt;
}

QString instantText(const QDateTime& instant) {
    const QDateTime utc = instant.isValid() ? instant.toUTC() : QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
    const QDate day = utc.date();
    const QTime time = utc.time();
    // The year before 1 is 0 here and -1 in a QDate.
    const int year = day.year() > 0 ? day.year() : day.year() + 1;
    return QString::asprintf(year >= 0 && year <= 9999 ? "%04d" : "%+07d", year) +
           QString::asprintf("-%02d-%02dT%02d:%02d:%02d.%03dZ", day.month(), day.day(), time.hour(),
                             time.minute(), time.second(), time.msec());
}

std::optional<QDateTime> instantFromText(const QString& text) {
    static const QRegularExpression shape(QRegularExpression::anchoredPattern(QStringLiteral(
        "([+-]\\d{6,9}|\\d{4})-(\\d\\d)-(\\d\\d)T(\\d\\d):(\\d\\d):(\\d\\d)(?:\\.(\\d{3}))?Z")));
    const QRegularExpressionMatch match = shape.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const auto part = [&match](int number) { return match.capturedView(number).toInt(); };
    if (std::abs(part(1)) > outermostYear)
        return std::nullopt;
    const QDate day(part(1) > 0 ? part(1) : part(1) - 1, part(2), part(3));
    const QTime time(part(4), part(5), part(6), part(7));
    if (!day.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(day, time, Qt::UTC);
}

} // namespace norvin
