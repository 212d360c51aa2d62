#include "platform/fake/FakeClock.h"
#include "stats/StatsRecords.h"
#include "tests/model/StoreFixture.h"
#include "tests/support/PlausibleUser.h"

#include <QSignalSpy>
#include <QTest>

using namespace norvin;
using namespace norvin::test;

/// Records that are read beside a context that goes on writing.
class StatsRecordsTest final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readTheLastMonthFirst();
    void missNothingThatHappensMeanwhile();
    void haveWhatCannotBeSaved();
    void followCorrections();
    void followDayAndZone();
    void indexesOfEarlierVersionsAreRenewed();
};

namespace {

/// A store file with the records of somebody's last months.
struct Rig {
    explicit Rig(int days, const char* zone = "Europe/Paris")
        : clock(QDateTime(QDate(2025, 4, 2), QTime(22, 0), QTimeZone(zone)))
        , container(store.open()) {
        const QDate today = clock.now().date();
        PlausibleUser user(
            7, clock.now().timeZone(),
            {.sessionsADay = 4, .intervals = 6, .applications = 12, .unscored = 10, .atOddHours = 0});
        user.live(
            today.addDays(-days), today, [&](const Session& session) { context().insert(session); },
            [&](const AppUsageSession& usage) { context().insert(usage); });
        if (context().save())
            qFatal("the records cannot be saved");
        records = std::make_unique<StatsRecords>(context(), store.file(), clock);
    }
    [[nodiscard]] ModelContext& context() const { return container->mainContext(); }
    [[nodiscard]] Session session(QTime at = QTime(21, 0)) const {
        Session made;
        made.startTime = QDateTime(clock.now().date(), at, clock.now().timeZone());
        made.durationMinutes = 25;
        made.completed = true;
        return made;
    }
    [[nodiscard]] AppUsageSession interval(const char* bundle, int seconds) const {
        AppUsageSession made;
        made.bundleID = made.appName = QLatin1String(bundle);
        made.category = QStringLiteral("category_other");
        made.startTime = clock.now();
        made.durationSeconds = seconds;
        return made;
    }
    /// What the tables hold against what the context says.
    [[nodiscard]] bool agree() const {
        const StatsTables& tables = records->tables();
        const QList<Session> sessions = context().fetchSessions();
        if (tables.sessions().size() != static_cast<size_t>(sessions.size()))
            return false;
        for (qsizetype i = 0; i < sessions.size(); ++i) {
            const SessionRow& row = tables.sessions()[static_cast<size_t>(i)];
            const Session& session = sessions.at(i);
            if (row.id != session.id || row.start != Instant(session.startTime) || row.task != session.task ||
                row.score != session.score || row.durationMinutes != session.durationMinutes ||
                row.completed != session.completed ||
                row.distractedTimeSeconds != session.distractedTimeSeconds)
                return false;
        }
        qint64 seconds = 0;
        for (const AppUsageSession& usage : context().fetchAppUsage())
            seconds += usage.durationSeconds;
        return usageSeconds(tables.usage()) == seconds;
    }

    FakeClock clock;
    StoreFixture store;
    std::unique_ptr<ModelContainer> container;
    std::unique_ptr<StatsRecords> records;
};

} // namespace

void StatsRecordsTest::readTheLastMonthFirst() {
    const Rig rig(400);
    QList<QList<StatsPeriod>> complete;
    QObject::connect(rig.records.get(), &StatsRecords::changed, rig.records.get(), [&] {
        QList<StatsPeriod> periods;
        for (const StatsPeriod period : allStatsPeriods) {
            if (rig.records->isComplete(period))
                periods.append(period);
        }
        complete.append(periods);
    });
    rig.records->acquire();
    QVERIFY(rig.records->tables().sessions().empty());
    QTRY_VERIFY(rig.records->isComplete());
    const QList<StatsPeriod> month{StatsPeriod::today, StatsPeriod::week, StatsPeriod::month};
    QCOMPARE(complete.first(), month);
    QCOMPARE(complete.last().size(), qsizetype(5));
    QVERIFY(rig.agree());

    // A second holder has them at once; with the last one they go.
    rig.records->acquire();
    rig.records->release();
    QVERIFY(rig.records->isComplete());
    rig.records->release();
    QVERIFY(!rig.records->isComplete());
    QCOMPARE(rig.records->tables().bytes(), size_t(0));
}

void StatsRecordsTest::missNothingThatHappensMeanwhile() {
    const Rig rig(200);
    rig.records->acquire();
    // Some before anything was read, some after each of its steps, none of them twice.
    const auto record = [&] {
        rig.context().insert(rig.session());
        rig.context().insert(rig.interval("org.example.New", 61));
    };
    record();
    int steps = 0;
    QObject::connect(rig.records.get(), &StatsRecords::changed, rig.records.get(), [&] {
        if (++steps % 2 == 1 && steps < 12)
            record();
    });
    QTRY_VERIFY(rig.records->isComplete());
    QVERIFY(rig.agree());
    record();
    QVERIFY(rig.agree());

    // A session that goes while everything is being read.
    rig.records->reload();
    rig.context().remove(rig.context().fetchSessions().first().id);
    QVERIFY(rig.records->isComplete()); // what is shown stays meanwhile
    QTRY_VERIFY(rig.agree());
}

void StatsRecordsTest::haveWhatCannotBeSaved() {
    const Rig rig(40);
    const LogCapture log;
    TaskItem* const task = addTask(rig.context(), QStringLiteral("Task"));
    Session of = rig.session(QTime(20, 0));
    of.task = task->id();
    rig.context().insert(of);
    QVERIFY(!rig.context().save());
    {
        // Somebody else writes for a long time.
        SQLite::Database other = rig.store.raw();
        other.exec("BEGIN IMMEDIATE");
        rig.context().insert(rig.session());
        rig.context().insert(rig.interval("org.example.New", 61));
        rig.context().remove(*task);
        QVERIFY(rig.context().save().has_value());
        rig.records->acquire();
        QTRY_VERIFY(rig.records->isComplete());
        QVERIFY(rig.agree());
        other.exec("ROLLBACK");
    }
    QVERIFY(!rig.context().save());
    rig.records->reload();
    QTRY_VERIFY(rig.agree());
}

void StatsRecordsTest::followCorrections() {
    const Rig rig(40);
    rig.records->acquire();
    QTRY_VERIFY(rig.records->isComplete());
    const size_t before = rig.records->tables().sessions().size();
    const Session first = rig.context().fetchSessions().first();
    TaskItem* const task = addTask(rig.context(), QStringLiteral("Task"));

    QVERIFY(rig.context().setSessionTask(first.id, task->id()));
    QTRY_COMPARE(rig.records->tables().sessions().front().task, std::optional(task->id()));
    QVERIFY(rig.agree());
    QCOMPARE(rig.context().session(first.id)->task, std::optional(task->id()));
    QVERIFY(!rig.context().setSessionTask(first.id, TaskId(QUuid::createUuid())));
    QVERIFY(!rig.context().save());
    QCOMPARE(rig.store.value("SELECT count(*) FROM Session WHERE task IS NOT NULL"), QStringLiteral("1"));

    // With the task goes the session; away from it, it stays.
    TaskItem* const other = addTask(rig.context(), QStringLiteral("Other"));
    QVERIFY(rig.context().setSessionTask(first.id, other->id()));
    rig.context().remove(*task);
    QTRY_VERIFY(rig.agree());
    QCOMPARE(rig.records->tables().sessions().size(), before);
    rig.context().remove(*other);
    QTRY_COMPARE(rig.records->tables().sessions().size(), before - 1);
    QVERIFY(rig.agree());
    QVERIFY(!rig.context().save());
    QCOMPARE(rig.store.soundness(), QStringLiteral("ok"));
}

void StatsRecordsTest::followDayAndZone() {
    Rig rig(10);
    rig.context().insert(rig.session());
    rig.records->acquire();
    QTRY_VERIFY(rig.records->isComplete());
    const qint64 today = rig.records->today();
    const QSignalSpy changes(rig.records.get(), &StatsRecords::changed);
    using namespace std::chrono_literals;
    rig.clock.advance(119min);
    QCOMPARE(rig.records->today(), today);
    rig.clock.advance(1min);
    QCOMPARE(rig.records->today(), today + 1);
    QCOMPARE(changes.count(), 1);
    rig.clock.advance(24h);
    QCOMPARE(rig.records->today(), today + 2);

    // In India the session of nine in the evening was one of the next day.
    rig.clock.setNow(rig.clock.now().toTimeZone(QTimeZone("Asia/Kolkata")));
    rig.records->refreshDay();
    QTRY_VERIFY(rig.records->isComplete());
    QCOMPARE(rig.records->tables().sessions().back().day, today + 1);
    QVERIFY(rig.agree());
}

void StatsRecordsTest::indexesOfEarlierVersionsAreRenewed() {
    Rig rig(40);
    rig.records.reset();
    rig.container.reset();
    {
        SQLite::Database shell = rig.store.raw();
        shell.exec("DROP INDEX AppUsageSession_startTime");
        shell.exec("CREATE INDEX AppUsageSession_startTime ON AppUsageSession(startTime)");
    }
    const QString count = rig.store.value("SELECT count(*) FROM AppUsageSession");
    rig.container = rig.store.open();
    QCOMPARE(rig.store.value("SELECT count(*) FROM AppUsageSession"), count);
    QVERIFY(rig.store.value("SELECT sql FROM sqlite_schema WHERE name = 'AppUsageSession_startTime'")
                .contains(QLatin1String("durationSeconds")));
}

QTEST_GUILESS_MAIN(StatsRecordsTest)
#include "tst_StatsRecords.moc"
