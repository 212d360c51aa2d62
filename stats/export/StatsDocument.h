#pragma once

#include "stats/ChartModel.h"

#include <QList>
#include <QString>

#include <optional>

class QDateTime;
class QLocale;

namespace norvin {

class HistoryStatsView;
class TodayStatsView;

/// What a statistics page says, put together for paper. A value, in the language in which it was made.
struct StatsDocument {
    struct Figure {
        QString name;
        QString value;
        QString note;
    };
    enum class ChartKind { bars, line, shares };
    struct Row {
        /// A time or rank before the name; may be empty.
        QString lead;
        QString name;
        QString value;
        QString note;
        /// 0 to 1, drawn as a bar; none for no bar.
        std::optional<double> share;
    };
    struct Section {
        QString title;
        ChartKind kind = ChartKind::bars;
        /// Nothing is drawn without points.
        QList<ChartPoint> points;
        /// The top of a chart whose scale is given; 0 for its largest value.
        double top = 0;
        /// A dashed line at this value, with its name.
        std::optional<double> threshold;
        QString thresholdName;
        QList<Row> rows;
        /// What stands there without points and rows.
        QString emptyText;
    };

    QString title;
    QString period;
    /// When it was made.
    QString date;
    /// "%1 / %2", the number of the page and how many there are.
    QString pageFormat;
    QList<Figure> figures;
    QList<Section> sections;
};

[[nodiscard]] StatsDocument documentOf(const TodayStatsView& today, const QDateTime& now,
                                       const QLocale& locale);
[[nodiscard]] StatsDocument documentOf(const HistoryStatsView& history, const QDateTime& now,
                                       const QLocale& locale);

} // namespace norvin
