#include "app/PlanningCommands.h"
#include "app/PlanningReport.h"
#include "focus/DeepWorkScreen.h"
#include "model/ModelContext.h"
#include "planning/AgendaDay.h"
#include "planning/PlanningEdits.h"
#include "tests/support/FocusRig.h"

#include <QTest>
#include <QTimeZone>

using namespace norvin;
using namespace std::chrono_literals;

class tst_PlanningCommands final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void addsAsItIsTold();
    void findsProjectsByNameOrId();
    void finishesByTheBeginningOfAnId();
    void listsADayOfTheUsersCalendar();
    void readsWellInATerminal();
};

namespace {

struct CommandRig : FocusRig {
    DeepWorkScreen screen{timer, usage, motion, context()};
    PlanningEdits edits{context(), timer, clock};
    PlanningExchange exchange{context(), edits, clock};
    PlanningCommands commands{screen, context(), exchange, clock};

    Project* addProject(const QString& name, const char* id = "10000000-0000-4000-8000-000000000001") const {
        return context().insert(std::make_unique<Project>(
            Project::Init{.id = ProjectId(QUuid::fromString(QLatin1String(id))), .name = name}));
    }
    TaskItem* addTaskWithId(const char* id, const QString& title) const {
        return context().insert(std::make_unique<TaskItem>(
            TaskItem::Init{.id = TaskId(QUuid::fromString(QLatin1String(id))), .title = title}));
    }
    [[nodiscard]] QString refusal(const PlanningCommands::NewTask& task) {
        return commands.add(task).value_or(PlanningError{}).key;
    }
    [[nodiscard]] QString refusalOfDone(const QString& id) {
        const auto outcome = commands.finish(id);
        return std::holds_alternative<PlanningError>(outcome) ? std::get<PlanningError>(outcome).key
                                                              : QString();
    }
    [[nodiscard]] QStringList titles(const QString& date) const {
        QStringList titles;
        const auto outcome = commands.agenda(date);
        for (const QJsonValue& task : std::get<QJsonObject>(outcome)[QStringLiteral("tasks")].toArray())
            titles.append(task[QStringLiteral("title")].toString());
        return titles;
    }
};

} // namespace

void tst_PlanningCommands::addsAsItIsTold() {
    CommandRig rig;
    rig.screen.start();
    QVERIFY(!rig.commands.add(
        {.title = QStringLiteral("  Read \n it "), .project = {}, .date = {}, .priority = {}}));
    TaskItem* const read = rig.context().tasks().front();
    QCOMPARE(read->title(), QStringLiteral("Read it"));
    QCOMPARE(read->priorityValue(), 1);
    QCOMPARE(read->plannedDate(), startOfDay(rig.clock.now()));
    QCOMPARE(rig.timer.taskQueue(), QList{read});
    QCOMPARE(rig.timer.activeTask(), read);
    QVERIFY(!rig.context().hasChanges());

    QVERIFY(!rig.commands.add({.title = QStringLiteral("Print"),
                               .project = {},
                               .date = QStringLiteral("tomorrow"),
                               .priority = QStringLiteral("high")}));
    TaskItem* const print = rig.context().tasks().back();
    QCOMPARE(print->priorityValue(), 2);
    QCOMPARE(print->plannedDate(), startOfDay(rig.clock.now().addDays(1)));
    QCOMPARE(rig.timer.taskQueue(), QList{read});

    const QString title = QStringLiteral("Lost");
    QCOMPARE(rig.refusal({.title = QStringLiteral(" "), .project = {}, .date = {}, .priority = {}}),
             QStringLiteral("refused_task_title_empty"));
    QCOMPARE(
        rig.refusal({.title = title, .project = {}, .date = QStringLiteral("2025-02-30"), .priority = {}}),
        QStringLiteral("refused_day_unknown"));
    QCOMPARE(rig.refusal({.title = title, .project = {}, .date = {}, .priority = QStringLiteral("1")}),
             QStringLiteral("refused_priority_unknown"));
    QCOMPARE(rig.context().tasks().size(), size_t{2});
}

void tst_PlanningCommands::findsProjectsByNameOrId() {
    CommandRig rig;
    const auto add = [&rig](const char* project) {
        return rig.refusal({.title = QStringLiteral("T"),
                            .project = QString::fromUtf8(project),
                            .date = {},
                            .priority = {}});
    };
    QCOMPARE(add("Thesis"), QStringLiteral("refused_no_projects"));
    Project* const thesis = rig.addProject(QStringLiteral("Été  à Paris"));
    Project* const garden = rig.addProject(QStringLiteral("Garden"), "10000000-0000-4000-8000-000000000002");
    for (const char* name : {"ete a paris", "Été à Paris", "10000000-0000-4000-8000-000000000001"}) {
        QCOMPARE(add(name), QString());
        QCOMPARE(rig.context().tasks().back()->project(), thesis);
    }
    QCOMPARE(add("Gard"), QStringLiteral("refused_project_unknown"));
    QCOMPARE(add("1000"), QStringLiteral("refused_project_ambiguous"));
    rig.addProject(QStringLiteral("garden"), "20000000-0000-4000-8000-000000000003");
    QCOMPARE(add("Garden"), QStringLiteral("refused_project_ambiguous"));
    QCOMPARE(add("2000"), QString());
    QVERIFY(garden->tasks().isEmpty());
}

void tst_PlanningCommands::finishesByTheBeginningOfAnId() {
    CommandRig rig;
    TaskItem* const parent =
        rig.addTaskWithId("abcd0000-0000-4000-8000-000000000001", QStringLiteral("Write"));
    TaskItem* const subtask =
        rig.addTaskWithId("abcd1000-0000-4000-8000-000000000001", QStringLiteral("Outline"));
    TaskItem* const other = rig.addTaskWithId("beef0000-0000-4000-8000-000000000001", QStringLiteral("Read"));
    subtask->setParentTask(parent);
    rig.timer.addTaskToQueue(parent);
    rig.screen.start();
    QCOMPARE(rig.refusalOfDone(QStringLiteral("abc")), QStringLiteral("refused_task_id"));
    QCOMPARE(rig.refusalOfDone(QStringLiteral("abcd")), QStringLiteral("refused_task_ambiguous"));
    QCOMPARE(rig.refusalOfDone(QStringLiteral("dead")), QStringLiteral("refused_task_unknown"));
    QVERIFY(!parent->isDone() && !subtask->isDone());

    QCOMPARE(rig.refusalOfDone(QStringLiteral("ABCD1000-0")), QString());
    QCOMPARE(rig.timer.completedSubtasksCount(), 1);
    // One that is not queued was finished during the session just as well, but does not end it.
    QCOMPARE(rig.refusalOfDone(QStringLiteral("beef")), QString());
    QVERIFY(other->isDone());
    QCOMPARE(rig.timer.completedTasksCount(), 1);
    QCOMPARE(rig.timer.state(), TimerState::running);
    QCOMPARE(rig.refusalOfDone(QStringLiteral("beef")), QStringLiteral("refused_task_already_done"));
    QCOMPARE(rig.refusalOfDone(QStringLiteral("abcd0")), QString());
    QCOMPARE(rig.timer.completedTasksCount(), 2);
    QCOMPARE(rig.timer.state(), TimerState::completed);
}

void tst_PlanningCommands::listsADayOfTheUsersCalendar() {
    CommandRig rig;
    // The clocks go forward at two in the night: the day has 23 hours.
    const QTimeZone paris("Europe/Paris");
    rig.clock.setNow(QDateTime(QDate(2025, 3, 29), QTime(22, 0), paris));
    const auto at = [&paris](int day, QTime time) { return QDateTime(QDate(2025, 3, day), time, paris); };
    const auto add = [&rig](const char* title, const QDateTime& planned, const QDateTime& due,
                            TaskPriority priority) {
        return rig.context().insert(std::make_unique<TaskItem>(TaskItem::Init{
            .title = QLatin1String(title), .priority = priority, .dueDate = due, .plannedDate = planned}));
    };
    add("first second", at(30, QTime(0, 0)), {}, TaskPriority::low);
    add("last second", at(30, QTime(23, 59, 59)), {}, TaskPriority::medium);
    add("due", {}, at(30, QTime(12, 0)), TaskPriority::high);
    add("planned elsewhere", at(31, QTime(0, 0)), at(30, QTime(12, 0)), TaskPriority::high);
    add("without a day", {}, {}, TaskPriority::high);
    add("second of its priority", at(30, QTime(8, 0)), {}, TaskPriority::high);
    add("done", at(30, QTime(8, 0)), {}, TaskPriority::high)->setStatus(TaskStatus::done);
    add("subtask", at(30, QTime(8, 0)), {}, TaskPriority::high)->setParentTask(rig.context().tasks().front());
    const QStringList expected{"due", "second of its priority", "last second", "first second"};
    QCOMPARE(rig.titles(QStringLiteral("2025-03-30")), expected);
    QCOMPARE(rig.titles(QStringLiteral("tomorrow")), expected);
    QCOMPARE(rig.titles(QStringLiteral("2025-03-31")), QStringList{"planned elsewhere"});
    QVERIFY(rig.titles({}).isEmpty());
    const AgendaDay day = dayOf(at(30, QTime(9, 0)));
    QCOMPARE(day.end.milliseconds() - day.start.milliseconds(), std::chrono::milliseconds(23h).count());
    QVERIFY(std::holds_alternative<PlanningError>(rig.commands.agenda(QStringLiteral("soon"))));
}

void tst_PlanningCommands::readsWellInATerminal() {
    CommandRig rig;
    Project* const project = rig.addProject(QStringLiteral("Thesis"));
    QCOMPARE(projectsText(projectsReport({project})),
             QStringLiteral("10000000  Thesis: 0 open, 0 done, 0 %\n"));
    TaskItem* const task =
        rig.addTaskWithId("abcd0000-0000-4000-8000-000000000001", QStringLiteral("Write\n\x1b[31mred"));
    task->setProject(project);
    task->setPlannedDate(rig.clock.now());
    task->setDueDate(rig.clock.now().addDays(-1));
    rig.addTaskWithId("abcd1000-0000-4000-8000-000000000001", QStringLiteral("Outline"))->setParentTask(task);
    QCOMPARE(agendaText(std::get<QJsonObject>(rig.commands.agenda({}))),
             QStringLiteral(
                 "Monday, 10 March 2025: 1 task\n"
                 "abcd0000  medium  Write  [31mred (Thesis, due 2025-03-09, 0 of 1 subtask done, late)\n"));
    QCOMPARE(agendaText(std::get<QJsonObject>(rig.commands.agenda(QStringLiteral("2025-03-11")))),
             QStringLiteral("Tuesday, 11 March 2025: nothing is planned.\n"));
    const PlanningExchange::Imported imported{
        .added = {.projects = 1, .phases = 2, .tasks = 3, .resources = 4},
        .alreadyThere = {.tasks = 5},
        .ignored = 6};
    const PlanningExchange::Imported again = importOfReport(importReport(imported));
    QVERIFY(again.added == imported.added && again.alreadyThere == imported.alreadyThere &&
            again.ignored == 6);
}

QTEST_GUILESS_MAIN(tst_PlanningCommands)
#include "tst_PlanningCommands.moc"
