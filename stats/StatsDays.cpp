#include "stats/StatsDays.h"

#include <algorithm>
#include <limits>

namespace norvin {

namespace {

// What a calendar can name; only a file that was written by hand has anything else.
constexpr Instant earliest{-62'135'596'800'000};
constexpr Instant latest{253'402'300'799'000};

} // namespace

Instant StatsDays::startOf(qint64 day) const {
    // No zone has left out more than a day at a time.
    for (qint64 candidate = day; candidate <= day + 2; ++candidate) {
        const QDateTime start = QDate::fromJulianDay(candidate).startOfDay(m_zone);
        if (start.isValid())
            return Instant(start);
    }
    return Instant(day < 0 ? std::numeric_limits<qint64>::min() + 1 : std::numeric_limits<qint64>::max());
}

qint64 StatsDays::dayOf(Instant instant) {
    if (m_start <= instant && instant < m_end)
        return m_day;
    // A day's distance from both ends, so that every day has a next one.
    constexpr qint64 margin = 3LL * 24 * 3600 * 1000;
    instant = std::clamp(instant, Instant(earliest.milliseconds() + margin),
                         Instant(latest.milliseconds() - margin));
    // The date of the clock on the wall is right but for hours that are shown twice around midnight.
    qint64 day = dateTime(instant).date().toJulianDay();
    Instant start = startOf(day);
    while (instant < start)
        start = startOf(--day);
    Instant end = startOf(day + 1);
    while (instant >= end) {
        start = end;
        end = startOf(++day + 1);
    }
    m_day = day;
    m_start = start;
    m_end = end;
    return day;
}

} // namespace norvin
