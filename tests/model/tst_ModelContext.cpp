#include "tests/model/StoreFixture.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <utility>

using namespace norvin;
using namespace norvin::test;

namespace {

AppUsageSession usageOf(const QString& bundleID, const QString& category, const QDateTime& start) {
    return {.bundleID = bundleID,
            .appName = bundleID.toUpper(),
            .startTime = start,
            .endTime = start.addSecs(60),
            .durationSeconds = 60,
            .category = category};
}

template <class T>
QString idOf(const T* entity) {
    return entity != nullptr ? entity->id().toString() : QString();
}

template <class T>
QStringList idsOf(const QList<T*>& entities) {
    QStringList ids;
    for (const T* entity : entities)
        ids.append(idOf(entity));
    return ids;
}

// Everything that can be seen of a context, in its order.
QStringList contentOf(const ModelContext& context) {
    QStringList content;
    const auto add = [&content](const QStringList& fields) { content.append(fields.join(u'|')); };
    const auto ms = [](const QDateTime& instant) {
        return instant.isValid() ? QString::number(instant.toMSecsSinceEpoch()) : QString();
    };
    for (const Project* project : context.projects()) {
        add({project->id().toString(), project->name(), project->projectDescription(), project->colorHex(),
             project->emoji(), ms(project->createdAt()), idsOf(project->tasks()).join(u','),
             idsOf(project->phases()).join(u',')});
    }
    for (const ProjectPhase* phase : context.phases()) {
        add({phase->id().toString(), phase->name(), QString::number(phase->orderIndex()),
             ms(phase->createdAt()), idOf(phase->project()), idsOf(phase->tasks()).join(u',')});
    }
    for (const TaskItem* task : context.tasks()) {
        add({task->id().toString(), task->title(), task->taskDescription(), task->statusValue(),
             QString::number(task->priorityValue()), ms(task->dueDate()), ms(task->plannedDate()),
             ms(task->createdAt()), idOf(task->project()), idOf(task->phase()), idOf(task->parentTask()),
             idsOf(task->subtasks()).join(u','), idsOf(task->resources()).join(u',')});
    }
    for (const TaskResource* resource : context.resources()) {
        add({resource->id().toString(), resource->name(), resource->fileType(),
             QString::fromLatin1(resource->fileURLData().toHex()), ms(resource->createdAt()),
             idOf(resource->task())});
    }
    for (const Session& session : context.fetchSessions()) {
        add({session.id.toString(), ms(session.startTime), QString::number(session.durationMinutes),
             session.task ? session.task->toString() : QString(),
             session.score ? QString::number(*session.score) : QString()});
    }
    for (const AppUsageSession& usage : context.fetchAppUsage()) {
        add({usage.id.toString(), usage.bundleID, usage.appName, usage.category, ms(usage.startTime),
             ms(usage.endTime), QString::number(usage.durationSeconds)});
    }
    return content;
}

} // namespace

class ModelContextTest final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyFieldComesBack() {
        const StoreFixture store;
        const QString text =
            QStringLiteral("é \U0001F9E0 'quoted' \"too\"\n") + QChar(0) + QStringLiteral("end");
        QStringList before;
        {
            const auto opened = store.open();
            ModelContext& context = opened->mainContext();
            Project* const project = context.insert(std::make_unique<Project>(Project::Init{
                .name = text, .projectDescription = "d", .colorHex = "#7c3aed", .emoji = "🧠"}));
            ProjectPhase* const phase = context.insert(std::make_unique<ProjectPhase>(
                ProjectPhase::Init{.name = "Doing", .orderIndex = -3, .project = project}));
            TaskItem* const task = context.insert(std::make_unique<TaskItem>(
                TaskItem::Init{.title = text,
                               .status = TaskStatus::inProgress,
                               .priority = TaskPriority::high,
                               .dueDate = morning,
                               .plannedDate = QDateTime(QDate(1965, 1, 1), QTime(12, 0, 0, 7), Qt::UTC),
                               .project = project,
                               .phase = phase}));
            addTask(context, QStringLiteral("sub"), project, task);
            auto resource = std::make_unique<TaskResource>(TaskResource::Init{
                .name = "file", .fileType = "image/png", .fileURL = QUrl::fromLocalFile("/nowhere/x.png")});
            resource->setTask(task);
            context.insert(std::move(resource));
            Session session = sessionOf(task, morning);
            session.durationMinutes = 25;
            session.completed = true;
            session.score = 7.25;
            session.interruptionCount = 1;
            session.blockedAttemptsCount = 2;
            session.blockedSiteAttemptsCount = 3;
            session.legitimateTimeSeconds = 1400;
            session.distractedTimeSeconds = 100;
            context.insert(session);
            context.insert(sessionOf(nullptr, morning.addSecs(-1)));
            context.insert(usageOf("org.example.editor", "category_development", morning));
            before = contentOf(context);
            QVERIFY(!context.save());
            QCOMPARE(task->sessions(), QList<Session>{session});
            QCOMPARE(store.value("SELECT start || minutes || completed || (task = project) || "
                                 "blockedSites FROM SessionLog WHERE score = 7.25"),
                     morning.toLocalTime().toString("yyyy-MM-dd HH:mm:ss") + "25yes13");
        }
        const auto reopened = store.open();
        QCOMPARE(contentOf(reopened->mainContext()), before);
        QVERIFY(!reopened->mainContext().fetchSessions().constFirst().score);
        QVERIFY(!reopened->mainContext().hasChanges());
    }

    void changesReachTheDiskAtTheEndOfTheTurn() {
        const StoreFixture store;
        const auto opened = store.open();
        ModelContext& context = opened->mainContext();
        const QSignalSpy savedSpy(&context, &ModelContext::saved);
        TaskItem* const task = addTask(context, QStringLiteral("first"));
        task->setTitle(QStringLiteral("second"));
        QCOMPARE(store.value("SELECT count(*) FROM TaskItem"), QStringLiteral("0"));
        QCoreApplication::processEvents();
        QCOMPARE(store.value("SELECT title FROM TaskItem"), QStringLiteral("second"));
        task->setTitle(QStringLiteral("third"));
        QCoreApplication::processEvents();
        QCOMPARE(store.value("SELECT title FROM TaskItem"), QStringLiteral("third"));
        QCoreApplication::processEvents();
        QCOMPARE(savedSpy.size(), 2);
    }

    void aFailedSaveKeepsEverythingAndIsTriedAgain() {
        const StoreFixture store;
        const LogCapture log;
        const auto opened = store.open();
        ModelContext& context = opened->mainContext();
        const QSignalSpy failedSpy(&context, &ModelContext::saveFailed);
        TaskItem* const task = addTask(context, QStringLiteral("kept"));
        context.insert(usageOf("org.example.a", "category_other", morning));
        {
            SQLite::Database other = store.raw();
            other.exec("BEGIN IMMEDIATE");
            const StoreResult failure = context.save();
            QVERIFY(failure);
            QCOMPARE(failure->code, 5);
            QVERIFY(context.save());
            QVERIFY(context.hasChanges());
            QCOMPARE(failedSpy.size(), 2);
            QCOMPARE(log.lines(), QStringList{"ModelContext: Error saving: database is locked"});
            QCOMPARE(context.fetchAppUsage().size(), 1);
        }
        task->setTitle(QStringLiteral("kept and changed"));
        QCoreApplication::processEvents();
        QVERIFY(!context.hasChanges());
        QCOMPARE(store.value("SELECT title FROM TaskItem"), QStringLiteral("kept and changed"));
        QCOMPARE(store.value("SELECT count(*) FROM AppUsageLog"), QStringLiteral("1"));
    }

    void rowsDeletedInAShellComeBackWithWhatRefersToThem() {
        const StoreFixture store;
        const auto opened = store.open();
        ModelContext& context = opened->mainContext();
        Project* const project = context.insert(std::make_unique<Project>(Project::Init{.name = "p"}));
        TaskItem* const task = addTask(context, QStringLiteral("old"), project);
        QVERIFY(!context.save());
        store.raw().exec("DELETE FROM Project; DELETE FROM TaskItem");
        addTask(context, QStringLiteral("new"), project);
        context.insert(sessionOf(task, morning));
        QVERIFY(!context.save());
        QCOMPARE(store.value("SELECT (SELECT count(*) FROM Project) || (SELECT count(*) FROM TaskItem) || "
                             "(SELECT count(*) FROM Session)"),
                 QStringLiteral("121"));
        QCOMPARE(store.soundness(), QStringLiteral("ok"));
    }

    void theLogMovesIntoTheFileWhenNothingIsSaved() {
        const StoreFixture store;
        const auto opened = store.open();
        const QString text(64 * 1024, u'x');
        for (int i = 0; i < 100; ++i)
            addTask(opened->mainContext(), text);
        QVERIFY(!opened->mainContext().save());
        QVERIFY(QFileInfo(store.file()).size() < text.size());
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(store.file()).size() > 100 * text.size(), 20'000);
    }

    void recordsComeByStartAndRange() {
        const StoreFixture store;
        const auto opened = store.open();
        ModelContext& context = opened->mainContext();
        TaskItem* const task = addTask(context, QStringLiteral("task"));
        QList<Session> sessions;
        for (const int hour : {3, 1, 2, 0})
            sessions.append(sessionOf(hour % 2 == 0 ? task : nullptr, morning.addSecs(hour * 3600)));
        context.insert(sessions[0]);
        context.insert(sessions[1]);
        QVERIFY(!context.save());
        context.insert(sessions[2]);
        context.insert(sessions[3]);
        QCOMPARE(context.fetchSessions(),
                 (QList<Session>{sessions[3], sessions[1], sessions[2], sessions[0]}));
        QCOMPARE(context.fetchSessions({.from = morning.addSecs(3600), .to = morning.addSecs(3 * 3600)}),
                 (QList<Session>{sessions[1], sessions[2]}));
        QCOMPARE(task->sessions(), (QList<Session>{sessions[3], sessions[2]}));
        context.remove(sessions[1].id);
        context.remove(SessionId::create());
        QCOMPARE(context.fetchSessions().size(), 3);
        QVERIFY(!context.save());
        QCOMPARE(store.value("SELECT count(*) FROM Session"), QStringLiteral("3"));

        const AppUsageSession late = usageOf("org.example.b", "category_social", morning.addSecs(60));
        const AppUsageSession early = usageOf("org.example.b", "category_social", morning);
        context.insert(late);
        QVERIFY(!context.save());
        context.insert(early);
        QCOMPARE(context.fetchAppUsage(), (QList<AppUsageSession>{early, late}));
        QCOMPARE(context.fetchAppUsage({.to = late.startTime}), QList<AppUsageSession>{early});
        QVERIFY(!context.save());
        QCOMPARE(store.value("SELECT count(*) FROM AppUsageSource"), QStringLiteral("1"));
        QCOMPARE(store.value("SELECT group_concat(application || seconds) FROM AppUsageLog"),
                 QStringLiteral("ORG.EXAMPLE.B60,ORG.EXAMPLE.B60"));
    }

    void reopeningGivesTheSameGraph_data() {
        QTest::addColumn<quint32>("seed");
        for (const quint32 seed : {1U, 2U, 3U, 4U, 5U, 6U})
            QTest::addRow("seed %u", seed) << seed;
    }
    void reopeningGivesTheSameGraph() {
        QFETCH(quint32, seed);
        const StoreFixture store;
        QRandomGenerator random(seed);
        for (int round = 0; round < 4; ++round) {
            QStringList before;
            {
                const auto opened = store.open();
                for (int step = 0; step < 300; ++step)
                    act(opened->mainContext(), random);
                before = contentOf(opened->mainContext());
            }
            QCOMPARE(store.soundness(), QStringLiteral("ok"));
            QCOMPARE(contentOf(store.open()->mainContext()), before);
        }
    }

private:
    template <class T>
    static T* any(const std::vector<T*>& entities, QRandomGenerator& random) {
        const auto at = static_cast<size_t>(random.bounded(static_cast<int>(entities.size()) + 1));
        return at < entities.size() ? entities[at] : nullptr;
    }

    // One thing that a user or a service may do, relationships to the newest and to no entity included.
    static void act(ModelContext& context, QRandomGenerator& random) {
        Project* const project = any(context.projects(), random);
        ProjectPhase* const phase = any(context.phases(), random);
        TaskItem* const task = any(context.tasks(), random);
        TaskItem* const other = any(context.tasks(), random);
        TaskResource* const resource = any(context.resources(), random);
        switch (random.bounded(22)) {
        case 0:
            context.insert(std::make_unique<Project>(Project::Init{.name = QString::number(random())}));
            break;
        case 1:
            context.insert(std::make_unique<ProjectPhase>(ProjectPhase::Init{.project = project}));
            break;
        case 2: {
            auto added = std::make_unique<TaskResource>(TaskResource::Init{.name = "resource"});
            added->setTask(task);
            context.insert(std::move(added));
            break;
        }
        case 3:
            // Two that come in the other order than they were made.
            if (project != nullptr) {
                auto first = std::make_unique<TaskItem>(TaskItem::Init{.title = "1", .project = project});
                auto second = std::make_unique<TaskItem>(TaskItem::Init{.title = "2", .project = project});
                first->setParentTask(second.get());
                context.insert(std::move(second));
                context.insert(std::move(first));
            }
            break;
        case 4:
            context.insert(sessionOf(task, morning.addSecs(random.bounded(100'000))));
            break;
        case 5:
            context.insert(usageOf(QString::number(random.bounded(5)), "category_other",
                                   morning.addSecs(random.bounded(100'000))));
            break;
        case 6:
            if (project != nullptr && random.bounded(3) == 0)
                context.remove(*project);
            break;
        case 7:
            if (phase != nullptr)
                context.remove(*phase);
            break;
        case 8:
            if (task != nullptr)
                context.remove(*task);
            break;
        case 9:
            if (resource != nullptr)
                context.remove(*resource);
            break;
        case 10:
            if (const auto sessions = context.fetchSessions(); !sessions.isEmpty())
                context.remove(sessions[random.bounded(static_cast<int>(sessions.size()))].id);
            break;
        case 11:
            QVERIFY(!context.save());
            break;
        case 12:
            QCoreApplication::sendPostedEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            break;
        case 13:
        case 14:
        case 15:
            addTask(context, QString::number(random()), project, task);
            break;
        default:
            if (task != nullptr) {
                task->setParentTask(other);
                task->setProject(project);
                task->setPhase(phase);
                task->setStatus(static_cast<TaskStatus>(random.bounded(3)));
                task->setDueDate(random.bounded(2) == 0 ? QDateTime() : morning.addDays(random.bounded(9)));
            }
            if (phase != nullptr)
                phase->setProject(project);
            if (resource != nullptr)
                resource->setTask(other);
            break;
        }
    }
};

QTEST_GUILESS_MAIN(ModelContextTest)
#include "tst_ModelContext.moc"
