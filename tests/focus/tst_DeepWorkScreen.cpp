#include "focus/DeepWorkScreen.h"
#include "tests/support/FocusRig.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace norvin;
using namespace std::chrono_literals;

class tst_DeepWorkScreen final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void actionsAreRefusedWhereTheyMakeNoSense();
    void aClosedGateLetsNothingBeginAndNothingEnd();
    void startTakesTheFirstOpenTask();
    void startByTitleFindsOrMakesTheTask();
    void tickingTheActiveTaskOffMovesOn();
    void lastTaskDoneCompletesWithItsTask();
    void queueRowsFollowTasksAndSubtasks();
    void figuresBelongToWorkOnly();
    void saysWhyItIsBlind();
    void inactivityIsGathered();
    void pickerOffersWhatCouldBeQueued();
    void ringShowsTheChosenLengthWhileIdle();
};

namespace {

struct ScreenRig : FocusRig {
    DeepWorkScreen screen{timer, usage, motion, context()};
    QAbstractItemModelTester queueTester{screen.queue()};
    QAbstractItemModelTester pickerTester{screen.picker()};

    [[nodiscard]] QStringList rows() {
        QStringList result;
        TaskQueueModel& queue = *screen.queue();
        for (int row = 0; row < queue.rowCount(); ++row) {
            const QModelIndex index = queue.index(row);
            result.append(QString(index.data(TaskQueueModel::DepthRole).toInt(), u'-') +
                          index.data(TaskQueueModel::TitleRole).toString());
        }
        return result;
    }
    [[nodiscard]] QStringList offered() {
        QStringList result;
        for (int row = 0; row < screen.picker()->rowCount(); ++row)
            result.append(screen.picker()->index(row).data(TaskPickerModel::TitleRole).toString());
        return result;
    }
};

} // namespace

void tst_DeepWorkScreen::actionsAreRefusedWhereTheyMakeNoSense() {
    ScreenRig rig;
    DeepWorkScreen& screen = rig.screen;
    QCOMPARE(screen.pauseSession(), QStringLiteral("refused_pause_not_running"));
    QCOMPARE(screen.resumeSession(), QStringLiteral("refused_resume_not_paused"));
    QCOMPARE(screen.stopSession(), QStringLiteral("refused_stop_nothing_runs"));
    QCOMPARE(screen.addTaskTitled(QStringLiteral(" \n ")), QStringLiteral("refused_task_title_empty"));
    QVERIFY(!screen.startPhase(PomodoroPhase::work));
    QCOMPARE(screen.startPhase(PomodoroPhase::breakTime), QStringLiteral("refused_start_already_running"));
    QVERIFY(!screen.pauseSession());
    QCOMPARE(screen.startPhaseWith(QStringLiteral("x"), PomodoroPhase::work, {}),
             QStringLiteral("refused_start_already_running"));
    QVERIFY(rig.timer.taskQueue().isEmpty()); // a refused start leaves nothing behind
    QVERIFY(!screen.resumeSession());
    QVERIFY(!screen.stopSession());
    QVERIFY(rig.context().tasks().empty());
}

void tst_DeepWorkScreen::aClosedGateLetsNothingBeginAndNothingEnd() {
    ScreenRig rig;
    DeepWorkScreen& screen = rig.screen;
    DeepWorkScreen::Refusal closed;
    screen.setStartGate([&closed] { return closed; });
    QSignalSpy changed(&screen, &DeepWorkScreen::closedGateChanged);
    QVERIFY(!screen.startPhase(PomodoroPhase::work));
    closed = QStringLiteral("refused_trial_over");
    QVERIFY(!screen.pauseSession());
    QVERIFY(!screen.resumeSession());
    QVERIFY(!screen.stopSession());

    QCOMPARE(screen.startPhaseWith(QStringLiteral("Never made"), PomodoroPhase::work, 5), closed);
    QSignalSpy help(&screen, &DeepWorkScreen::gateHelpWanted);
    screen.startBreak();
    QCOMPARE(help.size(), 1);
    QCOMPARE(screen.state(), QStringLiteral("idle"));
    QCOMPARE(screen.closedGateKey(), QStringLiteral("refused_trial_over"));
    QVERIFY(rig.context().fetchTasks([](const TaskItem&) { return true; }).empty());
    closed.reset();
    screen.refreshStartGate();
    QVERIFY(screen.closedGateKey().isEmpty());
    QCOMPARE(changed.size(), 2);
    QVERIFY(!screen.startPhase(PomodoroPhase::work));
}

void tst_DeepWorkScreen::startTakesTheFirstOpenTask() {
    ScreenRig rig;
    rig.screen.addTask(QStringLiteral("done already"));
    rig.screen.addTask(QStringLiteral("  second \n task "));
    rig.screen.addTask(QStringLiteral("third"));
    rig.screen.toggleDone(0);
    QCOMPARE(rig.screen.activeTaskTitle(), QStringLiteral("second task"));
    rig.screen.makeActive(2);
    rig.screen.start();
    QCOMPARE(rig.timer.activeTask()->title(), QStringLiteral("third"));
    rig.screen.stop();
    rig.screen.start();
    QCOMPARE(rig.timer.activeTask()->title(), QStringLiteral("second task"));
}

void tst_DeepWorkScreen::startByTitleFindsOrMakesTheTask() {
    ScreenRig rig;
    TaskItem* stored = rig.addTask(QStringLiteral("Write"));
    QVERIFY(!rig.screen.startPhaseWith(QStringLiteral("Write"), PomodoroPhase::work, 30));
    QCOMPARE(rig.timer.activeTask(), stored);
    QCOMPARE(rig.timer.initialDuration(), 1800);
    rig.screen.stop();
    QVERIFY(!rig.screen.startPhaseWith(QStringLiteral("New one"), PomodoroPhase::work, {}));
    QCOMPARE(rig.timer.activeTask()->title(), QStringLiteral("New one"));
    QCOMPARE(rig.context().tasks().size(), 2u);
    QCOMPARE(rig.timer.taskQueue().size(), 2);
}

void tst_DeepWorkScreen::tickingTheActiveTaskOffMovesOn() {
    ScreenRig rig;
    rig.screen.addTask(QStringLiteral("first"));
    rig.screen.addTask(QStringLiteral("second"));
    rig.screen.start();
    rig.screen.toggleDone(0);
    QCOMPARE(rig.screen.completedTasksCount(), 1);
    QCOMPARE(rig.timer.activeTask()->title(), QStringLiteral("second"));
    rig.screen.toggleDone(0); // reopened
    QVERIFY(!rig.timer.taskQueue().first()->isDone());
}

void tst_DeepWorkScreen::lastTaskDoneCompletesWithItsTask() {
    ScreenRig rig;
    rig.screen.addTask(QStringLiteral("only"));
    rig.screen.start();
    rig.pass(75s);
    rig.screen.toggleDone(0);
    QCOMPARE(rig.screen.state(), QStringLiteral("completed"));
    QCOMPARE(rig.screen.completedMinutes(), 2);
    QVERIFY(rig.screen.completedRecorded());
    QCOMPARE(rig.context().fetchSessions().first().task, std::optional(rig.context().tasks().front()->id()));
}

void tst_DeepWorkScreen::queueRowsFollowTasksAndSubtasks() {
    ScreenRig rig;
    rig.screen.addTask(QStringLiteral("a"));
    rig.screen.addTask(QStringLiteral("b"));
    QVERIFY(rig.screen.addSubtask(0, QStringLiteral("a1")));
    QVERIFY(rig.screen.addSubtask(0, QStringLiteral("a2")));
    QVERIFY(rig.screen.addSubtask(1, QStringLiteral("a1x")));
    QVERIFY(!rig.screen.addSubtask(0, QStringLiteral("  ")));
    QCOMPARE(rig.rows(), QStringList({"a", "-a1", "--a1x", "-a2", "b"}));
    QCOMPARE(rig.screen.queue()->taskCount(), 2);

    rig.screen.moveInQueue(2, 1); // from within a
    QCOMPARE(rig.rows(), QStringList({"b", "a", "-a1", "--a1x", "-a2"}));
    rig.screen.moveInQueue(0, 99);
    QCOMPARE(rig.rows(), QStringList({"a", "-a1", "--a1x", "-a2", "b"}));

    rig.screen.start();
    rig.screen.toggleDone(1);
    QCOMPARE(rig.screen.completedSubtasksCount(), 1); // the subtask, not what lies below it
    QCOMPARE(rig.screen.queue()->index(2).data(TaskQueueModel::IsDoneRole).toBool(), true);
    QCOMPARE(rig.screen.queue()->index(0).data(TaskQueueModel::CompletedSubtaskCountRole).toInt(), 1);

    rig.context().remove(*rig.screen.queue()->taskAt(1));
    FocusRig::settle();
    QCOMPARE(rig.rows(), QStringList({"a", "-a2", "b"}));
    rig.screen.removeFromQueue(1); // a subtask is not queued by itself
    rig.screen.removeFromQueue(0);
    QCOMPARE(rig.rows(), QStringList({"b"}));
    QCOMPARE(rig.context().tasks().size(), 3u);
}

void tst_DeepWorkScreen::figuresBelongToWorkOnly() {
    ScreenRig rig;
    rig.workspace.setFrontmost(rig.own);
    rig.screen.start();
    rig.pass(20s);
    QCOMPARE(rig.screen.legitimateSeconds(), 20);
    QCOMPARE(rig.screen.score(), 10.0);
    rig.screen.stop();
    QCOMPARE(rig.screen.legitimateSeconds(), 0);
    rig.screen.startBreak();
    QCOMPARE(rig.screen.legitimateSeconds(), 0);
    QVERIFY(!rig.screen.scoreHasEnoughData());
}

void tst_DeepWorkScreen::saysWhyItIsBlind() {
    ScreenRig rig;
    QSignalSpy changed(&rig.screen, &DeepWorkScreen::activityChanged);
    QCOMPARE(rig.screen.blindReasonKey(), QString());
    rig.workspace.setAvailability(Availability::unavailable(QStringLiteral("health_no_window_manager")));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(rig.screen.blindReasonKey(), QStringLiteral("health_no_window_manager"));
}

void tst_DeepWorkScreen::inactivityIsGathered() {
    ScreenRig rig;
    rig.screen.start();
    rig.idle.setTimeSinceLastInput(3min);
    rig.pass(10s);
    QVERIFY(rig.screen.isInactive());
    const int gathered = rig.screen.inactivitySeconds();
    QVERIFY(gathered >= 9 && gathered <= 10);
    rig.idle.setTimeSinceLastInput(0s);
    rig.pass(10s);
    QVERIFY(rig.screen.inactivitySeconds() <= gathered + 1);
    rig.screen.stop();
    rig.screen.start();
    QCOMPARE(rig.screen.inactivitySeconds(), 0);
}

void tst_DeepWorkScreen::pickerOffersWhatCouldBeQueued() {
    ScreenRig rig;
    TaskItem* late = rig.addTask(QStringLiteral("Étude"));
    TaskItem* planned = rig.addTask(QStringLiteral("Planned"));
    planned->setPlannedDate(rig.clock.now());
    TaskItem* done = rig.addTask(QStringLiteral("Done"));
    done->setStatus(TaskStatus::done);
    TaskItem* sub = rig.addTask(QStringLiteral("Sub"));
    sub->setParentTask(late);
    FocusRig::settle();
    QCOMPARE(rig.offered(), QStringList({"Planned", "Étude"}));
    rig.screen.picker()->setFilterText(QStringLiteral("ETU"));
    QCOMPARE(rig.offered(), QStringList({"Étude"}));
    rig.screen.addExistingTask(late->id().toString());
    rig.screen.addExistingTask(QStringLiteral("no such id"));
    FocusRig::settle();
    QCOMPARE(rig.timer.taskQueue(), QList<TaskItem*>{late});
    QVERIFY(rig.offered().isEmpty());
    rig.screen.picker()->setFilterText({});
    rig.context().remove(*planned);
    FocusRig::settle();
    QVERIFY(rig.offered().isEmpty());
}

void tst_DeepWorkScreen::ringShowsTheChosenLengthWhileIdle() {
    ScreenRig rig;
    rig.screen.setSelectedDuration(45);
    QCOMPARE(rig.screen.timeText(), QStringLiteral("45:00"));
    QCOMPARE(rig.screen.progress(), 0.0);
    rig.screen.start();
    QSignalSpy minutes(&rig.screen, &DeepWorkScreen::minutesChanged);
    rig.pass(675s);
    QCOMPARE(rig.screen.timeText(), QStringLiteral("33:45"));
    QCOMPARE(rig.screen.minutes(), 34);
    QCOMPARE(minutes.size(), 11);
    QCOMPARE(rig.screen.progress(), 0.25);
    rig.screen.stop();
    QCOMPARE(rig.screen.timeText(), QStringLiteral("45:00"));
    QCOMPARE(rig.screen.minutes(), 45);
    QCOMPARE(rig.screen.progress(), 0.0);
}

QTEST_GUILESS_MAIN(tst_DeepWorkScreen)
#include "tst_DeepWorkScreen.moc"
