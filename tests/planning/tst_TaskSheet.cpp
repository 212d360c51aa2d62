#include "planning/PlanningEdits.h"
#include "planning/PlanningNotifications.h"
#include "planning/TaskSheet.h"
#include "tests/model/StoreFixture.h"
#include "tests/support/FocusRig.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

using namespace norvin;

/// What the sheet of a task shows and changes.
class TaskSheetTest final : public QObject {
    Q_OBJECT
    struct Rig {
        Project* addProject(const QString& name) {
            return focus.context().insert(std::make_unique<Project>(Project::Init{.name = name}));
        }
        ProjectPhase* addPhase(Project* project, const QString& name) {
            return focus.context().insert(
                std::make_unique<ProjectPhase>(ProjectPhase::Init{.name = name, .project = project}));
        }
        [[nodiscard]] QStringList subtasks() {
            QStringList rows;
            for (int row = 0; row < sheet.subtasks()->rowCount(); ++row) {
                const QModelIndex index = sheet.subtasks()->index(row);
                rows.append(QString(index.data(TaskTreeModel::DepthRole).toInt(), u'-') +
                            index.data(TaskTreeModel::TitleRole).toString());
            }
            return rows;
        }
        [[nodiscard]] QVariant resource(int row, int role) {
            return sheet.resources()->index(row).data(role);
        }

        FocusRig focus;
        PlanningNotifications notifications;
        PlanningEdits edits{focus.context(), focus.timer, focus.clock};
        TaskSheet sheet{focus.context(), edits, notifications, focus.clock};
    };

private Q_SLOTS:
    void aNewTaskComesIntoBeingOnlyWhenItIsCreated() {
        Rig rig;
        Project* const project = rig.addProject(QStringLiteral("Thesis"));
        Project* const other = rig.addProject(QStringLiteral("Garden"));
        ProjectPhase* const phase = rig.addPhase(project, QStringLiteral("Draft"));
        rig.sheet.presentNew(project, phase, TaskStatus::inProgress);
        QVERIFY(rig.sheet.isPresented() && rig.sheet.isNew());
        QVERIFY(!rig.sheet.create());
        rig.sheet.setTitle(QStringLiteral("  Write \n it "));
        rig.sheet.setTaskDescription(QStringLiteral("Notes"));
        rig.sheet.setPriorityValue(2);
        rig.sheet.setDaysFromToday(QStringLiteral("dueDate"), 3);
        rig.sheet.chooseDay(QStringLiteral("plannedDate"));
        rig.sheet.calendar()->chooseToday();
        QVERIFY(rig.focus.context().tasks().empty());
        QVERIFY(rig.sheet.create());
        QVERIFY(!rig.sheet.isPresented());
        const TaskItem& task = *rig.focus.context().tasks().front();
        const QDateTime today = startOfDay(rig.focus.clock.now());
        QCOMPARE(task.title(), QStringLiteral("Write it"));
        QCOMPARE(task.taskDescription(), QStringLiteral("Notes"));
        QCOMPARE(task.status(), TaskStatus::inProgress);
        QCOMPARE(task.priorityValue(), 2);
        QCOMPARE(task.phase(), phase);
        QCOMPARE(task.plannedDate(), today);
        QCOMPARE(task.dueDate(), today.addDays(3));

        // Another project has other phases.
        rig.sheet.presentNew(project, phase, TaskStatus::todo);
        rig.sheet.setTitle(QStringLiteral("Dig"));
        rig.sheet.setProjectId(other->id().toString());
        QVERIFY(rig.sheet.phaseId().isEmpty() && rig.sheet.create());
        QCOMPARE(other->tasks().size(), 1);
    }

    void whatIsThereChangesAtOnce() {
        Rig rig;
        Project* const project = rig.addProject(QStringLiteral("Thesis"));
        Project* const other = rig.addProject(QStringLiteral("Garden"));
        ProjectPhase* const phase = rig.addPhase(project, QStringLiteral("Draft"));
        TaskItem* const task = test::addTask(rig.focus.context(), QStringLiteral("task"), project);
        task->setPhase(phase);
        TaskItem* const child = test::addTask(rig.focus.context(), QStringLiteral("child"), project, task);
        TaskItem* const foreign =
            test::addTask(rig.focus.context(), QStringLiteral("foreign"), nullptr, task);
        rig.notifications.post(PlanningNotifications::showTaskDetail, task);
        QVERIFY(rig.sheet.isPresented() && !rig.sheet.isNew());
        rig.sheet.setTitle(QStringLiteral("   "));
        QCOMPARE(task->title(), QStringLiteral("task"));
        rig.sheet.setStatusValue(QStringLiteral("Done"));
        QVERIFY(child->isDone());
        rig.sheet.setStatusValue(QStringLiteral("Nonsense"));
        QVERIFY(task->isDone());
        rig.sheet.setProjectId(other->id().toString());
        QCOMPARE(task->project(), other);
        QCOMPARE(child->project(), other);
        QVERIFY(foreign->project() == nullptr && task->phase() == nullptr);
        QCOMPARE(rig.sheet.projects().at(1).toMap().value(QStringLiteral("name")).toString(),
                 QStringLiteral("Garden"));

        rig.sheet.setDaysFromToday(QStringLiteral("plannedDate"), -1);
        rig.sheet.setStatusValue(QStringLiteral("To Do"));
        QVERIFY(rig.sheet.isPlannedLate() && !rig.sheet.isOverdue());
        rig.sheet.clearDay(QStringLiteral("plannedDate"));
        QVERIFY(rig.sheet.plannedText().isEmpty() && !task->plannedDate().isValid());

        rig.edits.deleteTask(*task);
        QVERIFY(!rig.sheet.isPresented() && rig.sheet.task() == nullptr);
    }

    void subtasksAreNestedMovedAndBroughtBack() {
        Rig rig;
        TaskItem* const task = test::addTask(rig.focus.context(), QStringLiteral("task"));
        rig.sheet.present(*task);
        for (const char* title : {"a", "b", "c"})
            QVERIFY(rig.sheet.addSubtask(-1, QString::fromLatin1(title)));
        QVERIFY(!rig.sheet.addSubtask(-1, QStringLiteral("  ")));
        QVERIFY(rig.sheet.addSubtask(0, QStringLiteral("a1")));
        QVERIFY(rig.sheet.addSubtask(1, QStringLiteral("a11")));
        QCOMPARE(rig.subtasks(), (QStringList{"a", "-a1", "--a11", "b", "c"}));
        rig.sheet.moveSubtask(4, -1);
        QCOMPARE(rig.subtasks(), (QStringList{"a", "-a1", "--a11", "c", "b"}));
        // Dragged over what is nested below it, and as far as siblings reach.
        rig.sheet.moveSubtaskByRows(0, 3);
        QCOMPARE(rig.subtasks(), (QStringList{"c", "a", "-a1", "--a11", "b"}));
        rig.sheet.moveSubtaskByRows(4, -4);
        QCOMPARE(rig.subtasks(), (QStringList{"b", "c", "a", "-a1", "--a11"}));
        rig.sheet.moveSubtask(0, -5);
        rig.sheet.moveSubtaskByRows(3, 9);
        QCOMPARE(rig.subtasks(), (QStringList{"b", "c", "a", "-a1", "--a11"}));
        QVERIFY(rig.sheet.subtasks()->index(0).data(SubtaskListModel::IsFirstRole).toBool());
        QVERIFY(rig.sheet.subtasks()->index(2).data(SubtaskListModel::IsLastRole).toBool());

        rig.sheet.toggleSubtask(2);
        QVERIFY(rig.sheet.subtasks()->taskAt(4)->isDone());
        QCOMPARE(task->completedSubtasksCount(), 1);
        rig.sheet.renameSubtask(0, QStringLiteral(" first "));
        rig.sheet.renameSubtask(1, QString());
        rig.sheet.deleteSubtask(2);
        QCOMPARE(rig.subtasks(), (QStringList{"first", "c"}));
        rig.edits.undo();
        QCOMPARE(rig.subtasks(), (QStringList{"first", "c", "a", "-a1", "--a11"}));

        rig.sheet.showSubtask(2);
        QCOMPARE(rig.sheet.parentTitle(), QStringLiteral("task"));
        QCOMPARE(rig.subtasks(), (QStringList{"a1", "-a11"}));
        rig.sheet.showParent();
        QCOMPARE(rig.sheet.task(), task);
    }

    void filesAreAttachedFoundAgainAndMissed() {
        Rig rig;
        TaskItem* const task = test::addTask(rig.focus.context(), QStringLiteral("task"));
        rig.sheet.present(*task);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("été.png"));
        QFile file(path);
        QVERIFY(file.open(QFile::WriteOnly) && file.write("not really") > 0);
        file.close();
        const QUrl url = QUrl::fromLocalFile(path);
        rig.sheet.attach({url, QUrl(QStringLiteral("https://example.org/a.png"))});
        QCOMPARE(task->resources().size(), 1);
        QCOMPARE(rig.sheet.noticeKey(), QStringLiteral("attach_refused_not_local"));
        rig.sheet.attach({url});
        QCOMPARE(rig.sheet.noticeKey(), QStringLiteral("attach_refused_again"));
        rig.sheet.attach({QUrl::fromLocalFile(folder.filePath(QStringLiteral("none")))});
        QCOMPARE(rig.sheet.noticeKey(), QStringLiteral("attach_refused_missing"));
        QCOMPARE(task->resources().size(), 1);
        QVERIFY(rig.resource(0, TaskResourceListModel::IsImageRole).toBool());
        QTRY_COMPARE(rig.resource(0, TaskResourceListModel::UrlRole).toUrl(), url);

        const QString renamed = folder.filePath(QStringLiteral("renamed.png"));
        QVERIFY(QFile::rename(path, renamed));
        rig.sheet.resources()->refresh();
        QTRY_COMPARE(rig.resource(0, TaskResourceListModel::UrlRole).toUrl(), QUrl::fromLocalFile(renamed));
        QVERIFY(QFile::remove(renamed));
        rig.sheet.resources()->refresh();
        QTRY_VERIFY(rig.resource(0, TaskResourceListModel::IsMissingRole).toBool());
        rig.sheet.removeResource(0);
        QCOMPARE(rig.sheet.resources()->rowCount(), 0);
        rig.edits.undo();
        QCOMPARE(rig.sheet.resources()->rowCount(), 1);
    }

    void theSessionsOfTheTaskAddUp() {
        Rig rig;
        ModelContext& context = rig.focus.context();
        TaskItem* const task = test::addTask(context, QStringLiteral("task"));
        TaskItem* const other = test::addTask(context, QStringLiteral("other"));
        const auto record = [&context](const TaskItem* of, const QDateTime& start, int minutes) {
            Session session = test::sessionOf(of, start);
            session.durationMinutes = minutes;
            context.insert(session);
        };
        record(task, test::morning, 25);
        record(other, test::morning, 90);
        rig.sheet.present(*task);
        const QSignalSpy changes(rig.sheet.sessions(), &TaskSessionListModel::changed);
        record(task, test::morning.addDays(1), 50);
        record(other, test::morning.addDays(1), 90);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(rig.sheet.sessions()->totalMinutes(), 75);
        const QModelIndex newest = rig.sheet.sessions()->index(0);
        QCOMPARE(newest.data(TaskSessionListModel::MinutesRole).toInt(), 50);
        for (const Session& session : context.fetchSessions())
            static_cast<void>(context.setSessionTask(session.id, task->id()));
        QCOMPARE(rig.sheet.sessions()->totalMinutes(), 255);
    }
};

QTEST_GUILESS_MAIN(TaskSheetTest)
#include "tst_TaskSheet.moc"
