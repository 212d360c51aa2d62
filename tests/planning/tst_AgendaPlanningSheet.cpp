#include "tests/planning/AgendaRig.h"

#include <QtTest>

using namespace norvin;
using test::AgendaRig;

class AgendaPlanningSheetTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aLineBecomesATask();
    void whatIsChosenYieldsToTheLine();
    void chipsAreTakenBack();
    void entitiesThatGoWhileTheSheetIsOpenAreForgotten();
    void tasksAreFoundAcrossProjects();
    void severalTasksArePlannedAtOnce();
    void theListFollowsItsTasks();
};

void AgendaPlanningSheetTest::aLineBecomesATask() {
    AgendaRig rig;
    Project* thesis = rig.addProject(QStringLiteral("Thesis"));
    ProjectPhase* draft = rig.addPhase(thesis, QStringLiteral("Draft"), 0);
    const QDateTime day = rig.at(rig.today().addDays(3), QTime(7, 0));
    rig.agenda->setSelectedDate(day);
    rig.agenda->plan(QStringLiteral("quickAdd"));
    QuickAddEntry* entry = rig.agenda->planningSheet()->quickAdd();

    entry->setLine(QStringLiteral("Write report !high #thesis @dr tomorrow by 2025-03-20"));
    QCOMPARE(entry->title(), QStringLiteral("Write report"));
    QCOMPARE(entry->chips()->count(), 5);
    QCOMPARE(entry->priority(), QStringLiteral("high"));
    QCOMPARE(entry->phases().size(), 2);
    QVERIFY(entry->add());
    const TaskItem* task = rig.context().tasks().back();
    QCOMPARE(task->title(), QStringLiteral("Write report"));
    QCOMPARE(task->priority(), TaskPriority::high);
    QCOMPARE(task->project(), thesis);
    QCOMPARE(task->phase(), draft);
    QCOMPARE(task->plannedDate(), rig.at(rig.today().addDays(1), QTime(0, 0)));
    QCOMPARE(task->dueDate(), rig.at(QDate(2025, 3, 20), QTime(0, 0)));
    QCOMPARE(task->createdAt(), rig.focus.clock.now());
    QVERIFY(entry->line().isEmpty() && !entry->isProblem() && !entry->report().isEmpty());
    QCOMPARE(entry->chips()->count(), 0);

    // Without a day it is the sheet's.
    entry->setLine(QStringLiteral("Plain"));
    QVERIFY(entry->report().isEmpty());
    QVERIFY(entry->add());
    QCOMPARE(rig.context().tasks().back()->plannedDate(), day);
    QCOMPARE(rig.titles(), QStringList{QStringLiteral("Plain")});
    rig.settle();
    QVERIFY(rig.queue().isEmpty());
    QCOMPARE(rig.focus.playedSounds().size(), 2);

    // Words alone are no task.
    entry->setLine(QStringLiteral("!low tomorrow"));
    QVERIFY(!entry->add());
    QVERIFY(entry->isProblem());
    QCOMPARE(entry->line(), QStringLiteral("!low tomorrow"));
    QCOMPARE(rig.context().tasks().size(), size_t{2});
}

void AgendaPlanningSheetTest::whatIsChosenYieldsToTheLine() {
    AgendaRig rig;
    Project* thesis = rig.addProject(QStringLiteral("Thesis"));
    ProjectPhase* draft = rig.addPhase(thesis, QStringLiteral("Draft"), 0);
    Project* garden = rig.addProject(QStringLiteral("Garden"));
    rig.agenda->plan(QStringLiteral("quickAdd"));
    QuickAddEntry* entry = rig.agenda->planningSheet()->quickAdd();

    entry->setLine(QStringLiteral("Dig #garden tomorrow !low"));
    entry->chooseProject(thesis->id().toString());
    entry->choosePhase(draft->id().toString());
    entry->choosePriority(QStringLiteral("high"));
    entry->setShowCalendar(true);
    entry->calendar()->moveDays(4); // from tomorrow, which the line says
    entry->calendar()->chooseCursor();
    QVERIFY(!entry->showCalendar());
    QCOMPARE(entry->line(), QStringLiteral("Dig"));
    QCOMPARE(entry->chips()->count(), 4);
    QVERIFY(entry->add());
    const TaskItem* task = rig.context().tasks().back();
    QCOMPARE(task->phase(), draft);
    QCOMPARE(task->priority(), TaskPriority::high);
    QCOMPARE(task->plannedDate().date(), rig.today().addDays(5));

    // It holds for the next line, unless that says otherwise; another project has none of its phases.
    entry->setLine(QStringLiteral("Next !low"));
    QCOMPARE(entry->projectId(), thesis->id().toString());
    QCOMPARE(entry->priority(), QStringLiteral("low"));
    entry->setLine(QStringLiteral("Next #garden"));
    QCOMPARE(entry->projectId(), garden->id().toString());
    QVERIFY(entry->phaseId().isEmpty());
    QCOMPARE(entry->priority(), QStringLiteral("high"));
    // The phases of what is chosen can be named.
    entry->setLine(QStringLiteral("Next @draft"));
    QCOMPARE(entry->title(), QStringLiteral("Next"));
    // Opened again, nothing is left of it.
    rig.agenda->setShowPlanningSheet(false);
    rig.agenda->plan({});
    QVERIFY(entry->line().isEmpty() && entry->projectId().isEmpty());
    QCOMPARE(entry->chips()->count(), 0);
}

void AgendaPlanningSheetTest::chipsAreTakenBack() {
    AgendaRig rig;
    rig.addProject(QStringLiteral("Thesis"));
    rig.agenda->plan(QStringLiteral("quickAdd"));
    QuickAddEntry* entry = rig.agenda->planningSheet()->quickAdd();
    entry->setLine(QStringLiteral("Read next monday #Thesis #nowhere"));
    QCOMPARE(entry->chips()->count(), 3);
    entry->removeChip(1); // the day
    QCOMPARE(entry->title(), QStringLiteral("Read next monday #nowhere"));
    QCOMPARE(entry->chips()->count(), 2);
    entry->removeChip(1); // what is unknown stays
    QCOMPARE(entry->chips()->count(), 2);
    entry->removeChip(0);
    QCOMPARE(entry->title(), QStringLiteral("Read next monday #Thesis #nowhere"));
    entry->removeChip(9);
    entry->choosePriority(QStringLiteral("low"));
    entry->removeChip(0);
    QCOMPARE(entry->priority(), QStringLiteral("medium"));
}

void AgendaPlanningSheetTest::entitiesThatGoWhileTheSheetIsOpenAreForgotten() {
    AgendaRig rig;
    Project* thesis = rig.addProject(QStringLiteral("Thesis"));
    rig.agenda->plan(QStringLiteral("quickAdd"));
    QuickAddEntry* entry = rig.agenda->planningSheet()->quickAdd();
    entry->setLine(QStringLiteral("Write #thesis"));
    rig.context().remove(*thesis);
    rig.settle();
    QCOMPARE(entry->title(), QStringLiteral("Write #thesis"));
    QVERIFY(entry->add());
    QVERIFY(rig.context().tasks().back()->project() == nullptr);
}

void AgendaPlanningSheetTest::tasksAreFoundAcrossProjects() {
    AgendaRig rig;
    Project* thesis = rig.addProject(QStringLiteral("Thèse"));
    const QDate day = rig.today();
    rig.addTask(thesis, QStringLiteral("Écrire l’introduction"));
    rig.add(QStringLiteral("Later"), rig.at(day.addDays(4)));
    rig.add(QStringLiteral("Late"), rig.at(day.addDays(-4)));
    rig.addTask(nullptr, QStringLiteral("done"), TaskStatus::done);
    rig.addTask(thesis, QStringLiteral("subtask"), TaskStatus::todo, nullptr,
                rig.addTask(nullptr, QStringLiteral("Garden")));
    rig.agenda->plan(QStringLiteral("pickExisting"));
    TaskPickList* list = rig.agenda->planningSheet()->pickList();
    const auto found = [list] { return test::ProjectRig::column(*list).join(u'|'); };
    QCOMPARE(found(), QStringLiteral("Late|Écrire l’introduction|Garden|Later"));
    list->setSearchText(QStringLiteral("LA"));
    QCOMPARE(found(), QStringLiteral("Late|Later"));
    list->setSearchText(QStringLiteral("these ecr")); // project and title
    QCOMPARE(found(), QStringLiteral("Écrire l’introduction"));
    list->setSearchText({});
    list->setProjectId(thesis->id().toString());
    QCOMPARE(list->count(), 1);
    QCOMPARE(list->total(), 4);
    rig.agenda->setShowPlanningSheet(false);
    QCOMPARE(list->count(), 0);
}

void AgendaPlanningSheetTest::severalTasksArePlannedAtOnce() {
    AgendaRig rig;
    TaskItem* a = rig.add(QStringLiteral("a"), {});
    TaskItem* b = rig.add(QStringLiteral("b"), rig.at(rig.today().addDays(2)));
    rig.add(QStringLiteral("c"), {});
    rig.agenda->plan(QStringLiteral("pickExisting"));
    AgendaPlanningSheet* sheet = rig.agenda->planningSheet();
    QVERIFY(!sheet->planTicked());
    sheet->pickList()->toggle(0);
    sheet->pickList()->toggle(1);
    sheet->pickList()->setSearchText(QStringLiteral("b"));
    sheet->pickList()->toggle(0);
    sheet->pickList()->setSearchText(QStringLiteral("c"));
    sheet->pickList()->toggle(0);
    // What is ticked stays so while it is not found.
    QCOMPARE(sheet->pickList()->tickedTasks(), (QList<TaskItem*>{a, b}));
    QVERIFY(sheet->planTicked());
    rig.settle();
    QCOMPARE(rig.titles(), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(rig.queue(), rig.titles());
    rig.edits.undo();
    rig.settle();
    QVERIFY(a->plannedInstant().isNone());
    QCOMPARE(b->plannedDate(), rig.at(rig.today().addDays(2)));
    QVERIFY(rig.queue().isEmpty());
}

void AgendaPlanningSheetTest::theListFollowsItsTasks() {
    AgendaRig rig;
    TaskItem* parent = rig.addTask(nullptr, QStringLiteral("parent"));
    TaskItem* subtask = rig.addTask(nullptr, QStringLiteral("subtask"), TaskStatus::todo, nullptr, parent);
    // What the sheet is opened for is offered, whatever it is.
    rig.notifications.post(PlanningNotifications::showPlanningSheet, subtask);
    TaskPickList* list = rig.agenda->planningSheet()->pickList();
    QCOMPARE(list->tickedTasks(), QList<TaskItem*>{subtask});
    QCOMPARE(list->count(), 2);
    list->setSearchText(QStringLiteral("parent"));
    parent->setTitle(QStringLiteral("renamed"));
    rig.settle();
    QCOMPARE(list->count(), 0);
    list->setSearchText({});
    rig.context().remove(*parent);
    QCOMPARE(list->count(), 0);
    QCOMPARE(list->tickedCount(), 0);
    rig.settle();
    QVERIFY(!rig.agenda->planningSheet()->planTicked());
}

QTEST_GUILESS_MAIN(AgendaPlanningSheetTest)
#include "tst_AgendaPlanningSheet.moc"
