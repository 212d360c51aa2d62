#pragma once

#include <QString>

#include <array>
#include <optional>

namespace norvin {

/// The periods of the history page, in the order in which they are offered. All but the last are counted in
/// calendar days from the start of today, and none ends: what is dated in the future belongs to each.
enum class StatsPeriod {
    today, ///< from the start of today
    week,  ///< from 7 days before
    month, ///< from 30 days before
    year,  ///< from 365 days before
    all    ///< everything
};

inline constexpr std::array allStatsPeriods{StatsPeriod::today, StatsPeriod::week, StatsPeriod::month,
                                            StatsPeriod::year, StatsPeriod::all};

/// "today", "week", "month", "year", "all".
[[nodiscard]] QString rawValue(StatsPeriod period);
/// The period of a raw value; none for any other text.
[[nodiscard]] std::optional<StatsPeriod> statsPeriodFromRawValue(const QString& raw);
/// How many days before today the period begins; none for that of everything.
[[nodiscard]] std::optional<int> daysBack(StatsPeriod period);
/// Its name in the language of the window ("Week").
[[nodiscard]] QString periodName(StatsPeriod period);
/// What it spans, in the language of the window ("last 7 days").
[[nodiscard]] QString periodDescription(StatsPeriod period);

} // namespace norvin
