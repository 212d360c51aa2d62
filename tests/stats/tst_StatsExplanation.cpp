#include "stats/FigureTexts.h"
#include "stats/StatsScreen.h"
#include "tests/model/StoreFixture.h"
#include "tests/support/FocusRig.h"
#include "tests/support/PlausibleUser.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

#include <numeric>

using namespace norvin;
using namespace norvin::test;
using namespace std::chrono_literals;

/// Figures against the records that are listed for them.
class StatsExplanationTest final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCoreApplication::installTranslator(&m_texts); }
    void figuresAreTheSumsOfTheirRecords_data();
    void figuresAreTheSumsOfTheirRecords();
    void intervalsComeOnceAndInOrder();
    void theLatestQuestionIsAnswered();
    void intervalsThatCannotBeReadAreAProblem();
    void levelsLeadDownAndBack();
    void theRunningPhaseMoves();
    void midnightPasses();
    void aSessionGetsAnotherTask();
    void aSessionIsDeleted();
    void tasksAreFound();

private:
    /// Texts with places for what is filled in.
    struct Texts final : QTranslator {
        [[nodiscard]] bool isEmpty() const override { return false; }
        [[nodiscard]] QString translate(const char*, const char* id, const char*, int) const override {
            return QLatin1String(id) + QStringLiteral(" %1 %2");
        }
    };
    Texts m_texts;
};

namespace {

const QString today = QStringLiteral("today");
const QString history = QStringLiteral("history");

struct Rig {
    explicit Rig(const QDateTime& now, int days = 0, bool inMemory = false)
        : store(std::make_unique<StoreFixture>()) {
        focus.clock.setNow(now);
        if (!inMemory)
            focus.container = store->open();
        focus.usage.setModelContext(&context());
        focus.timer.setModelContext(&context());
        task = addTask(context(), QStringLiteral("Write"));
        PlausibleUser user(3, now.timeZone(),
                           {.sessionsADay = 3,
                            .intervals = 5,
                            .applications = 9,
                            .unscored = 10,
                            .brokenOff = 10,
                            .atOddHours = 20,
                            .tasks = {task->id()}});
        user.live(
            now.date().addDays(-days), now.date().addDays(days > 0 ? 1 : -1),
            [this](const Session& session) { context().insert(session); },
            [this](const AppUsageSession& usage) { context().insert(usage); });
        if (context().save())
            qFatal("the records cannot be saved");
        screen = std::make_unique<StatsScreen>(
            context(), inMemory ? QString() : store->file(), focus.timer, focus.clock,
            [this](const QString&, std::function<void()> takeBack) { undo = std::move(takeBack); });
        screen->setTab(today);
        screen->open();
    }
    ~Rig() { screen->close(); }
    Rig(const Rig&) = delete;
    Rig& operator=(const Rig&) = delete;

    [[nodiscard]] ModelContext& context() const { return focus.context(); }
    [[nodiscard]] StatsExplanation& explanation() const { return *screen->explanation(); }
    void ask(const QString& tab, const char* what, const QString& key = {}) const {
        explanation().close();
        screen->setTab(tab);
        screen->explain(QLatin1String(what), key);
    }
    /// The records that are listed.
    [[nodiscard]] const std::vector<FigureRecord>& listed() const {
        return explanation().records()->records();
    }
    [[nodiscard]] int minutes() const {
        int sum = 0;
        for (const FigureRecord& record : listed()) {
            if (const auto* live = std::get_if<LiveWork>(&record))
                sum += live->minutes;
            else
                sum += std::get<SessionRow>(record).durationMinutes;
        }
        return sum;
    }
    [[nodiscard]] double meanScore() const {
        double sum = 0;
        for (const FigureRecord& record : listed()) {
            const auto* live = std::get_if<LiveWork>(&record);
            sum += live != nullptr ? live->score : std::get<SessionRow>(record).score.value();
        }
        return listed().empty() ? 0 : sum / static_cast<double>(listed().size());
    }
    [[nodiscard]] qint64 seconds() const {
        qint64 sum = 0;
        for (const FigureRecord& record : listed())
            sum += std::get<AppTotal>(record).duration;
        return sum;
    }
    /// All intervals of the application that is opened, gone through to the end.
    [[nodiscard]] QList<qint64> intervals() const {
        UsageIntervalRows& rows = *explanation().intervals();
        while (rows.canFetchMore({}) || isReading()) {
            rows.fetchMore({});
            QCoreApplication::processEvents(isReading() ? QEventLoop::WaitForMoreEvents
                                                        : QEventLoop::AllEvents);
        }
        QList<qint64> seconds;
        for (int row = 0; row < rows.rowCount(); ++row)
            seconds.append(rows.data(rows.index(row), UsageIntervalRows::SecondsRole).toLongLong());
        return seconds;
    }
    [[nodiscard]] bool isReading() const { return explanation().intervals()->isReading(); }
    [[nodiscard]] Session insertSession(const QDateTime& start, int length = 25) const {
        Session session = sessionOf(task, start);
        session.durationMinutes = length;
        session.completed = true;
        session.score = 7.25;
        session.legitimateTimeSeconds = 1200;
        session.distractedTimeSeconds = 300;
        session.interruptionCount = 1;
        context().insert(session);
        return session;
    }
    void insertInterval(const char* bundle, const QDateTime& start, int length,
                        const char* category = "category_other") const {
        AppUsageSession usage;
        usage.bundleID = usage.appName = QLatin1String(bundle);
        usage.category = QLatin1String(category);
        usage.startTime = start;
        usage.endTime = start.addSecs(length);
        usage.durationSeconds = length;
        context().insert(usage);
    }

    std::unique_ptr<StoreFixture> store;
    FocusRig focus;
    TaskItem* task = nullptr;
    std::function<void()> undo;
    std::unique_ptr<StatsScreen> screen;
};

QDateTime inParis(QDate date, QTime time) {
    return QDateTime(date, time, QTimeZone("Europe/Paris"));
}

} // namespace

void StatsExplanationTest::figuresAreTheSumsOfTheirRecords_data() {
    QTest::addColumn<QDateTime>("now");
    QTest::addColumn<bool>("isRunning");
    // Days on which the clock is changed, and the ones after.
    QTest::newRow("spring") << inParis({2025, 3, 30}, {20, 30}) << true;
    QTest::newRow("autumn") << inParis({2025, 10, 26}, {21, 0}) << false;
    QTest::newRow("after") << inParis({2025, 10, 27}, {0, 30}) << true;
}

void StatsExplanationTest::figuresAreTheSumsOfTheirRecords() {
    QFETCH(QDateTime, now);
    QFETCH(bool, isRunning);
    const Rig rig(now, 370);
    static_cast<void>(rig.insertSession(now.addSecs(-3600)));
    rig.insertInterval("org.example.App1", now.addSecs(-60), 59, "category_social");
    QTRY_VERIFY(rig.screen->records().isComplete());
    if (isRunning) {
        const_cast<FocusRig&>(rig.focus).timer.startSession(rig.task, PomodoroPhase::work);
        const_cast<FocusRig&>(rig.focus).pass(61s);
    }
    const TodayStatsView& day = *rig.screen->today();
    HistoryStatsView& past = *rig.screen->history();

    rig.ask(today, "sessions");
    FocusRig::settle();
    QCOMPARE(rig.listed().size(), static_cast<size_t>(day.sessionCount()));
    rig.ask(today, "focus");
    QCOMPARE(rig.minutes(), day.todayFocusMinutes());
    QCOMPARE(std::holds_alternative<LiveWork>(rig.listed().front()), isRunning);
    rig.ask(today, "score");
    QCOMPARE(rig.meanScore(), day.todayAverageScore());
    rig.ask(today, "streak");
    QCOMPARE(rig.listed().size(), static_cast<size_t>(day.streak()));
    for (int row = 0; row < day.streak(); ++row) {
        rig.ask(today, "streak");
        const int sessions = std::get<DayCount>(rig.listed()[static_cast<size_t>(row)]).sessions;
        rig.explanation().open(row);
        QCOMPARE(rig.listed().size(), static_cast<size_t>(sessions));
    }
    rig.ask(today, "apps");
    QCOMPARE(rig.seconds() / 60, static_cast<qint64>(day.todayAppMinutes()));
    for (int hour = 0; hour < 24; ++hour) {
        rig.ask(today, "hour", QString::number(hour));
        QCOMPARE(static_cast<double>(rig.minutes()), day.hourly()->values().at(hour));
    }

    for (const StatsPeriod period : allStatsPeriods) {
        rig.screen->setTab(history);
        past.setPeriod(rawValue(period));
        rig.ask(history, "sessions");
        QCOMPARE(rig.listed().size(), static_cast<size_t>(past.sessionCount()));
        rig.ask(history, "focus");
        QCOMPARE(rig.minutes(), past.periodFocusMinutes());
        rig.ask(history, "score");
        QVERIFY(std::abs(rig.meanScore() - past.avgPeriodScore()) < 1e-9);
        rig.ask(history, "best_day");
        QCOMPARE(rig.minutes(), past.bestDayMinutes());
        int sum = 0;
        for (qsizetype bar = 0; bar < past.focus()->values().size(); ++bar) {
            rig.ask(history, "bucket", QString::number(bar));
            QCOMPARE(static_cast<double>(rig.minutes()), past.focus()->values().at(bar));
            sum += rig.minutes();
        }
        QCOMPARE(sum, past.periodFocusMinutes());
        for (int bar = 0; bar < 7; ++bar) {
            rig.ask(history, "weekday", QString::number(bar));
            QCOMPARE(static_cast<double>(rig.minutes()), past.weekdays()->values().at(bar));
        }
        rig.ask(history, "apps");
        QCOMPARE(rig.seconds(), past.usageSeconds());
        for (const AppTotal& app : past.topApps()->rows()) {
            rig.ask(history, "application", app.bundleID);
            const QList<qint64> seconds = rig.intervals();
            QCOMPARE(std::accumulate(seconds.cbegin(), seconds.cend(), qint64(0)), app.duration);
        }
        for (const ChartPoint& slice : past.categories()->points()) {
            rig.ask(history, "category", slice.key);
            QCOMPARE(static_cast<double>(rig.seconds()), slice.value);
            const qint64 last = std::get<AppTotal>(rig.listed().back()).duration;
            rig.explanation().open(static_cast<int>(rig.listed().size()) - 1);
            const QList<qint64> seconds = rig.intervals();
            QCOMPARE(std::accumulate(seconds.cbegin(), seconds.cend(), qint64(0)), last);
        }
    }
}

void StatsExplanationTest::intervalsComeOnceAndInOrder() {
    const QDateTime now = inParis({2025, 10, 26}, {21, 0});
    for (const bool inMemory : {false, true}) {
        Rig rig(now, 0, inMemory);
        // Several begin at the same moment, and some belong to others.
        QList<qint64> expected;
        const int count = 2 * UsageIntervalRows::pageSize + 321;
        for (int i = 0; i < count; ++i) {
            const QDateTime start = now.addSecs(-20000 + i / 3);
            rig.insertInterval("org.example.A", start, 1 + i % 3600, i % 7 == 0 ? "category_social" : "x");
            rig.insertInterval("org.example.B", start, 5);
            expected.append(1 + i % 3600);
        }
        QTRY_VERIFY(rig.screen->records().isComplete());
        UsageIntervalRows& rows = *rig.explanation().intervals();
        const QAbstractItemModelTester tester(&rows, QAbstractItemModelTester::FailureReportingMode::QtTest);
        rig.ask(today, "application", QStringLiteral("org.example.A"));
        if (!inMemory) {
            QVERIFY(rows.isWaiting());
            QTRY_COMPARE(rows.rowCount(), UsageIntervalRows::pageSize);
        }
        QCOMPARE(rig.intervals(), expected);

        // What is recorded while the list is open follows, also where the clock was set back.
        rig.insertInterval("org.example.A", now.addSecs(10), 11);
        rig.insertInterval("org.example.B", now.addSecs(10), 12);
        expected.append(11);
        QTRY_COMPARE(rig.intervals(), expected);
        rig.insertInterval("org.example.A", now.addSecs(-30000), 13);
        expected.prepend(13);
        QTRY_COMPARE(rig.intervals(), expected);
    }
}

void StatsExplanationTest::theLatestQuestionIsAnswered() {
    const QDateTime now = inParis({2025, 3, 10}, {21, 0});
    const Rig rig(now);
    for (int i = 0; i < 5; ++i)
        rig.insertInterval("org.example.A", now.addSecs(i - 100), 7);
    rig.insertInterval("org.example.B", now.addSecs(-50), 9);
    QTRY_VERIFY(rig.screen->records().isComplete());
    rig.ask(today, "application", QStringLiteral("org.example.A"));
    rig.ask(today, "application", QStringLiteral("org.example.B"));
    QCOMPARE(rig.intervals(), QList<qint64>{9});
    rig.ask(today, "application", QStringLiteral("org.example.A"));
    rig.explanation().close();
    QVERIFY(!rig.isReading());
    QCOMPARE(rig.explanation().intervals()->rowCount(), 0);
}

void StatsExplanationTest::intervalsThatCannotBeReadAreAProblem() {
    const QDateTime now = inParis({2025, 3, 10}, {21, 0});
    const Rig rig(now);
    rig.insertInterval("org.example.A", now.addSecs(-100), 7);
    QTRY_VERIFY(rig.screen->records().isComplete());
    FocusRig::settle();
    rig.store->raw().exec("ALTER TABLE AppUsageSession RENAME COLUMN durationSeconds TO gone");
    rig.ask(today, "application", QStringLiteral("org.example.A"));
    QTRY_VERIFY(!rig.isReading());
    QVERIFY(!rig.explanation().intervals()->problem().isEmpty());
}

void StatsExplanationTest::levelsLeadDownAndBack() {
    const QDateTime now = inParis({2025, 3, 10}, {21, 0});
    const Rig rig(now);
    const Session first = rig.insertSession(now.addSecs(-7200));
    const Session second = rig.insertSession(now.addSecs(-3600));
    QTRY_VERIFY(rig.screen->records().isComplete());
    StatsExplanation& explanation = rig.explanation();
    rig.ask(today, "nothing");
    rig.ask(history, "bucket", QStringLiteral("1000"));
    rig.ask(today, "session", SessionId::create().toString());
    QVERIFY(!explanation.isPresented());

    rig.ask(today, "streak");
    explanation.open(0);
    QVERIFY(explanation.canGoBack());
    explanation.open(1);
    QCOMPARE(explanation.level(), StatsExplanation::OneSession);
    QCOMPARE(explanation.session()->session()->id, second.id);
    explanation.back();
    QCOMPARE(explanation.place(), 1);
    QCOMPARE(rig.listed().size(), size_t(2));
    explanation.back();
    QVERIFY(!explanation.canGoBack());
    explanation.back();
    QVERIFY(!explanation.isPresented());

    // A single session, from a row of the page or a point of its chart; it closes when it is gone.
    rig.ask(today, "score", first.id.toString());
    QCOMPARE(explanation.session()->session()->id, first.id);
    explanation.chooseTask();
    rig.context().remove(*rig.task);
    QTRY_VERIFY(!explanation.isPresented());
}

void StatsExplanationTest::theRunningPhaseMoves() {
    Rig rig(inParis({2025, 3, 10}, {21, 0}));
    QTRY_VERIFY(rig.screen->records().isComplete());
    rig.ask(today, "focus");
    QVERIFY(rig.listed().empty());
    rig.focus.timer.startSession(nullptr, PomodoroPhase::work);
    rig.focus.pass(1s);
    QCOMPARE(rig.minutes(), 1);
    QVERIFY(!rig.explanation()
                 .records()
                 ->data(rig.explanation().records()->index(0), ExplanationRows::CanOpenRole)
                 .toBool());
    rig.focus.pass(60s);
    QCOMPARE(rig.minutes(), 2);
    rig.focus.timer.pauseSession();
    FocusRig::settle();
    QVERIFY(rig.listed().empty());
    // Recorded, it is a session like the others.
    rig.focus.timer.resumeSession();
    rig.focus.pass(std::chrono::seconds(PomodoroTimerService::workDuration));
    QTRY_COMPARE(rig.listed().size(), size_t(1));
    QCOMPARE(rig.minutes(), 25);
    QVERIFY(std::holds_alternative<SessionRow>(rig.listed().front()));
}

void StatsExplanationTest::midnightPasses() {
    Rig rig(inParis({2025, 3, 10}, {22, 59, 30}));
    static_cast<void>(rig.insertSession(inParis({2025, 3, 10}, {21, 0}), 10));
    QTRY_VERIFY(rig.screen->records().isComplete());
    rig.focus.timer.startSession(nullptr, PomodoroPhase::work);
    // The phase that runs is a part of the hour that it is.
    rig.screen->history()->setPeriod(QStringLiteral("today"));
    rig.ask(history, "bucket", QStringLiteral("23"));
    QVERIFY(rig.listed().empty());
    rig.focus.pass(31s);
    QCOMPARE(rig.minutes(), 1);
    rig.focus.timer.stopSession();

    rig.focus.pass(59min);
    rig.screen->history()->setPeriod(QStringLiteral("week"));
    rig.ask(history, "bucket", QStringLiteral("7"));
    const QString title = rig.explanation().title();
    rig.focus.timer.startSession(nullptr, PomodoroPhase::work);
    rig.focus.pass(61s);
    QTRY_COMPARE(rig.minutes(), 10);
    QCOMPARE(rig.explanation().title(), title);

    const char* const bundle = "org.example.Late";
    rig.insertInterval(bundle, rig.focus.clock.now(), 5);
    rig.ask(today, "application", QLatin1String(bundle));
    QCOMPARE(rig.intervals(), QList<qint64>{5});
    rig.focus.pass(24h);
    QTRY_VERIFY(rig.intervals().isEmpty());
    QCOMPARE(rig.explanation().title(), QLatin1String(bundle));
}

void StatsExplanationTest::aSessionGetsAnotherTask() {
    const QDateTime now = inParis({2025, 3, 10}, {21, 0});
    const Rig rig(now);
    const Session session = rig.insertSession(now.addSecs(-3600));
    TaskItem* const other = addTask(rig.context(), QStringLiteral("Read"));
    QTRY_VERIFY(rig.screen->records().isComplete());
    StatsExplanation& explanation = rig.explanation();
    const auto title = [&] {
        return explanation.records()->data(explanation.records()->index(0), ExplanationRows::TitleRole);
    };
    const auto storedTask = [&] { return rig.context().session(session.id)->task; };
    rig.ask(today, "sessions");
    explanation.open(0);
    explanation.chooseTask();
    QCOMPARE(explanation.level(), StatsExplanation::TaskChoice);
    QCOMPARE(explanation.session()->tasks()->taskAt(1), other->id());
    explanation.setTask(1);
    QCOMPARE(explanation.level(), StatsExplanation::OneSession);
    QCOMPARE(explanation.session()->taskTitle(), other->title());
    QCOMPARE(storedTask(), other->id());
    explanation.back();
    QTRY_COMPARE(title(), other->title());
    rig.undo();
    QCOMPARE(storedTask(), rig.task->id());
    QTRY_COMPARE(title(), rig.task->title());

    // Without a task; its former one goes before that is taken back.
    explanation.open(0);
    explanation.chooseTask();
    explanation.setTask(0);
    QCOMPARE(storedTask(), std::nullopt);
    rig.context().remove(*rig.task);
    FocusRig::settle();
    rig.undo();
    QCOMPARE(storedTask(), std::nullopt);
    QVERIFY(!rig.context().save());
    QCOMPARE(rig.store->soundness(), QStringLiteral("ok"));
}

void StatsExplanationTest::aSessionIsDeleted() {
    const QDateTime now = inParis({2025, 3, 10}, {21, 0});
    const Rig rig(now);
    static_cast<void>(rig.insertSession(now.addSecs(-7200), 10));
    const Session session = rig.insertSession(now.addSecs(-3600), 30);
    QTRY_VERIFY(rig.screen->records().isComplete());
    rig.ask(today, "focus");
    const QAbstractItemModelTester tester(rig.explanation().records(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    rig.explanation().open(1);
    rig.explanation().deleteSession();
    QCOMPARE(rig.explanation().level(), StatsExplanation::Records);
    QTRY_COMPARE(rig.minutes(), 10);
    QTRY_COMPARE(rig.screen->today()->todayFocusMinutes(), 10);
    QVERIFY(!rig.context().session(session.id));
    rig.undo();
    QCOMPARE(rig.context().session(session.id), session);
    QTRY_COMPARE(rig.minutes(), 40);
    QVERIFY(!rig.context().save());
    QCOMPARE(rig.context().fetchSessions().last(), session);
}

void StatsExplanationTest::tasksAreFound() {
    const QDateTime now = inParis({2025, 3, 10}, {21, 0});
    const Rig rig(now);
    Project* const project =
        rig.context().insert(std::make_unique<Project>(Project::Init{.name = QStringLiteral("Thèse")}));
    TaskItem* const chapter = addTask(rig.context(), QStringLiteral("Chapter"), project);
    rig.task->setStatus(TaskStatus::done);
    SessionTaskList list(rig.context(), nullptr);
    const QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::QtTest);
    list.open(chapter->id());
    QCOMPARE(list.rowCount(), 3);
    QCOMPARE(list.taskAt(0), std::nullopt);
    QCOMPARE(list.taskAt(1), chapter->id());
    QVERIFY(list.data(list.index(1), SessionTaskList::IsChosenRole).toBool());
    list.setSearchText(QStringLiteral("these CHAP"));
    QCOMPARE(list.rowCount(), 1);
    rig.context().remove(*chapter);
    QTRY_COMPARE(list.rowCount(), 0);
    list.close();
    QCOMPARE(list.rowCount(), 0);
}

QTEST_GUILESS_MAIN(StatsExplanationTest)
#include "tst_StatsExplanation.moc"
