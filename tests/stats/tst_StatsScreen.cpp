#include "stats/StatsScreen.h"
#include "tests/model/StoreFixture.h"
#include "tests/support/FocusRig.h"

#include <QTest>
#include <QTranslator>

using namespace norvin;
using namespace norvin::test;
using namespace std::chrono_literals;

/// The page as a whole: what it reads when, and what the session under way adds.
class StatsScreenTest final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCoreApplication::installTranslator(&m_texts); }
    void saysThatItWaitsAfterAMoment();
    void addsTheWorkPhaseThatRuns();
    void readsOnlyWhileItIsOpen();

private:
    /// Texts with room for two numbers.
    class AnyText final : public QTranslator {
    public:
        [[nodiscard]] bool isEmpty() const override { return false; }
        QString translate(const char*, const char*, const char*, int) const override {
            return QStringLiteral("%1%2");
        }
    };
    struct Rig {
        Rig() {
            container = store.open();
            focus.timer.setModelContext(&context());
            focus.usage.setModelContext(&context());
            screen = std::make_unique<StatsScreen>(context(), store.file(), focus.timer, focus.clock,
                                                   StatsScreen::OfferUndo());
        }
        [[nodiscard]] ModelContext& context() const { return container->mainContext(); }
        void record(int daysAgo, int minutes, std::optional<double> score, bool completed = true) const {
            Session session;
            session.startTime = focus.clock.now().addDays(-daysAgo);
            session.durationMinutes = minutes;
            session.completed = completed;
            session.score = score;
            context().insert(session);
        }
        void open() const {
            screen->open();
            QTRY_VERIFY(screen->records().isComplete());
            FocusRig::settle();
        }

        StoreFixture store;
        FocusRig focus;
        std::unique_ptr<ModelContainer> container;
        std::unique_ptr<StatsScreen> screen;
    };

    AnyText m_texts;
};

void StatsScreenTest::saysThatItWaitsAfterAMoment() {
    Rig rig;
    rig.record(0, 25, 7.0);
    // The thread may be through, but nothing of it has been heard yet.
    rig.screen->open();
    rig.focus.clock.advance(StatsScreen::patience - 1ms);
    QVERIFY(!rig.screen->isWaiting() && !rig.screen->hasFigures());
    rig.focus.clock.advance(1ms);
    QVERIFY(rig.screen->isWaiting());
    QTRY_VERIFY(rig.screen->hasFigures());
    QTRY_VERIFY(!rig.screen->isWaiting());
    QCOMPARE(rig.screen->today()->sessionCount(), 1);

    rig.screen->close();
    rig.screen->open();
    QTRY_VERIFY(rig.screen->records().isComplete());
    rig.focus.clock.advance(StatsScreen::patience);
    QVERIFY(!rig.screen->isWaiting());
}

void StatsScreenTest::addsTheWorkPhaseThatRuns() {
    Rig rig;
    rig.record(0, 25, 8.0);
    rig.record(0, 10, std::nullopt);
    rig.record(0, 90, 1.0, false);
    rig.record(3, 40, 6.0);
    rig.open();
    const TodayStatsView& today = *rig.screen->today();
    HistoryStatsView& history = *rig.screen->history();
    QCOMPARE(today.todayFocusMinutes(), 35);
    QCOMPARE(today.todayAverageScore(), 8.0); // that of a session without one is not 0
    QCOMPARE(today.sessionCount(), 2);

    rig.focus.timer.startSession(nullptr, PomodoroPhase::work);
    rig.focus.pass(61s);
    const double live = rig.focus.timer.calculateCurrentScore();
    QCOMPARE(today.todayFocusMinutes(), 37);
    QCOMPARE(today.todayAverageScore(), (8.0 + live) / 2);
    QCOMPARE(today.hourly()->total(), 35.0);
    rig.screen->setTab(QStringLiteral("history"));
    QCOMPARE(history.periodFocusMinutes(), 77);
    QCOMPARE(history.avgPeriodScore(), (8.0 + 6.0 + live) / 3);
    QCOMPARE(history.bestDayMinutes(), 40);
    QCOMPARE(history.focus()->total(), 77.0);
    // Each minute moves the chart with the figure.
    rig.focus.pass(60s);
    QCOMPARE(history.periodFocusMinutes(), 78);
    QCOMPARE(history.focus()->total(), 78.0);
    QCOMPARE(history.focus()->values().constLast(), 38.0);

    rig.focus.timer.pauseSession();
    QCOMPARE(history.periodFocusMinutes(), 75);
    QCOMPARE(history.focus()->total(), 75.0);
    QCOMPARE(history.avgPeriodScore(), 7.0);
    rig.focus.timer.startSession(nullptr, PomodoroPhase::breakTime);
    rig.focus.pass(61s);
    QCOMPARE(history.periodFocusMinutes(), 75);
}

void StatsScreenTest::readsOnlyWhileItIsOpen() {
    Rig rig;
    rig.record(0, 25, 8.0);
    rig.record(400, 25, 8.0);
    rig.open();
    rig.record(1, 30, 8.0);
    rig.screen->setTab(QStringLiteral("history"));
    rig.screen->history()->setPeriod(QStringLiteral("all"));
    FocusRig::settle();
    QCOMPARE(rig.screen->history()->sessionCount(), 3);
    QCOMPARE(rig.screen->history()->recent()->rows().front().durationMinutes, 25); // the newest first
    rig.screen->close();
    QCOMPARE(rig.screen->records().tables().bytes(), size_t(0));
    rig.record(2, 30, 8.0);
    FocusRig::settle();
    QCOMPARE(rig.screen->records().tables().bytes(), size_t(0));
    rig.open();
    QCOMPARE(rig.screen->history()->sessionCount(), 4);
}

QTEST_GUILESS_MAIN(StatsScreenTest)
#include "tst_StatsScreen.moc"
