#include "model/Project.h"
#include "model/ProjectPhase.h"
#include "model/TaskItem.h"
#include "model/TaskResource.h"

#include <QFile>
#include <QLocale>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

#include <memory>
#include <vector>

using namespace norvin;

namespace {

const QTimeZone paris("Europe/Paris");

QDateTime parisTime(int day, int hour, int minute = 0) {
    return QDateTime(QDate(2025, 3, day), QTime(hour, minute), paris);
}

} // namespace

class EntitiesTest final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void rawValuesAreThoseOfTheStore() {
        QCOMPARE(rawValue(TaskStatus::todo), QStringLiteral("To Do"));
        QCOMPARE(rawValue(TaskStatus::inProgress), QStringLiteral("In Progress"));
        QCOMPARE(rawValue(TaskStatus::done), QStringLiteral("Done"));
        QVERIFY(taskStatusFromRawValue(QStringLiteral("In Progress")) == TaskStatus::inProgress);
        QVERIFY(!taskStatusFromRawValue(QStringLiteral("done")));
        QVERIFY(taskPriorityFromRawValue(2) == TaskPriority::high);
        QVERIFY(!taskPriorityFromRawValue(3));
        QVERIFY(!taskPriorityFromRawValue(-1));
    }

    void doneDescendsAndReopeningGoesBackToTodo() {
        TaskItem parent({.title = "parent"});
        TaskItem child({.title = "child", .status = TaskStatus::inProgress});
        TaskItem grandchild({.title = "grandchild"});
        child.setParentTask(&parent);
        grandchild.setParentTask(&child);

        parent.setStatus(TaskStatus::inProgress);
        QVERIFY(child.status() == TaskStatus::inProgress);
        QVERIFY(grandchild.status() == TaskStatus::todo);
        parent.setStatus(TaskStatus::done);
        QVERIFY(child.isDone());
        QVERIFY(grandchild.isDone());
        parent.setStatus(TaskStatus::inProgress);
        QVERIFY(child.status() == TaskStatus::todo);
        QVERIFY(grandchild.status() == TaskStatus::todo);

        // A subtask that is done already keeps its own subtasks as they are.
        child.setStatus(TaskStatus::done);
        grandchild.setStatus(TaskStatus::inProgress);
        parent.setStatus(TaskStatus::done);
        QVERIFY(grandchild.status() == TaskStatus::inProgress);
    }

    void aChainOfSubtasksDeeperThanTheStackIsMarkedDone() {
        std::vector<std::unique_ptr<TaskItem>> chain;
        for (int depth = 0; depth < 100'000; ++depth) {
            chain.push_back(std::make_unique<TaskItem>(TaskItem::Init{}));
            if (depth > 0)
                chain[chain.size() - 2]->setParentTask(chain.back().get());
        }
        chain.back()->setStatus(TaskStatus::done);
        QVERIFY(chain.front()->isDone());
    }

    void progressCountsDoneSubtasks() {
        TaskItem parent({});
        QCOMPARE(parent.subtasksProgress(), 0.0);
        TaskItem first({.status = TaskStatus::done});
        TaskItem second({.status = TaskStatus::inProgress});
        first.setParentTask(&parent);
        second.setParentTask(&parent);
        QCOMPARE(parent.completedSubtasksCount(), 1);
        QCOMPARE(parent.subtasksProgress(), 0.5);
    }

    void lateIsByTheDayWhereTheUserIs() {
        TaskItem task({.dueDate = parisTime(10, 0, 30), .plannedDate = parisTime(10, 23, 30)});
        QVERIFY(!task.isOverdue(parisTime(10, 23, 59)));
        QVERIFY(task.isOverdue(parisTime(11, 0)));
        QVERIFY(task.isPlannedLate(parisTime(11, 0)));
        // The same instants on another calendar: in UTC the due day was the 9th.
        QVERIFY(task.isOverdue(parisTime(10, 12).toUTC()));
        QVERIFY(!task.isPlannedLate(parisTime(10, 12).toUTC()));
        task.setStatus(TaskStatus::done);
        QVERIFY(!task.isOverdue(parisTime(11, 0)));
        QVERIFY(!task.isPlannedLate(parisTime(11, 0)));
        QVERIFY(!TaskItem({}).isOverdue(parisTime(11, 0)));
    }

    void datesReadAsTodayTomorrowOrShortDate() {
        const QLocale french(QLocale::French, QLocale::France);
        TaskItem task({.dueDate = parisTime(10, 1).toUTC()});
        QVERIFY(!task.formattedPlannedDate(parisTime(10, 12), french));
        QCOMPARE(task.formattedDueDate(parisTime(10, 12), french).value(), QStringLiteral("today"));
        QCOMPARE(task.formattedDueDate(parisTime(9, 23), french).value(), QStringLiteral("tomorrow"));
        QCOMPARE(task.formattedDueDate(parisTime(11, 0), french).value(), QStringLiteral("10/03/2025"));
        task.setPlannedDate(parisTime(12, 8));
        QCOMPARE(task.formattedPlannedDate(parisTime(11, 8), french).value(), QStringLiteral("tomorrow"));
    }

    void bothEndsOfARelationshipFollow() {
        Project first({.name = "first"});
        Project second({.name = "second"});
        ProjectPhase phase({.name = "phase", .project = &first});
        TaskItem task({.title = "task", .project = &first, .phase = &phase});
        QCOMPARE(first.tasks(), QList<TaskItem*>{&task});
        QCOMPARE(first.phases(), QList<ProjectPhase*>{&phase});

        const QSignalSpy firstSpy(&first, &Project::tasksChanged);
        const QSignalSpy secondSpy(&second, &Project::tasksChanged);
        const QSignalSpy changedSpy(&task, &Entity::changed);
        task.setProject(&second);
        task.setProject(&second);
        QVERIFY(first.tasks().isEmpty());
        QCOMPARE(second.tasks(), QList<TaskItem*>{&task});
        QCOMPARE(firstSpy.size(), 1);
        QCOMPARE(secondSpy.size(), 1);
        QCOMPARE(changedSpy.size(), 1);
        QCOMPARE(phase.tasks(), QList<TaskItem*>{&task});
    }

    void destroyedEntitiesLeaveNoPointerBehind() {
        auto project = std::make_unique<Project>(Project::Init{});
        auto phase = std::make_unique<ProjectPhase>(ProjectPhase::Init{.project = project.get()});
        auto parent = std::make_unique<TaskItem>(TaskItem::Init{.project = project.get()});
        TaskItem child({.project = project.get(), .phase = phase.get()});
        child.setParentTask(parent.get());
        auto resource = std::make_unique<TaskResource>(TaskResource::Init{});
        resource->setTask(&child);

        parent.reset();
        QCOMPARE(child.parentTask(), nullptr);
        QCOMPARE(project->tasks(), QList<TaskItem*>{&child});
        phase.reset();
        QCOMPARE(child.phase(), nullptr);
        QVERIFY(project->phases().isEmpty());
        project.reset();
        QCOMPARE(child.project(), nullptr);
        resource.reset();
        QVERIFY(child.resources().isEmpty());
    }

    void aTaskCannotBecomeItsOwnAncestor() {
        TaskItem top({});
        TaskItem middle({});
        TaskItem bottom({});
        middle.setParentTask(&top);
        bottom.setParentTask(&middle);
        top.setParentTask(&bottom);
        top.setParentTask(&top);
        QCOMPARE(top.parentTask(), nullptr);
        QVERIFY(bottom.subtasks().isEmpty());
    }

    void projectsSortPhasesAndCountTopLevelTasks() {
        Project project({});
        QVERIFY(project.sortedPhases().isEmpty());
        ProjectPhase last({.orderIndex = 7, .project = &project});
        ProjectPhase first({.orderIndex = -1, .project = &project});
        ProjectPhase alsoLast({.orderIndex = 7, .project = &project});
        QCOMPARE(project.sortedPhases(), (QList<ProjectPhase*>{&first, &last, &alsoLast}));
        TaskItem task({.project = &project});
        TaskItem subtask({.project = &project});
        subtask.setParentTask(&task);
        QCOMPARE(project.topLevelTasksCount(), 1);
    }

    void attachmentsAreFoundAfterARename() {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("Plan é.pdf"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("twelve bytes") == 12);
        file.close();
        const TaskResource resource({.name = "Plan", .fileURL = QUrl::fromLocalFile(path)});
        QCOMPARE(resource.resolvedURL(), QUrl::fromLocalFile(path));

        const QString renamed = folder.filePath(QStringLiteral("Final plan.pdf"));
        QVERIFY(QFile::rename(path, renamed));
        QCOMPARE(resource.resolvedURL(), QUrl::fromLocalFile(renamed));
        // Another file that was given the number of the deleted one is not the attachment.
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("x") == 1);
        file.close();
        QCOMPARE(resource.resolvedURL(), QUrl::fromLocalFile(path));
        QVERIFY(QFile::remove(path) && QFile::remove(renamed));
        QVERIFY(!resource.resolvedURL());
    }

    void attachmentsWithoutAFileHaveNoAddress() {
        QVERIFY(TaskResource({.name = "none"}).fileURLData().isEmpty());
        QVERIFY(!TaskResource({.name = "none"}).resolvedURL());
        QVERIFY(TaskResource({.fileURL = QUrl("https://example.org/a.png")}).fileURLData().isEmpty());
        QVERIFY(!TaskResource({.fileURL = QUrl::fromLocalFile("/nowhere/at all")}).resolvedURL());
    }

    void imagesAreKnownByTypeOrExtension() {
        const auto isImage = [](const char* fileType, const char* name, const char* path = nullptr) {
            TaskResource::Init init{.name = name, .fileType = fileType};
            if (path != nullptr)
                init.fileURL = QUrl::fromLocalFile(path);
            return TaskResource(init).isImage();
        };
        QVERIFY(isImage("public.IMAGE", "a"));
        QVERIFY(isImage("data", "Photo", "/nowhere/holiday.JPEG"));
        QVERIFY(isImage("", "a.webp"));
        QVERIFY(!isImage("data", "a.png", "/nowhere/a.txt"));
        QVERIFY(!isImage("pdf", "a.pdf"));
    }
};

QTEST_GUILESS_MAIN(EntitiesTest)
#include "tst_Entities.moc"
