#pragma once

#include "model/PlanningSnapshot.h"
#include "model/Session.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <vector>

namespace norvin::test {

/// The rules of projects, phases, tasks, attachments and their sessions once more, as plainly as they can be
/// said: values in maps, and every question answered by looking at all of them. `place` is the place in store
/// order.
struct PlainPlanning {
    std::map<ProjectId, ProjectValues> projects;
    std::map<ProjectPhaseId, PhaseValues> phases;
    std::map<TaskId, TaskValues> tasks;
    std::map<TaskResourceId, ResourceValues> resources;
    std::map<SessionId, std::optional<TaskId>> sessions;
    qint64 lastPlace = 0;

    /// What a deletion took away, with the tasks that it left without a phase.
    struct Removed {
        std::map<ProjectId, ProjectValues> projects;
        std::map<ProjectPhaseId, PhaseValues> phases;
        std::map<TaskId, TaskValues> tasks;
        std::map<TaskResourceId, ResourceValues> resources;
        std::map<SessionId, std::optional<TaskId>> sessions;
        std::map<TaskId, ProjectPhaseId> members;
    };

    template <class Values>
    void add(std::map<decltype(Values::id), Values>& map, Values values) {
        values.place = ++lastPlace;
        map.emplace(values.id, values);
    }

    [[nodiscard]] std::set<TaskId> tree(TaskId root) const {
        std::set<TaskId> found{root};
        for (bool grows = true; grows;) {
            grows = false;
            for (const auto& [id, task] : tasks) {
                if (task.parentTask && found.count(*task.parentTask) > 0)
                    grows = found.insert(id).second || grows;
            }
        }
        return found;
    }

    void setStatus(TaskId id, TaskStatus status) {
        TaskValues& task = tasks.at(id);
        const QString done = rawValue(TaskStatus::done);
        const bool wasDone = task.statusValue == done;
        task.statusValue = rawValue(status);
        if (wasDone == (task.statusValue == done))
            return;
        for (const auto& [other, values] : std::map(tasks)) {
            if (values.parentTask == id)
                setStatus(other, wasDone ? TaskStatus::todo : TaskStatus::done);
        }
    }

    void setParent(TaskId id, std::optional<TaskId> parent) {
        if (!parent || tree(id).count(*parent) == 0)
            tasks.at(id).parentTask = parent;
    }

    /// Before a sibling, or behind all of them.
    void move(TaskId id, std::optional<TaskId> before) {
        std::map<qint64, TaskId> siblings;
        for (const auto& [other, task] : tasks) {
            if (task.parentTask == tasks.at(id).parentTask)
                siblings.emplace(task.place, other);
        }
        if (before && (*before == id || tasks.at(*before).parentTask != tasks.at(id).parentTask))
            return;
        std::vector<TaskId> wanted;
        for (const auto& [place, other] : siblings) {
            if (before == other)
                wanted.push_back(id);
            if (other != id)
                wanted.push_back(other);
        }
        if (!before)
            wanted.push_back(id);
        size_t at = 0;
        for (const auto& [place, other] : siblings)
            tasks.at(wanted[at++]).place = place;
    }

    Removed removeTask(TaskId root) {
        Removed removed;
        for (const TaskId& id : tree(root)) {
            removed.tasks.insert(tasks.extract(id));
            take(resources, removed.resources, [&id](const auto& entry) { return entry.second.task == id; });
            take(sessions, removed.sessions, [&id](const auto& entry) { return entry.second == id; });
        }
        return removed;
    }

    Removed removePhase(ProjectPhaseId id) {
        Removed removed;
        removed.phases.insert(phases.extract(id));
        for (auto& [taskId, task] : tasks) {
            if (task.phase == id) {
                removed.members.emplace(taskId, id);
                task.phase.reset();
            }
        }
        return removed;
    }

    Removed removeProject(ProjectId id) {
        // The members of its phases first, while all of them are there.
        Removed removed;
        for (const auto& [taskId, task] : tasks) {
            if (task.phase && phases.at(*task.phase).project == id)
                removed.members.emplace(taskId, *task.phase);
        }
        while (true) {
            const auto task = std::find_if(tasks.begin(), tasks.end(),
                                           [&id](const auto& entry) { return entry.second.project == id; });
            if (task == tasks.end())
                break;
            Removed one = removeTask(task->first);
            removed.tasks.merge(one.tasks);
            removed.resources.merge(one.resources);
            removed.sessions.merge(one.sessions);
        }
        for (const auto& [phaseId, phase] : std::map(phases)) {
            if (phase.project == id)
                removed.phases.merge(removePhase(phaseId).phases);
        }
        removed.projects.insert(projects.extract(id));
        return removed;
    }

    void bringBack(Removed removed) {
        projects.merge(removed.projects);
        phases.merge(removed.phases);
        std::map<TaskId, TaskValues> back = removed.tasks;
        tasks.merge(removed.tasks);
        resources.merge(removed.resources);
        for (const auto& [id, values] : back) {
            TaskValues& task = tasks.at(id);
            // What it referred to may be gone for good meanwhile.
            if (task.project && projects.count(*task.project) == 0)
                task.project.reset();
            if (task.phase && phases.count(*task.phase) == 0)
                task.phase.reset();
            if (task.parentTask && tasks.count(*task.parentTask) == 0)
                task.parentTask.reset();
        }
        for (auto& [id, phase] : phases) {
            if (phase.project && projects.count(*phase.project) == 0)
                phase.project.reset();
        }
        sessions.merge(removed.sessions);
        for (const auto& [id, phase] : removed.members) {
            if (tasks.count(id) > 0 && phases.count(phase) > 0 && !tasks.at(id).phase)
                tasks.at(id).phase = phase;
        }
    }

    [[nodiscard]] PlanningSnapshot snapshot() const {
        PlanningSnapshot snapshot;
        const auto fill = [](auto& list, const auto& map) {
            std::map<qint64, const typename std::decay_t<decltype(list)>::value_type*> ordered;
            for (const auto& [id, values] : map)
                ordered.emplace(values.place, &values);
            for (const auto& [place, values] : ordered) {
                list.push_back(*values);
                list.back().place = 0;
            }
        };
        fill(snapshot.projects, projects);
        fill(snapshot.phases, phases);
        fill(snapshot.tasks, tasks);
        fill(snapshot.resources, resources);
        return snapshot;
    }

private:
    template <class Map, class Accept>
    static void take(Map& from, Map& to, const Accept& accept) {
        for (auto entry = from.begin(); entry != from.end();) {
            if (accept(*entry))
                to.insert(from.extract(entry++));
            else
                ++entry;
        }
    }
};

} // namespace norvin::test
