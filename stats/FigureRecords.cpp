#include "stats/FigureRecords.h"

#include <algorithm>
#include <array>
#include <functional>
#include <utility>

namespace norvin {

namespace {

constexpr std::array figureNames{std::pair{"sessions", Figure::sessions},
                                 std::pair{"focus", Figure::focus},
                                 std::pair{"score", Figure::score},
                                 std::pair{"streak", Figure::streak},
                                 std::pair{"apps", Figure::apps},
                                 std::pair{"best_day", Figure::bestDay},
                                 std::pair{"hour", Figure::hour},
                                 std::pair{"bucket", Figure::bucket},
                                 std::pair{"weekday", Figure::weekday},
                                 std::pair{"category", Figure::category},
                                 std::pair{"application", Figure::application}};

using Accept = std::function<bool(const SessionRow&)>;

SessionSpan sessionsOf(const FigureQuestion& question, const StatsTables& tables, qint64 today) {
    return question.period ? filterSessions(tables.sessions(), *question.period, today)
                           : sessionsOfDay(tables.sessions(), today);
}

UsageSpan usageOf(const FigureQuestion& question, const StatsTables& tables, qint64 today) {
    return question.period ? filterAppUsages(tables.usage(), *question.period, today)
                           : usageOfDay(tables.usage(), today);
}

bool isInBucket(const FigureQuestion& question, Instant instant) {
    return (question.from.isNone() || question.from <= instant) &&
           (question.to.isNone() || instant < question.to);
}

void append(std::vector<FigureRecord>& records, SessionSpan sessions, const Accept& accept) {
    const auto add = [&records, &accept](const SessionRow& session) {
        if (session.completed && (!accept || accept(session)))
            records.emplace_back(session);
    };
    const bool isOneDay = sessions.empty() || sessions.front().day == sessions.back().day;
    if (isOneDay)
        std::for_each(sessions.begin(), sessions.end(), add);
    else
        std::for_each(sessions.rbegin(), sessions.rend(), add);
}

void appendStreak(std::vector<FigureRecord>& records, const StatsTables& tables, qint64 today) {
    int left = computeStreak(tables.sessions(), today, tables.days());
    for (qint64 day = today; left > 0; --day) {
        // None on a date that the zone left out.
        const int count = countSessions(sessionsOfDay(tables.sessions(), day));
        if (count == 0)
            continue;
        records.emplace_back(DayCount{.day = day, .sessions = count});
        --left;
    }
}

std::vector<UsageEntry> usageOfCategory(UsageSpan usage, const StatsTables& tables, const QString& category) {
    std::vector<UsageEntry> found;
    std::copy_if(usage.begin(), usage.end(), std::back_inserter(found), [&](const UsageEntry& entry) {
        return tables.sources()[static_cast<size_t>(entry.source)].category == category;
    });
    return found;
}

void append(std::vector<FigureRecord>& records, QList<AppTotal> totals) {
    std::move(totals.begin(), totals.end(), std::back_inserter(records));
}

} // namespace

std::optional<Figure> figureFromRawValue(const QString& raw) {
    const auto* const found = std::find_if(figureNames.begin(), figureNames.end(), [&raw](const auto& name) {
        return raw == QLatin1String(name.first);
    });
    return found == figureNames.end() ? std::nullopt : std::optional(found->second);
}

bool countsLive(const FigureQuestion& question, Instant now) {
    switch (question.figure) {
    case Figure::focus:
    case Figure::score:
        return true;
    case Figure::bucket:
        return isInBucket(question, now);
    default:
        return false;
    }
}

std::vector<FigureRecord> recordsBehind(const FigureQuestion& question, const StatsTables& tables,
                                        const FigureMoment& moment) {
    std::vector<FigureRecord> records;
    if (moment.live && countsLive(question, moment.now))
        records.emplace_back(*moment.live);
    const SessionSpan sessions = sessionsOf(question, tables, moment.today);
    switch (question.figure) {
    case Figure::sessions:
    case Figure::focus:
        append(records, sessions, {});
        break;
    case Figure::score:
        append(records, sessions, [](const SessionRow& session) { return session.score.has_value(); });
        break;
    case Figure::streak:
        appendStreak(records, tables, moment.today);
        break;
    case Figure::bestDay:
        if (const std::optional<BestDay> best = bestDay(sessions))
            append(records, sessionsOfDay(sessions, best->day), {});
        break;
    case Figure::day:
        append(records, sessionsOfDay(tables.sessions(), question.key.toLongLong()), {});
        break;
    case Figure::hour:
        append(records, sessions, [&, hour = question.key.toInt()](const SessionRow& session) {
            return tables.days().dateTime(session.start).time().hour() == hour;
        });
        break;
    case Figure::bucket:
        append(records, sessions,
               [&question](const SessionRow& session) { return isInBucket(question, session.start); });
        break;
    case Figure::weekday:
        append(records, sessions, [weekday = question.key.toInt()](const SessionRow& session) {
            return weekdayOf(session.day) == weekday;
        });
        break;
    case Figure::apps:
        append(records, aggregateByApp(usageOf(question, tables, moment.today), tables.sources()));
        break;
    case Figure::category:
        append(records,
               aggregateByApp(usageOfCategory(usageOf(question, tables, moment.today), tables, question.key),
                              tables.sources()));
        break;
    case Figure::application:
        break;
    }
    return records;
}

FigureSum sumOf(const std::vector<FigureRecord>& records) {
    struct Adder {
        FigureSum sum = {};
        void operator()(const LiveWork& live) {
            sum.hasLive = true;
            sum.minutes += live.minutes;
            sum.scores.add(live.score);
        }
        void operator()(const SessionRow& session) {
            ++sum.sessions;
            sum.minutes += session.durationMinutes;
            if (session.score)
                sum.scores.add(*session.score);
        }
        void operator()(const DayCount& day) {
            ++sum.days;
            sum.sessions += day.sessions;
        }
        void operator()(const AppTotal& total) {
            ++sum.applications;
            sum.seconds += total.duration;
        }
    };
    Adder adder;
    for (const FigureRecord& record : records)
        std::visit(adder, record);
    return adder.sum;
}

UsageQuestion usageQuestion(const FigureQuestion& question, const StatsDays& days, qint64 today) {
    UsageQuestion asked{.bundleID = question.key, .category = question.category, .from = {}, .to = {}};
    if (!question.period) {
        asked.from = days.startOf(today);
        asked.to = days.startOf(today + 1);
    } else if (const std::optional<int> back = daysBack(*question.period)) {
        asked.from = days.startOf(today - *back);
    }
    return asked;
}

UsageSum sumOfIntervals(const FigureQuestion& question, const StatsTables& tables, qint64 today) {
    UsageSum sum;
    sum.total.bundleID = sum.total.name = question.key;
    for (const UsageEntry& entry : usageOf(question, tables, today)) {
        const UsageSource& source = tables.sources()[static_cast<size_t>(entry.source)];
        if (source.bundleID != question.key || (question.category && source.category != *question.category))
            continue;
        if (sum.intervals == 0) {
            sum.total.name = source.appName;
            sum.total.category = source.category;
        }
        sum.intervals += entry.intervals;
        sum.total.duration += entry.seconds;
    }
    return sum;
}

} // namespace norvin
