#pragma once

#include "model/Project.h"
#include "model/ProjectPhase.h"
#include "model/TaskItem.h"
#include "model/TaskResource.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

namespace norvin {

class ModelContext;

// The stored values of the planning entities, as they are, with references by id. `place` is the place in
// store order, or 0 for "after everything else".

struct ProjectValues {
    ProjectId id;
    QString name;
    QString projectDescription;
    QString colorHex;
    QString emoji;
    QDateTime createdAt;
    qint64 place = 0;
    bool operator==(const ProjectValues&) const = default;
};

struct PhaseValues {
    ProjectPhaseId id;
    QString name;
    int orderIndex = 0;
    QDateTime createdAt;
    std::optional<ProjectId> project;
    qint64 place = 0;
    bool operator==(const PhaseValues&) const = default;
};

struct TaskValues {
    TaskId id;
    QString title;
    QString taskDescription;
    /// Any text and any number: those that are no status or priority are kept too.
    QString statusValue;
    int priorityValue = 0;
    /// Invalid for none, here and in plannedDate.
    QDateTime dueDate;
    QDateTime plannedDate;
    QDateTime createdAt;
    std::optional<ProjectId> project;
    std::optional<ProjectPhaseId> phase;
    std::optional<TaskId> parentTask;
    qint64 place = 0;
    bool operator==(const TaskValues&) const = default;
};

struct ResourceValues {
    TaskResourceId id;
    QString name;
    QString fileType;
    QByteArray fileURLData;
    QDateTime createdAt;
    std::optional<TaskId> task;
    qint64 place = 0;
    bool operator==(const ResourceValues&) const = default;
};

/// Planning entities as values, each list in store order.
struct PlanningSnapshot {
    std::vector<ProjectValues> projects;
    std::vector<PhaseValues> phases;
    std::vector<TaskValues> tasks;
    std::vector<ResourceValues> resources;
    bool operator==(const PlanningSnapshot&) const = default;
};

/// Everything in the context.
[[nodiscard]] PlanningSnapshot snapshotOf(const ModelContext& context);
/// The entity and all that its deletion takes along.
[[nodiscard]] PlanningSnapshot snapshotOf(const Project& project);
[[nodiscard]] PlanningSnapshot snapshotOf(const TaskItem& task);
[[nodiscard]] PlanningSnapshot snapshotOf(const ProjectPhase& phase);
[[nodiscard]] PlanningSnapshot snapshotOf(const TaskResource& resource);

/// How many entities were inserted.
struct SnapshotCounts {
    int projects = 0;
    int phases = 0;
    int tasks = 0;
    int resources = 0;
    bool operator==(const SnapshotCounts&) const = default;
};

/// Inserts the entities of the snapshot that the context does not have; those that it has stay as they are.
/// References are followed to what is in the snapshot or in the context, others read as none. An entity comes
/// back to its place if that is free. A subtask that would be its own ancestor becomes a top-level task.
SnapshotCounts insert(const PlanningSnapshot& snapshot, ModelContext& context);

} // namespace norvin
