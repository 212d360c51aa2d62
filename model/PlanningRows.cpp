#include "model/PlanningGraph.h"
#include "model/RowCursor.h"
#include "model/StoreConnection.h"
#include "platform/Log.h"

#include <SQLiteCpp/Exception.h>

#include <algorithm>
#include <limits>
#include <tuple>
#include <utility>
#include <vector>

namespace norvin {

namespace {

// A reference to an entity that is not in the store reads as none.
template <class T>
T* find(const EntityPool<T>& pool, const RowCursor& rows, int column) {
    return rows.isNull(column) ? nullptr : pool.byId.value(rows.uuid(column));
}

// An entity outside the context has no row to refer to; when it is inserted, those that refer to it are
// written again.
template <class T>
void bindReference(SQLite::Statement& statement, int index, const T* entity) {
    if (entity != nullptr && entity->context() != nullptr)
        row::bind(statement, index, entity->id().uuid());
    else
        statement.bind(index);
}

// Statements of one type. The parameters of insertion and update are the same, the first being the id; that
// of the place, which is the rowid, follows in the insertion. Where somebody took that in a shell, the row
// goes to the end.
template <class T>
struct Rows;

template <>
struct Rows<Project> {
    static constexpr int placeParameter = 7;
    static constexpr const char* insertion =
        "INSERT INTO Project(id, name, projectDescription, colorHex, emoji, createdAt, rowid) "
        "VALUES(?1, ?2, ?3, ?4, ?5, ?6, "
        "CASE WHEN EXISTS(SELECT 1 FROM Project WHERE rowid = ?7) THEN NULL ELSE ?7 END)";
    static constexpr const char* update =
        "UPDATE Project SET name = ?2, projectDescription = ?3, colorHex = ?4, emoji = ?5, createdAt = ?6 "
        "WHERE id = ?1";
    static constexpr const char* deletion = "DELETE FROM Project WHERE id = ?1";
    static void bind(SQLite::Statement& statement, const Project& project) {
        row::bind(statement, 1, project.id().uuid());
        row::bind(statement, 2, project.name());
        row::bind(statement, 3, project.projectDescription());
        row::bind(statement, 4, project.colorHex());
        row::bind(statement, 5, project.emoji());
        row::bindRequired(statement, 6, project.createdAt());
    }
};

template <>
struct Rows<ProjectPhase> {
    static constexpr int placeParameter = 6;
    static constexpr const char* insertion =
        "INSERT INTO ProjectPhase(id, name, orderIndex, createdAt, project, rowid) "
        "VALUES(?1, ?2, ?3, ?4, ?5, "
        "CASE WHEN EXISTS(SELECT 1 FROM ProjectPhase WHERE rowid = ?6) THEN NULL ELSE ?6 END)";
    static constexpr const char* update =
        "UPDATE ProjectPhase SET name = ?2, orderIndex = ?3, createdAt = ?4, project = ?5 WHERE id = ?1";
    static constexpr const char* deletion = "DELETE FROM ProjectPhase WHERE id = ?1";
    static void bind(SQLite::Statement& statement, const ProjectPhase& phase) {
        row::bind(statement, 1, phase.id().uuid());
        row::bind(statement, 2, phase.name());
        statement.bind(3, phase.orderIndex());
        row::bindRequired(statement, 4, phase.createdAt());
        bindReference(statement, 5, phase.project());
    }
};

template <>
struct Rows<TaskItem> {
    static constexpr int placeParameter = 12;
    static constexpr const char* insertion =
        "INSERT INTO TaskItem(id, title, taskDescription, statusValue, priorityValue, dueDate, createdAt, "
        "plannedDate, project, phase, parentTask, rowid) "
        "VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, "
        "CASE WHEN EXISTS(SELECT 1 FROM TaskItem WHERE rowid = ?12) THEN NULL ELSE ?12 END)";
    static constexpr const char* update =
        "UPDATE TaskItem SET title = ?2, taskDescription = ?3, statusValue = ?4, priorityValue = ?5, "
        "dueDate = ?6, createdAt = ?7, plannedDate = ?8, project = ?9, phase = ?10, parentTask = ?11 "
        "WHERE id = ?1";
    static constexpr const char* deletion = "DELETE FROM TaskItem WHERE id = ?1";
    static void bind(SQLite::Statement& statement, const TaskItem& task) {
        row::bind(statement, 1, task.id().uuid());
        row::bind(statement, 2, task.title());
        row::bind(statement, 3, task.taskDescription());
        row::bind(statement, 4, task.statusValue());
        statement.bind(5, task.priorityValue());
        row::bind(statement, 6, task.dueDate());
        row::bindRequired(statement, 7, task.createdAt());
        row::bind(statement, 8, task.plannedDate());
        bindReference(statement, 9, task.project());
        bindReference(statement, 10, task.phase());
        bindReference(statement, 11, task.parentTask());
    }
};

template <>
struct Rows<TaskResource> {
    static constexpr int placeParameter = 7;
    static constexpr const char* insertion =
        "INSERT INTO TaskResource(id, name, fileType, fileURLData, createdAt, task, rowid) "
        "VALUES(?1, ?2, ?3, ?4, ?5, ?6, "
        "CASE WHEN EXISTS(SELECT 1 FROM TaskResource WHERE rowid = ?7) THEN NULL ELSE ?7 END)";
    static constexpr const char* update =
        "UPDATE TaskResource SET name = ?2, fileType = ?3, fileURLData = ?4, createdAt = ?5, task = ?6 "
        "WHERE id = ?1";
    static constexpr const char* deletion = "DELETE FROM TaskResource WHERE id = ?1";
    static void bind(SQLite::Statement& statement, const TaskResource& resource) {
        row::bind(statement, 1, resource.id().uuid());
        row::bind(statement, 2, resource.name());
        row::bind(statement, 3, resource.fileType());
        const QByteArray& bookmark = resource.fileURLData();
        if (bookmark.isEmpty())
            statement.bind(4);
        else
            statement.bind(4, bookmark.constData(), static_cast<int>(bookmark.size()));
        row::bindRequired(statement, 5, resource.createdAt());
        bindReference(statement, 6, resource.task());
    }
};

template <class T>
void insertRow(StoreConnection& connection, const T& entity) {
    const CachedStatement statement = connection.statement(Rows<T>::insertion);
    Rows<T>::bind(*statement, entity);
    statement->bind(Rows<T>::placeParameter, static_cast<int64_t>(entity.place().value_or(0)));
    statement->exec();
}

// Rows change places among themselves, so all of them step aside first: below zero nothing else is.
void moveRows(StoreConnection& connection, const std::vector<TaskItem*>& moved) {
    for (const int sign : {-1, 1}) {
        for (const TaskItem* task : moved) {
            const CachedStatement statement =
                connection.statement("UPDATE OR IGNORE TaskItem SET rowid = ?2 WHERE id = ?1");
            row::bind(*statement, 1, task->id().uuid());
            statement->bind(2, static_cast<int64_t>(sign * task->place().value_or(0)));
            statement->exec();
        }
    }
}

template <class T>
void updateRow(StoreConnection& connection, const T& entity) {
    int updated = 0;
    {
        const CachedStatement statement = connection.statement(Rows<T>::update);
        Rows<T>::bind(*statement, entity);
        updated = statement->exec();
    }
    // Somebody deleted the row in a shell; what the user sees is what counts.
    if (updated == 0)
        insertRow(connection, entity);
}

template <class T>
void deleteRows(StoreConnection& connection, const std::vector<QUuid>& ids) {
    for (const QUuid& id : ids) {
        const CachedStatement statement = connection.statement(Rows<T>::deletion);
        row::bind(*statement, 1, id);
        statement->exec();
    }
}

// What comes after it still has room for more than anybody inserts.
constexpr qint64 lastUsablePlace = std::numeric_limits<qint64>::max() / 2;

} // namespace

template <class T>
void PlanningGraph::addLoaded(EntityPool<T>& pool, T* entity, qint64 place) {
    // Rows come by ascending place; those of a hand-edited file may begin below 1.
    const bool isInOrder = place > pool.lastPlace && place < lastUsablePlace;
    entity->m_sequence = isInOrder ? place : pool.lastPlace + 1;
    pool.lastPlace = entity->m_sequence;
    entity->m_stored = true;
    pool.all.push_back(entity);
    pool.byId.insert(entity->id().uuid(), entity);
}

void PlanningGraph::loadProjects(StoreConnection& connection) {
    RowCursor rows(
        connection.database().getHandle(),
        "SELECT id, name, projectDescription, colorHex, emoji, createdAt, rowid FROM Project ORDER BY rowid");
    while (rows.next()) {
        addLoaded(m_projects,
                  new Project({.id = ProjectId(rows.uuid(0)),
                               .name = rows.text(1),
                               .projectDescription = rows.text(2),
                               .colorHex = rows.text(3),
                               .emoji = rows.text(4),
                               .createdAt = rows.instant(5).dateTime()}),
                  rows.place(6));
    }
}

void PlanningGraph::loadPhases(StoreConnection& connection) {
    RowCursor rows(connection.database().getHandle(),
                   "SELECT id, name, orderIndex, createdAt, project, rowid FROM ProjectPhase "
                   "ORDER BY rowid");
    while (rows.next()) {
        auto* phase = new ProjectPhase({.id = ProjectPhaseId(rows.uuid(0)),
                                        .name = rows.text(1),
                                        .orderIndex = rows.number(2),
                                        .project = nullptr,
                                        .createdAt = rows.instant(3).dateTime()});
        addLoaded(m_phases, phase, rows.place(5));
        phase->m_project = find(m_projects, rows, 4);
        if (phase->m_project != nullptr)
            phase->m_project->m_phases.append(phase);
    }
}

void PlanningGraph::loadTasks(StoreConnection& connection) {
    RowCursor rows(
        connection.database().getHandle(),
        "SELECT id, title, taskDescription, statusValue, priorityValue, dueDate, createdAt, plannedDate, "
        "project, phase, parentTask, rowid FROM TaskItem ORDER BY rowid");
    // No more than there are, and where many were deleted no less than makes sense.
    constexpr int most = 100'000;
    RowCursor newest(connection.database().getHandle(), "SELECT max(rowid) FROM TaskItem");
    const int expected = newest.next() ? std::clamp(newest.number(0), 0, most) : 0;
    m_tasks.all.reserve(static_cast<size_t>(expected));
    m_tasks.byId.reserve(expected);

    std::vector<std::pair<TaskItem*, QUuid>> parents;
    // Most tasks of a grown store are done; they share the text.
    const QString done = rawValue(TaskStatus::done);
    while (rows.next()) {
        auto* task = new TaskItem({.id = TaskId(rows.uuid(0)),
                                   .title = rows.text(1),
                                   .taskDescription = rows.text(2),
                                   .status = TaskStatus::todo,
                                   .priority = TaskPriority::medium,
                                   .dueDate = {},
                                   .plannedDate = {},
                                   .createdAt = {},
                                   .project = nullptr,
                                   .phase = nullptr});
        addLoaded(m_tasks, task, rows.place(11));
        // Texts and numbers that mean nothing to us stay as they are.
        const QString status = rows.text(3);
        if (status == done)
            task->m_statusValue = done;
        else if (status != task->m_statusValue)
            task->m_statusValue = status;
        task->m_priorityValue = rows.number(4);
        task->m_dueDate = rows.instant(5);
        task->m_createdAt = rows.instant(6);
        task->m_plannedDate = rows.instant(7);
        task->m_project = find(m_projects, rows, 8);
        if (task->m_project != nullptr)
            task->m_project->m_tasks.append(task);
        task->m_phase = find(m_phases, rows, 9);
        if (task->m_phase != nullptr)
            task->m_phase->m_tasks.append(task);
        if (!rows.isNull(10))
            parents.emplace_back(task, rows.uuid(10));
    }
    // A task may be older than its parent.
    for (const auto& [task, parent] : parents)
        task->m_parentTask = m_tasks.byId.value(parent);
    linkSubtasks();
}

void PlanningGraph::linkSubtasks() {
    // A hand-edited file may hold a ring of parents, on which everything that climbs would go round for ever.
    QHash<const TaskItem*, const TaskItem*> climbedFrom;
    for (TaskItem* start : m_tasks.all) {
        if (start->m_parentTask == nullptr)
            continue;
        for (TaskItem* task = start; task != nullptr; task = task->m_parentTask) {
            const auto known = climbedFrom.constFind(task);
            if (known == climbedFrom.constEnd()) {
                climbedFrom.insert(task, start);
                continue;
            }
            if (*known == start) {
                logLine(QStringLiteral("ModelContext: Task %1 is its own ancestor, made a top-level task")
                            .arg(task->id().toString()));
                task->m_parentTask = nullptr;
            }
            break;
        }
    }
    for (TaskItem* task : m_tasks.all) {
        if (task->m_parentTask != nullptr)
            task->m_parentTask->m_subtasks.append(task);
    }
}

void PlanningGraph::loadResources(StoreConnection& connection) {
    RowCursor rows(
        connection.database().getHandle(),
        "SELECT id, name, fileType, fileURLData, createdAt, task, rowid FROM TaskResource ORDER BY rowid");
    while (rows.next()) {
        auto* resource = new TaskResource({.id = TaskResourceId(rows.uuid(0)),
                                           .name = rows.text(1),
                                           .fileType = rows.text(2),
                                           .fileURL = {},
                                           .createdAt = rows.instant(4).dateTime()});
        addLoaded(m_resources, resource, rows.place(6));
        resource->m_fileURLData = rows.bytes(3);
        resource->m_task = find(m_tasks, rows, 5);
        if (resource->m_task != nullptr)
            resource->m_task->m_resources.append(resource);
    }
}

StoreResult PlanningGraph::load(StoreConnection& connection) {
    try {
        loadProjects(connection);
        loadPhases(connection);
        loadTasks(connection);
        loadResources(connection);
        return {};
    } catch (const SQLite::Exception& exception) {
        return storeError(exception);
    }
}

template <class T>
bool PlanningGraph::comesBack(const EntityPool<T>& pool) {
    return std::any_of(pool.deleted.begin(), pool.deleted.end(),
                       [&pool](const QUuid& id) { return pool.byId.contains(id); });
}

void PlanningGraph::write(StoreConnection& connection) const {
    const auto updateAll = [this, &connection] {
        std::apply(
            [&connection](const auto&... pool) {
                const auto update = [&connection](const auto& entities) {
                    for (const auto* entity : entities)
                        updateRow(connection, *entity);
                };
                (update(pool.modified), ...);
            },
            pools());
    };
    // Updates come before deletions: a subtask that was moved away must not go with its former parent.
    // Deletions come before insertions: an id may come back in the same save.
    updateAll();
    deleteRows<TaskResource>(connection, m_resources.deleted);
    deleteRows<TaskItem>(connection, m_tasks.deleted);
    deleteRows<ProjectPhase>(connection, m_phases.deleted);
    deleteRows<Project>(connection, m_projects.deleted);
    moveRows(connection, m_tasks.moved);
    std::apply(
        [&connection](const auto&... pool) {
            const auto insert = [&connection](const auto& entities) {
                for (const auto* entity : entities)
                    insertRow(connection, *entity);
            };
            (insert(pool.created), ...);
        },
        pools());
    // The deletion of a row that came back took the references to it along, or even the rows that had them.
    const bool anyComesBack =
        std::apply([](const auto&... pool) { return (comesBack(pool) || ...); }, pools());
    if (anyComesBack)
        updateAll();
}

} // namespace norvin
