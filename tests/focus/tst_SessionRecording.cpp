#include "tests/support/FocusRig.h"

#include <QTest>

using namespace norvin;
using namespace std::chrono_literals;

class tst_SessionRecording final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void score_data();
    void score();
    void recordsWhatTheSessionWas();
    void minutesAreRoundedUp_data();
    void minutesAreRoundedUp();
    void withoutAContextNothingIsRecorded();
};

void tst_SessionRecording::score_data() {
    QTest::addColumn<FocusScoreInput>("input");
    QTest::addColumn<double>("score");
    const auto row = [](const char* name, FocusMetrics metrics, int interruptions, int apps, int sites,
                        int tasks, int subtasks, double expected) {
        QTest::newRow(name) << FocusScoreInput{metrics, interruptions, apps, sites, tasks, subtasks}
                            << expected;
    };
    row("nine seconds", {9, 0}, 0, 0, 0, 0, 0, 0.0);
    row("ten seconds", {10, 0}, 0, 0, 0, 0, 0, 10.0);
    row("ten seconds of both", {5, 5}, 0, 0, 0, 0, 0, 5.0);
    row("five blocked applications", {600, 0}, 0, 5, 0, 0, 0, 5.0);
    row("two tasks earn two points back", {600, 0}, 0, 5, 0, 2, 0, 7.0);
    row("half a point a pause and a site", {600, 0}, 3, 0, 2, 0, 0, 7.5);
    row("subtasks", {300, 300}, 0, 0, 0, 0, 2, 5.6);
    row("ceiling", {600, 0}, 0, 0, 0, 3, 3, 10.0);
    row("floor", {0, 600}, 5, 5, 5, 0, 0, 0.0);
    row("no data, but tasks", {0, 0}, 0, 0, 0, 9, 0, 0.0);
}

void tst_SessionRecording::score() {
    QFETCH(FocusScoreInput, input);
    QFETCH(double, score);
    const FocusScoreTerms terms = focusScoreTerms(input);
    QCOMPARE(terms.score, score);
    // The terms explain the score.
    const double sum = terms.ratioPoints - terms.interruptionPenalty - terms.blockedAttemptsPenalty -
                       terms.blockedSiteAttemptsPenalty + terms.completedTasksBonus +
                       terms.completedSubtasksBonus;
    if (terms.hasEnoughData)
        QCOMPARE(std::clamp(sum, 0.0, 10.0), score);
}

void tst_SessionRecording::recordsWhatTheSessionWas() {
    FocusRig rig;
    TaskItem* task = rig.addTask(QStringLiteral("Write"));
    rig.blocker.addAppToWhitelist(rig.editor.bundleIdentifier);
    rig.blocker.addAppToBlocklist(rig.game.bundleIdentifier);
    rig.workspace.setFrontmost(rig.editor);
    const QDateTime start = rig.clock.now();
    rig.timer.startSession(task, PomodoroPhase::work, 10);
    rig.pass(540s);
    rig.workspace.setFrontmost(rig.game);
    FocusRig::settle();
    rig.pass(61s);

    const QList<Session> sessions = rig.context().fetchSessions();
    QCOMPARE(sessions.size(), 1);
    const Session& session = sessions.first();
    QCOMPARE(session.startTime, start);
    QCOMPARE(session.durationMinutes, 10);
    QVERIFY(session.completed);
    QCOMPARE(session.task, std::optional(task->id()));
    QCOMPARE(session.blockedAttemptsCount, 1);
    QCOMPARE(session.legitimateTimeSeconds, 540);
    QCOMPARE(session.distractedTimeSeconds, 61);
    QCOMPARE(session.score, std::optional(540.0 / 601.0 * 10.0 - 1.0));
    QCOMPARE(rig.timer.calculateCurrentScore(), *session.score);
    QVERIFY(!rig.context().hasChanges());
    const QString score = QString::number(*session.score, 'g', QLocale::FloatingPointShortest);
    QVERIFY(rig.lines.contains(
        QStringLiteral("PomodoroTimerService: Recording completed session - 10 min, Score: %1").arg(score)));
    QVERIFY(rig.lines.contains(
        QStringLiteral("PomodoroTimerService: Session saved successfully with score %1").arg(score)));
    QCOMPARE(task->sessions().size(), 1);
}

void tst_SessionRecording::minutesAreRoundedUp_data() {
    QTest::addColumn<int>("seconds");
    QTest::addColumn<int>("minutes"); // 0 for not recorded
    QTest::newRow("9 s") << 9 << 0;
    QTest::newRow("10 s") << 10 << 1;
    QTest::newRow("60 s") << 60 << 1;
    QTest::newRow("61 s") << 61 << 2;
}

void tst_SessionRecording::minutesAreRoundedUp() {
    QFETCH(int, seconds);
    QFETCH(int, minutes);
    FocusRig rig;
    TaskItem* task = rig.addTask(QStringLiteral("only"));
    rig.timer.addTaskToQueue(task);
    rig.timer.startSession(task, PomodoroPhase::work);
    rig.pass(std::chrono::seconds(seconds));
    task->setStatus(TaskStatus::done);
    rig.timer.recordTaskCompletion(false);
    QCOMPARE(rig.timer.state(), TimerState::completed);
    const QList<Session> sessions = rig.context().fetchSessions();
    if (minutes == 0) {
        QVERIFY(sessions.isEmpty());
        QVERIFY(rig.lines.contains(
            QStringLiteral("PomodoroTimerService: Session too short (9s), skipping recording")));
    } else {
        QCOMPARE(sessions.size(), 1);
        QCOMPARE(sessions.first().durationMinutes, minutes);
    }
}

void tst_SessionRecording::withoutAContextNothingIsRecorded() {
    FocusRig rig;
    rig.timer.setModelContext(nullptr);
    rig.timer.startSession(nullptr, PomodoroPhase::work, 1);
    rig.pass(61s);
    QCOMPARE(rig.timer.state(), TimerState::completed);
    QVERIFY(rig.lines.contains(
        QStringLiteral("PomodoroTimerService: Error - modelContext is nil, cannot record session")));
    QVERIFY(rig.context().fetchSessions().isEmpty());
}

QTEST_GUILESS_MAIN(tst_SessionRecording)
#include "tst_SessionRecording.moc"
