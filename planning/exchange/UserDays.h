#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

#include <optional>

namespace norvin {

/// Calendar days where the user is: what a date without a time stands for.
class UserDays final {
public:
    /// @param now in the user's time zone
    explicit UserDays(const QDateTime& now)
        : m_now(now) {}

    [[nodiscard]] const QDateTime& now() const { return m_now; }
    /// The day that an instant falls on.
    [[nodiscard]] QDate dayAt(const QDateTime& instant) const { return here(instant).date(); }
    /// The first instant of a day; invalid for no day.
    [[nodiscard]] QDateTime startOf(QDate day) const;
    [[nodiscard]] bool isStart(const QDateTime& instant) const { return instant == startOf(dayAt(instant)); }
    /// A time of the user's clock as an instant.
    [[nodiscard]] QDateTime at(QDate day, QTime time) const;

private:
    [[nodiscard]] QDateTime here(const QDateTime& instant) const;

    QDateTime m_now;
};

/// "2025-03-10"; empty for days outside the years 1 to 9999.
[[nodiscard]] QString dayText(QDate day);
/// The day of such a text; none where there is no such day.
[[nodiscard]] std::optional<QDate> dayFromText(const QString& text);

/// ISO 8601 in UTC with milliseconds, "2025-03-10T09:00:00.000Z"; years outside 0 to 9999 have a sign and six
/// or more digits. An invalid date is written as the epoch, as the store does.
[[nodiscard]] QString instantText(const QDateTime& instant);
/// The instant of such a text, in which the milliseconds may be missing; none for any other text.
[[nodiscard]] std::optional<QDateTime> instantFromText(const QString& text);

} // namespace norvin
