#pragma once

#include "model/Instant.h"

#include <QByteArray>
#include <QTimeZone>

namespace norvin {

/// Writes instants as ISO 8601 with milliseconds, quickly where they come about in order. Years outside 0 to
/// 9999 have a sign and at least six digits. For one thread, any one.
class RecordStamps final {
public:
    explicit RecordStamps(const QTimeZone& zone)
        : m_zone(zone) {}

    /// "2025-03-10T09:00:00.000Z". @param instant not none; the same for the other
    [[nodiscard]] static QByteArray utc(Instant instant);
    /// "2025-03-10T10:00:00.000+01:00", by the clock of the zone; an offset of odd seconds shows them.
    [[nodiscard]] QByteArray local(Instant instant);

private:
    [[nodiscard]] qint64 offsetAt(Instant instant);

    QTimeZone m_zone;
    // The offset holds for [m_from, m_until).
    Instant m_from;
    Instant m_until;
    qint64 m_offset = 0;
};

} // namespace norvin
