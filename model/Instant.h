#pragma once

#include <QDateTime>

#include <limits>

namespace norvin {

/// A point in time as the store keeps it: milliseconds since the epoch, or none. Unlike QDateTime it is made
/// without asking which time zone the user is in, which for tens of thousands of tasks takes longer than
/// reading them.
class Instant final {
public:
    constexpr Instant() = default;
    constexpr explicit Instant(qint64 milliseconds)
        : m_milliseconds(milliseconds) {}
    /// None for an invalid date.
    explicit Instant(const QDateTime& date)
        : m_milliseconds(date.isValid() ? date.toMSecsSinceEpoch() : none) {}

    /// In local time; invalid for none.
    [[nodiscard]] QDateTime dateTime() const {
        return m_milliseconds == none ? QDateTime() : QDateTime::fromMSecsSinceEpoch(m_milliseconds);
    }

    [[nodiscard]] constexpr bool isNone() const { return m_milliseconds == none; }
    /// Since the epoch; meaningless for none.
    [[nodiscard]] constexpr qint64 milliseconds() const { return m_milliseconds; }

    friend constexpr bool operator==(Instant a, Instant b) = default;
    /// None comes before all others.
    friend constexpr auto operator<=>(Instant a, Instant b) = default;

private:
    static constexpr qint64 none = std::numeric_limits<qint64>::min();

    qint64 m_milliseconds = none;
};

} // namespace norvin
