#pragma once

#include "model/AppUsageSession.h"
#include "model/Session.h"
#include "stats/StatsPeriod.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QMap>
#include <QTimeZone>

#include <algorithm>
#include <optional>

namespace norvin::test {

/// The statistics told plainly: every record is looked at for every figure, by the dates that a calendar
/// shows for it. Slow, and without anything of the program's own in it.
class PlainStatistics final {
public:
    QList<Session> sessions;
    QList<AppUsageSession> usage;
    QDateTime now;
    struct Running {
        int minutes = 0;
        double score = 0;
    };
    std::optional<Running> running;

    [[nodiscard]] QDateTime startOfDay(QDate date) const {
        const QDateTime start = date.startOfDay(now.timeZone());
        return start.isValid() ? start : startOfDay(date.addDays(1));
    }
    [[nodiscard]] QDateTime local(const QDateTime& instant) const {
        return instant.toTimeZone(now.timeZone());
    }
    template <class Record>
    [[nodiscard]] bool isIn(const Record& record, StatsPeriod period) const {
        const QHash<StatsPeriod, int> days{{StatsPeriod::today, 0},
                                           {StatsPeriod::week, 7},
                                           {StatsPeriod::month, 30},
                                           {StatsPeriod::year, 365}};
        return !days.contains(period) ||
               record.startTime >= startOfDay(now.date().addDays(-days.value(period)));
    }
    template <class Record>
    [[nodiscard]] bool isToday(const Record& record) const {
        return local(record.startTime).date() == now.date();
    }

    /// @param period none for today and nothing else
    [[nodiscard]] QList<Session> sessionsOf(std::optional<StatsPeriod> period) const {
        QList<Session> found;
        for (const Session& session : sessions) {
            if (session.completed && (period ? isIn(session, *period) : isToday(session)))
                found.append(session);
        }
        return found;
    }
    [[nodiscard]] QList<AppUsageSession> usageOf(std::optional<StatsPeriod> period) const {
        QList<AppUsageSession> found;
        for (const AppUsageSession& interval : usage) {
            if (period ? isIn(interval, *period) : isToday(interval))
                found.append(interval);
        }
        return found;
    }

    [[nodiscard]] int minutes(const QList<Session>& of) const {
        int sum = running ? running->minutes : 0;
        for (const Session& session : of)
            sum += session.durationMinutes;
        return sum;
    }
    [[nodiscard]] double score(const QList<Session>& of) const {
        QList<double> scores;
        for (const Session& session : of) {
            if (session.score)
                scores.append(*session.score);
        }
        if (running)
            scores.append(running->score);
        double sum = 0;
        for (const double score : scores)
            sum += score;
        return scores.isEmpty() ? 0.0 : sum / static_cast<double>(scores.size());
    }
    [[nodiscard]] int streak() const {
        int count = 0;
        for (QDate day = now.date(); count < 365; day = day.addDays(-1)) {
            // A date that this part of the world never had is no day without work.
            if (!day.startOfDay(now.timeZone()).isValid())
                continue;
            const bool worked = std::any_of(sessions.cbegin(), sessions.cend(), [&](const Session& session) {
                return session.completed && local(session.startTime).date() == day;
            });
            if (!worked)
                break;
            ++count;
        }
        return count;
    }
    [[nodiscard]] int bestDay(const QList<Session>& of) const {
        QMap<QDate, int> days;
        for (const Session& session : of)
            days[local(session.startTime).date()] += session.durationMinutes;
        const QList<int> sums = days.values();
        return sums.isEmpty() ? 0 : *std::max_element(sums.cbegin(), sums.cend());
    }
    [[nodiscard]] QList<int> hours() const {
        QList<int> sums(24, 0);
        for (const Session& session : sessionsOf(std::nullopt))
            sums[local(session.startTime).time().hour()] += session.durationMinutes;
        return sums;
    }
    [[nodiscard]] QList<int> weekdays(const QList<Session>& of) const {
        QList<int> sums(7, 0);
        for (const Session& session : of)
            sums[local(session.startTime).date().dayOfWeek() - 1] += session.durationMinutes;
        return sums;
    }
    /// Minutes by what stands on the axis: the hour since midnight, the date, or the month.
    [[nodiscard]] QMap<QString, int> chart(StatsPeriod period) const {
        QMap<QString, int> sums;
        for (const Session& session : sessionsOf(period))
            sums[bucketName(session.startTime, period)] += session.durationMinutes;
        if (running)
            sums[bucketName(now, period)] += running->minutes;
        return sums;
    }
    [[nodiscard]] QString bucketName(const QDateTime& instant, StatsPeriod period) const {
        if (period == StatsPeriod::today)
            return QString::number(startOfDay(now.date()).secsTo(instant) / 3600);
        const bool isByDay = period == StatsPeriod::week || period == StatsPeriod::month;
        return local(instant).toString(isByDay ? QStringLiteral("yyyy-MM-dd") : QStringLiteral("yyyy-MM"));
    }
    [[nodiscard]] static QMap<QString, qint64> categories(const QList<AppUsageSession>& of) {
        QMap<QString, qint64> sums;
        for (const AppUsageSession& interval : of)
            sums[interval.category] += interval.durationSeconds;
        return sums;
    }
    struct App {
        QString name;
        QString category;
        qint64 seconds = 0;
        bool operator==(const App&) const = default;
    };
    [[nodiscard]] static QMap<QString, App> apps(const QList<AppUsageSession>& of) {
        QMap<QString, App> sums;
        for (const AppUsageSession& interval : of) {
            if (!sums.contains(interval.bundleID))
                sums[interval.bundleID] = {interval.appName, interval.category, 0};
            sums[interval.bundleID].seconds += interval.durationSeconds;
        }
        return sums;
    }
    [[nodiscard]] static qint64 seconds(const QList<AppUsageSession>& of) {
        qint64 sum = 0;
        for (const AppUsageSession& interval : of)
            sum += interval.durationSeconds;
        return sum;
    }
};

} // namespace norvin::test
