#pragma once

#include "stats/ChartModel.h"
#include "stats/StatsAggregates.h"

#include <QList>
#include <QLocale>

#include <vector>

namespace norvin {

// What both pages show in the same way, in the language of the window.

/// Seconds by category, keyed by the category as it is stored.
[[nodiscard]] QList<ChartPoint> categoryPoints(const QList<CategoryTotal>& totals);
/// The completed ones in their order.
[[nodiscard]] std::vector<SessionRow> completedRows(SessionSpan sessions);
/// A stretch of time of the history's chart in full ("9:00", "Tuesday, 4 March 2025", "March 2025").
/// @param date where it begins
[[nodiscard]] QString bucketName(Instant date, BucketUnit unit, const StatsDays& days, const QLocale& locale);
/// A minute count as the value of a chart's point.
[[nodiscard]] ChartPoint minutesPoint(const QString& label, const QString& name, int minutes, int key);

} // namespace norvin
