#include "model/PlanningSnapshot.h"

#include "model/ModelContext.h"

#include <QHash>

#include <algorithm>
#include <memory>
#include <utility>

namespace norvin {

/// Reads and makes entities value by value.
class SnapshotAccess final {
    // What is not in the store cannot be referred to.
    template <class T>
    static std::optional<EntityId<T>> idOf(const T* entity) {
        return entity != nullptr && entity->context() != nullptr ? std::optional(entity->id()) : std::nullopt;
    }

public:
    static ProjectValues valuesOf(const Project& project) {
        return {.id = project.m_id,
                .name = project.m_name,
                .projectDescription = project.m_projectDescription,
                .colorHex = project.m_colorHex,
                .emoji = project.m_emoji,
                .createdAt = project.m_createdAt,
                .place = project.place().value_or(0)};
    }
    static PhaseValues valuesOf(const ProjectPhase& phase) {
        return {.id = phase.m_id,
                .name = phase.m_name,
                .orderIndex = phase.m_orderIndex,
                .createdAt = phase.m_createdAt,
                .project = idOf(phase.m_project),
                .place = phase.place().value_or(0)};
    }
    static TaskValues valuesOf(const TaskItem& task) {
        return {.id = task.m_id,
                .title = task.m_title,
                .taskDescription = task.m_taskDescription,
                .statusValue = task.m_statusValue,
                .priorityValue = task.m_priorityValue,
                .dueDate = task.dueDate(),
                .plannedDate = task.plannedDate(),
                .createdAt = task.createdAt(),
                .project = idOf(task.m_project),
                .phase = idOf(task.m_phase),
                .parentTask = idOf(task.m_parentTask),
                .place = task.place().value_or(0)};
    }
    static ResourceValues valuesOf(const TaskResource& resource) {
        return {.id = resource.m_id,
                .name = resource.m_name,
                .fileType = resource.m_fileType,
                .fileURLData = resource.m_fileURLData,
                .createdAt = resource.m_createdAt,
                .task = idOf(resource.m_task),
                .place = resource.place().value_or(0)};
    }

    static std::unique_ptr<Project> entityOf(const ProjectValues& values) {
        auto project =
            std::make_unique<Project>(Project::Init{.id = values.id,
                                                    .name = values.name,
                                                    .projectDescription = values.projectDescription,
                                                    .colorHex = values.colorHex,
                                                    .emoji = values.emoji,
                                                    .createdAt = values.createdAt});
        setPlace(*project, values.place);
        return project;
    }
    static std::unique_ptr<ProjectPhase> entityOf(const PhaseValues& values) {
        auto phase = std::make_unique<ProjectPhase>(ProjectPhase::Init{.id = values.id,
                                                                       .name = values.name,
                                                                       .orderIndex = values.orderIndex,
                                                                       .project = nullptr,
                                                                       .createdAt = values.createdAt});
        setPlace(*phase, values.place);
        return phase;
    }
    static std::unique_ptr<TaskItem> entityOf(const TaskValues& values) {
        auto task = std::make_unique<TaskItem>(TaskItem::Init{.id = values.id,
                                                              .title = values.title,
                                                              .taskDescription = values.taskDescription,
                                                              .dueDate = values.dueDate,
                                                              .plannedDate = values.plannedDate,
                                                              .createdAt = values.createdAt});
        task->m_statusValue = values.statusValue;
        task->m_priorityValue = values.priorityValue;
        setPlace(*task, values.place);
        return task;
    }
    static std::unique_ptr<TaskResource> entityOf(const ResourceValues& values) {
        auto resource = std::make_unique<TaskResource>(TaskResource::Init{.id = values.id,
                                                                          .name = values.name,
                                                                          .fileType = values.fileType,
                                                                          .fileURL = {},
                                                                          .createdAt = values.createdAt});
        resource->m_fileURLData = values.fileURLData;
        setPlace(*resource, values.place);
        return resource;
    }

private:
    static void setPlace(Entity& entity, qint64 place) {
        if (place > 0)
            entity.m_sequence = place;
    }
};

namespace {

template <class Values, class T>
void addAll(std::vector<Values>& list, const std::vector<T*>& entities) {
    list.reserve(entities.size());
    for (const T* entity : entities)
        list.push_back(SnapshotAccess::valuesOf(*entity));
}

// The task with what is below it, however deep.
void addTree(const TaskItem& root, PlanningSnapshot& snapshot, QHash<TaskId, bool>& known) {
    std::vector<const TaskItem*> pending{&root};
    while (!pending.empty()) {
        const TaskItem& task = *pending.back();
        pending.pop_back();
        if (task.context() == nullptr || std::exchange(known[task.id()], true))
            continue;
        snapshot.tasks.push_back(SnapshotAccess::valuesOf(task));
        for (const TaskResource* resource : task.resources()) {
            if (resource->context() != nullptr)
                snapshot.resources.push_back(SnapshotAccess::valuesOf(*resource));
        }
        pending.insert(pending.end(), task.subtasks().begin(), task.subtasks().end());
    }
}

void sortByPlace(PlanningSnapshot& snapshot) {
    const auto byPlace = [](const auto& a, const auto& b) { return a.place < b.place; };
    std::sort(snapshot.phases.begin(), snapshot.phases.end(), byPlace);
    std::sort(snapshot.tasks.begin(), snapshot.tasks.end(), byPlace);
    std::sort(snapshot.resources.begin(), snapshot.resources.end(), byPlace);
}

// Inserts what is not there yet; what came in, with the values it came from.
template <class Values, class Find>
auto insertNew(const std::vector<Values>& list, ModelContext& context, const Find& find) {
    using Made = decltype(SnapshotAccess::entityOf(list.front()).get());
    std::vector<std::pair<Made, const Values*>> inserted;
    inserted.reserve(list.size());
    for (const Values& values : list) {
        if (values.id.isNull() || find(values.id) != nullptr)
            continue;
        if (Made entity = context.insert(SnapshotAccess::entityOf(values)))
            inserted.emplace_back(entity, &values);
    }
    return inserted;
}

} // namespace

PlanningSnapshot snapshotOf(const ModelContext& context) {
    PlanningSnapshot snapshot;
    addAll(snapshot.projects, context.projects());
    addAll(snapshot.phases, context.phases());
    addAll(snapshot.tasks, context.tasks());
    addAll(snapshot.resources, context.resources());
    return snapshot;
}

PlanningSnapshot snapshotOf(const Project& project) {
    PlanningSnapshot snapshot;
    snapshot.projects.push_back(SnapshotAccess::valuesOf(project));
    for (const ProjectPhase* phase : project.phases()) {
        if (phase->context() != nullptr)
            snapshot.phases.push_back(SnapshotAccess::valuesOf(*phase));
    }
    QHash<TaskId, bool> known;
    for (const TaskItem* task : project.tasks())
        addTree(*task, snapshot, known);
    sortByPlace(snapshot);
    return snapshot;
}

PlanningSnapshot snapshotOf(const TaskItem& task) {
    PlanningSnapshot snapshot;
    QHash<TaskId, bool> known;
    addTree(task, snapshot, known);
    sortByPlace(snapshot);
    return snapshot;
}

PlanningSnapshot snapshotOf(const ProjectPhase& phase) {
    PlanningSnapshot snapshot;
    snapshot.phases.push_back(SnapshotAccess::valuesOf(phase));
    return snapshot;
}

PlanningSnapshot snapshotOf(const TaskResource& resource) {
    PlanningSnapshot snapshot;
    snapshot.resources.push_back(SnapshotAccess::valuesOf(resource));
    return snapshot;
}

SnapshotCounts insert(const PlanningSnapshot& snapshot, ModelContext& context) {
    const auto projects =
        insertNew(snapshot.projects, context, [&context](ProjectId id) { return context.project(id); });
    const auto phases =
        insertNew(snapshot.phases, context, [&context](ProjectPhaseId id) { return context.phase(id); });
    const auto tasks = insertNew(snapshot.tasks, context, [&context](TaskId id) { return context.task(id); });
    const auto resources = insertNew(snapshot.resources, context,
                                     [&context](TaskResourceId id) { return context.resource(id); });
    for (const auto& [phase, values] : phases)
        phase->setProject(values->project ? context.project(*values->project) : nullptr);
    for (const auto& [task, values] : tasks) {
        task->setProject(values->project ? context.project(*values->project) : nullptr);
        task->setPhase(values->phase ? context.phase(*values->phase) : nullptr);
        task->setParentTask(values->parentTask ? context.task(*values->parentTask) : nullptr);
    }
    for (const auto& [resource, values] : resources)
        resource->setTask(values->task ? context.task(*values->task) : nullptr);
    return {.projects = static_cast<int>(projects.size()),
            .phases = static_cast<int>(phases.size()),
            .tasks = static_cast<int>(tasks.size()),
            .resources = static_cast<int>(resources.size())};
}

} // namespace norvin
