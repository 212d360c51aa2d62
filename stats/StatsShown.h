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
/// A minute count as the value of a chart's point.
[[nodiscard]] ChartPoint minutesPoint(const QString& label, const QString& name, int minutes, int key);

} // namespace norvin
