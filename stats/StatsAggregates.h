#pragma once

#include "stats/StatsPeriod.h"
#include "stats/StatsTables.h"

#include <QList>
#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace norvin {

class PomodoroTimerService;

// The rules of the statistics, on plain values. Days are Julian day numbers in the calendar of the tables.

/// What a work phase that runs adds to the figures.
struct LiveWork {
    /// Every started minute counts.
    int minutes = 0;
    /// 0 to 10.
    double score = 0;
};
/// None while paused, in breaks, and when nothing runs.
[[nodiscard]] std::optional<LiveWork> liveWork(const PomodoroTimerService& timer);

struct CategoryTotal {
    QString category;
    qint64 duration = 0; ///< seconds
    bool operator==(const CategoryTotal&) const = default;
};

struct AppTotal {
    QString bundleID;
    /// As the first of the intervals has them.
    QString name;
    QString category;
    qint64 duration = 0; ///< seconds
    bool operator==(const AppTotal&) const = default;
};

/// A stretch of time of the history's chart.
struct TimeBucket {
    Instant date;
    /// Where the next one begins; none for the last, which has no end.
    Instant end;
    int minutes = 0;
    bool operator==(const TimeBucket&) const = default;
};

/// The units that a chart of a period counts in.
enum class BucketUnit { hour, day, month };
[[nodiscard]] BucketUnit bucketUnit(StatsPeriod period);

/// The records that start in the period, completed or not, in their order.
[[nodiscard]] SessionSpan filterSessions(SessionSpan sessions, StatsPeriod period, qint64 today);
[[nodiscard]] UsageSpan filterAppUsages(UsageSpan usage, StatsPeriod period, qint64 today);
/// Those of one day.
[[nodiscard]] SessionSpan sessionsOfDay(SessionSpan sessions, qint64 day);
[[nodiscard]] UsageSpan usageOfDay(UsageSpan usage, qint64 day);

// Of sessions, only the completed ones count in what follows.

[[nodiscard]] int countSessions(SessionSpan sessions);
/// Whole minutes.
[[nodiscard]] int focusMinutes(SessionSpan sessions, const std::optional<LiveWork>& live);
/// The scores that there are.
struct ScoreSum {
    double sum = 0;
    int count = 0;
    void add(double score) {
        sum += score;
        ++count;
    }
    /// 0 where there is none.
    [[nodiscard]] double mean() const { return count == 0 ? 0 : sum / count; }
};
[[nodiscard]] ScoreSum sumScores(SessionSpan sessions);
/// The mean of the scores that there are; 0 where there is none.
[[nodiscard]] double averageScore(SessionSpan sessions, const std::optional<LiveWork>& live);
/// Days in a row with a session, today the last of them; 365 at most. A date that the zone left out is no day
/// without one.
[[nodiscard]] int computeStreak(SessionSpan sessions, qint64 today, const StatsDays& days);
/// Minutes of the best day, and which it is: the earliest of equal ones; none without sessions.
struct BestDay {
    qint64 day = 0;
    int minutes = 0;
};
[[nodiscard]] std::optional<BestDay> bestDay(SessionSpan sessions);
/// Minutes by the hour of the wall clock that a session starts in.
[[nodiscard]] std::array<int, 24> buildHourlyData(SessionSpan sessions, const StatsDays& days);
/// Minutes by day of the week, Monday first.
[[nodiscard]] std::array<int, 7> buildWeekdayData(SessionSpan sessions);
/// Of a Julian day number: 0 for Monday to 6 for Sunday.
[[nodiscard]] int weekdayOf(qint64 day);
/// The minutes of a period over time: hours for a day, days for weeks, else months. Without a gap from the
/// start of the period (for all time: from the first session's month) to now, and on to the last session
/// where that lies in the future; what lies beyond 1,200 buckets belongs to the first or the last of them.
/// Their sum, like that of focusMinutes(), includes the work phase that runs.
/// @param sessions those of the period
[[nodiscard]] std::vector<TimeBucket> chartData(SessionSpan sessions, StatsPeriod period, Instant now,
                                                const StatsDays& days, const std::optional<LiveWork>& live);

[[nodiscard]] qint64 usageSeconds(UsageSpan usage);
/// Seconds by category as it is stored, the largest first; equal ones in the order of their first interval.
[[nodiscard]] QList<CategoryTotal> aggregateByCategory(UsageSpan usage,
                                                       const std::vector<UsageSource>& sources);
/// Seconds by bundle identifier, the largest first; equal ones in the order of their first interval.
[[nodiscard]] QList<AppTotal> aggregateByApp(UsageSpan usage, const std::vector<UsageSource>& sources);

} // namespace norvin
