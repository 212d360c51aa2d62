#pragma once

#include "model/AppUsageSession.h"
#include "model/Session.h"

#include <QDate>
#include <QList>
#include <QTimeZone>

#include <algorithm>
#include <array>
#include <functional>
#include <random>

namespace norvin {

/// Writes down what somebody might have done for years: sessions on most working days and some others, with
/// vacations; the applications that were in front meanwhile, of which some change their names and categories
/// over time; late nights, phases that were broken off, sessions without a score. The same seed gives the
/// same records on every machine.
class PlausibleUser final {
public:
    struct Habits {
        int sessionsADay = 14;
        /// Intervals a session.
        int intervals = 41;
        int applications = 40;
        /// Shares of the sessions, in per cent.
        int unscored = 3;
        int brokenOff = 2;
        /// Of the sessions, in per cent: at any hour of the day.
        int atOddHours = 4;
        QList<TaskId> tasks = {};
    };

    PlausibleUser(quint32 seed, const QTimeZone& zone, const Habits& habits)
        : m_random(seed)
        , m_zone(zone)
        , m_habits(habits) {}

    /// Everything of the days from the first to the last, in the order in which it happened.
    void live(QDate first, QDate last, const std::function<void(const Session&)>& session,
              const std::function<void(const AppUsageSession&)>& usage) {
        for (QDate day = first; day <= last; day = day.addDays(1)) {
            if (!worksOn(day))
                continue;
            const int count = 1 + number(2 * m_habits.sessionsADay - 1);
            QTime time(7 + number(3), number(60), number(60));
            for (int i = 0; i < count; ++i) {
                const bool isOdd = chance(m_habits.atOddHours);
                const QTime at = isOdd ? QTime(number(24), number(60), number(60), number(1000)) : time;
                const QDateTime start(day, at, m_zone);
                // An hour that the clock leaves out cannot be worked in.
                if (start.isValid())
                    work(start.toUTC(), session, usage);
                if (!isOdd && time.addSecs(2400) < time)
                    break;
                time = time.addSecs(1500 + number(900));
            }
        }
    }

    /// From 0 to one less.
    int number(int below) { return static_cast<int>(m_random() % static_cast<quint32>(below)); }
    bool chance(int percent) { return number(100) < percent; }

private:
    bool worksOn(QDate day) {
        // Some weeks of each season are free.
        if (day.weekNumber() % 13 == 7)
            return chance(5);
        return chance(day.dayOfWeek() <= 5 ? 92 : 25);
    }

    void work(const QDateTime& start, const std::function<void(const Session&)>& tellSession,
              const std::function<void(const AppUsageSession&)>& tellUsage) {
        Session session;
        session.id = SessionId(identity());
        session.startTime = start;
        session.durationMinutes = chance(70) ? 25 : 1 + number(90);
        session.completed = !chance(m_habits.brokenOff);
        if (!m_habits.tasks.isEmpty() && chance(80))
            session.task = m_habits.tasks.at(number(static_cast<int>(m_habits.tasks.size())));
        if (!chance(m_habits.unscored))
            session.score = number(101) / 10.0;
        session.interruptionCount = number(4);
        session.blockedAttemptsCount = number(3);
        session.blockedSiteAttemptsCount = number(3);
        session.distractedTimeSeconds = number(session.durationMinutes * 20 + 1);
        session.legitimateTimeSeconds = session.durationMinutes * 60 - session.distractedTimeSeconds;
        tellSession(session);

        QDateTime at = start;
        for (int left = session.durationMinutes * 60; left > 0 && m_habits.intervals > 0;) {
            const int length =
                std::min(left, 1 + number(2 * session.durationMinutes * 60 / m_habits.intervals + 1));
            tellUsage(interval(at, length));
            at = at.addSecs(length);
            left -= length;
        }
    }

    AppUsageSession interval(const QDateTime& start, int seconds) {
        // The first of the applications take most of the time.
        int which = 0;
        while (which < m_habits.applications - 1 && chance(75))
            ++which;
        const bool isRenamed = which % 5 == 1 && start.date().year() % 2 == 0;
        AppUsageSession usage;
        usage.id = AppUsageSessionId(identity());
        usage.bundleID = QStringLiteral("org.example.App%1").arg(which);
        usage.appName =
            QStringLiteral("App %1").arg(which) + (isRenamed ? QStringLiteral(" Pro") : QString());
        usage.startTime = start;
        usage.endTime = start.addSecs(seconds);
        usage.durationSeconds = seconds;
        static const QStringList categories{
            QStringLiteral("category_development"), QStringLiteral("category_productivity"),
            QStringLiteral("category_other"), QStringLiteral("category_entertainment"),
            QStringLiteral("category_navigation")};
        usage.category = categories.at((which + (isRenamed ? 1 : 0)) % categories.size());
        return usage;
    }

    QUuid identity() {
        std::array<quint32, 4> words{};
        for (quint32& word : words)
            word = static_cast<quint32>(m_random());
        return QUuid::fromRfc4122(QByteArrayView(reinterpret_cast<const char*>(words.data()), 16));
    }

    std::mt19937 m_random;
    QTimeZone m_zone;
    Habits m_habits;
};

} // namespace norvin
