#include "tests/planning/AgendaRig.h"

#include <QSignalSpy>
#include <QtTest>

using namespace norvin;
using test::AgendaRig;

class DailyAgendaViewTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aDayHoldsItsOpenTopLevelTasksByPriority();
    void rowsFollowTheirTasks();
    void daysThatAreNotTwentyFourHoursLongHaveTheirOwnLimits_data();
    void daysThatAreNotTwentyFourHoursLongHaveTheirOwnLimits();
    void quickAddMakesATaskOfTheDay();
    void unschedulingIsAskedForAndCanBeUndone();
    void tickingCountsAndCanBeUndone();
    void theQueueFollowsTheListOfToday();
    void whatTheUserTakesOutOfTheQueueStaysOut();
    void otherDaysLeaveTheQueueAlone();
    void lateTasksAreCountedListedAndPlanned();
    void theStripShowsThirtyDaysAndChoosesOne();
    void midnightMovesTheStripAndAnUnseenPage();
    void notificationsOpenTheSheets();
};

void DailyAgendaViewTest::aDayHoldsItsOpenTopLevelTasksByPriority() {
    AgendaRig rig;
    const QDate day = rig.today();
    rig.add(QStringLiteral("planned, due elsewhere"), rig.at(day), rig.at(day.addDays(-1)));
    rig.add(QStringLiteral("planned elsewhere, due"), rig.at(day.addDays(1)), rig.at(day));
    rig.add(QStringLiteral("due"), {}, rig.at(day));
    rig.add(QStringLiteral("neither"), {});
    rig.add(QStringLiteral("last second"), rig.at(day, QTime(23, 59, 59)));
    rig.add(QStringLiteral("next midnight"), rig.at(day.addDays(1), QTime(0, 0)));
    rig.add(QStringLiteral("first instant"), rig.at(day, QTime(0, 0)), {}, TaskPriority::low);
    rig.add(QStringLiteral("high"), rig.at(day), {}, TaskPriority::high);
    rig.add(QStringLiteral("done"), rig.at(day))->setStatus(TaskStatus::done);
    rig.add(QStringLiteral("subtask"), rig.at(day))->setParentTask(rig.add(QStringLiteral("parent"), {}));
    const QStringList expected =
        QStringLiteral("high;planned, due elsewhere;due;last second;first instant").split(u';');
    QCOMPARE(rig.titles(), expected);

    rig.agenda->setSelectedDate(rig.at(day.addDays(1), QTime(20, 0)));
    QCOMPARE(rig.titles(),
             (QStringList{QStringLiteral("planned elsewhere, due"), QStringLiteral("next midnight")}));
}

void DailyAgendaViewTest::rowsFollowTheirTasks() {
    AgendaRig rig;
    Project* project = rig.addProject(QStringLiteral("Thesis"));
    TaskItem* a = rig.add(QStringLiteral("a"), rig.at(rig.today()), {}, TaskPriority::medium, project);
    rig.add(QStringLiteral("b"), rig.at(rig.today()));
    const FilteredTaskList* list = rig.agenda->list();
    QSignalSpy resets(list, &QAbstractItemModel::modelReset);
    QSignalSpy changes(list, &QAbstractItemModel::dataChanged);
    project->setName(QStringLiteral("Book"));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(list->index(0, 0).data(AgendaRowsModel::ProjectNameRole).toString(), QStringLiteral("Book"));
    a->setPriority(TaskPriority::low);
    QCOMPARE(rig.titles(), (QStringList{QStringLiteral("b"), QStringLiteral("a")}));
    a->setDueDate(rig.at(rig.today().addDays(-1)));
    QVERIFY(list->index(1, 0).data(AgendaRowsModel::IsLateRole).toBool());
    a->setPlannedDate({});
    QCOMPARE(rig.titles(), QStringList{QStringLiteral("b")});
    QCOMPARE(resets.count(), 0);
}

void DailyAgendaViewTest::daysThatAreNotTwentyFourHoursLongHaveTheirOwnLimits_data() {
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("day");
    QTest::newRow("23 hours") << QByteArray("Europe/Paris") << QDate(2025, 3, 30);
    QTest::newRow("25 hours") << QByteArray("Europe/Paris") << QDate(2025, 10, 26);
    QTest::newRow("no midnight") << QByteArray("America/Sao_Paulo") << QDate(2018, 11, 4);
}

void DailyAgendaViewTest::daysThatAreNotTwentyFourHoursLongHaveTheirOwnLimits() {
    QFETCH(QByteArray, zone);
    QFETCH(QDate, day);
    const QTimeZone place(zone);
    AgendaRig rig(zone, QDateTime(day, QTime(12, 0), place));
    const QDateTime start = day.startOfDay(place);
    const QDateTime end = day.addDays(1).startOfDay(place);
    QVERIFY(start.msecsTo(end) != 86'400'000 || start.time() != QTime(0, 0));
    rig.add(QStringLiteral("before"), start.addMSecs(-1));
    rig.add(QStringLiteral("first"), start);
    rig.add(QStringLiteral("last"), end.addMSecs(-1));
    rig.add(QStringLiteral("after"), end);
    QCOMPARE(rig.titles(), (QStringList{QStringLiteral("first"), QStringLiteral("last")}));
    rig.settle();
    QCOMPARE(rig.queue(), (QStringList{QStringLiteral("first"), QStringLiteral("last")}));
    QCOMPARE(rig.agenda->overdueCount(), 1);
    // The strip counts calendar days over the change.
    QCOMPARE(rig.agenda->datePicker()->rowCount(), 30);
    rig.agenda->datePicker()->select(1);
    QCOMPARE(rig.titles(), QStringList{QStringLiteral("after")});
}

void DailyAgendaViewTest::quickAddMakesATaskOfTheDay() {
    AgendaRig rig;
    FilteredTaskList* list = rig.agenda->list();
    list->setQuickTaskTitle(QStringLiteral(" \t "));
    list->createQuickTaskWithoutProject();
    QCOMPARE(list->quickTaskTitle(), QStringLiteral(" \t "));
    QVERIFY(rig.context().tasks().empty());

    list->setQuickTaskTitle(QStringLiteral("  Call Bob "));
    list->createQuickTaskWithoutProject();
    QVERIFY(list->quickTaskTitle().isEmpty());
    QVERIFY(!rig.context().hasChanges() || !rig.queue().isEmpty());
    const TaskItem* task = rig.context().tasks().front();
    QCOMPARE(task->title(), QStringLiteral("Call Bob"));
    QCOMPARE(task->priority(), TaskPriority::medium);
    QVERIFY(task->project() == nullptr && task->dueInstant().isNone());
    QCOMPARE(task->createdAt(), rig.focus.clock.now());
    QCOMPARE(rig.queue(), QStringList{QStringLiteral("Call Bob")});
    QVERIFY(rig.focus.playedSounds().isEmpty());
    rig.settle();
    QCOMPARE(rig.focus.playedSounds(), QStringList{QStringLiteral("Pop")});

    const QDateTime tomorrow = rig.at(rig.today().addDays(1), QTime(15, 30));
    rig.agenda->setSelectedDate(tomorrow);
    rig.agenda->list()->setQuickTaskTitle(QStringLiteral("Later"));
    rig.agenda->list()->createQuickTaskWithoutProject();
    rig.settle();
    QCOMPARE(rig.context().tasks().back()->plannedDate(), tomorrow);
    QCOMPARE(rig.queue(), QStringList{QStringLiteral("Call Bob")});
    // Another day begins with an empty field.
    rig.agenda->list()->setQuickTaskTitle(QStringLiteral("half typed"));
    rig.agenda->setSelectedDate(rig.at(tomorrow.date(), QTime(8, 0)));
    QCOMPARE(rig.agenda->list()->quickTaskTitle(), QStringLiteral("half typed"));
    rig.agenda->goToToday();
    QVERIFY(rig.agenda->list()->quickTaskTitle().isEmpty());
}

void DailyAgendaViewTest::unschedulingIsAskedForAndCanBeUndone() {
    AgendaRig rig;
    Project* project = rig.addProject(QStringLiteral("Thesis"));
    const QDateTime due = rig.at(rig.today().addDays(3));
    TaskItem* kept = rig.add(QStringLiteral("kept"), rig.at(rig.today()), due, TaskPriority::high, project);
    rig.add(QStringLiteral("loose"), rig.at(rig.today()));
    rig.settle();
    FilteredTaskList* list = rig.agenda->list();
    list->requestUnscheduleAt(0);
    QCOMPARE(list->taskToUnschedule(), kept);
    QCOMPARE(rig.titles().size(), 2);
    list->cancelUnschedule();
    QVERIFY(!list->asksToUnschedule());

    list->requestUnscheduleAt(0);
    list->confirmUnschedule();
    rig.settle();
    QVERIFY(kept->plannedInstant().isNone() && kept->dueInstant().isNone());
    QCOMPARE(kept->project(), project);
    QCOMPARE(rig.queue(), QStringList{QStringLiteral("loose")});
    rig.edits.undo();
    rig.settle();
    QCOMPARE(kept->dueDate(), due);
    QCOMPARE(rig.titles(), (QStringList{QStringLiteral("kept"), QStringLiteral("loose")}));
    QCOMPARE(rig.queue(), (QStringList{QStringLiteral("kept"), QStringLiteral("loose")}));

    list->requestUnscheduleAt(1);
    list->confirmUnschedule();
    rig.settle();
    QCOMPARE(rig.context().tasks().size(), size_t{1});
    rig.edits.undo();
    QCOMPARE(rig.context().tasks().size(), size_t{2});
    // A task that goes takes its question along.
    list->requestUnscheduleAt(1);
    rig.context().remove(*list->taskAt(1));
    QVERIFY(!list->asksToUnschedule());
}

void DailyAgendaViewTest::tickingCountsAndCanBeUndone() {
    AgendaRig rig;
    TaskItem* task = rig.add(QStringLiteral("a"), rig.at(rig.today()));
    TaskItem* first = rig.addTask(nullptr, QStringLiteral("first"), TaskStatus::inProgress, nullptr, task);
    TaskItem* second = rig.addTask(nullptr, QStringLiteral("second"), TaskStatus::done, nullptr, task);
    rig.add(QStringLiteral("b"), rig.at(rig.today()));
    rig.settle();
    rig.focus.timer.startSession(task, PomodoroPhase::work);
    rig.agenda->list()->completeAt(0);
    rig.settle();
    QVERIFY(task->isDone() && first->isDone());
    QCOMPARE(rig.focus.timer.completedTasksCount(), 1);
    QCOMPARE(rig.titles(), QStringList{QStringLiteral("b")});
    rig.edits.undo();
    rig.settle();
    QCOMPARE(task->status(), TaskStatus::todo);
    QCOMPARE(first->status(), TaskStatus::inProgress);
    QCOMPARE(second->status(), TaskStatus::done);
    QCOMPARE(rig.titles(), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    QVERIFY(rig.queue().contains(QStringLiteral("a")));
}

void DailyAgendaViewTest::theQueueFollowsTheListOfToday() {
    AgendaRig rig;
    rig.add(QStringLiteral("low"), rig.at(rig.today()), {}, TaskPriority::low);
    TaskItem* high = rig.add(QStringLiteral("high"), {}, rig.at(rig.today()), TaskPriority::high);
    rig.settle();
    QCOMPARE(rig.queue(), (QStringList{QStringLiteral("high"), QStringLiteral("low")}));
    QCOMPARE(high->plannedDate(), startOfDay(rig.focus.clock.now()));
    QSignalSpy queueChanges(&rig.focus.timer, &PomodoroTimerService::taskQueueChanged);
    rig.settle();
    QCOMPARE(queueChanges.count(), 0);

    // What is queued from elsewhere keeps its place, whatever its day.
    TaskItem* other = rig.add(QStringLiteral("other"), {});
    rig.focus.timer.addTaskToQueue(other);
    other->setPlannedDate(rig.at(rig.today().addDays(5)));
    rig.settle();
    QCOMPARE(rig.queue(),
             (QStringList{QStringLiteral("high"), QStringLiteral("low"), QStringLiteral("other")}));
    // Nobody sees the page: one that was ticked off stays, to be looked at.
    high->setStatus(TaskStatus::done);
    rig.settle();
    QCOMPARE(rig.queue().size(), 3);
    high->setStatus(TaskStatus::todo);
    rig.settle();
    // One that leaves a list that is seen, and is planned for today still, leaves the queue.
    rig.agenda->setIsShown(true);
    high->setParentTask(other);
    rig.settle();
    QCOMPARE(rig.queue(), (QStringList{QStringLiteral("low"), QStringLiteral("other")}));
    QVERIFY(high->plannedInstant().isNone());
    // One planned for another day stays queued.
    rig.context().tasks().front()->setPlannedDate(rig.at(rig.today().addDays(1)));
    rig.settle();
    QCOMPARE(rig.queue(), (QStringList{QStringLiteral("low"), QStringLiteral("other")}));
}

void DailyAgendaViewTest::whatTheUserTakesOutOfTheQueueStaysOut() {
    AgendaRig rig;
    TaskItem* due = rig.add(QStringLiteral("due"), {}, rig.at(rig.today()));
    TaskItem* planned = rig.add(QStringLiteral("planned"), rig.at(rig.today()));
    rig.settle();
    rig.focus.timer.removeTaskFromQueue(due);
    rig.settle();
    QCOMPARE(rig.queue(), QStringList{QStringLiteral("planned")});
    QCOMPARE(rig.titles(), (QStringList{QStringLiteral("due"), QStringLiteral("planned")}));
    rig.focus.timer.removeTaskFromQueue(planned);
    QCOMPARE(rig.titles(), QStringList{QStringLiteral("due")});
    QVERIFY(rig.queue().isEmpty());
}

void DailyAgendaViewTest::otherDaysLeaveTheQueueAlone() {
    AgendaRig rig;
    rig.settle();
    rig.agenda->setIsShown(true);
    rig.agenda->setSelectedDate(rig.at(rig.today().addDays(1)));
    TaskItem* tomorrow = rig.add(QStringLiteral("tomorrow"), rig.at(rig.today().addDays(1)));
    // What is planned for today elsewhere is queued, whatever day is looked at.
    TaskItem* today = rig.add(QStringLiteral("today"), rig.at(rig.today()));
    rig.settle();
    QCOMPARE(rig.queue(), QStringList{QStringLiteral("today")});
    today->setStatus(TaskStatus::done);
    tomorrow->setStatus(TaskStatus::done);
    rig.settle();
    QCOMPARE(rig.queue(), QStringList{QStringLiteral("today")});
}

void DailyAgendaViewTest::lateTasksAreCountedListedAndPlanned() {
    AgendaRig rig;
    const QDate day = rig.today();
    TaskItem* overdue = rig.add(QStringLiteral("overdue"), {}, rig.at(day.addDays(-2), QTime(23, 59)));
    TaskItem* parent = rig.add(QStringLiteral("parent"), rig.at(day), rig.at(day, QTime(0, 0)));
    TaskItem* subtask = rig.add(QStringLiteral("subtask"), rig.at(day.addDays(-3)));
    subtask->setParentTask(parent);
    rig.add(QStringLiteral("done"), rig.at(day.addDays(-1)))->setStatus(TaskStatus::done);
    QSignalSpy counts(rig.agenda.get(), &DailyAgendaView::overdueCountChanged);
    rig.settle();
    QCOMPARE(rig.agenda->overdueCount(), 2);
    QCOMPARE(counts.count(), 1);
    rig.agenda->setSelectedDate(rig.at(day.addDays(9)));
    QCOMPARE(rig.agenda->overdueCount(), 2);

    rig.agenda->setShowLateTasks(true);
    LateTaskList* late = rig.agenda->lateTasks();
    QCOMPARE(test::ProjectRig::column(*late),
             (QStringList{QStringLiteral("subtask"), QStringLiteral("overdue")}));
    QCOMPARE(late->index(0, 0).data(AgendaRowsModel::ParentTitleRole).toString(), QStringLiteral("parent"));
    late->planForTodayAt(0);
    QCOMPARE(subtask->plannedDate(), startOfDay(rig.focus.clock.now()));
    late->askForDayAt(0);
    QCOMPARE(late->titleToPlan(), QStringLiteral("overdue"));
    late->calendar()->moveDays(4);
    late->calendar()->chooseCursor();
    QVERIFY(!late->asksForDay());
    QCOMPARE(overdue->plannedDate(), rig.at(day.addDays(4), QTime(0, 0)));
    rig.settle();
    // Its deadline is over all the same.
    QCOMPARE(rig.agenda->overdueCount(), 1);
    rig.context().remove(*overdue);
    rig.settle();
    QCOMPARE(rig.agenda->overdueCount(), 0);
    QCOMPARE(late->count(), 0);
    rig.agenda->setShowLateTasks(false);
}

void DailyAgendaViewTest::theStripShowsThirtyDaysAndChoosesOne() {
    AgendaRig rig;
    HorizontalDatePicker* strip = rig.agenda->datePicker();
    const auto text = [strip](int row, int role) { return strip->index(row).data(role).toString(); };
    QCOMPARE(strip->rowCount(), 30);
    QCOMPARE(text(0, HorizontalDatePicker::WeekdayRole), qtTrId("today_short"));
    QCOMPARE(text(1, HorizontalDatePicker::WeekdayRole), QStringLiteral("Tue"));
    QCOMPARE(text(1, HorizontalDatePicker::DayRole), QStringLiteral("11"));
    QCOMPARE(text(22, HorizontalDatePicker::MonthRole), QStringLiteral("Apr"));
    QCOMPARE(strip->selectedRow(), 0);
    strip->select(22);
    QCOMPARE(rig.agenda->selectedDate(), rig.at(QDate(2025, 4, 1)));
    QVERIFY(strip->index(22).data(HorizontalDatePicker::IsSelectedRole).toBool());
    QVERIFY(!strip->index(0).data(HorizontalDatePicker::IsSelectedRole).toBool());
    // Through the calendar any day, which need not be on the strip.
    rig.agenda->setShowCalendar(true);
    rig.agenda->calendar()->moveMonths(-2);
    rig.agenda->calendar()->chooseCursor();
    QVERIFY(!rig.agenda->showCalendar());
    QCOMPARE(rig.agenda->selectedDate().date(), QDate(2025, 2, 1));
    QCOMPARE(strip->selectedRow(), -1);
}

void DailyAgendaViewTest::midnightMovesTheStripAndAnUnseenPage() {
    AgendaRig rig;
    rig.add(QStringLiteral("tomorrow"), rig.at(rig.today().addDays(1)));
    rig.focus.pass(std::chrono::hours(15) + std::chrono::minutes(1));
    QCOMPARE(rig.titles(), QStringList{QStringLiteral("tomorrow")});
    QCOMPARE(rig.queue(), QStringList{QStringLiteral("tomorrow")});
    QVERIFY(rig.agenda->isToday());
    QCOMPARE(rig.agenda->datePicker()->today().date(), QDate(2025, 3, 11));

    rig.agenda->setIsShown(true);
    rig.focus.pass(std::chrono::hours(24));
    QCOMPARE(rig.titles(), QStringList{QStringLiteral("tomorrow")});
    QVERIFY(!rig.agenda->isToday());
    QCOMPARE(rig.agenda->datePicker()->selectedRow(), -1);
    QCOMPARE(rig.agenda->overdueCount(), 1);
    QVERIFY(rig.agenda->list()->index(0, 0).data(AgendaRowsModel::IsLateRole).toBool());

    // The machine slept over midnight.
    rig.agenda->goToToday();
    rig.agenda->setIsShown(false);
    rig.focus.clock.suspend(std::chrono::hours(24));
    rig.agenda->setIsShown(true);
    QVERIFY(rig.agenda->isToday());
    QCOMPARE(rig.agenda->selectedDate().date(), QDate(2025, 3, 13));
}

void DailyAgendaViewTest::notificationsOpenTheSheets() {
    AgendaRig rig;
    TaskItem* task = rig.add(QStringLiteral("a"), rig.at(rig.today()));
    rig.agenda->list()->openAt(0);
    QCOMPARE(rig.agenda->selectedTask(), task);
    QCOMPARE(rig.agenda->planningTabToOpen(), AgendaPlanningSheet::PlanningTab::quickAdd);

    rig.notifications.post(PlanningNotifications::showPlanningSheet);
    QVERIFY(rig.agenda->showPlanningSheet());
    QCOMPARE(rig.agenda->planningSheet()->tab(), AgendaPlanningSheet::PlanningTab::quickAdd);
    rig.agenda->setShowPlanningSheet(false);

    rig.notifications.post(PlanningNotifications::showPlanningSheet, task);
    QCOMPARE(rig.agenda->planningSheet()->tab(), AgendaPlanningSheet::PlanningTab::pickExisting);
    QCOMPARE(rig.agenda->planningSheet()->pickList()->tickedTasks(), QList<TaskItem*>{task});
    rig.agenda->setShowPlanningSheet(false);
    rig.agenda->plan(QStringLiteral("quickAdd"));
    QCOMPARE(rig.agenda->planningSheet()->tab(), AgendaPlanningSheet::PlanningTab::quickAdd);

    rig.context().remove(*task);
    QVERIFY(rig.agenda->selectedTask() == nullptr);
}

QTEST_GUILESS_MAIN(DailyAgendaViewTest)
#include "tst_DailyAgendaView.moc"
