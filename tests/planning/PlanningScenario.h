#pragma once

#include "planning/PlanningEdits.h"
#include "planning/exchange/PlanningExchange.h"
#include "planning/exchange/PlanningJson.h"
#include "tests/model/StoreFixture.h"
#include "tests/planning/PlainPlanning.h"
#include "tests/support/FocusRig.h"

#include <QFile>
#include <QRandomGenerator>

#include <array>
#include <functional>
#include <iterator>
#include <map>
#include <memory>
#include <optional>

namespace norvin::test {

/// A store and the same content told plainly, and all that can be done with projects and tasks, done to both.
class PlanningScenario final {
public:
    explicit PlanningScenario(quint32 seed)
        : m_random(seed) {
        m_rig.container.reset();
        open();
    }
    ~PlanningScenario() { close(); }
    PlanningScenario(const PlanningScenario&) = delete;
    PlanningScenario& operator=(const PlanningScenario&) = delete;

    /// One random operation on both. @return its name
    QString step() {
        struct Operation {
            int weight;
            const char* name;
            void (PlanningScenario::*run)();
        };
        const bool isFull = m_plain.tasks.size() > manyTasks;
        const std::array operations{
            Operation{4, "add project", &PlanningScenario::addProject},
            Operation{6, "add phase", &PlanningScenario::addPhase},
            Operation{isFull ? 5 : 30, "add task", &PlanningScenario::addTask},
            Operation{6, "add attachment", &PlanningScenario::addResource},
            Operation{8, "add session", &PlanningScenario::addSession},
            Operation{10, "edit", &PlanningScenario::edit},
            Operation{6, "order phases", &PlanningScenario::orderPhase},
            Operation{20, "set status", &PlanningScenario::setStatus},
            Operation{15, "set parent", &PlanningScenario::setParent},
            Operation{10, "set project", &PlanningScenario::setProject},
            Operation{10, "set phase", &PlanningScenario::setPhase},
            Operation{12, "move", &PlanningScenario::move},
            Operation{isFull ? 10 : 4, "remove task", &PlanningScenario::removeTask},
            Operation{2, "remove phase", &PlanningScenario::removePhase},
            Operation{2, "remove project", &PlanningScenario::removeProject},
            Operation{isFull ? 10 : 5, "delete task", &PlanningScenario::deleteTask},
            Operation{3, "delete phase", &PlanningScenario::deletePhase},
            Operation{3, "delete project", &PlanningScenario::deleteProject},
            Operation{4, "unschedule", &PlanningScenario::unschedule},
            Operation{2, "import", &PlanningScenario::importFile},
            Operation{10, "undo", &PlanningScenario::undo},
            Operation{4, "end of turn", &PlanningScenario::endTurn},
            Operation{2, "reopen", &PlanningScenario::reopen},
        };
        int total = 0;
        for (const Operation& operation : operations)
            total += operation.weight;
        int at = m_random.bounded(total);
        for (const Operation& operation : operations) {
            at -= operation.weight;
            if (at < 0) {
                (this->*operation.run)();
                return QString::fromLatin1(operation.name);
            }
        }
        return {};
    }

    /// What is not as it has to be; empty for nothing.
    [[nodiscard]] QString difference() {
        PlanningSnapshot actual = snapshotOf(context());
        const auto forgetPlaces = [](auto& list) {
            for (auto& values : list)
                values.place = 0;
        };
        forgetPlaces(actual.projects);
        forgetPlaces(actual.phases);
        forgetPlaces(actual.tasks);
        forgetPlaces(actual.resources);
        const PlanningSnapshot expected = m_plain.snapshot();
        if (!(actual == expected))
            return "expected " + planningJson(expected) + "but there is " + planningJson(actual);
        std::map<SessionId, std::optional<TaskId>> sessions;
        for (const Session& session : context().fetchSessions())
            sessions.emplace(session.id, session.task);
        if (sessions != m_plain.sessions)
            return QStringLiteral("the sessions are others");
        return looseEnd(expected);
    }

    void reopen() {
        close();
        open();
    }

private:
    // Beyond, more is taken away than comes in.
    static constexpr size_t manyTasks = 60;

    [[nodiscard]] ModelContext& context() { return m_rig.context(); }

    void open() {
        m_rig.container = m_store.open();
        m_rig.timer.setModelContext(&context());
        m_rig.usage.setModelContext(&context());
        m_edits = std::make_unique<PlanningEdits>(context(), m_rig.timer, m_rig.clock);
        m_exchange = std::make_unique<PlanningExchange>(context(), *m_edits, m_rig.clock);
        m_undo = {};
    }
    void close() {
        m_exchange.reset();
        m_edits.reset();
        m_rig.timer.setModelContext(nullptr);
        m_rig.usage.setModelContext(nullptr);
        m_rig.container.reset();
    }

    // The other ends of the relationships, which no snapshot shows.
    [[nodiscard]] QString looseEnd(const PlanningSnapshot& expected) {
        const auto differs = [](const auto& members, const auto& list, auto reference, const auto& owner) {
            std::vector<QUuid> wanted;
            for (const auto& values : list) {
                if (values.*reference == owner)
                    wanted.push_back(values.id.uuid());
            }
            std::vector<QUuid> actual;
            for (const auto* member : members)
                actual.push_back(member->id().uuid());
            return actual != wanted;
        };
        for (const Project* project : context().projects()) {
            if (differs(project->tasks(), expected.tasks, &TaskValues::project, project->id()) ||
                differs(project->phases(), expected.phases, &PhaseValues::project, project->id()))
                return QStringLiteral("the lists of a project are others");
        }
        for (const ProjectPhase* phase : context().phases()) {
            if (differs(phase->tasks(), expected.tasks, &TaskValues::phase, phase->id()))
                return QStringLiteral("the tasks of a phase are others");
        }
        for (const TaskItem* task : context().tasks()) {
            if (differs(task->subtasks(), expected.tasks, &TaskValues::parentTask, task->id()) ||
                differs(task->resources(), expected.resources, &ResourceValues::task, task->id()))
                return QStringLiteral("the lists of a task are others");
        }
        return {};
    }

    template <class Map>
    [[nodiscard]] std::optional<typename Map::key_type> any(const Map& map) {
        if (map.empty())
            return std::nullopt;
        return std::next(map.begin(), m_random.bounded(static_cast<int>(map.size())))->first;
    }
    template <class Map>
    [[nodiscard]] std::optional<typename Map::key_type> anyOrNone(const Map& map) {
        return chance(3) ? std::nullopt : any(map);
    }
    [[nodiscard]] bool chance(int of) { return m_random.bounded(of) == 0; }
    // Ids of the seed, so that a sequence is the same every time.
    template <class Id>
    [[nodiscard]] Id newId() {
        std::array<quint32, 4> bits{};
        m_random.fillRange(bits.data(), bits.size());
        return Id(QUuid(bits[0], static_cast<ushort>(bits[1]), static_cast<ushort>(bits[1] >> 16U),
                        static_cast<uchar>(bits[2]), static_cast<uchar>(bits[2] >> 8U),
                        static_cast<uchar>(bits[2] >> 16U), static_cast<uchar>(bits[2] >> 24U),
                        static_cast<uchar>(bits[3]), static_cast<uchar>(bits[3] >> 8U),
                        static_cast<uchar>(bits[3] >> 16U), static_cast<uchar>(bits[3] >> 24U)));
    }
    [[nodiscard]] QString newText() { return QString::number(m_random.bounded(1'000'000)); }
    [[nodiscard]] QDateTime newDate() {
        // In 2025, to the millisecond; sometimes none.
        return chance(3)
                   ? QDateTime()
                   : QDateTime::fromMSecsSinceEpoch(
                         1'735'689'600'000 + m_random.bounded(31'536'000) * 1000LL + m_random.bounded(1000));
    }

    [[nodiscard]] ProjectValues newProject() {
        return {.id = newId<ProjectId>(),
                .name = newText(),
                .projectDescription = newText(),
                .colorHex = newText(),
                .emoji = newText(),
                .createdAt = m_rig.clock.now()};
    }
    [[nodiscard]] TaskValues newTask() {
        TaskValues task;
        task.id = newId<TaskId>();
        task.title = newText();
        // Some of them are no status and no priority.
        task.statusValue = chance(8) ? newText() : rawValue(static_cast<TaskStatus>(m_random.bounded(3)));
        task.priorityValue = m_random.bounded(-1, 4);
        task.dueDate = newDate();
        task.plannedDate = newDate();
        task.createdAt = m_rig.clock.now();
        return task;
    }
    void insertBoth(const PlanningSnapshot& content) {
        insert(content, context());
        for (const ProjectValues& values : content.projects)
            m_plain.add(m_plain.projects, values);
        for (const PhaseValues& values : content.phases)
            m_plain.add(m_plain.phases, values);
        for (const TaskValues& values : content.tasks)
            m_plain.add(m_plain.tasks, values);
        for (const ResourceValues& values : content.resources)
            m_plain.add(m_plain.resources, values);
    }

    void addProject() {
        insertBoth({.projects = {newProject()}, .phases = {}, .tasks = {}, .resources = {}});
    }
    void addPhase() {
        const PhaseValues phase{.id = newId<ProjectPhaseId>(),
                                .name = newText(),
                                .orderIndex = m_random.bounded(10),
                                .createdAt = m_rig.clock.now(),
                                .project = anyOrNone(m_plain.projects)};
        insertBoth({.projects = {}, .phases = {phase}, .tasks = {}, .resources = {}});
    }
    void addTask() {
        TaskValues task = newTask();
        task.project = anyOrNone(m_plain.projects);
        task.phase = anyOrNone(m_plain.phases);
        task.parentTask = anyOrNone(m_plain.tasks);
        insertBoth({.projects = {}, .phases = {}, .tasks = {task}, .resources = {}});
    }
    void addResource() {
        const ResourceValues resource{.id = newId<TaskResourceId>(),
                                      .name = newText(),
                                      .fileType = newText(),
                                      .fileURLData = newText().toUtf8(),
                                      .createdAt = m_rig.clock.now(),
                                      .task = anyOrNone(m_plain.tasks)};
        insertBoth({.projects = {}, .phases = {}, .tasks = {}, .resources = {resource}});
    }
    void addSession() {
        Session session;
        session.id = newId<SessionId>();
        session.startTime = m_rig.clock.now();
        session.task = anyOrNone(m_plain.tasks);
        context().insert(session);
        m_plain.sessions.emplace(session.id, session.task);
    }

    void edit() {
        const auto taskId = any(m_plain.tasks);
        const auto projectId = any(m_plain.projects);
        if (projectId && chance(4)) {
            m_plain.projects.at(*projectId).name = newText();
            context().project(*projectId)->setName(m_plain.projects.at(*projectId).name);
        }
        if (!taskId)
            return;
        TaskValues& values = m_plain.tasks.at(*taskId);
        TaskItem& task = *context().task(*taskId);
        values.title = newText();
        task.setTitle(values.title);
        values.dueDate = newDate();
        task.setDueDate(values.dueDate);
        values.plannedDate = newDate();
        task.setPlannedDate(values.plannedDate);
        values.priorityValue = m_random.bounded(3);
        task.setPriority(static_cast<TaskPriority>(values.priorityValue));
    }
    void orderPhase() {
        const auto id = any(m_plain.phases);
        if (!id)
            return;
        PhaseValues& values = m_plain.phases.at(*id);
        ProjectPhase& phase = *context().phase(*id);
        values.orderIndex = m_random.bounded(10);
        phase.setOrderIndex(values.orderIndex);
        values.name = newText();
        phase.setName(values.name);
    }
    void setStatus() {
        if (const auto id = any(m_plain.tasks)) {
            const auto status = static_cast<TaskStatus>(m_random.bounded(3));
            m_plain.setStatus(*id, status);
            context().task(*id)->setStatus(status);
        }
    }
    void setParent() {
        const auto id = any(m_plain.tasks);
        if (!id)
            return;
        const auto parent = anyOrNone(m_plain.tasks);
        m_plain.setParent(*id, parent);
        context().task(*id)->setParentTask(parent ? context().task(*parent) : nullptr);
    }
    void setProject() {
        const auto id = any(m_plain.tasks);
        if (!id)
            return;
        const auto project = anyOrNone(m_plain.projects);
        m_plain.tasks.at(*id).project = project;
        context().task(*id)->setProject(project ? context().project(*project) : nullptr);
    }
    void setPhase() {
        const auto id = any(m_plain.tasks);
        if (!id)
            return;
        const auto phase = anyOrNone(m_plain.phases);
        m_plain.tasks.at(*id).phase = phase;
        context().task(*id)->setPhase(phase ? context().phase(*phase) : nullptr);
    }
    void move() {
        const auto id = any(m_plain.tasks);
        if (!id)
            return;
        // Mostly one of its siblings; any other changes nothing.
        std::map<TaskId, TaskValues> siblings = m_plain.tasks;
        std::erase_if(siblings, [this, &id](const auto& entry) {
            return entry.second.parentTask != m_plain.tasks.at(*id).parentTask;
        });
        const auto before = chance(4) ? anyOrNone(m_plain.tasks) : any(siblings);
        m_plain.move(*id, before);
        context().moveTask(*context().task(*id), before ? context().task(*before) : nullptr);
    }

    void removeTask() {
        if (const auto id = any(m_plain.tasks)) {
            m_plain.removeTask(*id);
            context().remove(*context().task(*id));
        }
    }
    void removePhase() {
        if (const auto id = any(m_plain.phases)) {
            m_plain.removePhase(*id);
            context().remove(*context().phase(*id));
        }
    }
    void removeProject() {
        if (const auto id = any(m_plain.projects)) {
            m_plain.removeProject(*id);
            context().remove(*context().project(*id));
        }
    }

    void deleteTask() {
        if (const auto id = any(m_plain.tasks)) {
            m_edits->deleteTask(*context().task(*id));
            bringBackOnUndo(m_plain.removeTask(*id));
        }
    }
    void deletePhase() {
        if (const auto id = any(m_plain.phases)) {
            m_edits->deletePhases({context().phase(*id)});
            bringBackOnUndo(m_plain.removePhase(*id));
        }
    }
    void deleteProject() {
        if (const auto id = any(m_plain.projects)) {
            m_edits->deleteProject(*context().project(*id));
            bringBackOnUndo(m_plain.removeProject(*id));
        }
    }
    void bringBackOnUndo(const PlainPlanning::Removed& removed) {
        m_undo = [this, removed] { m_plain.bringBack(removed); };
    }
    void unschedule() {
        const auto id = any(m_plain.tasks);
        if (!id)
            return;
        m_edits->unschedule(*context().task(*id));
        TaskValues& task = m_plain.tasks.at(*id);
        if (!task.project) {
            bringBackOnUndo(m_plain.removeTask(*id));
            return;
        }
        m_undo = [this, id, planned = task.plannedDate, due = task.dueDate] {
            const auto again = m_plain.tasks.find(*id);
            if (again == m_plain.tasks.end())
                return;
            if (!again->second.plannedDate.isValid())
                again->second.plannedDate = planned;
            if (!again->second.dueDate.isValid())
                again->second.dueDate = due;
        };
        task.plannedDate = {};
        task.dueDate = {};
    }

    void importFile() {
        PlanningSnapshot content;
        content.projects = {newProject()};
        content.phases = {{.id = newId<ProjectPhaseId>(),
                           .name = newText(),
                           .createdAt = m_rig.clock.now(),
                           .project = content.projects[0].id}};
        for (int count = m_random.bounded(1, 4); count > 0; --count) {
            TaskValues task = newTask();
            task.project = chance(3) ? any(m_plain.projects) : std::optional(content.projects[0].id);
            task.phase = content.phases[0].id;
            task.parentTask = content.tasks.empty() ? anyOrNone(m_plain.tasks) : content.tasks.back().id;
            content.tasks.push_back(task);
        }
        PlanningSnapshot file = content;
        if (const auto known = any(m_plain.tasks)) {
            // It stays as it is, whatever the file says of it.
            TaskValues task = newTask();
            task.id = *known;
            file.tasks.push_back(task);
        }
        const QString path = m_store.folder() + QStringLiteral("/import.json");
        QFile target(path);
        const bool isWritten =
            target.open(QIODevice::WriteOnly) && target.write(planningJson(file)) > 0 && target.flush();
        const auto outcome = m_exchange->importFrom(path);
        if (!isWritten || std::holds_alternative<PlanningError>(outcome))
            qFatal("the import was refused");
        for (const ProjectValues& values : content.projects)
            m_plain.add(m_plain.projects, values);
        for (const PhaseValues& values : content.phases)
            m_plain.add(m_plain.phases, values);
        for (const TaskValues& values : content.tasks)
            m_plain.add(m_plain.tasks, values);
        m_undo = [this, content] { takeBack(content); };
    }
    // Without what belongs to it by now and came from elsewhere.
    void takeBack(const PlanningSnapshot& content) {
        std::set<TaskId> own;
        for (const TaskValues& values : content.tasks)
            own.insert(values.id);
        for (auto& [id, task] : m_plain.tasks) {
            if (own.count(id) > 0)
                continue;
            if (task.parentTask && own.count(*task.parentTask) > 0)
                task.parentTask.reset();
            if (task.project == content.projects[0].id)
                task.project.reset();
        }
        for (const TaskId& id : own) {
            if (m_plain.tasks.count(id) > 0)
                m_plain.removeTask(id);
        }
        if (m_plain.phases.count(content.phases[0].id) > 0)
            m_plain.removePhase(content.phases[0].id);
        if (m_plain.projects.count(content.projects[0].id) > 0)
            m_plain.removeProject(content.projects[0].id);
    }

    void undo() {
        m_edits->undo();
        if (m_undo)
            std::exchange(m_undo, {})();
    }
    void endTurn() { FocusRig::settle(); }

    QRandomGenerator m_random;
    StoreFixture m_store;
    FocusRig m_rig;
    std::unique_ptr<PlanningEdits> m_edits;
    std::unique_ptr<PlanningExchange> m_exchange;
    PlainPlanning m_plain;
    std::function<void()> m_undo;
};

} // namespace norvin::test
