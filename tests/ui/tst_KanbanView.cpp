#include "tests/ui/UiRig.h"

using namespace norvin;

/// The board of a project with the keyboard and the pointer.
class KanbanViewTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { open(QStringLiteral("en")); }
    void cleanup() { rig.reset(); }

    void cardsGoFromColumnToColumnByKeyboard();
    void cardsAreDraggedAndDropped();
    void theMenuDoesWhatTheKeysDo();
    void tasksAreTypedIntoTheirColumn();
    void phasesAreManagedByKeyboardAlone();
    void aLongColumnMakesOnlyTheCardsThatAreSeen();
    void nothingIsCut_data();
    void nothingIsCut();

private:
    void open(const QString& language) {
        rig.reset();
        rig = std::make_unique<UiRig>(language);
        QVERIFY2(rig->loaded, qPrintable(rig->focus.lines.join(QLatin1Char('\n'))));
        rig->show();
        project = rig->focus.context().insert(
            std::make_unique<Project>(Project::Init{.name = QStringLiteral("Thesis"),
                                                    .colorHex = QStringLiteral("#06b6d4"),
                                                    .emoji = QStringLiteral("📚")}));
    }
    TaskItem* add(const QString& title, TaskStatus status = TaskStatus::todo, ProjectPhase* phase = nullptr) {
        return rig->focus.context().insert(std::make_unique<TaskItem>(
            TaskItem::Init{.title = title, .status = status, .project = project, .phase = phase}));
    }
    ProjectPhase* addPhase(const QString& name) {
        return rig->focus.context().insert(std::make_unique<ProjectPhase>(ProjectPhase::Init{
            .name = name, .orderIndex = static_cast<int>(project->phases().size()), .project = project}));
    }
    /// A board as somebody has it in the middle of the work.
    void fill() {
        ProjectPhase* read = addPhase(QStringLiteral("Read"));
        ProjectPhase* write = addPhase(QStringLiteral("Write"));
        addPhase(QStringLiteral("Print"));
        const QDateTime now = rig->focus.clock.now();
        TaskItem* chapter =
            add(QStringLiteral("Write the third chapter, with the figures that the workshop sent"),
                TaskStatus::todo, write);
        chapter->setPriority(TaskPriority::high);
        chapter->setDueDate(now.addDays(-2));
        for (int number = 0; number < 3; ++number) {
            TaskItem* sub = add(QStringLiteral("Figure %1").arg(number),
                                number == 0 ? TaskStatus::done : TaskStatus::todo);
            sub->setParentTask(chapter);
        }
        add(QStringLiteral("Ask for an appointment"))->setPriority(TaskPriority::low);
        add(QStringLiteral("Order the paper"), TaskStatus::todo, read)->setPlannedDate(now.addDays(1));
        add(QStringLiteral("Read the letters"), TaskStatus::inProgress, read)->setPlannedDate(now);
        auto resource =
            std::make_unique<TaskResource>(TaskResource::Init{.name = QStringLiteral("letters.pdf")});
        resource->setTask(project->tasks().back());
        rig->focus.context().insert(std::move(resource));
    }
    void show() {
        rig->planning.board()->setProject(project);
        rig->showPage(UiRig::Page::projects);
        QTRY_VERIFY(rig->visible("boardTitle"));
        QTRY_VERIFY(rig->hasKeyboard("cards0"));
    }
    /// Title of the card that the keyboard is on.
    [[nodiscard]] QString current(const char* list) const {
        const auto* card = rig->visible(list)->property("currentItem").value<QQuickItem*>();
        return card != nullptr && rig->hasKeyboard(list) ? card->property("title").toString() : QString();
    }
    [[nodiscard]] static QPoint middleOf(const QQuickItem* item) {
        return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    }
    void drag(const QPoint& from, const QPoint& to) const {
        QTest::mousePress(rig->window(), Qt::LeftButton, {}, from);
        for (int step = 1; step <= 10; ++step)
            QTest::mouseMove(rig->window(), from + (to - from) * step / 10);
    }
    [[nodiscard]] KanbanBoardView& board() const { return *rig->planning.board(); }

    std::unique_ptr<UiRig> rig;
    Project* project = nullptr;
};

void KanbanViewTest::cardsGoFromColumnToColumnByKeyboard() {
    TaskItem* a = add(QStringLiteral("a"));
    add(QStringLiteral("b"));
    add(QStringLiteral("c"), TaskStatus::done);
    show();
    QCOMPARE(current("cards0"), QStringLiteral("a"));
    rig->press(Qt::Key_Down);
    QCOMPARE(current("cards0"), QStringLiteral("b"));
    rig->press(Qt::Key_Right); // an empty column
    QVERIFY(rig->hasKeyboard("cards1"));
    rig->press(Qt::Key_Right);
    QCOMPARE(current("cards2"), QStringLiteral("c"));
    rig->press(Qt::Key_Right);
    rig->press(Qt::Key_Left);
    rig->press(Qt::Key_Left);
    QCOMPARE(current("cards0"), QStringLiteral("a"));
    rig->press(Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(a->status(), TaskStatus::inProgress);
    QCOMPARE(current("cards1"), QStringLiteral("a"));
    rig->press(Qt::Key_Right, Qt::ControlModifier);
    QVERIFY(a->isDone());
    QCOMPARE(current("cards2"), QStringLiteral("a")); // before "c", which is younger
    rig->press(Qt::Key_Left, Qt::ControlModifier);
    rig->press(Qt::Key_Left, Qt::ControlModifier);
    rig->press(Qt::Key_Left, Qt::ControlModifier);
    QCOMPARE(current("cards0"), QStringLiteral("a"));

    rig->press(Qt::Key_Return);
    QTRY_VERIFY(rig->planning.taskSheet()->isPresented());
    QCOMPARE(rig->planning.taskSheet()->task(), a);
    rig->planning.taskSheet()->close();
    QTRY_VERIFY(rig->hasKeyboard("cards0"));
    rig->press(Qt::Key_Delete);
    QTRY_VERIFY(rig->saying(qtTrId("confirm_delete_task_title")));
    rig->press(Qt::Key_Tab);
    rig->press(Qt::Key_Return);
    QTRY_COMPARE(current("cards0"), QStringLiteral("b"));
    QCOMPARE(board().taskCount(), 2);
    rig->press(Qt::Key_Left, Qt::AltModifier);
    QTRY_VERIFY(rig->hasKeyboard("projectGrid"));
    QVERIFY(!board().hasProject());
}

void KanbanViewTest::cardsAreDraggedAndDropped() {
    fill();
    show();
    const TaskItem* chapter = board().toDo()->taskAt(0);
    QTRY_VERIFY(rig->saying(chapter->title()));
    const QQuickItem* done = rig->visible("cards2");
    drag(middleOf(rig->saying(chapter->title())), middleOf(done));
    QTRY_VERIFY(board().done()->isDropTargeted());
    QVERIFY(rig->visible("draggedCard"));
    rig->keepPicture(QStringLiteral("board-drag"));
    QTest::mouseRelease(rig->window(), Qt::LeftButton, {}, middleOf(done));
    QVERIFY(chapter->isDone());
    QVERIFY(!board().done()->isDropTargeted());
    QVERIFY(!rig->visible("draggedCard"));
    QTRY_COMPARE(current("cards2"), chapter->title());
    QCOMPARE(chapter->completedSubtasksCount(), 3);
    QVERIFY(!rig->planning.taskSheet()->isPresented()); // a drag is no click

    // Let go over no column, nothing changes; a press without a drag opens.
    const QPoint card = middleOf(rig->saying(chapter->title()));
    drag(card, middleOf(rig->visible("boardTitle")));
    QTRY_VERIFY(!board().done()->isDropTargeted());
    QTest::mouseRelease(rig->window(), Qt::LeftButton, {}, middleOf(rig->visible("boardTitle")));
    QVERIFY(chapter->isDone());
    QVERIFY(!rig->visible("draggedCard"));
    QTest::mouseClick(rig->window(), Qt::LeftButton, {}, middleOf(rig->saying(chapter->title())));
    QTRY_VERIFY(rig->planning.taskSheet()->isPresented());
}

void KanbanViewTest::theMenuDoesWhatTheKeysDo() {
    fill();
    show();
    QSignalSpy posted(&rig->planning.notifications(), &PlanningNotifications::posted);
    rig->press(Qt::Key_Menu);
    QTRY_VERIFY(rig->saying(qtTrId("card_plan_button")));
    rig->keepPicture(QStringLiteral("board-menu"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(!rig->saying(qtTrId("card_plan_button")));
    QTRY_VERIFY(rig->hasKeyboard("cards0"));
    QVERIFY(board().hasProject());

    const TaskItem* chapter = board().toDo()->taskAt(0);
    rig->click(rig->saying(chapter->title()), Qt::RightButton);
    const QString move = qtTrId("card_move_format").arg(board().inProgress()->title());
    QTRY_VERIFY(rig->saying(move));
    rig->clickEntry("cardMenu", 5, move);
    QTRY_COMPARE(chapter->status(), TaskStatus::inProgress);
    QTRY_COMPARE(current("cards1"), chapter->title());
    QVERIFY(posted.isEmpty());
    rig->press(Qt::Key_P);
    QCOMPARE(posted.size(), 1);
    QCOMPARE(posted.at(0).at(0).toString(), PlanningNotifications::showPlanningSheet);
}

void KanbanViewTest::tasksAreTypedIntoTheirColumn() {
    ProjectPhase* phase = addPhase(QStringLiteral("Read"));
    show();
    rig->keepPicture(QStringLiteral("board-empty"));
    rig->tabTo("boardTabs");
    rig->press(Qt::Key_Right);
    QCOMPARE(board().selectedPhaseID(), phase->id().toString());
    rig->tabTo("columnAdd1");
    rig->press(Qt::Key_Return);
    QTRY_VERIFY(rig->hasKeyboard("newTask"));
    rig->type(QStringLiteral("one"));
    rig->press(Qt::Key_Return);
    rig->type(QStringLiteral("two"));
    rig->press(Qt::Key_Return);
    rig->keepPicture(QStringLiteral("board-typing"));
    rig->press(Qt::Key_Escape);
    QTRY_COMPARE(current("cards1"), QStringLiteral("two"));
    QCOMPARE(board().inProgress()->count(), 2);
    QCOMPARE(board().inProgress()->taskAt(1)->phase(), phase);
    rig->press(Qt::Key_N);
    QTRY_VERIFY(rig->hasKeyboard("newTask"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(rig->hasKeyboard("cards1"));
    QVERIFY(board().hasProject());
    rig->click(rig->visible("boardAdd"));
    QTRY_VERIFY(rig->planning.taskSheet()->isPresented());
}

void KanbanViewTest::phasesAreManagedByKeyboardAlone() {
    show();
    rig->tabTo("boardPhases");
    rig->press(Qt::Key_Return);
    QTRY_VERIFY(rig->hasKeyboard("managedNew"));
    rig->keepPicture(QStringLiteral("phases-empty"));
    for (const char* name : {"Read", "Write", "Print"}) {
        rig->type(QString::fromLatin1(name));
        rig->press(Qt::Key_Return);
    }
    QCOMPARE(project->phases().size(), 3);
    TaskItem* task = add(QStringLiteral("chapter"), TaskStatus::todo, project->phases().at(1));
    rig->press(Qt::Key_Down);
    QTRY_VERIFY(rig->hasKeyboard("managedPhases"));
    rig->press(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(project->sortedPhases().at(1)->name(), QStringLiteral("Read"));
    rig->press(Qt::Key_F2);
    QTRY_VERIFY(rig->hasKeyboard("phaseEdit"));
    rig->type(QStringLiteral("Look"));
    rig->press(Qt::Key_Return);
    QCOMPARE(project->sortedPhases().at(1)->name(), QStringLiteral("Look"));
    QTRY_VERIFY(rig->hasKeyboard("managedPhases"));
    rig->press(Qt::Key_F2);
    QTRY_VERIFY(rig->hasKeyboard("phaseEdit"));
    rig->type(QStringLiteral("Never"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(rig->hasKeyboard("managedPhases"));
    QCOMPARE(project->sortedPhases().at(1)->name(), QStringLiteral("Look"));

    rig->press(Qt::Key_Delete); // nothing was in it
    QCOMPARE(project->phases().size(), 2);
    rig->waitForFirstRow("managedPhases");
    rig->keepPicture(QStringLiteral("phases"));
    rig->press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(project->phases().size(), 3);
    rig->press(Qt::Key_Up);
    rig->press(Qt::Key_Up);
    rig->press(Qt::Key_Delete);
    QTRY_VERIFY(rig->saying(qtTrId("confirm_delete_phase_title").arg(QStringLiteral("Write"))));
    rig->waitForFirstRow("managedPhases");
    rig->keepPicture(QStringLiteral("phases-delete"));
    rig->press(Qt::Key_Tab);
    rig->press(Qt::Key_Return);
    QTRY_COMPARE(project->phases().size(), 2);
    QCOMPARE(task->phase(), nullptr);
    QTRY_VERIFY(rig->hasKeyboard("managedPhases"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(!board().showManagePhases());
    QTRY_VERIFY(rig->hasKeyboard("boardPhases"));
}

void KanbanViewTest::aLongColumnMakesOnlyTheCardsThatAreSeen() {
    for (int number = 0; number < 500; ++number)
        add(QStringLiteral("Card %1").arg(number));
    show();
    const auto cards = [this] {
        int count = 0;
        const QList<QQuickItem*> all =
            rig->visible("cards0")->property("contentItem").value<QQuickItem*>()->childItems();
        for (const QQuickItem* item : all)
            count += item->property("taskId").isValid() ? 1 : 0;
        return count;
    };
    QVERIFY(cards() < 60);
    rig->press(Qt::Key_End);
    QCOMPARE(current("cards0"), QStringLiteral("Card 499"));
    QTRY_VERIFY(rig->saying(QStringLiteral("Card 498")));
    rig->press(Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(current("cards1"), QStringLiteral("Card 499"));
    for (int presses = 0; presses < 200; ++presses)
        rig->press(Qt::Key_Up);
    QVERIFY(cards() < 60);
    rig->keepPicture(QStringLiteral("board-long"));
}

void KanbanViewTest::nothingIsCut_data() {
    UiRig::addLanguages();
}

void KanbanViewTest::nothingIsCut() {
    QFETCH(QString, language);
    open(language);
    fill();
    show();
    rig->checkTexts(QStringLiteral("board"));
    rig->press(Qt::Key_Menu);
    QTRY_VERIFY(rig->saying(qtTrId("card_plan_button")));
    rig->checkTexts(QStringLiteral("board-menu"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(!rig->saying(qtTrId("card_plan_button")));
    board().setShowManagePhases(true);
    QTRY_VERIFY(rig->hasKeyboard("managedNew"));
    rig->checkTexts(QStringLiteral("phases"));
    board().setShowManagePhases(false);
    rig->window()->resize(2560, 1440);
    QTRY_VERIFY(!rig->visible("managedNew"));
    rig->checkTexts(QStringLiteral("board-large"));
}

QTEST_MAIN(KanbanViewTest)
#include "tst_KanbanView.moc"
