#include "tests/ui/UiRig.h"

using namespace norvin;

/// The daily agenda and its sheets with the keyboard and the pointer, as the window shows them.
class AgendaViewTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { rig.reset(); }

    void aDayIsFilledAndEmptiedByKeyboard();
    void rowsAnswerToThePointer();
    void daysAreChosenOnTheStripAndInTheCalendar();
    void lateTasksAreReachedAndPlanned();
    void tasksAreTypedInOneLine();
    void existingTasksArePickedByKeyboard();
    void nothingIsCut_data();
    void nothingIsCut();

private:
    void start(const QString& language = QStringLiteral("en")) {
        rig = std::make_unique<UiRig>(language);
        QVERIFY2(rig->loaded, qPrintable(rig->focus.lines.join(QLatin1Char('\n'))));
        rig->show();
    }
    void openPage() {
        rig->showPage(UiRig::Page::agenda);
        QTRY_VERIFY(hasKeyboard("quickTaskField"));
    }
    [[nodiscard]] bool hasKeyboard(const char* name) const {
        const QQuickItem* item = rig->item(name);
        return item && item->hasActiveFocus();
    }
    [[nodiscard]] DailyAgendaView& agenda() const { return *rig->planning.agenda(); }
    [[nodiscard]] ModelContext& context() const { return rig->focus.context(); }
    [[nodiscard]] QDateTime day(int fromToday) const {
        return startOfDay(rig->focus.clock.now()).addDays(fromToday);
    }
    TaskItem* add(const QString& title, const QDateTime& planned, const QDateTime& due = {},
                  Project* project = nullptr, TaskPriority priority = TaskPriority::medium) const {
        return context().insert(std::make_unique<TaskItem>(TaskItem::Init{.title = title,
                                                                          .priority = priority,
                                                                          .dueDate = due,
                                                                          .plannedDate = planned,
                                                                          .project = project}));
    }
    [[nodiscard]] QQuickItem* visible(const QString& name, const QString& text = {}) const {
        for (QQuickItem* item : rig->visibleItems()) {
            if (item->objectName() == name && (text.isEmpty() || item->property("text").toString() == text))
                return item;
        }
        return nullptr;
    }
    [[nodiscard]] QQuickItem* row(const char* list, int index) const {
        QQuickItem* found = nullptr;
        QMetaObject::invokeMethod(rig->item(list), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, found),
                                  Q_ARG(int, index));
        return found;
    }
    [[nodiscard]] QString textOf(const char* name) const {
        return rig->item(name)->property("text").toString();
    }
    /// A little of everything that the agenda shows.
    void furnish() const;

    std::unique_ptr<UiRig> rig;
};

void AgendaViewTest::aDayIsFilledAndEmptiedByKeyboard() {
    start();
    openPage();
    QVERIFY(rig->item("emptyAddToAgenda")->isVisible());
    rig->type(QStringLiteral("Call Bob"));
    rig->press(Qt::Key_Return);
    rig->type(QStringLiteral("Read"));
    rig->press(Qt::Key_Return);
    QCOMPARE(agenda().list()->count(), 2);
    QVERIFY(textOf("quickTaskField").isEmpty());
    QCOMPARE(textOf("dayProgress"), QStringLiteral("0 of 2 done"));
    QCOMPARE(rig->focus.timer.taskQueue().size(), 2);
    rig->press(Qt::Key_Down);
    QTRY_VERIFY(hasKeyboard("agendaList"));
    rig->press(Qt::Key_Return);
    QTRY_VERIFY(rig->planning.taskSheet()->isPresented());
    QCOMPARE(agenda().selectedTask()->title(), QStringLiteral("Call Bob"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(agenda().selectedTask() == nullptr);
    QTRY_VERIFY(hasKeyboard("agendaList"));

    rig->press(Qt::Key_Space);
    QCOMPARE(agenda().list()->count(), 1);
    QVERIFY(context().tasks().front()->isDone());
    rig->press(Qt::Key_Delete);
    QTRY_VERIFY(rig->window()->activeFocusItem()->property("text").toString() == qtTrId("cancel_button"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(!agenda().list()->asksToUnschedule());
    QTRY_VERIFY(hasKeyboard("agendaList"));
    rig->press(Qt::Key_Menu);
    QTRY_VERIFY(
        rig->window()->findChild<QObject*>(QStringLiteral("agendaMenu"))->property("opened").toBool());
    for (int presses = 0; presses < 3; ++presses)
        rig->press(Qt::Key_Down);
    rig->press(Qt::Key_Return);
    QTRY_VERIFY(rig->window()->activeFocusItem()->property("text").toString() == qtTrId("cancel_button"));
    rig->press(Qt::Key_Tab);
    rig->press(Qt::Key_Return);
    QTRY_COMPARE(agenda().list()->count(), 0);
    QCOMPARE(context().tasks().size(), size_t{1});
    // The list is gone; what is typed next must go somewhere.
    QTRY_VERIFY(hasKeyboard("quickTaskField"));
}

void AgendaViewTest::rowsAnswerToThePointer() {
    start();
    add(QStringLiteral("first"), day(0));
    add(QStringLiteral("second"), day(0));
    openPage();
    QTRY_VERIFY(row("agendaList", 1));
    QTest::mouseMove(rig->window(), row("agendaList", 1)->mapToScene(QPointF(300, 20)).toPoint());
    QTRY_VERIFY(row("agendaList", 1)->property("isHovered").toBool());
    const QQuickItem* button =
        row("agendaList", 1)->findChild<QQuickItem*>(QStringLiteral("agendaUnschedule"));
    QTRY_COMPARE(button->opacity(), 1.0);
    rig->click(button);
    QCOMPARE(agenda().list()->titleToUnschedule(), QStringLiteral("second"));
    QTRY_VERIFY(agenda().list()->asksToUnschedule());
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(hasKeyboard("agendaList"));
    QCOMPARE(agenda().list()->count(), 2);
    rig->click(row("agendaList", 0)->findChild<QQuickItem*>(QStringLiteral("agendaTick")));
    QVERIFY(context().tasks().front()->isDone());
    QTRY_COMPARE(row("agendaList", 0)->property("title").toString(), QStringLiteral("second"));
    QTRY_COMPARE(row("agendaList", 0)->y(), 0.0);
    rig->click(row("agendaList", 0));
    QTRY_VERIFY(rig->planning.taskSheet()->isPresented());
    QCOMPARE(agenda().selectedTask()->title(), QStringLiteral("second"));
}

void AgendaViewTest::daysAreChosenOnTheStripAndInTheCalendar() {
    start();
    add(QStringLiteral("in April"), day(22));
    openPage();
    rig->tabTo("dateStrip");
    rig->press(Qt::Key_Right);
    QCOMPARE(agenda().selectedDate().date(), rig->focus.clock.now().date().addDays(1));
    rig->press(Qt::Key_End);
    QCOMPARE(agenda().datePicker()->selectedRow(), 29);
    rig->press(Qt::Key_Left);
    QTRY_VERIFY(row("dateStrip", 27));
    QTRY_VERIFY(row("dateStrip", 27)->mapToScene(QPointF(64, 0)).x() < rig->window()->width());
    rig->click(row("dateStrip", 27));
    QCOMPARE(agenda().datePicker()->selectedRow(), 27);

    rig->click(rig->item("calendarButton"));
    QTRY_VERIFY(hasKeyboard("monthDays"));
    rig->press(Qt::Key_Home);
    rig->press(Qt::Key_PageDown);
    rig->press(Qt::Key_PageUp, Qt::ShiftModifier);
    QCOMPARE(textOf("monthTitle"), QStringLiteral("May 2024"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(!agenda().showCalendar());
    QCOMPARE(agenda().datePicker()->selectedRow(), 27);
    rig->click(rig->item("calendarButton"));
    QTRY_VERIFY(hasKeyboard("monthDays"));
    for (int presses = 0; presses < 5; ++presses)
        rig->press(Qt::Key_Left);
    rig->press(Qt::Key_Return);
    QTRY_VERIFY(!agenda().showCalendar());
    QCOMPARE(agenda().list()->count(), 1);
    rig->tabTo("goToToday");
    rig->press(Qt::Key_Return);
    QVERIFY(agenda().isToday());
    QTRY_VERIFY(hasKeyboard("dateStrip"));
}

void AgendaViewTest::lateTasksAreReachedAndPlanned() {
    start();
    TaskItem* first = add(QStringLiteral("first"), day(-3));
    TaskItem* second = add(QStringLiteral("second"), day(-2));
    openPage();
    QTRY_VERIFY(rig->item("lateTasksButton")->isVisible());
    rig->tabTo("lateTasksButton");
    rig->press(Qt::Key_Return);
    QTRY_VERIFY(hasKeyboard("lateTaskList"));
    rig->press(Qt::Key_Space);
    QCOMPARE(first->plannedDate(), day(0));
    QTRY_COMPARE(rig->item("lateTaskList")->property("count").toInt(), 1);
    rig->press(Qt::Key_Tab); // past its other button
    rig->press(Qt::Key_Tab);
    QCOMPARE(rig->window()->activeFocusItem()->objectName(), QStringLiteral("planForDay"));
    rig->press(Qt::Key_Return);
    QTRY_VERIFY(hasKeyboard("monthDays"));
    rig->press(Qt::Key_Down);
    rig->press(Qt::Key_Return);
    QTRY_COMPARE(second->plannedDate(), day(7));
    QTRY_COMPARE(agenda().overdueCount(), 0);
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(!agenda().showLateTasks());
    QTRY_VERIFY(!rig->item("lateTasksButton")->isVisible());
    QVERIFY(rig->window()->activeFocusItem() && rig->window()->activeFocusItem()->isVisible());
}

void AgendaViewTest::tasksAreTypedInOneLine() {
    start();
    Project* thesis =
        context().insert(std::make_unique<Project>(Project::Init{.name = QStringLiteral("Thesis")}));
    openPage();
    rig->press(Qt::Key_N, Qt::ControlModifier);
    QTRY_VERIFY(hasKeyboard("quickAddLine"));
    rig->type(QStringLiteral("Write !high #the tomorrow"));
    QCOMPARE(agenda().planningSheet()->quickAdd()->chips()->count(), 3);
    // From the line to its first chip, which goes back into the title.
    rig->press(Qt::Key_Tab);
    rig->press(Qt::Key_Delete);
    QCOMPARE(textOf("quickAddLine"), QStringLiteral("Write \\!high #the tomorrow"));
    QTRY_VERIFY(hasKeyboard("quickAddLine"));
    rig->tabTo("quickAddPriority");
    rig->press(Qt::Key_Left);
    rig->tabTo("quickAddDay");
    rig->press(Qt::Key_Space);
    QTRY_VERIFY(hasKeyboard("monthDays"));
    rig->press(Qt::Key_Right);
    rig->press(Qt::Key_Return);
    QTRY_VERIFY(!agenda().planningSheet()->quickAdd()->showCalendar());
    rig->tabTo("quickAddLine");
    rig->press(Qt::Key_Return);
    const TaskItem* task = context().tasks().back();
    QCOMPARE(task->title(), QStringLiteral("Write !high"));
    QCOMPARE(task->project(), thesis);
    QCOMPARE(task->priority(), TaskPriority::low);
    QCOMPARE(task->plannedDate(), day(2));
    QVERIFY(textOf("quickAddLine").isEmpty());
    QVERIFY(textOf("quickAddReport").contains(QStringLiteral("Write !high")));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(!agenda().showPlanningSheet());
    QTRY_VERIFY(hasKeyboard("quickTaskField"));
}

void AgendaViewTest::existingTasksArePickedByKeyboard() {
    start();
    for (const char* title : {"alpha", "beta", "alphabet"})
        add(QString::fromLatin1(title), {});
    openPage();
    rig->click(rig->item("emptyPlanTask"));
    QTRY_VERIFY(hasKeyboard("pickSearch"));
    rig->type(QStringLiteral("alp"));
    QCOMPARE(rig->item("pickList")->property("count").toInt(), 2);
    QVERIFY(!rig->item("pickPlan")->isEnabled());
    rig->press(Qt::Key_Down);
    QTRY_VERIFY(hasKeyboard("pickList"));
    rig->press(Qt::Key_Space);
    rig->press(Qt::Key_Down);
    rig->press(Qt::Key_Return);
    QCOMPARE(textOf("pickPlan"), QStringLiteral("Plan 2 tasks"));
    // To the other tab and back nothing is lost.
    rig->press(Qt::Key_Tab, Qt::ControlModifier);
    QTRY_VERIFY(hasKeyboard("quickAddLine"));
    rig->press(Qt::Key_Tab, Qt::ControlModifier);
    QTRY_VERIFY(hasKeyboard("pickSearch"));
    rig->press(Qt::Key_Return, Qt::ControlModifier);
    QTRY_VERIFY(!agenda().showPlanningSheet());
    QTRY_COMPARE(agenda().list()->count(), 2);
    rig->planning.edits()->undo();
    QTRY_COMPARE(agenda().list()->count(), 0);
}

void AgendaViewTest::furnish() const {
    const auto project = [this](const char* name, const char* color) {
        return context().insert(std::make_unique<Project>(
            Project::Init{.name = QString::fromUtf8(name), .colorHex = QString::fromLatin1(color)}));
    };
    Project* thesis = project("Thèse de doctorat sur les neurones", "#10b981");
    Project* garden = project("Garden", "#f59e0b");
    context().insert(std::make_unique<ProjectPhase>(
        ProjectPhase::Init{.name = QStringLiteral("Brouillon"), .project = thesis}));
    add(QStringLiteral(
            "Write the introduction of the second chapter, with the figures that Ann has sent, and "
            "send it to both of the reviewers before they leave for the conference"),
        day(0), day(-2), thesis, TaskPriority::high);
    add(QStringLiteral("Water the tomatoes"), day(0), {}, garden);
    add(QStringLiteral("Pay the electricity bill"), {}, day(0), nullptr, TaskPriority::low);
    TaskItem* late = add(QStringLiteral("Call the dentist"), day(-4));
    late->setParentTask(context().tasks().front());
    add(QStringLiteral("Send the invoice of February"), day(-6), day(-1), garden);
    for (int i = 0; i < 6; ++i)
        add(QStringLiteral("Read paper %1").arg(i + 1), day(i % 3 + 1), i % 2 == 0 ? day(9) : QDateTime(),
            thesis);
    add(QStringLiteral("Somewhen"), {});
}

void AgendaViewTest::nothingIsCut_data() {
    UiRig::addLanguages();
}

void AgendaViewTest::nothingIsCut() {
    QFETCH(QString, language);
    start(language);
    const auto check = [&](const QString& scene) {
        rig->checkTexts(QStringLiteral("agenda-") + scene,
                        {QStringLiteral("introduction"), QStringLiteral("Thèse")});
    };
    openPage();
    check(QStringLiteral("empty"));
    furnish();
    FocusRig::settle();
    check(QStringLiteral("day"));
    rig->press(Qt::Key_Down);
    QTRY_VERIFY(hasKeyboard("agendaList"));
    check(QStringLiteral("row"));
    agenda().list()->requestUnscheduleAt(1);
    check(QStringLiteral("question"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(!agenda().list()->asksToUnschedule());
    agenda().setShowCalendar(true);
    QTRY_VERIFY(hasKeyboard("monthDays"));
    check(QStringLiteral("calendar"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(!agenda().showCalendar());
    agenda().setShowLateTasks(true);
    QTRY_VERIFY(hasKeyboard("lateTaskList"));
    check(QStringLiteral("late"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(!agenda().showLateTasks());
    agenda().plan(QStringLiteral("quickAdd"));
    QTRY_VERIFY(hasKeyboard("quickAddLine"));
    check(QStringLiteral("quick-empty"));
    agenda().planningSheet()->quickAdd()->setLine(
        QStringLiteral("Rédiger le rapport !haute #Thèse @Brouillon demain avant le 12 décembre #42"));
    check(QStringLiteral("quick"));
    rig->press(Qt::Key_Return);
    check(QStringLiteral("quick-added"));
    agenda().planningSheet()->setTabName(QStringLiteral("pickExisting"));
    agenda().planningSheet()->pickList()->toggle(0);
    agenda().planningSheet()->pickList()->toggle(2);
    check(QStringLiteral("pick"));
}

QTEST_MAIN(AgendaViewTest)
#include "tst_AgendaView.moc"
