#include "model/ModelContext.h"

#include "model/PlanningGraph.h"
#include "model/RecordStore.h"
#include "model/StoreConnection.h"
#include "platform/Log.h"

#include <QTimer>

#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>

#include <algorithm>
#include <chrono>

namespace norvin {

namespace {

using namespace std::chrono_literals;

// After this time without a save the program counts as idle, and the log may be moved into the file.
constexpr std::chrono::milliseconds idleTime = 3s;
// About 4 MiB.
constexpr int checkpointPages = 1000;
// Changes that could not be saved are tried again after this time even if nothing else changes.
constexpr std::chrono::milliseconds retryTime = 10s;

} // namespace

class ModelContext::Private final {
public:
    Private(ModelContext* context, std::unique_ptr<StoreConnection> openConnection,
            std::unique_ptr<PlanningGraph> loadedGraph)
        : q(context)
        , connection(std::move(openConnection))
        , graph(std::move(loadedGraph))
        , records(*connection) {
        // Children, so that they change threads with the context.
        idleTimer.setParent(q);
        retryTimer.setParent(q);
        idleTimer.setSingleShot(true);
        idleTimer.setInterval(idleTime);
        QObject::connect(&idleTimer, &QTimer::timeout, q, [this] { connection->checkpoint(); });
        retryTimer.setSingleShot(true);
        retryTimer.setInterval(retryTime);
        QObject::connect(&retryTimer, &QTimer::timeout, q, [this] { saveChanges(); });
    }

    // One save at the end of the event-loop turn, however much changes in it.
    void scheduleSave() {
        if (saveScheduled)
            return;
        saveScheduled = true;
        QMetaObject::invokeMethod(
            q,
            [this] {
                saveScheduled = false;
                saveChanges();
            },
            Qt::QueuedConnection);
    }

    void saveChanges() {
        if (q->hasChanges())
            static_cast<void>(q->save());
    }

    StoreResult write() {
        try {
            SQLite::Transaction transaction(connection->database(), SQLite::TransactionBehavior::IMMEDIATE);
            graph->write(*connection);
            records.write();
            transaction.commit();
            return {};
        } catch (const SQLite::Exception& exception) {
            return storeError(exception);
        }
    }

    template <class T>
    T* insert(std::unique_ptr<T> entity, void (ModelContext::*inserted)(T*)) {
        Q_ASSERT(entity != nullptr && entity->context() == nullptr);
        if (!graph->adopt(*entity, q)) {
            Q_ASSERT_X(false, "ModelContext::insert", "null id or an id that is in the context already");
            return nullptr;
        }
        T* const object = entity.release();
        scheduleSave();
        Q_EMIT(q->*inserted)(object);
        return object;
    }

    void remove(const Removal& removal) {
        if (removal.projects.empty() && removal.phases.empty() && removal.tasks.empty() &&
            removal.resources.empty())
            return;
        for (TaskResource* resource : removal.resources)
            Q_EMIT q->resourceAboutToBeRemoved(resource);
        for (TaskItem* task : removal.tasks)
            Q_EMIT q->taskAboutToBeRemoved(task);
        for (ProjectPhase* phase : removal.phases)
            Q_EMIT q->phaseAboutToBeRemoved(phase);
        for (Project* project : removal.projects)
            Q_EMIT q->projectAboutToBeRemoved(project);

        // Before the signals that the release brings: whoever hears them may save or look at the sessions.
        const bool hadSessions = guarded([&] { return records.forgetSessionsOf(removal.tasks); }, false);
        graph->release(removal);
        for (TaskResource* resource : removal.resources)
            resource->deleteLater();
        for (TaskItem* task : removal.tasks)
            task->deleteLater();
        for (ProjectPhase* phase : removal.phases)
            phase->deleteLater();
        for (Project* project : removal.projects)
            project->deleteLater();
        scheduleSave();
        if (hadSessions)
            Q_EMIT q->sessionsRemoved();
    }

    // For what reads from the file: an error is logged, and the caller gets what there is.
    template <class Function, class Result>
    Result guarded(const Function& function, Result fallback) {
        try {
            return function();
        } catch (const SQLite::Exception& exception) {
            logLine(QStringLiteral("ModelContext: Error reading: ") + storeError(exception).description);
            return fallback;
        }
    }

    template <class Record>
    QList<Record> fetch(const RecordQuery& query) {
        QList<Record> fetched;
        guarded(
            [&] {
                records.fetch(query, fetched);
                return true;
            },
            false);
        return fetched;
    }

    ModelContext* const q;
    std::unique_ptr<StoreConnection> connection;
    std::unique_ptr<PlanningGraph> graph;
    RecordStore records;
    QTimer idleTimer;
    QTimer retryTimer;
    bool saveScheduled = false;
    /// What the last save failed with; empty after one that succeeded.
    QString lastFailure;
};

ModelContext::ModelContext(std::unique_ptr<StoreConnection> connection, std::unique_ptr<PlanningGraph> graph)
    : d(std::make_unique<Private>(this, std::move(connection), std::move(graph))) {
    d->graph->setContext(this);
}

ModelContext::~ModelContext() {
    d->saveChanges();
    d->graph.reset();
}

Project* ModelContext::insert(std::unique_ptr<Project> project) {
    return d->insert(std::move(project), &ModelContext::projectInserted);
}

ProjectPhase* ModelContext::insert(std::unique_ptr<ProjectPhase> phase) {
    return d->insert(std::move(phase), &ModelContext::phaseInserted);
}

TaskItem* ModelContext::insert(std::unique_ptr<TaskItem> task) {
    return d->insert(std::move(task), &ModelContext::taskInserted);
}

TaskResource* ModelContext::insert(std::unique_ptr<TaskResource> resource) {
    return d->insert(std::move(resource), &ModelContext::resourceInserted);
}

void ModelContext::insert(const Session& session) {
    Session record = session;
    // The row could refer to nothing, and every save would fail over it.
    if (record.task && task(*record.task) == nullptr)
        record.task.reset();
    d->records.add(record);
    d->scheduleSave();
    Q_EMIT sessionInserted(record);
}

void ModelContext::insert(const AppUsageSession& usage) {
    d->records.add(usage);
    d->scheduleSave();
    Q_EMIT appUsageInserted(usage);
}

void ModelContext::remove(Project& project) {
    if (project.context() == this)
        d->remove(PlanningGraph::collect(project));
}

void ModelContext::remove(ProjectPhase& phase) {
    if (phase.context() == this)
        d->remove(PlanningGraph::collect(phase));
}

void ModelContext::remove(TaskItem& task) {
    if (task.context() == this)
        d->remove(PlanningGraph::collect(task));
}

void ModelContext::remove(TaskResource& resource) {
    if (resource.context() == this)
        d->remove(PlanningGraph::collect(resource));
}

void ModelContext::remove(const SessionId& session) {
    if (!d->guarded([&] { return d->records.remove(session); }, false))
        return;
    d->scheduleSave();
    Q_EMIT sessionsRemoved();
}

bool ModelContext::setSessionTask(const SessionId& session, std::optional<TaskId> task) {
    if (task && this->task(*task) == nullptr)
        return false;
    std::optional<Session> record = this->session(session);
    if (!record || record->task == task)
        return false;
    record->task = task;
    const auto replace = [&] {
        d->records.replace(*record);
        return true;
    };
    if (!d->guarded(replace, false))
        return false;
    d->scheduleSave();
    Q_EMIT sessionsEdited();
    return true;
}

void ModelContext::moveTask(TaskItem& task, TaskItem* before) {
    if (task.context() != this || !d->graph->move(task, before))
        return;
    d->scheduleSave();
    if (task.parentTask() != nullptr)
        Q_EMIT task.parentTask()->subtasksChanged();
    Q_EMIT tasksMoved();
}

const std::vector<Project*>& ModelContext::projects() const {
    return d->graph->projects().all;
}
const std::vector<ProjectPhase*>& ModelContext::phases() const {
    return d->graph->phases().all;
}
const std::vector<TaskItem*>& ModelContext::tasks() const {
    return d->graph->tasks().all;
}
const std::vector<TaskResource*>& ModelContext::resources() const {
    return d->graph->resources().all;
}

std::vector<TaskItem*>
ModelContext::fetchTasks(const std::function<bool(const TaskItem&)>& accept,
                         const std::function<bool(const TaskItem&, const TaskItem&)>& before) const {
    std::vector<TaskItem*> found;
    std::copy_if(tasks().begin(), tasks().end(), std::back_inserter(found),
                 [&accept](const TaskItem* task) { return accept(*task); });
    if (before) {
        std::stable_sort(found.begin(), found.end(),
                         [&before](const TaskItem* a, const TaskItem* b) { return before(*a, *b); });
    }
    return found;
}

TaskItem* ModelContext::task(TaskId id) const {
    return d->graph->tasks().byId.value(id.uuid());
}
Project* ModelContext::project(ProjectId id) const {
    return d->graph->projects().byId.value(id.uuid());
}
ProjectPhase* ModelContext::phase(ProjectPhaseId id) const {
    return d->graph->phases().byId.value(id.uuid());
}
TaskResource* ModelContext::resource(TaskResourceId id) const {
    return d->graph->resources().byId.value(id.uuid());
}

QList<Session> ModelContext::fetchSessions(const RecordQuery& query) const {
    return d->fetch<Session>(query);
}

QList<AppUsageSession> ModelContext::fetchAppUsage(const RecordQuery& query) const {
    return d->fetch<AppUsageSession>(query);
}

std::optional<Session> ModelContext::session(const SessionId& id) const {
    return d->guarded([&] { return d->records.session(id); }, std::optional<Session>());
}

std::optional<RecordCut> ModelContext::cutRecords() {
    static_cast<void>(save());
    return d->guarded([this] { return d->records.cut(); }, std::optional<RecordCut>());
}

StoreResult ModelContext::save() {
    if (!hasChanges())
        return {};
    StoreResult failure = d->write();
    if (failure && failure->code == SQLITE_CONSTRAINT) {
        // Rows that others refer to were deleted in a shell. What the user sees is what counts, so everything
        // is written; else no save would succeed any more.
        d->records.forgetWritten();
        d->graph->markAllModified();
        failure = d->write();
    }
    if (failure) {
        d->records.forgetWritten();
        d->retryTimer.start();
        // Once, not every time the same thing goes wrong again.
        if (failure->description != d->lastFailure)
            logLine(QStringLiteral("ModelContext: Error saving: ") + failure->description);
        d->lastFailure = failure->description;
        Q_EMIT saveFailed(*failure);
        return failure;
    }
    d->graph->markWritten();
    d->records.markWritten();
    d->retryTimer.stop();
    d->lastFailure.clear();
    if (d->connection->walPages() > checkpointPages)
        d->idleTimer.start();
    Q_EMIT saved();
    return {};
}

bool ModelContext::hasChanges() const {
    return d->graph->hasChanges() || d->records.hasChanges();
}

void ModelContext::entityTouched(Entity& entity) {
    d->graph->markModified(entity);
    d->scheduleSave();
    switch (entity.m_kind) {
    case Entity::Kind::project:
        Q_EMIT projectChanged(static_cast<Project*>(&entity));
        break;
    case Entity::Kind::phase:
        Q_EMIT phaseChanged(static_cast<ProjectPhase*>(&entity));
        break;
    case Entity::Kind::task:
        Q_EMIT taskChanged(static_cast<TaskItem*>(&entity));
        break;
    case Entity::Kind::resource:
        Q_EMIT resourceChanged(static_cast<TaskResource*>(&entity));
        break;
    }
}

} // namespace norvin
