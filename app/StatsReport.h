#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace norvin {

class HistoryStatsView;
class ModelContext;
class StatsRecords;
class TodayStatsView;

/// What the command line and the session bus report of the statistics, the figures of the page;
/// docs/command-line.md lists the members. @param records those of the view
[[nodiscard]] QJsonObject todayReport(const TodayStatsView& today, const StatsRecords& records,
                                      const ModelContext& context);
[[nodiscard]] QJsonObject historyReport(const HistoryStatsView& history, const StatsRecords& records,
                                        const ModelContext& context);

/// Either of them for people to read, in the language that is loaded, ending in a line break.
[[nodiscard]] QString statsText(const QJsonObject& report);
/// Either of them as a table (RFC 4180).
[[nodiscard]] QByteArray statsCsv(const QJsonObject& report);

} // namespace norvin
