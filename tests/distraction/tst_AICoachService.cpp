#include "distraction/AICoachService.h"
#include "focus/TimerInterruptions.h"
#include "tests/support/FocusRig.h"

#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

using namespace norvin;
using namespace std::chrono_literals;

/// A language in which a text is its key, with the argument that it takes.
class KeyTexts final : public QTranslator {
public:
    QString translate(const char*, const char* key, const char*, int) const override {
        const QString text = QLatin1String(key);
        return text.startsWith(QLatin1String("coach_distraction_")) ? text + QStringLiteral(": %1") : text;
    }
    bool isEmpty() const override { return false; }
};

class tst_AICoachService final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QVERIFY(QCoreApplication::installTranslator(&m_texts)); }
    void distractionPicksOneOfThreeTexts();
    void messageStaysAfterTheLatestOne();
    void reasonChoosesTheText();
    void onlyAPhaseUnderWayIsInterrupted();
    void oldMessagesAreForgotten();

private:
    KeyTexts m_texts;
};

namespace {

struct Interruptions final : SessionInterruptions {};

struct CoachRig : FocusRig {
    CoachRig() { coach.setupSubscriptions(interruptions); }
    void distract(const QString& name = QStringLiteral("Game")) { Q_EMIT blocker.blockedAppAttempt(name); }
    void interrupt(const QString& reason) { Q_EMIT interruptions.sessionInterrupted(reason); }

    int chance = 0;
    int bound = 0;
    Interruptions interruptions;
    AICoachService coach{clock, blocker, [this](int below) {
                             bound = below;
                             return chance;
                         }};
};

} // namespace

void tst_AICoachService::distractionPicksOneOfThreeTexts() {
    CoachRig rig;
    for (rig.chance = 0; rig.chance < 3; ++rig.chance) {
        rig.distract();
        QCOMPARE(rig.coach.latestText(), QStringLiteral("coach_distraction_%1: Game").arg(rig.chance + 1));
    }
    QCOMPARE(rig.bound, 3);
    const CoachMessage& last = rig.coach.messages().constLast();
    QCOMPARE(last.type, CoachMessage::MessageType::warning);
    QCOMPARE(last.timestamp, rig.clock.now());
    QVERIFY(!last.id.isNull() && last.id != rig.coach.messages().constFirst().id);

    rig.chance = 0;
    // What the operating system's chance gives is always one of them.
    AICoachService coach(rig.clock, rig.blocker);
    coach.setupSubscriptions(rig.interruptions);
    QSet<QString> seen;
    for (int i = 0; i < 200; ++i) {
        rig.distract();
        seen.insert(coach.latestText());
    }
    QCOMPARE(seen.size(), 3);
}

void tst_AICoachService::messageStaysAfterTheLatestOne() {
    CoachRig rig;
    QSignalSpy visibility(&rig.coach, &AICoachService::isVisibleChanged);
    for (int i = 0; i < 3; ++i) {
        rig.distract();
        rig.pass(3s);
    }
    QCOMPARE(rig.coach.messages().size(), 3);
    rig.clock.advance(4999ms);
    QVERIFY(rig.coach.isVisible());
    rig.clock.advance(1ms);
    QVERIFY(!rig.coach.isVisible());
    QCOMPARE(visibility.size(), 2);

    rig.distract();
    rig.coach.dismissMessage();
    QVERIFY(!rig.coach.isVisible());
    QCOMPARE(rig.coach.messages().size(), 4);
    // What was to hide the message that was dismissed must not shorten the next one.
    rig.pass(1s);
    rig.distract();
    rig.pass(7s);
    QVERIFY(rig.coach.isVisible());
}

void tst_AICoachService::reasonChoosesTheText() {
    CoachRig rig;
    const QList<std::pair<QString, QString>> expected{
        {QStringLiteral("pause"), QStringLiteral("coach_interrupt_pause")},
        {QStringLiteral("inactivity"), QStringLiteral("coach_interrupt_inactivity")},
        {QStringLiteral("stop"), QStringLiteral("coach_interrupt_abandoned")},
        {QStringLiteral("Pause"), QStringLiteral("coach_interrupt_abandoned")},
        {QString(), QStringLiteral("coach_interrupt_abandoned")},
    };
    for (const auto& [reason, key] : expected) {
        rig.interrupt(reason);
        QCOMPARE(rig.coach.latestText(), key);
    }
    QCOMPARE(rig.coach.messages().size(), expected.size());
    QVERIFY(rig.coach.isVisible());
}

void tst_AICoachService::onlyAPhaseUnderWayIsInterrupted() {
    FocusRig rig;
    TimerInterruptions interruptions(rig.timer);
    QSignalSpy heard(&interruptions, &SessionInterruptions::sessionInterrupted);
    const auto reasons = [&heard] {
        QStringList texts;
        for (const QVariantList& arguments : std::as_const(heard))
            texts.append(arguments.constFirst().toString());
        heard.clear();
        return texts;
    };
    const QStringList stopped{QStringLiteral("stop")};
    const QStringList pausedAndStopped{QStringLiteral("pause"), QStringLiteral("stop")};

    rig.timer.stopSession();
    QCOMPARE(reasons(), QStringList());
    rig.timer.startSession(nullptr, PomodoroPhase::work, 1);
    rig.timer.stopSession();
    QCOMPARE(reasons(), stopped);
    rig.timer.startSession(nullptr, PomodoroPhase::work, 1);
    rig.timer.pauseSession();
    rig.timer.stopSession();
    QCOMPARE(reasons(), pausedAndStopped);

    rig.timer.startSession(nullptr, PomodoroPhase::work, 1);
    rig.timer.pauseSession();
    rig.timer.resumeSession();
    rig.pass(61s);
    QCOMPARE(rig.timer.state(), TimerState::completed);
    reasons();
    rig.timer.stopSession();
    rig.timer.stopSession();
    QCOMPARE(reasons(), QStringList());
}

void tst_AICoachService::oldMessagesAreForgotten() {
    CoachRig rig;
    for (int i = 0; i <= AICoachService::mostMessages; ++i)
        rig.coach.addMessage({.text = QString::number(i), .timestamp = rig.clock.now()});
    QCOMPARE(rig.coach.messages().size(), AICoachService::mostMessages);
    QCOMPARE(rig.coach.messages().constFirst().text, QStringLiteral("1"));
    QCOMPARE(rig.coach.latestText(), QString::number(AICoachService::mostMessages));
}

QTEST_GUILESS_MAIN(tst_AICoachService)
#include "tst_AICoachService.moc"
