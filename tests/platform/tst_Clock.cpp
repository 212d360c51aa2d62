#include "platform/fake/FakeClock.h"
#include "platform/linux/clock/SystemClock.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTest>

#include <functional>
#include <memory>
#include <vector>

using namespace norvin;
using namespace std::chrono_literals;
using std::chrono::milliseconds;

namespace {

/// A clock under test and the way to let its time pass.
struct Subject {
    std::unique_ptr<Clock> clock;
    // Lets the event loop run until the condition holds.
    std::function<bool(const std::function<bool()>&)> waitFor;
    // Lets time pass without any firing in between, as a blocked main thread does.
    std::function<void(milliseconds)> stall;
};

Subject makeSubject(bool real) {
    Subject subject;
    if (real) {
        subject.clock = std::make_unique<SystemClock>();
        Clock* clock = subject.clock.get();
        subject.waitFor = [](const std::function<bool()>& condition) {
            return QTest::qWaitFor(condition, 5000);
        };
        subject.stall = [clock](milliseconds duration) {
            const milliseconds end = clock->monotonic() + duration;
            while (clock->monotonic() < end) {
            }
        };
        return subject;
    }
    auto fake = std::make_unique<FakeClock>();
    FakeClock* clock = fake.get();
    subject.clock = std::move(fake);
    subject.waitFor = [clock](const std::function<bool()>& condition) {
        for (int i = 0; i < 5000 && !condition(); ++i)
            clock->advance(1ms);
        return condition();
    };
    subject.stall = [clock](milliseconds duration) { clock->advance(duration); };
    return subject;
}

} // namespace

class ClockTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase_data() {
        QTest::addColumn<bool>("real");
        QTest::newRow("FakeClock") << false;
        QTest::newRow("SystemClock") << true;
    }

    void repeatsOnItsGridAndNeverEarly() {
        QFETCH_GLOBAL(bool, real);
        Subject subject = makeSubject(real);
        const milliseconds start = subject.clock->monotonic();
        std::vector<milliseconds> firings;
        const auto timer =
            subject.clock->every(20ms, [&] { firings.push_back(subject.clock->monotonic() - start); });
        QVERIFY(subject.waitFor([&] { return firings.size() >= 10; }));
        for (size_t i = 0; i < firings.size(); ++i)
            QVERIFY(firings[i] >= 20ms * static_cast<int>(i + 1));
    }

    void deliversTheFiringsThatAStallHeldBack() {
        QFETCH_GLOBAL(bool, real);
        Subject subject = makeSubject(real);
        const milliseconds start = subject.clock->monotonic();
        QString order;
        const auto fast = subject.clock->every(10ms, [&] { order += QLatin1Char('f'); });
        const auto slow = subject.clock->every(25ms, [&] { order += QLatin1Char('s'); });
        subject.stall(54ms);
        QVERIFY(subject.waitFor([&] { return order.size() >= 7; }));
        // In the order of their instants: 10, 20, 25, 30, 40 ms.
        QVERIFY2(order.startsWith(QLatin1String("ffsff")), qPrintable(order));
        // Never more firings than whole intervals.
        const auto passed = subject.clock->monotonic() - start;
        QVERIFY(order.count(QLatin1Char('f')) <= passed / 10ms);
        QVERIFY(order.count(QLatin1Char('s')) <= passed / 25ms);
    }

    void firesOnceAfterADelay() {
        QFETCH_GLOBAL(bool, real);
        Subject subject = makeSubject(real);
        int fired = 0;
        int ticks = 0;
        std::unique_ptr<ClockTimer> second;
        const auto past = subject.clock->after(-5ms, [&] { ++fired; });
        const auto once =
            subject.clock->after(10ms, [&] { second = subject.clock->after(5ms, [&] { ++fired; }); });
        const auto repeated = subject.clock->every(10ms, [&] { ++ticks; });
        QVERIFY(subject.waitFor([&] { return ticks >= 4 && fired >= 2; }));
        QCOMPARE(fired, 2);
    }

    void cancelsWhenDestroyedEvenInItsOwnCallback() {
        QFETCH_GLOBAL(bool, real);
        Subject subject = makeSubject(real);
        int cancelled = 0;
        int self = 0;
        int ticks = 0;
        auto gone = subject.clock->every(5ms, [&] { ++cancelled; });
        std::unique_ptr<ClockTimer> suicidal = subject.clock->every(5ms, [&] {
            ++self;
            suicidal.reset();
        });
        const auto witness = subject.clock->every(5ms, [&] { ++ticks; });
        gone.reset();
        subject.stall(16ms);
        QVERIFY(subject.waitFor([&] { return ticks >= 5; }));
        QCOMPARE(cancelled, 0);
        QCOMPARE(self, 1);
    }

    void timersMayOutliveTheClock() {
        QFETCH_GLOBAL(bool, real);
        Subject subject = makeSubject(real);
        bool fired = false;
        const auto timer = subject.clock->every(5ms, [&] { fired = true; });
        subject.clock.reset();
        Subject other = makeSubject(real);
        bool passed = false;
        const auto later = other.clock->after(20ms, [&] { passed = true; });
        QVERIFY(other.waitFor([&] { return passed; }));
        QVERIFY(!fired);
    }
};

/// What only a clock with an event loop does, and what needs no clock.
class SystemClockTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void keepsFiringInAnEventLoopInsideACallback() {
        SystemClock clock;
        int inner = 0;
        bool nestedSawFirings = false;
        const auto ticks = clock.every(5ms, [&] { ++inner; });
        const auto modal = clock.after(12ms, [&] {
            const int before = inner;
            nestedSawFirings = QTest::qWaitFor([&] { return inner >= before + 3; }, 5000);
        });
        QTRY_VERIFY(nestedSawFirings);
    }

    void deadlinesCloseTogetherShareAWakeUp() {
        SystemClock clock;
        int turn = 0;
        const auto counting = connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake,
                                      this, [&] { ++turn; });
        std::vector<int> turns;
        std::vector<std::unique_ptr<ClockTimer>> timers;
        milliseconds started = {};
        do { // again if the machine was busy with something else in between
            started = clock.monotonic();
            timers.clear();
            for (const milliseconds delay : {23ms, 20ms, 26ms})
                timers.push_back(clock.after(delay, [&] { turns.push_back(turn); }));
        } while (clock.monotonic() > started + 1ms);
        QTRY_COMPARE(turns.size(), 3U);
        disconnect(counting);
        QVERIFY(turns[0] == turns[1] && turns[1] == turns[2]);
    }

    void aDayNeedNotBeginAtMidnight() {
        const QTimeZone zone("America/Sao_Paulo");
        const QDate clocksGoForward(2018, 11, 4);
        QCOMPARE(startOfDay(QDateTime(clocksGoForward, QTime(12, 0), zone)),
                 QDateTime(clocksGoForward, QTime(1, 0), zone));
        const QDateTime noon(clocksGoForward, QTime(12, 0), Qt::OffsetFromUTC, -2 * 3600);
        QCOMPARE(startOfDay(noon), noon.addSecs(-12 * 3600));
    }
};

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    ClockTest contract;
    SystemClockTest system;
    const int failures = QTest::qExec(&contract, argc, argv);
    return failures + QTest::qExec(&system, argc, argv);
}

#include "tst_Clock.moc"
