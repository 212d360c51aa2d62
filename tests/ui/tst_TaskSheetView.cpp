#include "tests/ui/UiRig.h"

#include <QDropEvent>
#include <QImage>
#include <QMimeData>
#include <QTemporaryDir>

using namespace norvin;

/// The sheet of a task with the keyboard and the pointer.
class TaskSheetViewTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        rig = std::make_unique<UiRig>(QStringLiteral("fr"));
        QVERIFY2(rig->loaded, qPrintable(rig->focus.lines.join(QLatin1Char('\n'))));
        rig->show();
        ModelContext& context = rig->focus.context();
        project = context.insert(
            std::make_unique<Project>(Project::Init{.name = "Mémoire", .colorHex = "#06b6d4", .emoji = "📚"}));
        context.insert(
            std::make_unique<Project>(Project::Init{.name = "Jardin", .colorHex = "#10b981", .emoji = "🌟"}));
        phase = context.insert(
            std::make_unique<ProjectPhase>(ProjectPhase::Init{.name = "Rédaction", .project = project}));
        task = context.insert(std::make_unique<TaskItem>(
            TaskItem::Init{.title = "Écrire le chapitre trois", .project = project, .phase = phase}));
    }
    void cleanup() { rig.reset(); }

    void aTaskIsMadeByKeyboardAlone();
    void aTaskIsChangedByKeyboardAlone();
    void subtasksAreDraggedAndFilesDropped();

private:
    void open() {
        rig->planning.showTask(task->id().toString());
        QTRY_VERIFY(rig->item("taskTitle") && rig->item("taskTitle")->hasActiveFocus());
    }
    [[nodiscard]] QStringList subtaskTitles() const {
        QStringList titles;
        for (const TaskItem* subtask : task->subtasks())
            titles.append(subtask->title());
        return titles;
    }
    [[nodiscard]] bool isTypingInList() const {
        const QQuickItem* focused = rig->window()->activeFocusItem();
        return focused != nullptr && focused->objectName() == QLatin1String("inlineField");
    }
    [[nodiscard]] TaskSheet& sheet() { return *rig->planning.taskSheet(); }

    std::unique_ptr<UiRig> rig;
    Project* project = nullptr;
    ProjectPhase* phase = nullptr;
    TaskItem* task = nullptr;
};

void TaskSheetViewTest::aTaskIsMadeByKeyboardAlone() {
    sheet().presentNew(nullptr, nullptr, TaskStatus::todo);
    QTRY_VERIFY(rig->item("taskTitle") && rig->item("taskTitle")->hasActiveFocus());
    rig->keepPicture(QStringLiteral("task-new"));
    rig->press(Qt::Key_Return); // without a title nothing is made
    QVERIFY(sheet().isPresented());
    rig->type(QStringLiteral("Relire"));
    rig->tabTo("taskDescription");
    rig->type(QStringLiteral("deux fois"));
    rig->tabTo("taskPriority");
    rig->press(Qt::Key_Right);
    rig->tabTo("taskProject");
    rig->press(Qt::Key_Down); // after "none" they come by name
    rig->press(Qt::Key_Down);
    rig->tabTo("taskPhase");
    rig->press(Qt::Key_Down);
    rig->tabTo("taskPlanned");
    rig->press(Qt::Key_Space);
    QTRY_VERIFY(rig->window()->findChild<QObject*>("dayChoices"));
    rig->press(Qt::Key_Right);
    rig->keepPicture(QStringLiteral("task-day"));
    rig->press(Qt::Key_Return);
    QTRY_VERIFY(!rig->window()->findChild<QObject*>("dayChoices"));
    rig->press(Qt::Key_Return, Qt::ControlModifier);
    QTRY_VERIFY(!sheet().isPresented());
    const TaskItem& made = *rig->focus.context().tasks().back();
    QCOMPARE(made.title(), QStringLiteral("Relire"));
    QCOMPARE(made.taskDescription(), QStringLiteral("deux fois"));
    QCOMPARE(made.priority(), TaskPriority::high);
    QCOMPARE(made.project(), project);
    QCOMPARE(made.phase(), phase);
    QCOMPARE(made.plannedDate().date(), rig->focus.clock.now().date().addDays(1));
    // Escape leaves nothing behind.
    sheet().presentNew(nullptr, nullptr, TaskStatus::todo);
    QTRY_VERIFY(rig->item("taskTitle") && rig->item("taskTitle")->hasActiveFocus());
    rig->type(QStringLiteral("Rien"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(!sheet().isPresented());
    QCOMPARE(rig->focus.context().tasks().size(), size_t{2});
}

void TaskSheetViewTest::aTaskIsChangedByKeyboardAlone() {
    open();
    rig->press(Qt::Key_A, Qt::ControlModifier);
    rig->type(QStringLiteral("Chapitre"));
    rig->tabTo("newSubtask");
    QCOMPARE(task->title(), QStringLiteral("Chapitre"));
    for (const char* title : {"un", "deux", "trois"}) {
        rig->type(QString::fromLatin1(title));
        rig->press(Qt::Key_Return);
    }
    QTRY_VERIFY(rig->item("subtasks")->height() > 100);
    for (int presses = 0; presses < 20 && !rig->item("taskTitle")->hasActiveFocus(); ++presses)
        rig->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY2(rig->item("taskTitle")->hasActiveFocus(), qPrintable(rig->focusName()));
    rig->tabTo("subtasks");
    rig->press(Qt::Key_Up);
    rig->press(Qt::Key_Up);
    rig->press(Qt::Key_Space);
    QVERIFY(task->subtasks().first()->isDone());
    rig->press(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(subtaskTitles(), (QStringList{"deux", "un", "trois"}));
    rig->press(Qt::Key_F2);
    QTRY_VERIFY(isTypingInList());
    rig->type(QStringLiteral("premier"));
    rig->press(Qt::Key_Return);
    QTRY_COMPARE(subtaskTitles(), (QStringList{"deux", "premier", "trois"}));
    QTRY_VERIFY(!isTypingInList());
    rig->press(Qt::Key_Plus);
    QTRY_VERIFY(isTypingInList());
    rig->type(QStringLiteral("dessous"));
    rig->press(Qt::Key_Return);
    rig->press(Qt::Key_Escape);
    QVERIFY2(sheet().isPresented(), "Escape left the field, and not the sheet");
    QCOMPARE(task->subtasks().at(1)->subtasks().size(), 1);
    rig->press(Qt::Key_Delete);
    QTRY_COMPARE(subtaskTitles(), (QStringList{"deux", "trois"}));
    QTRY_VERIFY(rig->window()->findChild<QObject*>("undoBar"));
    rig->keepPicture(QStringLiteral("task-undo"));
    rig->press(Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(subtaskTitles(), (QStringList{"deux", "premier", "trois"}));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(!sheet().isPresented());
}

void TaskSheetViewTest::subtasksAreDraggedAndFilesDropped() {
    open();
    for (const char* title : {"un", "deux", "trois"})
        sheet().addSubtask(-1, QString::fromLatin1(title));
    QQuickItem* const list = rig->item("subtasks");
    QTRY_VERIFY(list->height() > 100);
    QSignalSpy drawn(rig->window(), &QQuickWindow::frameSwapped);
    rig->window()->update();
    QVERIFY(drawn.wait());
    QTest::mouseClick(rig->window(), Qt::LeftButton, {}, list->mapToScene(QPointF(80, 20)).toPoint());
    QTRY_VERIFY(rig->visible("subtaskHandle"));
    const QPoint from = rig->visible("subtaskHandle")->mapToScene(QPointF(8, 8)).toPoint();
    QTest::mousePress(rig->window(), Qt::LeftButton, {}, from);
    for (int y = 0; y <= 90; y += 15)
        QTest::mouseMove(rig->window(), from + QPoint(0, y));
    QTest::mouseRelease(rig->window(), Qt::LeftButton, {}, from + QPoint(0, 90));
    QTRY_COMPARE(subtaskTitles(), (QStringList{"deux", "trois", "un"}));

    const QTemporaryDir folder;
    const QString picture = folder.filePath(QStringLiteral("schéma final.png"));
    QImage image(200, 120, QImage::Format_RGB32);
    image.fill(QColor(QStringLiteral("#06b6d4")));
    QVERIFY(image.save(picture));
    QFile other(folder.filePath(QStringLiteral("notes.txt")));
    QVERIFY(other.open(QFile::WriteOnly));
    QQuickItem* const area = rig->item("resourceDrop");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(picture), QUrl::fromLocalFile(other.fileName())});
    const QPoint place = area->mapToScene(QPointF(40, 20)).toPoint();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(rig->window(), &enter);
    QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(rig->window(), &move);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(rig->window(), &drop);
    QCOMPARE(task->resources().size(), 2);
    QVERIFY(other.remove());
    Session session;
    session.startTime = rig->focus.clock.now();
    session.durationMinutes = 25;
    session.score = 8.4;
    session.task = task->id();
    rig->focus.context().insert(session);
    sheet().resources()->refresh();
    QTRY_VERIFY(sheet().resources()->index(1).data(TaskResourceListModel::IsMissingRole).toBool());
    sheet().setDaysFromToday(QStringLiteral("plannedDate"), 0);
    sheet().setDaysFromToday(QStringLiteral("dueDate"), -2);
    FocusRig::settle();
    rig->keepPicture(QStringLiteral("task-full"));
    rig->click(rig->item("taskDeleteButton"));
    QTRY_VERIFY(!rig->visibleItems().isEmpty());
    rig->keepPicture(QStringLiteral("task-delete"));
}

QTEST_MAIN(TaskSheetViewTest)
#include "tst_TaskSheetView.moc"
