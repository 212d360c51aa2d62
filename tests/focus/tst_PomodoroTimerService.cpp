#include "tests/support/FocusRig.h"

#include <QSignalSpy>
#include <QTest>

using namespace norvin;
using namespace std::chrono_literals;

class tst_PomodoroTimerService final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void lengthsOfThePhases();
    void countsDownAndCompletesOneSecondAfterZero();
    void workSwitchesControlOnAndCompletionOff();
    void breakLeavesControlAlone();
    void startingABreakDuringWorkEndsTheWatch();
    void pauseWithinTheGracePeriodIsFree();
    void resumeLeavesTrackingOff();
    void stopFromEveryState();
    void attemptsAreCounted();
    void completionNotifies();
    void onlyInstalledProgramsNotify();
    void queueKeepsEachTaskOnceAndPlansIt();
    void removedTasksLoseTodaysDateOnly();
    void completionsCountOnlyDuringAPhase();
    void finishingTheQueueEndsWorkOnly();
    void deletedTasksLeaveTheTimer();
    void timerStringForLongPhases();
    void suspensionStopsTheCountdown();
};

namespace {

constexpr auto work = PomodoroPhase::work;

void finish(TaskItem* task) {
    task->setStatus(TaskStatus::done);
}

} // namespace

void tst_PomodoroTimerService::lengthsOfThePhases() {
    FocusRig rig;
    rig.timer.startSession(nullptr, work);
    QCOMPARE(rig.timer.initialDuration(), 1500);
    rig.timer.startSession(nullptr, work, 45);
    QCOMPARE(rig.timer.initialDuration(), 2700);
    QCOMPARE(rig.timer.selectedDuration(), 45);
    rig.timer.startSession(nullptr, PomodoroPhase::breakTime);
    QCOMPARE(rig.timer.initialDuration(), 300);
    rig.timer.startSession(nullptr, PomodoroPhase::rearming);
    QCOMPARE(rig.timer.initialDuration(), 120);
    rig.timer.startSession(nullptr, PomodoroPhase::rearming, 7);
    QCOMPARE(rig.timer.initialDuration(), 420);
    QCOMPARE(rig.timer.selectedDuration(), 45); // only work changes the choice
    QCOMPARE(rig.clock.activeTimers(), 1);      // every start replaced the timer before
}

void tst_PomodoroTimerService::countsDownAndCompletesOneSecondAfterZero() {
    FocusRig rig;
    rig.timer.startSession(nullptr, work, 1);
    rig.pass(60s);
    QCOMPARE(rig.timer.timeRemaining(), 0);
    QCOMPARE(rig.timer.state(), TimerState::running);
    QCOMPARE(rig.timer.timeRemainingString(), QStringLiteral("00:00"));
    QCOMPARE(rig.tickPlayer.ticks, 60);
    rig.pass(1s);
    QCOMPARE(rig.timer.state(), TimerState::completed);
    QCOMPARE(rig.tickPlayer.ticks, 60);
    rig.pass(100s);
    QCOMPARE(rig.timer.state(), TimerState::completed); // no next phase by itself
    QCOMPARE(rig.clock.activeTimers(), 0);
}

void tst_PomodoroTimerService::workSwitchesControlOnAndCompletionOff() {
    FocusRig rig;
    rig.timer.startSession(nullptr, work, 1);
    QVERIFY(rig.blocker.isBlockingActive() && rig.usage.isTrackingActive() && rig.motion.isMonitoring());
    QVERIFY(rig.playedSounds().isEmpty()); // put off to the next turn
    FocusRig::settle();
    QCOMPARE(rig.playedSounds(), QStringList{QStringLiteral("Ping")});
    rig.pass(61s);
    QVERIFY(!rig.blocker.isBlockingActive() && !rig.usage.isTrackingActive() && !rig.motion.isMonitoring());
    QCOMPARE(rig.sounds.played().size(), 2u);
    QCOMPARE(rig.sounds.played().back().volume, 1.0);
}

void tst_PomodoroTimerService::breakLeavesControlAlone() {
    FocusRig rig;
    for (const PomodoroPhase phase : {PomodoroPhase::breakTime, PomodoroPhase::rearming}) {
        rig.timer.startSession(nullptr, phase, 1);
        QVERIFY(!rig.blocker.isBlockingActive() && !rig.usage.isTrackingActive() &&
                !rig.motion.isMonitoring());
        rig.pass(30s);
        rig.timer.pauseSession();
        rig.timer.resumeSession();
        QVERIFY(!rig.blocker.isBlockingActive() && !rig.motion.isMonitoring());
        rig.pass(31s);
        QCOMPARE(rig.timer.state(), TimerState::completed);
    }
    QVERIFY(rig.context().fetchSessions().isEmpty());
}

void tst_PomodoroTimerService::startingABreakDuringWorkEndsTheWatch() {
    FocusRig rig;
    rig.timer.startSession(nullptr, work);
    rig.pass(5s);
    rig.timer.startSession(nullptr, PomodoroPhase::breakTime);
    QVERIFY(!rig.blocker.isBlockingActive() && !rig.usage.isTrackingActive() && !rig.motion.isMonitoring());
    QCOMPARE(rig.clock.activeTimers(), 1);
}

void tst_PomodoroTimerService::pauseWithinTheGracePeriodIsFree() {
    FocusRig rig;
    QSignalSpy interrupted(&rig.timer, &PomodoroTimerService::sessionInterrupted);
    rig.timer.pauseSession();
    QCOMPARE(rig.timer.state(), TimerState::idle);
    QCOMPARE(interrupted.size(), 0);

    rig.timer.startSession(nullptr, work);
    rig.pass(9s);
    rig.timer.pauseSession();
    QCOMPARE(rig.timer.interruptionCount(), 0);
    QCOMPARE(interrupted.last().first().toString(), QStringLiteral("pause"));
    rig.pass(100s);
    QCOMPARE(rig.timer.timeRemaining(), 1491);
    rig.timer.resumeSession();
    rig.pass(1s);
    rig.timer.pauseSession();
    QCOMPARE(rig.timer.interruptionCount(), 1);
    rig.timer.pauseSession(); // ignored
    QCOMPARE(interrupted.size(), 2);
    QCOMPARE(rig.playedSounds(), QStringList({"Ping", "Blow", "Ping", "Blow"}));
    rig.timer.startSession(nullptr, work);
    QCOMPARE(rig.timer.interruptionCount(), 0);
}

void tst_PomodoroTimerService::resumeLeavesTrackingOff() {
    FocusRig rig;
    rig.workspace.setFrontmost(rig.game);
    rig.timer.startSession(nullptr, work);
    rig.pass(20s);
    rig.timer.pauseSession();
    QVERIFY(!rig.blocker.isBlockingActive() && !rig.usage.isTrackingActive() && !rig.motion.isMonitoring());
    rig.timer.resumeSession();
    QVERIFY(rig.blocker.isBlockingActive() && rig.motion.isMonitoring());
    QVERIFY(!rig.usage.isTrackingActive());
    rig.pass(100s);
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{0, 20}));
    rig.timer.resumeSession(); // ignored while running
    QCOMPARE(rig.clock.activeTimers(), 2);
}

void tst_PomodoroTimerService::stopFromEveryState() {
    FocusRig rig;
    TaskItem* task = rig.addTask(QStringLiteral("Write"));
    QSignalSpy interrupted(&rig.timer, &PomodoroTimerService::sessionInterrupted);
    const auto stop = [&](int interruptions) {
        rig.timer.stopSession();
        QCOMPARE(rig.timer.state(), TimerState::idle);
        QCOMPARE(rig.timer.timeRemaining(), 0);
        QCOMPARE(rig.timer.activeTask(), nullptr);
        QCOMPARE(rig.timer.interruptionCount(), interruptions);
        QCOMPARE(interrupted.last().first().toString(), QStringLiteral("stop"));
        QCOMPARE(rig.clock.activeTimers(), 0);
        QVERIFY(!rig.blocker.isBlockingActive() && !rig.usage.isTrackingActive());
    };
    stop(0); // idle
    rig.timer.startSession(task, work);
    rig.pass(9s);
    stop(0);
    rig.timer.startSession(task, work);
    rig.pass(10s);
    stop(1);
    rig.timer.startSession(task, work);
    rig.pass(600s);
    rig.timer.pauseSession();
    stop(2);
    QVERIFY(rig.context().fetchSessions().isEmpty()); // never recorded, however long it ran
    rig.timer.startSession(task, work, 1);
    rig.pass(61s);
    stop(0);                         // completed: no interruption
    QCOMPARE(interrupted.size(), 6); // one of them the pause
    QCOMPARE(rig.playedSounds().last(), QStringLiteral("Bottle"));
}

void tst_PomodoroTimerService::attemptsAreCounted() {
    FocusRig rig;
    rig.blocker.addAppToBlocklist(rig.game.bundleIdentifier);
    rig.timer.startSession(nullptr, work);
    rig.workspace.setFrontmost(rig.game);
    FocusRig::settle();
    Q_EMIT rig.usage.blockedSiteAttempt(QStringLiteral("example.org"));
    QCOMPARE(rig.timer.blockedAttemptsCount(), 1);
    QCOMPARE(rig.timer.blockedSiteAttemptsCount(), 1);
    // A new session replaces the subscriptions instead of adding to them.
    rig.timer.startSession(nullptr, work);
    QCOMPARE(rig.timer.blockedAttemptsCount(), 0);
    rig.workspace.setFrontmost(rig.editor);
    FocusRig::settle(); // the game was in front at the start
    rig.workspace.setFrontmost(rig.game);
    FocusRig::settle();
    QCOMPARE(rig.timer.blockedAttemptsCount(), 2);
}

void tst_PomodoroTimerService::completionNotifies() {
    FocusRig rig;
    const QList<std::pair<PomodoroPhase, QString>> expected{
        {work, "notif_work_complete"},
        {PomodoroPhase::breakTime, "notif_break_complete"},
        {PomodoroPhase::rearming, "notif_rearming_complete"}};
    for (const auto& [phase, key] : expected) {
        rig.timer.startSession(nullptr, phase, 1);
        rig.pass(61s);
        // Without a translation loaded, a key is its own text.
        QCOMPARE(rig.notifications.posted().back(),
                 (FakeUserNotifications::Notification{key + QStringLiteral("_title"),
                                                      key + QStringLiteral("_body")}));
    }
    QCOMPARE(rig.notifications.posted().size(), 3u);
}

void tst_PomodoroTimerService::onlyInstalledProgramsNotify() {
    FocusRig rig;
    rig.catalog.setOwnApplicationInstalled(false);
    rig.timer.startSession(nullptr, PomodoroPhase::breakTime, 1);
    rig.pass(61s);
    QVERIFY(rig.notifications.posted().empty());
    QCOMPARE(rig.lines.last(),
             QStringLiteral(
                 "PomodoroTimerService: Notification locale ignorée car l'application n'est pas exécutée "
                 "depuis un bundle .app valide (ex: exécution directe depuis Xcode dans DerivedData)"));
}

void tst_PomodoroTimerService::queueKeepsEachTaskOnceAndPlansIt() {
    FocusRig rig;
    TaskItem* first = rig.addTask(QStringLiteral("first"));
    TaskItem* second = rig.addTask(QStringLiteral("second"));
    rig.timer.addTaskToQueue(first);
    rig.timer.addTaskToQueue(second);
    rig.timer.addTaskToQueue(first);
    rig.timer.addTaskToQueue(nullptr);
    QCOMPARE(rig.timer.taskQueue(), QList<TaskItem*>({first, second}));
    QCOMPARE(first->plannedDate(), startOfDay(rig.clock.now()));
    rig.timer.moveTaskInQueue(0, 1);
    QCOMPARE(rig.timer.taskQueue(), QList<TaskItem*>({second, first}));
    rig.timer.moveTaskInQueue(0, 2);
    QCOMPARE(rig.timer.taskQueue(), QList<TaskItem*>({second, first}));
}

void tst_PomodoroTimerService::removedTasksLoseTodaysDateOnly() {
    FocusRig rig;
    TaskItem* today = rig.addTask(QStringLiteral("today"));
    TaskItem* tomorrow = rig.addTask(QStringLiteral("tomorrow"));
    rig.timer.addTaskToQueue(today);
    rig.timer.addTaskToQueue(tomorrow);
    today->setPlannedDate(rig.clock.now());
    tomorrow->setPlannedDate(rig.clock.now().addDays(1));
    rig.timer.removeTaskFromQueue(today);
    rig.timer.removeTaskFromQueue(tomorrow);
    QVERIFY(rig.timer.taskQueue().isEmpty());
    QVERIFY(!today->plannedDate().isValid());
    QCOMPARE(tomorrow->plannedDate(), rig.clock.now().addDays(1));
}

void tst_PomodoroTimerService::completionsCountOnlyDuringAPhase() {
    FocusRig rig;
    rig.timer.recordTaskCompletion(false);
    rig.timer.startSession(nullptr, PomodoroPhase::breakTime, 1);
    rig.timer.recordTaskCompletion(true);
    rig.timer.pauseSession();
    rig.timer.recordTaskCompletion(false);
    QCOMPARE(rig.timer.completedTasksCount(), 1);
    QCOMPARE(rig.timer.completedSubtasksCount(), 1);
    rig.timer.resumeSession();
    rig.pass(61s);
    rig.timer.recordTaskCompletion(false);
    QCOMPARE(rig.timer.completedTasksCount(), 1);
}

void tst_PomodoroTimerService::finishingTheQueueEndsWorkOnly() {
    FocusRig rig;
    TaskItem* first = rig.addTask(QStringLiteral("first"));
    TaskItem* second = rig.addTask(QStringLiteral("second"));
    rig.timer.startSession(nullptr, work);
    rig.timer.recordTaskCompletion(false); // an empty queue never ends a session
    QCOMPARE(rig.timer.state(), TimerState::running);
    rig.timer.addTaskToQueue(first);
    rig.timer.addTaskToQueue(second);
    finish(first);
    rig.timer.startSession(first, PomodoroPhase::breakTime);
    finish(second);
    rig.timer.recordTaskCompletion(true);
    QCOMPARE(rig.timer.state(), TimerState::running); // a break goes on
    second->setStatus(TaskStatus::inProgress);

    rig.timer.startSession(first, work);
    rig.pass(90s);
    rig.timer.recordTaskCompletion(false);
    QCOMPARE(rig.timer.state(), TimerState::running);
    finish(second);
    rig.timer.recordTaskCompletion(false);
    QCOMPARE(rig.timer.state(), TimerState::completed);
    QVERIFY(rig.lines.contains(
        QStringLiteral("PomodoroTimerService: All tasks in queue completed. Ending session.")));
    QCOMPARE(rig.context().fetchSessions().size(), 1);
    QCOMPARE(rig.context().fetchSessions().first().durationMinutes, 2);
}

void tst_PomodoroTimerService::deletedTasksLeaveTheTimer() {
    FocusRig rig;
    TaskItem* task = rig.addTask(QStringLiteral("gone"));
    rig.timer.addTaskToQueue(task);
    rig.timer.startSession(task, work);
    rig.context().remove(*task);
    FocusRig::settle();
    QCOMPARE(rig.timer.activeTask(), nullptr);
    QVERIFY(rig.timer.taskQueue().isEmpty());
}

void tst_PomodoroTimerService::timerStringForLongPhases() {
    FocusRig rig;
    rig.timer.startSession(nullptr, work, 150);
    QCOMPARE(rig.timer.timeRemainingString(), QStringLiteral("150:00"));
    rig.pass(1s);
    QCOMPARE(rig.timer.timeRemainingString(), QStringLiteral("149:59"));
    rig.timer.setSelectedDuration(0);
    QCOMPARE(rig.timer.selectedDuration(), 1);
}

void tst_PomodoroTimerService::suspensionStopsTheCountdown() {
    FocusRig rig;
    rig.timer.startSession(nullptr, work);
    rig.pass(10s);
    rig.workspace.emitWillSleep();
    rig.clock.suspend(8h);
    rig.workspace.emitDidWake();
    rig.pass(10s);
    QCOMPARE(rig.timer.timeRemaining(), 1480);
}

QTEST_GUILESS_MAIN(tst_PomodoroTimerService)
#include "tst_PomodoroTimerService.moc"
