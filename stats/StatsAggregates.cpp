#include "stats/StatsAggregates.h"

#include "focus/PomodoroTimerService.h"

#include <QHash>

#include <algorithm>
#include <limits>

namespace norvin {

namespace {

constexpr int longestStreak = 365;
constexpr qint64 mostBuckets = 1200;
/// How many of those lie before now at most.
constexpr qint64 mostPastBuckets = 1000;
constexpr qint64 hourLength = 3'600'000;

int bounded(qint64 sum) {
    return static_cast<int>(std::clamp<qint64>(sum, 0, std::numeric_limits<int>::max()));
}

template <class Row>
std::span<const Row> since(std::span<const Row> rows, qint64 day) {
    const auto first =
        std::partition_point(rows.begin(), rows.end(), [day](const Row& row) { return row.day < day; });
    return rows.subspan(static_cast<size_t>(first - rows.begin()));
}

template <class Row>
std::span<const Row> ofDay(std::span<const Row> rows, qint64 day) {
    const std::span<const Row> from = since(rows, day);
    return from.first(from.size() - since(from, day + 1).size());
}

template <class Row>
std::span<const Row> ofPeriod(std::span<const Row> rows, StatsPeriod period, qint64 today) {
    const std::optional<int> back = daysBack(period);
    return back ? since(rows, today - *back) : rows;
}

int monthOf(QDate date) {
    return date.year() * 12 + date.month() - 1;
}

/// The instants at which the buckets begin, by their number; one more is where the last one would end.
class BucketLimits final {
public:
    BucketLimits(StatsPeriod period, Instant now, const StatsDays& days, SessionSpan sessions)
        : m_unit(bucketUnit(period))
        , m_days(days) {
        StatsDays calendar = days;
        const qint64 today = calendar.dayOf(now);
        m_origin = m_days.startOf(today);
        const qint64 current = numberOf(now, today);
        qint64 first = current;
        qint64 last = current;
        if (m_unit == BucketUnit::hour) {
            first = 0;
            last = (m_days.startOf(today + 1).milliseconds() - 1 - m_origin.milliseconds()) / hourLength;
        } else if (const std::optional<int> back = daysBack(period)) {
            first = numberOf(m_days.startOf(today - *back), today - *back);
        } else if (!sessions.empty()) {
            first = std::min(first, numberOf(sessions.front().start, sessions.front().day));
        }
        if (!sessions.empty())
            last = std::max(last, numberOf(sessions.back().start, sessions.back().day));
        m_first = std::max(first, current - mostPastBuckets);
        m_last = std::min(last, m_first + mostBuckets - 1);
    }

    [[nodiscard]] qint64 first() const { return m_first; }
    [[nodiscard]] qint64 last() const { return m_last; }
    [[nodiscard]] Instant startOf(qint64 number) const {
        switch (m_unit) {
        case BucketUnit::hour:
            return Instant(m_origin.milliseconds() + number * hourLength);
        case BucketUnit::day:
            return m_days.startOf(number);
        case BucketUnit::month:
            break;
        }
        const auto year = static_cast<int>(number / 12);
        return m_days.startOf(QDate(year, static_cast<int>(number % 12) + 1, 1).toJulianDay());
    }

private:
    [[nodiscard]] qint64 numberOf(Instant instant, qint64 day) const {
        switch (m_unit) {
        case BucketUnit::hour:
            return (instant.milliseconds() - m_origin.milliseconds()) / hourLength;
        case BucketUnit::day:
            return day;
        case BucketUnit::month:
            break;
        }
        return monthOf(QDate::fromJulianDay(day));
    }

    BucketUnit m_unit;
    const StatsDays& m_days;
    Instant m_origin;
    qint64 m_first = 0;
    qint64 m_last = 0;
};

} // namespace

std::optional<LiveWork> liveWork(const PomodoroTimerService& timer) {
    if (timer.state() != TimerState::running || timer.phase() != PomodoroPhase::work)
        return std::nullopt;
    const int elapsed = timer.initialDuration() - timer.timeRemaining();
    return LiveWork{.minutes = (elapsed + 59) / 60, .score = timer.calculateCurrentScore()};
}

BucketUnit bucketUnit(StatsPeriod period) {
    switch (period) {
    case StatsPeriod::today:
        return BucketUnit::hour;
    case StatsPeriod::week:
    case StatsPeriod::month:
        return BucketUnit::day;
    case StatsPeriod::year:
    case StatsPeriod::all:
        break;
    }
    return BucketUnit::month;
}

SessionSpan filterSessions(SessionSpan sessions, StatsPeriod period, qint64 today) {
    return ofPeriod(sessions, period, today);
}

UsageSpan filterAppUsages(UsageSpan usage, StatsPeriod period, qint64 today) {
    return ofPeriod(usage, period, today);
}

SessionSpan sessionsOfDay(SessionSpan sessions, qint64 day) {
    return ofDay(sessions, day);
}

UsageSpan usageOfDay(UsageSpan usage, qint64 day) {
    return ofDay(usage, day);
}

int countSessions(SessionSpan sessions) {
    return static_cast<int>(
        std::count_if(sessions.begin(), sessions.end(), [](const SessionRow& row) { return row.completed; }));
}

int focusMinutes(SessionSpan sessions, const std::optional<LiveWork>& live) {
    qint64 minutes = live ? live->minutes : 0;
    for (const SessionRow& session : sessions)
        minutes += session.completed ? session.durationMinutes : 0;
    return bounded(minutes);
}

double averageScore(SessionSpan sessions, const std::optional<LiveWork>& live) {
    ScoreSum sum = sumScores(sessions);
    if (live)
        sum.add(live->score);
    return sum.mean();
}

ScoreSum sumScores(SessionSpan sessions) {
    ScoreSum sum;
    for (const SessionRow& session : sessions) {
        if (session.completed && session.score)
            sum.add(*session.score);
    }
    return sum;
}

int computeStreak(SessionSpan sessions, qint64 today, const StatsDays& days) {
    // Backwards from the last session that does not lie in the future.
    SessionSpan past = sessions.first(sessions.size() - since(sessions, today + 1).size());
    int count = 0;
    for (qint64 day = today; count < longestStreak; --day) {
        const SessionSpan ofThatDay = since(past, day);
        if (countSessions(ofThatDay) > 0)
            ++count;
        else if (days.startOf(day) != days.startOf(day + 1))
            break;
        past = past.first(past.size() - ofThatDay.size());
    }
    return count;
}

std::optional<BestDay> bestDay(SessionSpan sessions) {
    std::optional<BestDay> best;
    for (size_t i = 0; i < sessions.size();) {
        const qint64 day = sessions[i].day;
        qint64 minutes = 0;
        bool counts = false;
        for (; i < sessions.size() && sessions[i].day == day; ++i) {
            counts = counts || sessions[i].completed;
            minutes += sessions[i].completed ? sessions[i].durationMinutes : 0;
        }
        if (counts && (!best || bounded(minutes) > best->minutes))
            best = BestDay{.day = day, .minutes = bounded(minutes)};
    }
    return best;
}

std::array<int, 24> buildHourlyData(SessionSpan sessions, const StatsDays& days) {
    std::array<int, 24> minutes{};
    for (const SessionRow& session : sessions) {
        if (session.completed)
            minutes.at(static_cast<size_t>(days.dateTime(session.start).time().hour())) +=
                session.durationMinutes;
    }
    return minutes;
}

std::array<int, 7> buildWeekdayData(SessionSpan sessions) {
    std::array<int, 7> minutes{};
    for (const SessionRow& session : sessions) {
        if (session.completed)
            minutes.at(static_cast<size_t>(weekdayOf(session.day))) += session.durationMinutes;
    }
    return minutes;
}

int weekdayOf(qint64 day) {
    // Julian day 0 is a Monday.
    return static_cast<int>((day % 7 + 7) % 7);
}

std::vector<TimeBucket> chartData(SessionSpan sessions, StatsPeriod period, Instant now,
                                  const StatsDays& days, const std::optional<LiveWork>& live) {
    const BucketLimits limits(period, now, days, sessions);
    std::vector<TimeBucket> buckets;
    buckets.reserve(static_cast<size_t>(limits.last() - limits.first() + 1));
    for (qint64 number = limits.first(); number <= limits.last(); ++number) {
        const Instant start = limits.startOf(number);
        // A day that the zone left out is none.
        if (!buckets.empty() && buckets.back().date == start)
            continue;
        if (!buckets.empty())
            buckets.back().end = start;
        buckets.push_back({.date = start, .end = {}, .minutes = 0});
    }
    const auto endsBefore = [](const TimeBucket& bucket, Instant instant) {
        return !bucket.end.isNone() && bucket.end <= instant;
    };
    auto bucket = buckets.begin();
    for (const SessionRow& session : sessions) {
        while (endsBefore(*bucket, session.start))
            ++bucket;
        if (session.completed)
            bucket->minutes += session.durationMinutes;
    }
    if (live)
        std::lower_bound(buckets.begin(), buckets.end(), now, endsBefore)->minutes += live->minutes;
    return buckets;
}

qint64 usageSeconds(UsageSpan usage) {
    qint64 seconds = 0;
    for (const UsageEntry& entry : usage)
        seconds += entry.seconds;
    return seconds;
}

QList<CategoryTotal> aggregateByCategory(UsageSpan usage, const std::vector<UsageSource>& sources) {
    // Of each source the place of its category; categories are texts, and looked up once a source.
    std::vector<qsizetype> places(sources.size(), -1);
    QList<CategoryTotal> totals;
    for (const UsageEntry& entry : usage) {
        qsizetype& place = places[static_cast<size_t>(entry.source)];
        if (place < 0) {
            const QString& category = sources[static_cast<size_t>(entry.source)].category;
            const auto known =
                std::find_if(totals.cbegin(), totals.cend(),
                             [&category](const CategoryTotal& total) { return total.category == category; });
            place = known - totals.cbegin();
            if (known == totals.cend())
                totals.append({.category = category, .duration = 0});
        }
        totals[place].duration += entry.seconds;
    }
    std::stable_sort(totals.begin(), totals.end(),
                     [](const CategoryTotal& a, const CategoryTotal& b) { return a.duration > b.duration; });
    return totals;
}

QList<AppTotal> aggregateByApp(UsageSpan usage, const std::vector<UsageSource>& sources) {
    std::vector<qsizetype> places(sources.size(), -1);
    QHash<QString, qsizetype> placeOfBundle;
    QList<AppTotal> totals;
    for (const UsageEntry& entry : usage) {
        qsizetype& place = places[static_cast<size_t>(entry.source)];
        if (place < 0) {
            const UsageSource& source = sources[static_cast<size_t>(entry.source)];
            const auto known = placeOfBundle.constFind(source.bundleID);
            place = known == placeOfBundle.constEnd() ? totals.size() : *known;
            if (place == totals.size()) {
                placeOfBundle.insert(source.bundleID, place);
                totals.append({.bundleID = source.bundleID,
                               .name = source.appName,
                               .category = source.category,
                               .duration = 0});
            }
        }
        totals[place].duration += entry.seconds;
    }
    std::stable_sort(totals.begin(), totals.end(),
                     [](const AppTotal& a, const AppTotal& b) { return a.duration > b.duration; });
    return totals;
}

} // namespace norvin
