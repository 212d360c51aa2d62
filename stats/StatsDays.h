#pragma once

#include "model/Instant.h"

#include <QDate>
#include <QTimeZone>

namespace norvin {

/// The calendar days of one time zone, by their Julian day numbers. A day reaches from its first instant to
/// that of the next one; one that the zone left out is empty. Quick for instants that come in order: the zone
/// is asked once a day. Copies may be used on any one thread each.
class StatsDays final {
public:
    explicit StatsDays(const QTimeZone& zone)
        : m_zone(zone) {}

    /// The first instant of a day.
    [[nodiscard]] Instant startOf(qint64 day) const;
    /// The day that an instant lies in. @param instant not none
    [[nodiscard]] qint64 dayOf(Instant instant);
    /// In the zone.
    [[nodiscard]] QDateTime dateTime(Instant instant) const {
        return QDateTime::fromMSecsSinceEpoch(instant.milliseconds(), m_zone);
    }
    [[nodiscard]] const QTimeZone& zone() const { return m_zone; }

private:
    QTimeZone m_zone;
    // The day that was asked for last.
    qint64 m_day = 0;
    Instant m_start;
    Instant m_end;
};

} // namespace norvin
