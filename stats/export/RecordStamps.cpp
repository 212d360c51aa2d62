#include "stats/export/RecordStamps.h"

#include <QDate>

#include <array>
#include <cstdlib>

namespace norvin {

namespace {

constexpr qint64 dayLength = 86'400'000;
constexpr qint64 epochDay = 2'440'588;

void appendNumber(QByteArray& text, qint64 number, int digits) {
    std::array<char, 20> written{};
    size_t first = written.size();
    for (; number > 0 || digits > 0; number /= 10, --digits)
        written[--first] = static_cast<char>('0' + number % 10);
    text.append(written.data() + first, static_cast<qsizetype>(written.size() - first));
}

// Days of 24 hours: what the clock shows was made from the instant and the offset.
QByteArray civil(qint64 milliseconds) {
    const qint64 day = milliseconds >= 0 ? milliseconds / dayLength : (milliseconds + 1) / dayLength - 1;
    qint64 rest = milliseconds - day * dayLength;
    int year = 0;
    int month = 0;
    int dayOfMonth = 0;
    QDate::fromJulianDay(epochDay + day).getDate(&year, &month, &dayOfMonth);
    if (year < 0)
        ++year; // That calendar has no year 0; this notation does.
    QByteArray text;
    text.reserve(32);
    const bool isPlain = year >= 0 && year <= 9999;
    if (!isPlain)
        text += year < 0 ? '-' : '+';
    appendNumber(text, std::abs(qint64{year}), isPlain ? 4 : 6);
    text += '-';
    appendNumber(text, month, 2);
    text += '-';
    appendNumber(text, dayOfMonth, 2);
    text += 'T';
    appendNumber(text, rest / 3'600'000, 2);
    text += ':';
    appendNumber(text, rest / 60'000 % 60, 2);
    text += ':';
    appendNumber(text, rest / 1000 % 60, 2);
    text += '.';
    appendNumber(text, rest % 1000, 3);
    return text;
}

} // namespace

QByteArray RecordStamps::utc(Instant instant) {
    return civil(instant.milliseconds()) + 'Z';
}

QByteArray RecordStamps::local(Instant instant) {
    const qint64 offset = offsetAt(instant);
    QByteArray text = civil(instant.milliseconds() + offset * 1000);
    text += offset < 0 ? '-' : '+';
    const qint64 length = std::abs(offset);
    appendNumber(text, length / 3600, 2);
    text += ':';
    appendNumber(text, length / 60 % 60, 2);
    if (length % 60 != 0) {
        text += ':';
        appendNumber(text, length % 60, 2);
    }
    return text;
}

qint64 RecordStamps::offsetAt(Instant instant) {
    if (!m_from.isNone() && instant >= m_from && (m_until.isNone() || instant < m_until))
        return m_offset;
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(instant.milliseconds(), Qt::UTC);
    m_offset = m_zone.offsetFromUtc(time);
    m_from = instant;
    m_until = {};
    if (m_zone.hasTransitions())
        m_until = Instant(m_zone.nextTransition(time).atUtc);
    return m_offset;
}

} // namespace norvin
