#include "ui/TextFormats.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace norvin {

namespace {

QString twoDigits(int value) {
    return QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0'));
}

} // namespace

QString TextFormats::duration(int seconds) const {
    const int whole = std::max(seconds, 0);
    const int hours = whole / 3600;
    const int minutes = whole / 60 % 60;
    if (hours > 0)
        return qtTrId("duration_hours_minutes").arg(m_locale.toString(hours), twoDigits(minutes));
    if (minutes > 0)
        return qtTrId("duration_minutes_seconds").arg(m_locale.toString(minutes), twoDigits(whole % 60));
    return qtTrId("duration_seconds").arg(m_locale.toString(whole));
}

QString TextFormats::minutes(int minutes) const {
    const int whole = std::max(minutes, 0);
    if (whole >= 60)
        return qtTrId("duration_hours_minutes").arg(m_locale.toString(whole / 60), twoDigits(whole % 60));
    return qtTrId("length_minutes").arg(m_locale.toString(whole));
}

QString TextFormats::dateTime(const QDateTime& instant) const {
    return m_locale.toString(instant, QLocale::ShortFormat);
}

QString TextFormats::decimal(double value) const {
    return m_locale.toString(value, 'f', 1);
}

QString TextFormats::signedDecimal(double value) const {
    // What rounds to zero must not keep a sign: "−0.0" explains nothing.
    const QString digits = decimal(std::abs(value));
    if (digits == decimal(0))
        return digits;
    return (value < 0 ? QChar(0x2212) : QLatin1Char('+')) + digits;
}

} // namespace norvin
