#include "app/PlanningCommands.h"

#include "app/PlanningReport.h"
#include "focus/DeepWorkScreen.h"
#include "model/ModelContext.h"
#include "planning/AgendaDay.h"
#include "planning/exchange/UserDays.h"
#include "platform/Clock.h"
#include "platform/TextSearch.h"

#include <QDir>
#include <QStringList>

#include <algorithm>
#include <memory>

namespace norvin {

namespace {

constexpr qsizetype fewestDigits = 4;
// More would not be read.
constexpr qsizetype mostCandidates = 8;

template <class T>
std::vector<T*> thoseWithId(const std::vector<T*>& entities, const QString& digits) {
    std::vector<T*> found;
    std::copy_if(entities.begin(), entities.end(), std::back_inserter(found), [&digits](const T* entity) {
        return entity->id().toString().remove(u'-').startsWith(digits);
    });
    return found;
}

template <class T, class Name>
QString candidates(const std::vector<T*>& entities, const Name& name) {
    QStringList names;
    for (const T* entity : entities) {
        if (names.size() == mostCandidates) {
            names.append(QStringLiteral("…"));
            break;
        }
        names.append(QStringLiteral("%1 (%2)").arg(name(*entity), shortId(entity->id().toString())));
    }
    return names.join(QStringLiteral(", "));
}

std::optional<TaskPriority> priorityCalled(const QString& name) {
    if (name == QLatin1String("low"))
        return TaskPriority::low;
    if (name.isEmpty() || name == QLatin1String("medium"))
        return TaskPriority::medium;
    return name == QLatin1String("high") ? std::optional(TaskPriority::high) : std::nullopt;
}

std::optional<PlanningError> pathProblem(const QString& path) {
    if (QDir::isAbsolutePath(path))
        return std::nullopt;
    return PlanningError{"refused_path_not_absolute", {path}};
}

} // namespace

std::optional<QString> idDigits(const QString& text) {
    const QString digits = text.trimmed().toLower().remove(u'-');
    const bool areDigits = std::all_of(digits.cbegin(), digits.cend(), [](QChar digit) {
        return (digit >= u'0' && digit <= u'9') || (digit >= u'a' && digit <= u'f');
    });
    return areDigits && digits.size() >= fewestDigits ? std::optional(digits) : std::nullopt;
}

std::optional<QDate> dayOfText(const QString& text, QDate today) {
    if (text == QLatin1String("today"))
        return today;
    if (text == QLatin1String("tomorrow"))
        return today.addDays(1);
    return dayFromText(text);
}

PlanningCommands::PlanningCommands(DeepWorkScreen& screen, ModelContext& context, PlanningExchange& exchange,
                                   Clock& clock)
    : m_screen(screen)
    , m_context(context)
    , m_exchange(exchange)
    , m_clock(clock) {}

std::optional<PlanningError> PlanningCommands::add(const NewTask& wanted) {
    const QString title = wanted.title.simplified();
    if (title.isEmpty())
        return PlanningError{"refused_task_title_empty"};
    const std::optional<TaskPriority> priority = priorityCalled(wanted.priority);
    if (!priority)
        return PlanningError{"refused_priority_unknown", {wanted.priority}};
    const Outcome<QDateTime> day = startOf(wanted.date);
    if (const auto* error = std::get_if<PlanningError>(&day))
        return *error;
    Project* project = nullptr;
    if (!wanted.project.isEmpty()) {
        const Outcome<Project*> called = projectCalled(wanted.project);
        if (const auto* error = std::get_if<PlanningError>(&called))
            return *error;
        project = std::get<Project*>(called);
    }

    TaskItem* const task =
        m_context.insert(std::make_unique<TaskItem>(TaskItem::Init{.title = title,
                                                                   .priority = *priority,
                                                                   .plannedDate = std::get<QDateTime>(day),
                                                                   .createdAt = m_clock.now(),
                                                                   .project = project}));
    if (dayOf(m_clock.now()).contains(task->plannedInstant()))
        queue(task);
    static_cast<void>(m_context.save());
    return std::nullopt;
}

// As the Deep Work screen does with a task that is typed there.
void PlanningCommands::queue(TaskItem* task) {
    PomodoroTimerService& timer = m_screen.timer();
    timer.addTaskToQueue(task);
    const bool isUnderWay = timer.state() == TimerState::running || timer.state() == TimerState::paused;
    if (isUnderWay && timer.activeTask() == nullptr)
        timer.setActiveTask(task);
}

PlanningCommands::Outcome<QString> PlanningCommands::finish(const QString& id) {
    const Outcome<TaskItem*> found = taskWithId(id);
    if (const auto* error = std::get_if<PlanningError>(&found))
        return *error;
    TaskItem* const task = std::get<TaskItem*>(found);
    if (task->isDone())
        return PlanningError{"refused_task_already_done", {task->title()}};
    // In the queue, the session goes on to the next one.
    const TaskQueueModel& queue = *m_screen.queue();
    int row = 0;
    while (row < queue.rowCount() && queue.taskAt(row) != task)
        ++row;
    if (row < queue.rowCount())
        m_screen.toggleDone(row);
    else {
        task->setStatus(TaskStatus::done);
        m_screen.timer().recordTaskCompletion(task->parentTask() != nullptr);
    }
    static_cast<void>(m_context.save());
    return task->title();
}

PlanningCommands::Outcome<QJsonObject> PlanningCommands::agenda(const QString& date) const {
    const Outcome<QDateTime> start = startOf(date);
    if (const auto* error = std::get_if<PlanningError>(&start))
        return *error;
    const AgendaDay day = dayOf(std::get<QDateTime>(start));
    const std::vector<TaskItem*> tasks = m_context.fetchTasks(
        [&day](const TaskItem& task) { return isOnAgendaDay(task, day.start, day.end); },
        [](const TaskItem& a, const TaskItem& b) { return a.priorityValue() > b.priorityValue(); });
    return agendaReport(tasks, std::get<QDateTime>(start).date(), m_clock.now());
}

QJsonArray PlanningCommands::projects() const {
    return projectsReport(m_context.projects());
}

PlanningCommands::Outcome<SnapshotCounts>
PlanningCommands::exportTo(const QString& path, PlanningExchange::Overwrite overwrite) const {
    if (const auto problem = pathProblem(path))
        return *problem;
    return m_exchange.exportTo(path, overwrite);
}

PlanningCommands::Outcome<PlanningExchange::Imported> PlanningCommands::importFrom(const QString& path) {
    if (const auto problem = pathProblem(path))
        return *problem;
    return m_exchange.importFrom(path);
}

PlanningCommands::Outcome<Project*> PlanningCommands::projectCalled(const QString& name) const {
    const auto nameOf = [](const Project& project) { return project.name(); };
    const QString key = searchKey(name.simplified());
    std::vector<Project*> found;
    std::copy_if(m_context.projects().begin(), m_context.projects().end(), std::back_inserter(found),
                 [&key](const Project* project) { return searchKey(project->name().simplified()) == key; });
    if (found.empty()) {
        if (const std::optional<QString> digits = idDigits(name))
            found = thoseWithId(m_context.projects(), *digits);
    }
    if (found.size() == 1)
        return found.front();
    if (!found.empty())
        return PlanningError{"refused_project_ambiguous", {name, candidates(found, nameOf)}};
    if (m_context.projects().empty())
        return PlanningError{"refused_no_projects", {name}};
    return PlanningError{"refused_project_unknown", {name, candidates(m_context.projects(), nameOf)}};
}

PlanningCommands::Outcome<TaskItem*> PlanningCommands::taskWithId(const QString& id) const {
    const std::optional<QString> digits = idDigits(id);
    if (!digits)
        return PlanningError{"refused_task_id", {id}};
    const std::vector<TaskItem*> found = thoseWithId(m_context.tasks(), *digits);
    if (found.empty())
        return PlanningError{"refused_task_unknown", {id}};
    if (found.size() == 1)
        return found.front();
    QStringList names;
    for (const TaskItem* task : found)
        names.append(QStringLiteral("%1 (%2)").arg(task->title(), task->id().toString()));
    names = names.mid(0, mostCandidates);
    return PlanningError{"refused_task_ambiguous", {id, names.join(QStringLiteral(", "))}};
}

PlanningCommands::Outcome<QDateTime> PlanningCommands::startOf(const QString& date) const {
    const UserDays days(m_clock.now());
    const QDate today = m_clock.now().date();
    const std::optional<QDate> day = date.isEmpty() ? std::optional(today) : dayOfText(date, today);
    if (!day)
        return PlanningError{"refused_day_unknown", {date}};
    return days.startOf(*day);
}

} // namespace norvin
