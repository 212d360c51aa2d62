#pragma once

#include "stats/StatsAggregates.h"

#include <QString>

#include <optional>
#include <variant>
#include <vector>

namespace norvin {

/// What the statistics can be asked about.
enum class Figure {
    sessions,
    focus,
    score,
    streak,
    apps,
    bestDay,
    hour,
    bucket,
    weekday,
    category,
    application,
    day ///< the sessions of one calendar day, from the list of a streak
};

/// The figure of a raw value ("sessions", "best_day"); none for any other text.
[[nodiscard]] std::optional<Figure> figureFromRawValue(const QString& raw);

/// One figure, bar or slice of a page.
struct FigureQuestion {
    Figure figure = Figure::sessions;
    /// Place in the chart, stored category, bundle identifier or Julian day, as the figure needs one.
    QString key = {};
    /// That of the history page; none on the page about today.
    std::optional<StatsPeriod> period = {};
    /// Where a bucket begins in the chart, and what belongs to it; none of the limits is open.
    Instant date = {};
    Instant from = {};
    Instant to = {};
    /// Of an application, only what was recorded under this category; none for all.
    std::optional<QString> category = {};
};

/// The moment that a question is answered for.
struct FigureMoment {
    Instant now;
    /// Julian day number.
    qint64 today = 0;
    /// What the work phase that runs adds; none where none does.
    std::optional<LiveWork> live = {};
};

/// A day of a streak.
struct DayCount {
    /// Julian day number.
    qint64 day = 0;
    int sessions = 0;
    bool operator==(const DayCount&) const = default;
};

/// One of the records behind a figure.
using FigureRecord = std::variant<LiveWork, SessionRow, DayCount, AppTotal>;

/// The records that make up a figure: the work phase that runs first, where it is a part of it. Sessions by
/// their start, within a day the first of them first, else the newest; applications by their seconds, the
/// largest first; days backwards from today. None for Figure::application, whose intervals are asked for with
/// usageQuestion().
[[nodiscard]] std::vector<FigureRecord> recordsBehind(const FigureQuestion& question,
                                                      const StatsTables& tables, const FigureMoment& moment);
/// Whether the work phase that runs is a part of the figure.
[[nodiscard]] bool countsLive(const FigureQuestion& question, Instant now);

/// What records add up to.
struct FigureSum {
    /// Whether the work phase that runs is among them.
    bool hasLive = false;
    /// Recorded ones.
    int sessions = 0;
    qint64 minutes = 0;
    ScoreSum scores;
    int days = 0;
    int applications = 0;
    qint64 seconds = 0;
};
[[nodiscard]] FigureSum sumOf(const std::vector<FigureRecord>& records);

/// Which intervals to ask the store for.
struct UsageQuestion {
    QString bundleID;
    /// None for all.
    std::optional<QString> category;
    // Those that start in [from, to); none of an instant is open.
    Instant from;
    Instant to;
    bool operator==(const UsageQuestion&) const = default;
};
/// @param question about an application
[[nodiscard]] UsageQuestion usageQuestion(const FigureQuestion& question, const StatsDays& days,
                                          qint64 today);
/// What the intervals of an application add up to.
struct UsageSum {
    /// Of the application, under the name and category of the first interval; without any, under its
    /// identifier.
    AppTotal total;
    qint64 intervals = 0;
};
[[nodiscard]] UsageSum sumOfIntervals(const FigureQuestion& question, const StatsTables& tables,
                                      qint64 today);

} // namespace norvin
