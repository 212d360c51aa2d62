#include "planning/KanbanBoardView.h"
#include "planning/ProjectSheet.h"
#include "tests/planning/ProjectRig.h"

#include <QtTest>

using namespace norvin;
using namespace norvin::test;

class KanbanBoardTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        rig = std::make_unique<ProjectRig>();
        sheet = std::make_unique<ProjectSheet>(rig->context(), rig->edits, rig->focus.clock);
        board = std::make_unique<KanbanBoardView>(rig->context(), rig->edits, rig->notifications, *sheet,
                                                  rig->focus.clock);
        project = rig->addProject(QStringLiteral("Thesis"));
    }
    void cleanup() {
        board.reset();
        sheet.reset();
        rig.reset();
    }

    void columnsHoldTheTasksOfTheirStatus();
    void aPhaseNarrowsTheBoard();
    void aDropSetsTheStatusAndNothingElse();
    void aStrangeDropIsRefused_data();
    void aStrangeDropIsRefused();
    void columnsFollowTheStoreRowByRow();
    void cardsSayWhatTheirTaskIs();
    void tasksAreAddedMovedAndDeleted();
    void aDeletedProjectIsLetGoOf();
    void theSheetsAreAskedFor();
    void aBigProjectIsOneStepForTheViews();

private:
    [[nodiscard]] QString shown() const {
        return QStringList({ProjectRig::column(*board->toDo()).join(QLatin1Char(',')),
                            ProjectRig::column(*board->inProgress()).join(QLatin1Char(',')),
                            ProjectRig::column(*board->done()).join(QLatin1Char(','))})
            .join(QLatin1Char('|'));
    }
    TaskItem* add(const char* title, TaskStatus status = TaskStatus::todo, ProjectPhase* phase = nullptr,
                  TaskItem* parent = nullptr) {
        return rig->addTask(project, QString::fromLatin1(title), status, phase, parent);
    }
    static QStringList payloadOf(const TaskItem* task) { return {task->id().toString()}; }

    std::unique_ptr<ProjectRig> rig;
    std::unique_ptr<ProjectSheet> sheet;
    std::unique_ptr<KanbanBoardView> board;
    Project* project = nullptr;
};

void KanbanBoardTest::columnsHoldTheTasksOfTheirStatus() {
    TaskItem* a = add("a");
    add("sub", TaskStatus::done, nullptr, a);
    add("b", TaskStatus::inProgress);
    add("c", TaskStatus::done);
    add("d");
    rig->addTask(nullptr, QStringLiteral("without a project"));
    rig->addTask(rig->addProject(QStringLiteral("Other")), QStringLiteral("of another"));
    QCOMPARE(shown(), QStringLiteral("||"));
    board->setProject(project);
    QCOMPARE(shown(), QStringLiteral("a,d|b|c"));
    QCOMPARE(board->taskCount(), 4);
    QCOMPARE(board->filteredTasks().size(), 4);
    QCOMPARE(board->inProgress()->statusValue(), QStringLiteral("In Progress"));
    board->setProject(nullptr);
    QCOMPARE(shown(), QStringLiteral("||"));
}

void KanbanBoardTest::aPhaseNarrowsTheBoard() {
    ProjectPhase* phase = rig->addPhase(project, QStringLiteral("Draft"), 0);
    ProjectPhase* foreign = rig->addPhase(rig->addProject(QStringLiteral("Other")), QStringLiteral("X"), 0);
    add("free");
    TaskItem* drafted = add("drafted", TaskStatus::todo, phase);
    board->setProject(project);
    QCOMPARE(shown(), QStringLiteral("free,drafted||"));
    board->setSelectedPhaseID(phase->id().toString());
    QCOMPARE(shown(), QStringLiteral("drafted||"));
    QCOMPARE(board->filteredTasks(), QList<TaskItem*>{drafted});
    QCOMPARE(board->taskCount(), 2);
    drafted->setPhase(nullptr);
    FocusRig::settle();
    QCOMPARE(shown(), QStringLiteral("||"));

    // With the phase gone, nothing is narrowed.
    QSignalSpy selected(board.get(), &KanbanBoardView::selectedPhaseChanged);
    rig->context().remove(*phase);
    FocusRig::settle();
    QCOMPARE(selected.size(), 1);
    QVERIFY(board->selectedPhaseID().isEmpty());
    QCOMPARE(shown(), QStringLiteral("free,drafted||"));
    board->setSelectedPhaseID(foreign->id().toString());
    QVERIFY(board->selectedPhaseID().isEmpty());
}

void KanbanBoardTest::aDropSetsTheStatusAndNothingElse() {
    ProjectPhase* phase = rig->addPhase(project, QStringLiteral("Draft"), 0);
    TaskItem* parent = add("parent", TaskStatus::todo, phase);
    TaskItem* child = add("child", TaskStatus::inProgress, nullptr, parent);
    TaskItem* grandchild = add("grandchild", TaskStatus::todo, nullptr, child);
    board->setProject(project);
    board->setSelectedPhaseID(phase->id().toString());

    QVERIFY(!rig->context().save());
    QVERIFY(board->toDo()->drop(payloadOf(parent))); // its own column
    QVERIFY(!rig->context().hasChanges());

    QVERIFY(board->done()->drop({parent->id().toString().toUpper(), QStringLiteral("more")}));
    FocusRig::settle();
    QCOMPARE(shown(), QStringLiteral("||parent"));
    QVERIFY(child->isDone() && grandchild->isDone());
    QCOMPARE(parent->phase(), phase);
    QVERIFY(board->inProgress()->drop(payloadOf(parent)));
    QCOMPARE(parent->status(), TaskStatus::inProgress);
    QCOMPARE(child->status(), TaskStatus::todo);
    QCOMPARE(grandchild->status(), TaskStatus::todo);

    // What the phase hides, and subtasks, are the project's all the same.
    TaskItem* hidden = add("hidden");
    QVERIFY(board->done()->drop(payloadOf(hidden)));
    QVERIFY(hidden->isDone());
    QVERIFY(board->done()->drop(payloadOf(child)));
    QVERIFY(child->isDone());
    QCOMPARE(parent->status(), TaskStatus::inProgress);
}

void KanbanBoardTest::aStrangeDropIsRefused_data() {
    QTest::addColumn<QStringList>("payload");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("a title") << QStringList{QStringLiteral("mine")};
    QTest::newRow("a null id") << QStringList{QUuid().toString(QUuid::WithoutBraces)};
    QTest::newRow("an unknown id") << QStringList{QUuid::createUuid().toString(QUuid::WithoutBraces)};
    QTest::newRow("an id and more") << QStringList{QStringLiteral("%1 or so")};
    QTest::newRow("the id second") << QStringList{QString(), QStringLiteral("%1")};
    QTest::newRow("of another project") << QStringList{QStringLiteral("%2")};
}

void KanbanBoardTest::aStrangeDropIsRefused() {
    QFETCH(QStringList, payload);
    const TaskItem* mine = add("mine");
    TaskItem* foreign = rig->addTask(rig->addProject(QStringLiteral("Other")), QStringLiteral("foreign"));
    payload.replaceInStrings(QStringLiteral("%1"), mine->id().toString());
    payload.replaceInStrings(QStringLiteral("%2"), foreign->id().toString());
    board->setProject(project);
    QVERIFY(!rig->context().save());
    for (KanbanColumnView* column : {board->toDo(), board->inProgress(), board->done()})
        QVERIFY(!column->drop(payload));
    QVERIFY(!rig->context().hasChanges());
    board->setProject(nullptr);
    QVERIFY(!board->done()->drop(payloadOf(mine)));
}

void KanbanBoardTest::columnsFollowTheStoreRowByRow() {
    TaskItem* a = add("a");
    TaskItem* b = add("b");
    TaskItem* c = add("c");
    board->setProject(project);
    QSignalSpy reset(board->toDo(), &QAbstractItemModel::modelReset);
    QSignalSpy removed(board->toDo(), &QAbstractItemModel::rowsRemoved);
    QSignalSpy inserted(board->toDo(), &QAbstractItemModel::rowsInserted);
    b->setStatus(TaskStatus::inProgress);
    FocusRig::settle();
    QCOMPARE(shown(), QStringLiteral("a,c|b|"));
    QCOMPARE(removed.size(), 1);
    b->setStatus(TaskStatus::todo);
    FocusRig::settle();
    QCOMPARE(shown(), QStringLiteral("a,b,c||")); // back in its place
    QCOMPARE(inserted.size(), 1);
    rig->context().moveTask(*c, a);
    FocusRig::settle();
    QCOMPARE(shown(), QStringLiteral("c,a,b||"));
    b->setParentTask(a);
    FocusRig::settle();
    QCOMPARE(shown(), QStringLiteral("c,a||"));
    b->setParentTask(nullptr);
    c->setProject(nullptr);
    FocusRig::settle();
    QCOMPARE(shown(), QStringLiteral("a,b||"));
    rig->context().remove(*a);
    QCOMPARE(shown(), QStringLiteral("b||"));
    FocusRig::settle();
    add("d");
    FocusRig::settle();
    QCOMPARE(shown(), QStringLiteral("b,d||"));
    QVERIFY(reset.isEmpty());
}

void KanbanBoardTest::cardsSayWhatTheirTaskIs() {
    TaskItem* task = add("a");
    TaskItem* sub = add("one", TaskStatus::todo, nullptr, task);
    add("two", TaskStatus::todo, nullptr, task);
    task->setDueDate(rig->focus.clock.now().addDays(40));
    board->setProject(project);
    board->setLocale(QLocale(QLocale::French));
    const auto value = [this](int role) { return board->toDo()->index(0).data(role); };
    QCOMPARE(value(KanbanColumnView::DueTextRole).toString(), QStringLiteral("19/04/2025"));
    QVERIFY(value(KanbanColumnView::PlannedTextRole).toString().isEmpty());
    QCOMPARE(value(KanbanColumnView::CompletedSubtaskCountRole).toInt(), 0);

    QSignalSpy changed(board->toDo(), &QAbstractItemModel::dataChanged);
    sub->setStatus(TaskStatus::done);
    FocusRig::settle();
    QVERIFY(!changed.isEmpty());
    QCOMPARE(value(KanbanColumnView::CompletedSubtaskCountRole).toInt(), 1);
    changed.clear();
    rig->context().remove(*sub);
    FocusRig::settle();
    QVERIFY(!changed.isEmpty());
    QCOMPARE(value(KanbanColumnView::SubtaskCountRole).toInt(), 1);
    changed.clear();
    auto resource = std::make_unique<TaskResource>(TaskResource::Init{.name = QStringLiteral("plan.pdf")});
    resource->setTask(task);
    rig->context().insert(std::move(resource));
    FocusRig::settle();
    QVERIFY(!changed.isEmpty());
    QCOMPARE(value(KanbanColumnView::ResourceCountRole).toInt(), 1);

    // A day passes with the board open.
    task->setDueDate(rig->focus.clock.now());
    FocusRig::settle();
    QVERIFY(!value(KanbanColumnView::IsOverdueRole).toBool());
    changed.clear();
    rig->focus.clock.advance(std::chrono::hours(15));
    QVERIFY(!changed.isEmpty());
    QVERIFY(value(KanbanColumnView::IsOverdueRole).toBool());
}

void KanbanBoardTest::tasksAreAddedMovedAndDeleted() {
    ProjectPhase* phase = rig->addPhase(project, QStringLiteral("Draft"), 0);
    board->setProject(project);
    QCOMPARE(board->addTask(QStringLiteral("  "), QStringLiteral("To Do")), -1);
    QCOMPARE(board->addTask(QStringLiteral(" first "), QStringLiteral("To Do")), 0);
    board->setSelectedPhaseID(phase->id().toString());
    QCOMPARE(board->addTask(QStringLiteral("second"), QStringLiteral("In Progress")), 0);
    const TaskItem* second = board->inProgress()->taskAt(0);
    QCOMPARE(second->phase(), phase);
    QCOMPARE(second->project(), project);
    QCOMPARE(second->createdAt(), rig->focus.clock.now());
    board->setSelectedPhaseID(QString());
    QCOMPARE(shown(), QStringLiteral("first|second|"));
    QVERIFY(board->toDo()->drop(payloadOf(second)));
    QCOMPARE(board->rowOf(second->id().toString(), board->toDo()), 1);
    QCOMPARE(board->rowOf(second->id().toString(), board->inProgress()), -1);

    QSignalSpy posted(&rig->notifications, &PlanningNotifications::posted);
    const QString id = second->id().toString();
    board->openTask(id);
    board->planTask(id);
    QCOMPARE(posted.at(0).at(0).toString(), QStringLiteral("ShowTaskDetail"));
    QCOMPARE(posted.at(1).at(0).toString(), QStringLiteral("ShowPlanningSheet"));
    QCOMPARE(posted.at(1).at(1).value<TaskItem*>(), second);

    QVERIFY(board->consequencesOfDeletion(id).isEmpty());
    add("sub", TaskStatus::todo, nullptr, board->toDo()->taskAt(1));
    QVERIFY(!board->consequencesOfDeletion(id).isEmpty());
    board->deleteTask(id);
    QCOMPARE(shown(), QStringLiteral("first||"));
    rig->edits.undo();
    FocusRig::settle();
    QCOMPARE(shown(), QStringLiteral("first,second||"));
    QCOMPARE(board->toDo()->index(1).data(KanbanColumnView::SubtaskCountRole).toInt(), 1);
}

void KanbanBoardTest::aDeletedProjectIsLetGoOf() {
    ProjectPhase* phase = rig->addPhase(project, QStringLiteral("Draft"), 0);
    add("a", TaskStatus::todo, phase);
    board->setProject(project);
    board->setSelectedPhaseID(phase->id().toString());
    board->setShowManagePhases(true);
    QSignalSpy changed(board.get(), &KanbanBoardView::projectChanged);
    rig->edits.deleteProject(*project);
    FocusRig::settle();
    QCOMPARE(changed.size(), 1);
    QVERIFY(!board->hasProject());
    QVERIFY(board->projectName().isEmpty());
    QVERIFY(!board->showManagePhases());
    QCOMPARE(board->phases()->count(), 0);
    QCOMPARE(shown(), QStringLiteral("||"));
    QCOMPARE(board->addTask(QStringLiteral("lost"), QStringLiteral("To Do")), -1);
    rig->edits.undo();
    board->setProject(rig->context().projects().front());
    QCOMPARE(shown(), QStringLiteral("a||"));
}

void KanbanBoardTest::theSheetsAreAskedFor() {
    board->requestTask(QStringLiteral("Done"));
    board->setShowEditProject(true);
    board->setShowManagePhases(true);
    QVERIFY(!board->showAddTask() && !board->showEditProject() && !board->showManagePhases());
    board->setProject(project);
    board->requestTask(QStringLiteral("Done"));
    QVERIFY(board->showAddTask());
    QCOMPARE(board->newTaskStatus(), TaskStatus::done);
    board->setShowManagePhases(true);
    QCOMPARE(board->phaseSheet()->project(), project);
    board->setShowEditProject(true);
    QCOMPARE(sheet->project(), project);
    QSignalSpy details(board.get(), &KanbanBoardView::projectDetailsChanged);
    sheet->setName(QStringLiteral("Book"));
    sheet->saveProject();
    QVERIFY(!board->showEditProject());
    QVERIFY(!details.isEmpty());
    QCOMPARE(board->projectName(), QStringLiteral("Book"));
}

void KanbanBoardTest::aBigProjectIsOneStepForTheViews() {
    TaskItem* parent = add("parent");
    for (int number = 0; number < 300; ++number) {
        add("sub", TaskStatus::todo, nullptr, parent);
        add("card");
    }
    int signalCount = 0;
    for (const KanbanColumnView* column : {board->toDo(), board->inProgress(), board->done()}) {
        const auto count = [&signalCount] { ++signalCount; };
        connect(column, &QAbstractItemModel::rowsInserted, this, count);
        connect(column, &QAbstractItemModel::rowsRemoved, this, count);
        connect(column, &QAbstractItemModel::dataChanged, this, count);
        connect(column, &QAbstractItemModel::modelReset, this, count);
    }
    board->setProject(project);
    QCOMPARE(board->toDo()->count(), 301);
    QCOMPARE(signalCount, 2); // the rows, and the day that they were looked at
    parent->setStatus(TaskStatus::done);
    for (int row = 100; row < 200; ++row)
        board->toDo()->taskAt(row)->setStatus(TaskStatus::inProgress);
    FocusRig::settle();
    QCOMPARE(board->toDo()->count(), 200);
    QVERIFY2(signalCount <= 12, qPrintable(QString::number(signalCount)));
}

QTEST_GUILESS_MAIN(KanbanBoardTest)
#include "tst_KanbanBoard.moc"
