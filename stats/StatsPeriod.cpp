#include "stats/StatsPeriod.h"

#include <QtGlobal>

#include <algorithm>

namespace norvin {

QString rawValue(StatsPeriod period) {
    switch (period) {
    case StatsPeriod::today:
        return QStringLiteral("today");
    case StatsPeriod::week:
        return QStringLiteral("week");
    case StatsPeriod::month:
        return QStringLiteral("month");
    case StatsPeriod::year:
        return QStringLiteral("year");
    case StatsPeriod::all:
        break;
    }
    return QStringLiteral("all");
}

std::optional<StatsPeriod> statsPeriodFromRawValue(const QString& raw) {
    const auto* const found = std::find_if(allStatsPeriods.begin(), allStatsPeriods.end(),
                                           [&raw](StatsPeriod period) { return rawValue(period) == raw; });
    return found == allStatsPeriods.end() ? std::nullopt : std::optional(*found);
}

std::optional<int> daysBack(StatsPeriod period) {
    switch (period) {
    case StatsPeriod::today:
        return 0;
    case StatsPeriod::week:
        return 7;
    case StatsPeriod::month:
        return 30;
    case StatsPeriod::year:
        return 365;
    case StatsPeriod::all:
        break;
    }
    return std::nullopt;
}

QString periodName(StatsPeriod period) {
    switch (period) {
    case StatsPeriod::today:
        return qtTrId("period_today");
    case StatsPeriod::week:
        return qtTrId("period_week");
    case StatsPeriod::month:
        return qtTrId("period_month");
    case StatsPeriod::year:
        return qtTrId("period_year");
    case StatsPeriod::all:
        break;
    }
    return qtTrId("period_all");
}

QString periodDescription(StatsPeriod period) {
    switch (period) {
    case StatsPeriod::today:
        return qtTrId("period_today_label");
    case StatsPeriod::week:
        return qtTrId("period_7_days_label");
    case StatsPeriod::month:
        return qtTrId("period_30_days_label");
    case StatsPeriod::year:
        return qtTrId("period_12_months_label");
    case StatsPeriod::all:
        break;
    }
    return qtTrId("period_all_time_label");
}

} // namespace norvin
