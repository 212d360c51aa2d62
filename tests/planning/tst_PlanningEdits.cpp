#include "planning/PlanningEdits.h"
#include "tests/model/StoreFixture.h"
#include "tests/support/FocusRig.h"

#include <QSignalSpy>
#include <QTest>

using namespace norvin;

/// Deletions and unscheduling, and taking them back, in memory and in the file.
class PlanningEditsTest final : public QObject {
    Q_OBJECT
    /// A store with a project in which everything hangs together.
    struct Planned {
        Planned() {
            timer.setModelContext(&context);
            project = context.insert(std::make_unique<Project>(Project::Init{.name = "Thesis"}));
            phase = context.insert(
                std::make_unique<ProjectPhase>(ProjectPhase::Init{.name = "Draft", .project = project}));
            before = test::addTask(context, QStringLiteral("before"), project);
            task = test::addTask(context, QStringLiteral("task"), project);
            task->setPhase(phase);
            after = test::addTask(context, QStringLiteral("after"));
            after->setPhase(phase);
            child = test::addTask(context, QStringLiteral("child"), project, task);
            auto attachment = std::make_unique<TaskResource>(
                TaskResource::Init{.name = "notes", .fileURL = QUrl::fromLocalFile("/nowhere/notes.txt")});
            attachment->setTask(child);
            context.insert(std::move(attachment));
            context.insert(test::sessionOf(child, test::morning));
            context.insert(test::sessionOf(before, test::morning.addSecs(60)));
            Q_ASSERT(!context.save());
        }
        /// Everything that the file holds, read by a container of its own.
        [[nodiscard]] PlanningSnapshot stored() const { return snapshotOf(store.open()->mainContext()); }

        test::StoreFixture store;
        std::unique_ptr<ModelContainer> container = store.open();
        ModelContext& context = container->mainContext();
        FocusRig focus;
        PomodoroTimerService& timer = focus.timer;
        PlanningEdits edits{context, timer, focus.clock};
        Project* project = nullptr;
        ProjectPhase* phase = nullptr;
        TaskItem* before = nullptr;
        TaskItem* task = nullptr;
        TaskItem* after = nullptr;
        TaskItem* child = nullptr;
    };

private Q_SLOTS:
    void whatWasDeletedComesBackAsItWas_data() {
        QTest::addColumn<QString>("what");
        for (const char* what : {"project", "task", "phase", "resource"})
            QTest::newRow(what) << QString::fromLatin1(what);
    }
    void whatWasDeletedComesBackAsItWas() {
        QFETCH(QString, what);
        Planned planned;
        const PlanningSnapshot whole = snapshotOf(planned.context);
        const QList<Session> sessions = planned.context.fetchSessions();
        if (what == QLatin1String("project"))
            planned.edits.deleteProject(*planned.project);
        else if (what == QLatin1String("task"))
            planned.edits.deleteTask(*planned.task);
        else if (what == QLatin1String("phase"))
            planned.edits.deletePhases({planned.phase});
        else
            planned.edits.deleteResource(*planned.child->resources().first());
        FocusRig::settle();
        QVERIFY(snapshotOf(planned.context) != whole);
        QCOMPARE(planned.stored(), snapshotOf(planned.context));
        QVERIFY(planned.context.task(planned.after->id()) == planned.after);
        QVERIFY(!planned.edits.undoText().isEmpty());

        planned.edits.undo();
        QVERIFY(snapshotOf(planned.context) == whole);
        QVERIFY(planned.stored() == whole);
        QCOMPARE(planned.context.fetchSessions(), sessions);
        QCOMPARE(planned.store.soundness(), QStringLiteral("ok"));
        QVERIFY(planned.edits.undoText().isEmpty());
        planned.edits.undo();
        QVERIFY(snapshotOf(planned.context) == whole);
    }

    void whatComesBackBeforeTheDeletionWasSavedIsWhole() {
        Planned planned;
        const PlanningSnapshot whole = snapshotOf(planned.context);
        const QList<Session> sessions = planned.context.fetchSessions();
        // Somebody holds the file, so the deletion stays in memory.
        SQLite::Database other = planned.store.raw();
        other.exec("BEGIN IMMEDIATE");
        planned.edits.deleteProject(*planned.project);
        QVERIFY(planned.context.hasChanges());
        other.exec("ROLLBACK");
        planned.edits.undo();
        QVERIFY(!planned.context.hasChanges());
        QVERIFY(snapshotOf(planned.context) == whole);
        QVERIFY(planned.stored() == whole);
        QCOMPARE(planned.context.fetchSessions(), sessions);
    }

    void theChanceToUndoPasses() {
        Planned planned;
        const QSignalSpy changes(&planned.edits, &PlanningEdits::undoChanged);
        planned.edits.deleteTask(*planned.before);
        planned.focus.pass(PlanningEdits::undoTime - std::chrono::seconds(1));
        QCOMPARE(changes.size(), 1);
        planned.edits.deleteTask(*planned.after);
        planned.focus.pass(std::chrono::seconds(5));
        QVERIFY(!planned.edits.undoText().isEmpty());
        planned.focus.pass(std::chrono::seconds(5));
        QVERIFY(planned.edits.undoText().isEmpty());
        planned.edits.undo();
        QCOMPARE(planned.context.tasks().size(), size_t{2});
    }

    void aQueuedTaskComesBackToItsPlaceInTheQueue() {
        Planned planned;
        const QDateTime tomorrow = planned.focus.clock.now().addDays(1);
        for (TaskItem* task : {planned.before, planned.task, planned.after})
            planned.timer.addTaskToQueue(task);
        planned.task->setPlannedDate(tomorrow);
        planned.timer.setActiveTask(planned.task);
        const TaskId id = planned.task->id();
        planned.edits.deleteTask(*planned.task);
        QCOMPARE(planned.timer.taskQueue().size(), 2);
        planned.edits.undo();
        QCOMPARE(planned.timer.taskQueue().at(1)->id(), id);
        QCOMPARE(planned.timer.activeTask()->id(), id);
        QCOMPARE(planned.timer.taskQueue().at(1)->plannedDate(), tomorrow);
    }

    void unschedulingClearsTheDatesOrDeletesAndComesBack() {
        Planned planned;
        const QDateTime today = planned.focus.clock.now();
        for (TaskItem* task : {planned.before, planned.after}) {
            planned.timer.addTaskToQueue(task);
            task->setDueDate(today.addDays(3));
        }
        const PlanningSnapshot whole = snapshotOf(planned.context);
        planned.edits.unschedule(*planned.before);
        QVERIFY(!planned.before->plannedDate().isValid() && !planned.before->dueDate().isValid());
        QCOMPARE(planned.timer.taskQueue(), QList<TaskItem*>{planned.after});
        planned.edits.undo();
        QVERIFY(snapshotOf(planned.context) == whole);
        QCOMPARE(planned.timer.taskQueue().first(), planned.before);

        const TaskId loose = planned.after->id();
        planned.edits.unschedule(*planned.after);
        QVERIFY(planned.context.task(loose) == nullptr);
        planned.edits.undo();
        QVERIFY(snapshotOf(planned.context) == whole);
        QCOMPARE(planned.timer.taskQueue().last()->id(), loose);

        // A date that was set since is not overwritten.
        planned.edits.unschedule(*planned.before);
        planned.before->setPlannedDate(today.addDays(7));
        planned.edits.undo();
        QCOMPARE(planned.before->plannedDate(), today.addDays(7));
    }

    void aFinishedTaskCountsOnceForTheSession() {
        Planned planned;
        planned.timer.startSession(nullptr, PomodoroPhase::work);
        planned.edits.setStatus(*planned.child, TaskStatus::done);
        planned.edits.setStatus(*planned.before, TaskStatus::inProgress);
        planned.edits.setStatus(*planned.before, TaskStatus::done);
        planned.edits.setStatus(*planned.before, TaskStatus::done);
        QCOMPARE(planned.timer.completedTasksCount(), 1);
        QCOMPARE(planned.timer.completedSubtasksCount(), 1);
    }

    void siblingsTradePlaces() {
        Planned planned;
        ModelContext& context = planned.context;
        TaskItem* const second =
            test::addTask(context, QStringLiteral("second"), planned.project, planned.task);
        TaskItem* const third =
            test::addTask(context, QStringLiteral("third"), planned.project, planned.task);
        const auto titles = [](const auto& tasks) {
            QStringList all;
            for (const TaskItem* task : tasks)
                all.append(task->title());
            return all.join(u' ');
        };
        const QSignalSpy moved(&context, &ModelContext::tasksMoved);
        context.moveTask(*third, planned.child);
        QCOMPARE(titles(planned.task->subtasks()), QStringLiteral("third child second"));
        context.moveTask(*third, nullptr);
        context.moveTask(*second, planned.child);
        QCOMPARE(titles(planned.task->subtasks()), QStringLiteral("second child third"));
        QCOMPARE(titles(planned.project->tasks()), QStringLiteral("before task second child third"));
        QCOMPARE(moved.size(), 3);
        // Neither one of another parent nor itself is a place to go to.
        context.moveTask(*third, planned.before);
        context.moveTask(*third, third);
        context.moveTask(*third, nullptr);
        QCOMPARE(moved.size(), 3);
        QVERIFY(!context.save());
        QVERIFY(planned.stored() == snapshotOf(context));
        // Saved and unsaved ones together.
        TaskItem* const fourth =
            test::addTask(context, QStringLiteral("fourth"), planned.project, planned.task);
        context.moveTask(*fourth, second);
        QVERIFY(!context.save());
        QCOMPARE(titles(planned.task->subtasks()), QStringLiteral("fourth second child third"));
        QVERIFY(planned.stored() == snapshotOf(context));
    }
};

QTEST_GUILESS_MAIN(PlanningEditsTest)
#include "tst_PlanningEdits.moc"
