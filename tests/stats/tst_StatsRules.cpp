#include "stats/SessionScoreTerms.h"
#include "stats/StatsAggregates.h"
#include "stats/StatsFormats.h"
#include "tests/stats/PlainStatistics.h"
#include "tests/support/PlausibleUser.h"

#include <QTest>
#include <QTranslator>

using namespace norvin;
using namespace norvin::test;

/// The rules of the statistics on records as people make them, against the same rules told plainly.
class StatsRulesTest final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void agreeWithAPlainCount_data();
    void agreeWithAPlainCount();
    void periodsBeginAtTheStartOfADay();
    void streakEndsAtAYear();
    void bucketsAreBounded();
    void lengthsAreWrittenInTheirKeys();
    void termsAddUpToTheScore();
};

namespace {

QDateTime at(const char* zone, const char* local) {
    return QDateTime(QDateTime::fromString(QLatin1String(local), Qt::ISODate).date(),
                     QDateTime::fromString(QLatin1String(local), Qt::ISODate).time(), QTimeZone(zone));
}

void compareChart(const PlainStatistics& plain, StatsPeriod period, const std::vector<TimeBucket>& buckets) {
    QMap<QString, int> expected = plain.chart(period);
    QVERIFY(!buckets.empty());
    int total = 0;
    for (size_t i = 0; i < buckets.size(); ++i) {
        const TimeBucket& bucket = buckets[i];
        const QString name = plain.bucketName(bucket.date.dateTime(), period);
        QCOMPARE(bucket.minutes, expected.take(name));
        QCOMPARE(bucket.end, i + 1 < buckets.size() ? buckets[i + 1].date : Instant());
        QVERIFY(bucket.end.isNone() || bucket.date < bucket.end);
        total += bucket.minutes;
    }
    QVERIFY2(expected.isEmpty(), qPrintable(expected.keys().join(u' ')));
    QCOMPARE(total, plain.minutes(plain.sessionsOf(period)));
    QVERIFY(buckets.front().date <= Instant(plain.now));
}

void compareUsage(const QList<AppUsageSession>& plain, UsageSpan usage,
                  const std::vector<UsageSource>& sources) {
    QCOMPARE(usageSeconds(usage), PlainStatistics::seconds(plain));
    QMap<QString, qint64> categories;
    qint64 last = std::numeric_limits<qint64>::max();
    for (const CategoryTotal& total : aggregateByCategory(usage, sources)) {
        QVERIFY(total.duration <= std::exchange(last, total.duration));
        QVERIFY(!categories.contains(total.category));
        categories[total.category] = total.duration;
    }
    QCOMPARE(categories, PlainStatistics::categories(plain));
    QMap<QString, PlainStatistics::App> apps;
    last = std::numeric_limits<qint64>::max();
    for (const AppTotal& total : aggregateByApp(usage, sources)) {
        QVERIFY(total.duration <= std::exchange(last, total.duration));
        apps[total.bundleID] = {total.name, total.category, total.duration};
    }
    QVERIFY(apps == PlainStatistics::apps(plain));
}

} // namespace

void StatsRulesTest::agreeWithAPlainCount_data() {
    QTest::addColumn<QDateTime>("now");
    QTest::addColumn<quint32>("seed");
    // Both sides of what changes clocks and calendars.
    const std::array nows{
        std::pair{"Europe/Paris", "2025-03-29T23:59:59"},
        std::pair{"Europe/Paris", "2025-03-30T12:00:00"},
        std::pair{"Europe/Paris", "2025-10-26T01:30:00"},
        std::pair{"Europe/Paris", "2025-10-26T23:59:59"},
        std::pair{"America/New_York", "2024-03-10T01:59:59"},
        std::pair{"America/New_York", "2024-03-11T00:00:00"},
        std::pair{"America/New_York", "2024-11-03T12:00:00"},
        std::pair{"Asia/Kolkata", "2024-02-29T18:00:00"},
        std::pair{"Asia/Kolkata", "2025-01-01T00:00:00"},
        std::pair{"Pacific/Apia", "2011-12-29T20:00:00"},
        std::pair{"Pacific/Apia", "2011-12-31T08:00:00"},
        std::pair{"Pacific/Apia", "2012-01-06T08:00:00"},
        std::pair{"UTC", "2025-12-31T23:00:00"},
        std::pair{"Asia/Beirut", "2022-10-30T09:00:00"},
    };
    quint32 seed = 0;
    for (const auto& [zone, local] : nows) {
        for (int i = 0; i < 2; ++i) {
            ++seed;
            QTest::addRow("%s %s, seed %u", zone, local, seed) << at(zone, local) << seed;
        }
    }
}

void StatsRulesTest::agreeWithAPlainCount() {
    QFETCH(const QDateTime, now);
    QFETCH(const quint32, seed);
    const QTimeZone zone = now.timeZone();
    PlainStatistics plain;
    plain.now = now;
    PlausibleUser user(seed, zone, {.sessionsADay = 3, .intervals = 4, .applications = 9, .atOddHours = 30});
    // A clock that went ahead has left some records of the day after tomorrow.
    user.live(
        now.date().addDays(-420), now.date().addDays(2),
        [&](const Session& session) { plain.sessions.append(session); },
        [&](const AppUsageSession& usage) { plain.usage.append(usage); });
    if (seed % 2 == 0)
        plain.running = PlainStatistics::Running{.minutes = 17, .score = 6.5};
    std::optional<LiveWork> live;
    if (plain.running)
        live = LiveWork{.minutes = plain.running->minutes, .score = plain.running->score};

    // Sorted in from any order; the plain count keeps to the order of their start.
    StatsTables tables(zone);
    QList<Session> sessions = plain.sessions;
    QList<AppUsageSession> usage = plain.usage;
    std::mt19937 random(seed);
    for (int i = 0; i < 40; ++i) {
        sessions.swapItemsAt(static_cast<qsizetype>(random()) % sessions.size(), sessions.size() - 1);
        usage.swapItemsAt(static_cast<qsizetype>(random()) % usage.size(), usage.size() - 1);
    }
    for (const Session& session : std::as_const(sessions))
        tables.add(session);
    for (const AppUsageSession& interval : std::as_const(usage))
        tables.add(interval);
    const auto byStart = [](const auto& a, const auto& b) { return a.startTime < b.startTime; };
    std::stable_sort(plain.sessions.begin(), plain.sessions.end(), byStart);
    std::stable_sort(plain.usage.begin(), plain.usage.end(), byStart);

    const qint64 today = tables.days().dayOf(Instant(now));
    QCOMPARE(QDate::fromJulianDay(today), now.date());
    QCOMPARE(computeStreak(tables.sessions(), today, tables.days()), plain.streak());
    const SessionSpan todays = sessionsOfDay(tables.sessions(), today);
    QCOMPARE(countSessions(todays), plain.sessionsOf(std::nullopt).size());
    QCOMPARE(focusMinutes(todays, live), plain.minutes(plain.sessionsOf(std::nullopt)));
    QCOMPARE(averageScore(todays, live), plain.score(plain.sessionsOf(std::nullopt)));
    const std::array<int, 24> hours = buildHourlyData(todays, tables.days());
    QCOMPARE(QList<int>(hours.begin(), hours.end()), plain.hours());
    compareUsage(plain.usageOf(std::nullopt), usageOfDay(tables.usage(), today), tables.sources());

    for (const StatsPeriod period : allStatsPeriods) {
        const SessionSpan of = filterSessions(tables.sessions(), period, today);
        const QList<Session> expected = plain.sessionsOf(period);
        QCOMPARE(countSessions(of), expected.size());
        QCOMPARE(focusMinutes(of, live), plain.minutes(expected));
        QCOMPARE(averageScore(of, live), plain.score(expected));
        QCOMPARE(bestDay(of).value_or(BestDay{}).minutes, plain.bestDay(expected));
        const std::array<int, 7> weekdays = buildWeekdayData(of);
        QCOMPARE(QList<int>(weekdays.begin(), weekdays.end()), plain.weekdays(expected));
        compareChart(plain, period, chartData(of, period, Instant(now), tables.days(), live));
        compareUsage(plain.usageOf(period), filterAppUsages(tables.usage(), period, today), tables.sources());
        if (QTest::currentTestFailed())
            return;
    }
}

void StatsRulesTest::periodsBeginAtTheStartOfADay() {
    const QDateTime now = at("Europe/Paris", "2025-04-02T10:00:00");
    StatsTables tables(now.timeZone());
    const auto add = [&](const QDateTime& start) {
        Session session;
        session.startTime = start;
        session.completed = true;
        session.durationMinutes = 25;
        tables.add(session);
    };
    // The clock went forward in between.
    const QDateTime boundary = at("Europe/Paris", "2025-03-26T00:00:00");
    add(boundary.addSecs(-1));
    add(boundary);
    add(now.addDays(1));
    const qint64 today = now.date().toJulianDay();
    QCOMPARE(filterSessions(tables.sessions(), StatsPeriod::week, today).size(), size_t(2));
    QCOMPARE(filterSessions(tables.sessions(), StatsPeriod::today, today).size(), size_t(1));
    QCOMPARE(sessionsOfDay(tables.sessions(), today).size(), size_t(0));
    QCOMPARE(filterSessions(tables.sessions(), StatsPeriod::all, today).size(), size_t(3));
}

void StatsRulesTest::streakEndsAtAYear() {
    const QDateTime now = at("Europe/Paris", "2025-04-02T10:00:00");
    StatsTables tables(now.timeZone());
    QCOMPARE(computeStreak(tables.sessions(), now.date().toJulianDay(), tables.days()), 0);
    for (int day = 400; day >= 0; --day) {
        Session session;
        session.startTime = now.addDays(-day);
        session.completed = true;
        tables.add(session);
    }
    QCOMPARE(computeStreak(tables.sessions(), now.date().toJulianDay(), tables.days()), 365);
    // Yesterday does not help where there is nothing today.
    QCOMPARE(computeStreak(tables.sessions(), now.date().toJulianDay() + 1, tables.days()), 0);
}

void StatsRulesTest::bucketsAreBounded() {
    const QDateTime now = at("Europe/Paris", "2025-04-02T10:00:00");
    StatsTables tables(now.timeZone());
    for (const char* start :
         {"0001-01-01T00:00:00", "1890-06-01T10:00:00", "2025-04-02T09:00:00", "9999-12-31T00:00:00"}) {
        Session session;
        session.startTime = at("UTC", start);
        session.completed = true;
        session.durationMinutes = 10;
        tables.add(session);
    }
    for (const StatsPeriod period : allStatsPeriods) {
        const SessionSpan of = filterSessions(tables.sessions(), period, now.date().toJulianDay());
        const std::vector<TimeBucket> buckets =
            chartData(of, period, Instant(now), tables.days(), LiveWork{.minutes = 5, .score = 0});
        QVERIFY(buckets.size() <= 1200);
        int total = 0;
        for (const TimeBucket& bucket : buckets) {
            total += bucket.minutes;
            if (bucket.date <= Instant(now) && (bucket.end.isNone() || Instant(now) < bucket.end))
                QVERIFY(bucket.minutes >= 5);
        }
        QCOMPARE(total, focusMinutes(of, LiveWork{.minutes = 5, .score = 0}));
    }
}

void StatsRulesTest::lengthsAreWrittenInTheirKeys() {
    /// Says which text was asked for.
    class Keys final : public QTranslator {
    public:
        [[nodiscard]] bool isEmpty() const override { return false; }
        QString translate(const char*, const char* key, const char*, int) const override {
            return QLatin1String(key) +
                   (QByteArray(key).count('_') == 3 ? QStringLiteral(" %1 %2") : QStringLiteral(" %1"));
        }
    } keys;
    QCoreApplication::installTranslator(&keys);
    QCOMPARE(formatTime(59), QStringLiteral("time_minutes_short 59"));
    QCOMPARE(formatTime(120), QStringLiteral("time_hours_short 2"));
    QCOMPARE(formatTime(125), QStringLiteral("time_hours_minutes_short 2 5"));
    QCOMPARE(formatSeconds(59), QStringLiteral("time_seconds_short 59"));
    QCOMPARE(formatSeconds(3599), QStringLiteral("time_minutes_short 59"));
    QCOMPARE(formatSeconds(7259), QStringLiteral("time_hours_short 2"));
    QCOMPARE(formatSeconds(3660), QStringLiteral("time_hours_minutes_short 1 1"));
    QCoreApplication::removeTranslator(&keys);
}

void StatsRulesTest::termsAddUpToTheScore() {
    const auto sum = [](const SessionScoreTerms& terms) {
        return terms.ratioPoints - terms.interruptionPenalty - terms.blockedAttemptsPenalty -
               terms.blockedSiteAttemptsPenalty + terms.remainder;
    };
    SessionRow session;
    session.legitimateTimeSeconds = 1100;
    session.distractedTimeSeconds = 400;
    session.interruptionCount = 3;
    session.blockedAttemptsCount = 1;
    session.blockedSiteAttemptsCount = 1;
    // 7.3333 - 1.5 - 1 - 0.5
    session.score = 11000.0 / 1500 - 3;
    SessionScoreTerms terms = sessionScoreTerms(session);
    QCOMPARE(terms.score, 433);
    QCOMPARE(terms.ratioPoints, 733);
    QCOMPARE(terms.interruptionPenalty, 150);
    QCOMPARE(terms.blockedAttemptsPenalty, 100);
    QCOMPARE(terms.blockedSiteAttemptsPenalty, 50);
    QCOMPARE(terms.remainder, 0);
    // A finished task and three subtasks.
    session.score = *session.score + 1.9;
    QCOMPARE(sessionScoreTerms(session).remainder, 190);
    session.score = 10;
    QCOMPARE(sum(sessionScoreTerms(session)), 1000);
    session.interruptionCount = 40;
    session.score = 0;
    terms = sessionScoreTerms(session);
    QCOMPARE(sum(terms), 0);
    QCOMPARE(terms.remainder, 2000 + 150 - 733);
    // Every rounding: the ratio at each second of an hour.
    for (int second = 0; second <= 3600; ++second) {
        session.legitimateTimeSeconds = second;
        session.distractedTimeSeconds = 3600 - second;
        session.interruptionCount = second % 3;
        session.blockedAttemptsCount = session.blockedSiteAttemptsCount = 0;
        const double known = second / 360.0 - second % 3 * 0.5;
        session.score = std::max(0.0, known);
        terms = sessionScoreTerms(session);
        QCOMPARE(sum(terms), terms.score);
        QCOMPARE(terms.remainder == 0, known > -0.005);
    }
    session.legitimateTimeSeconds = 4;
    session.distractedTimeSeconds = 5;
    session.score = 0;
    QVERIFY(!sessionScoreTerms(session).hasEnoughData);
    QCOMPARE(sum(sessionScoreTerms(session)), 0);
    session.score.reset();
    QVERIFY(!sessionScoreTerms(session).hasScore);
}

QTEST_GUILESS_MAIN(StatsRulesTest)
#include "tst_StatsRules.moc"
