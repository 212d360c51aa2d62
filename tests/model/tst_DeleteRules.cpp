#include "tests/model/StoreFixture.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using namespace norvin;
using namespace norvin::test;

/// What goes and what stays when entities are removed.
class DeleteRulesTest final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void removalFollowsTheDeleteRulesInMemoryAndOnDisk() {
        const StoreFixture store;
        const auto opened = store.open();
        ModelContext& context = opened->mainContext();
        Project* const project = context.insert(std::make_unique<Project>(Project::Init{.name = "p"}));
        ProjectPhase* const phase =
            context.insert(std::make_unique<ProjectPhase>(ProjectPhase::Init{.project = project}));
        // Older than its parent, so that the parent is met second.
        TaskItem* const child = addTask(context, QStringLiteral("child"), project);
        TaskItem* const parent = addTask(context, QStringLiteral("parent"), project);
        child->setParentTask(parent);
        TaskItem* const grandchild = addTask(context, QStringLiteral("grandchild"), nullptr, child);
        TaskItem* const bystander = addTask(context, QStringLiteral("bystander"));
        bystander->setPhase(phase);
        auto attachment = std::make_unique<TaskResource>(TaskResource::Init{.name = "r"});
        attachment->setTask(grandchild);
        context.insert(std::move(attachment));
        context.insert(sessionOf(grandchild, morning));
        const Session free = sessionOf(nullptr, morning);
        context.insert(free);
        QVERIFY(!context.save());
        context.insert(sessionOf(parent, morning.addSecs(60)));

        QStringList leaving;
        connect(&context, &ModelContext::taskAboutToBeRemoved, this, [&](const TaskItem* task) {
            leaving.append(task->title());
            QCOMPARE(grandchild->parentTask(), child);
            QCOMPARE(task->context(), &context);
        });
        const QSignalSpy sessionsSpy(&context, &ModelContext::sessionsRemoved);
        const QPointer<TaskItem> watched(parent);
        context.remove(*project);
        QCOMPARE(leaving, (QStringList{"grandchild", "child", "parent"}));
        QCOMPARE(sessionsSpy.size(), 1);
        QVERIFY(watched && watched->context() == nullptr && watched->sessions().isEmpty());
        QCOMPARE(context.tasks(), std::vector<TaskItem*>{bystander});
        QVERIFY(context.projects().empty() && context.phases().empty() && context.resources().empty());
        QCOMPARE(bystander->phase(), nullptr);
        QCOMPARE(context.fetchSessions(), QList<Session>{free});
        QCOMPARE(context.task(TaskId()), nullptr);

        QTRY_VERIFY(!watched);
        QCOMPARE(store.value("SELECT group_concat(title) FROM TaskItem"), QStringLiteral("bystander"));
        QCOMPARE(store.value("SELECT (SELECT count(*) FROM Project) + (SELECT count(*) FROM ProjectPhase) + "
                             "(SELECT count(*) FROM TaskResource)"),
                 QStringLiteral("0"));
        QCOMPARE(store.value("SELECT count(*) FROM Session"), QStringLiteral("1"));
        QCOMPARE(store.value("SELECT count(*) FROM TaskItem WHERE phase IS NOT NULL"), QStringLiteral("0"));
        QCOMPARE(store.soundness(), QStringLiteral("ok"));
    }

    void deleteRulesHoldForTheShellToo() {
        const StoreFixture store;
        {
            const auto opened = store.open();
            ModelContext& context = opened->mainContext();
            Project* const project = context.insert(std::make_unique<Project>(Project::Init{}));
            ProjectPhase* const phase =
                context.insert(std::make_unique<ProjectPhase>(ProjectPhase::Init{.project = project}));
            TaskItem* const outside = addTask(context, QStringLiteral("outside"));
            outside->setPhase(phase);
            TaskItem* const task = addTask(context, QStringLiteral("inside"), project);
            addTask(context, QStringLiteral("sub"), nullptr, task);
            context.insert(sessionOf(task, morning));
        }
        SQLite::Database shell = store.raw();
        shell.exec("PRAGMA foreign_keys = ON; DELETE FROM Project");
        QCOMPARE(store.value("SELECT group_concat(title) FROM TaskItem"), QStringLiteral("outside"));
        QCOMPARE(store.value("SELECT count(*) FROM TaskItem WHERE phase IS NOT NULL"), QStringLiteral("0"));
        QCOMPARE(store.value("SELECT count(*) FROM Session"), QStringLiteral("0"));
    }

    void thousandsOfNestedSubtasksGoAtOnce() {
        const StoreFixture store;
        const auto opened = store.open();
        ModelContext& context = opened->mainContext();
        // Deeper than the library lets delete rules cascade.
        TaskItem* const top = addTask(context, QStringLiteral("top"));
        TaskItem* parent = top;
        for (int depth = 0; depth < 3000; ++depth)
            parent = addTask(context, QString::number(depth), nullptr, parent);
        QVERIFY(!context.save());
        context.remove(*top);
        QVERIFY(context.tasks().empty());
        QVERIFY(!context.save());
        QCOMPARE(store.value("SELECT count(*) FROM TaskItem"), QStringLiteral("0"));
    }

    void whatWasNeverSavedLeavesNoTrace() {
        const StoreFixture store;
        const auto opened = store.open();
        ModelContext& context = opened->mainContext();
        TaskItem* const task = addTask(context, QStringLiteral("gone"));
        const Session session = sessionOf(task, morning);
        context.insert(session);
        const Session other = sessionOf(nullptr, morning);
        context.insert(other);
        context.remove(other.id);
        context.remove(*task);
        QVERIFY(!context.hasChanges());
        QVERIFY(context.fetchSessions().isEmpty());
    }

    void relationshipsAcrossTheBorderOfTheContextAreSafe() {
        const StoreFixture store;
        auto loose = std::make_unique<Project>(Project::Init{.name = "loose"});
        auto looseTask = std::make_unique<TaskItem>(TaskItem::Init{.title = "loose task"});
        {
            const auto opened = store.open();
            ModelContext& context = opened->mainContext();
            TaskItem* const task = addTask(context, QStringLiteral("task"), loose.get());
            looseTask->setParentTask(task);
            QVERIFY(!context.save());
            QCOMPARE(store.value("SELECT count(*) FROM TaskItem WHERE project IS NULL"), QStringLiteral("1"));
            // Once it is inserted, the task that refers to it is written again.
            Project* const project = context.insert(std::move(loose));
            QVERIFY(!context.save());
            QCOMPARE(store.value("SELECT count(*) FROM TaskItem WHERE project IS NOT NULL"),
                     QStringLiteral("1"));

            Project* const gone = context.insert(std::make_unique<Project>(Project::Init{.name = "gone"}));
            context.remove(*gone);
            task->setProject(gone);
            gone->setName(QStringLiteral("still there"));
            context.remove(*gone);
            QCoreApplication::sendPostedEvents(gone, QEvent::DeferredDelete);
            QCOMPARE(task->project(), nullptr);
            QVERIFY(!context.save());
            context.insert(sessionOf(looseTask.get(), morning));
            QVERIFY(!context.save());
            QVERIFY(!context.fetchSessions().constFirst().task);
            QVERIFY(project->tasks().isEmpty());
            looseTask->setProject(project);
        }
        QCOMPARE(looseTask->parentTask(), nullptr);
        QCOMPARE(looseTask->project(), nullptr);
    }

    void whoHearsOfARemovalFindsItComplete() {
        const StoreFixture store;
        const auto opened = store.open();
        ModelContext& context = opened->mainContext();
        Project* const project = context.insert(std::make_unique<Project>(Project::Init{}));
        TaskItem* const task = addTask(context, QStringLiteral("task"), project);
        context.insert(sessionOf(task, morning));
        QVERIFY(!context.save());
        context.insert(sessionOf(task, morning.addSecs(60)));
        bool heard = false;
        connect(project, &Project::tasksChanged, this, [&] {
            heard = true;
            QVERIFY(context.fetchSessions().isEmpty());
            QVERIFY(!context.save());
        });
        context.remove(*task);
        QVERIFY(heard);
        QCOMPARE(store.value("SELECT count(*) FROM Session"), QStringLiteral("0"));
    }

    void slotsMayRemoveMoreWhileSomethingIsRemoved() {
        const auto opened = ModelContainer::inMemory();
        ModelContext& context = opened->mainContext();
        Project* const project = context.insert(std::make_unique<Project>(Project::Init{}));
        TaskItem* const parent = addTask(context, QStringLiteral("parent"), project);
        TaskItem* const child = addTask(context, QStringLiteral("child"), project, parent);
        TaskItem* const refugee = addTask(context, QStringLiteral("refugee"));
        connect(&context, &ModelContext::taskAboutToBeRemoved, this, [&](TaskItem* task) {
            context.remove(*task);
            context.remove(*project);
            refugee->setParentTask(child);
        });
        context.remove(*parent);
        QCOMPARE(context.tasks(), std::vector<TaskItem*>{refugee});
        QVERIFY(context.projects().empty());
        QCOMPARE(refugee->parentTask(), nullptr);
        QVERIFY(!context.save());
    }
};

QTEST_GUILESS_MAIN(DeleteRulesTest)
#include "tst_DeleteRules.moc"
