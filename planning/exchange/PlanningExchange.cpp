#include "planning/exchange/PlanningExchange.h"

#include "model/ModelContext.h"
#include "planning/PlanningEdits.h"
#include "planning/PlanningTexts.h"
#include "planning/exchange/CalendarFile.h"
#include "planning/exchange/PlanningJson.h"
#include "planning/exchange/TodoTxt.h"
#include "platform/Clock.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringList>

#include <utility>

namespace norvin {

namespace {

QByteArray bytesOf(const PlanningSnapshot& content, PlanningFormat format, const UserDays& days) {
    switch (format) {
    case PlanningFormat::json:
        return planningJson(content);
    case PlanningFormat::todoTxt:
        return todoTxt(content, days);
    case PlanningFormat::calendar:
        return calendarOf(content, days);
    }
    Q_UNREACHABLE();
}

PlanningReading readingOf(const QByteArray& bytes, PlanningFormat format, const UserDays& days,
                          const PlanningSnapshot& known) {
    switch (format) {
    case PlanningFormat::json:
        return planningFromJson(bytes, known);
    case PlanningFormat::todoTxt:
        return tasksFromTodoTxt(bytes, days, known);
    case PlanningFormat::calendar:
        return tasksFromCalendar(bytes, days, known);
    }
    Q_UNREACHABLE();
}

SnapshotCounts countsOf(const PlanningSnapshot& content) {
    return {.projects = static_cast<int>(content.projects.size()),
            .phases = static_cast<int>(content.phases.size()),
            .tasks = static_cast<int>(content.tasks.size()),
            .resources = static_cast<int>(content.resources.size())};
}

SnapshotCounts operator-(const SnapshotCounts& all, const SnapshotCounts& some) {
    return {.projects = all.projects - some.projects,
            .phases = all.phases - some.phases,
            .tasks = all.tasks - some.tasks,
            .resources = all.resources - some.resources};
}

bool isNone(const SnapshotCounts& counts) {
    return counts == SnapshotCounts{};
}

// What the context has already is no part of what comes in.
PlanningSnapshot newIn(PlanningSnapshot content, const ModelContext& context) {
    std::erase_if(content.projects,
                  [&context](const ProjectValues& values) { return context.project(values.id) != nullptr; });
    std::erase_if(content.phases,
                  [&context](const PhaseValues& values) { return context.phase(values.id) != nullptr; });
    std::erase_if(content.tasks,
                  [&context](const TaskValues& values) { return context.task(values.id) != nullptr; });
    std::erase_if(content.resources, [&context](const ResourceValues& values) {
        return context.resource(values.id) != nullptr;
    });
    return content;
}

} // namespace

std::optional<PlanningFormat> planningFormatOf(const QString& path) {
    const QString extension = QFileInfo(path).suffix().toLower();
    if (extension == QLatin1String("json"))
        return PlanningFormat::json;
    if (extension == QLatin1String("txt"))
        return PlanningFormat::todoTxt;
    if (extension == QLatin1String("ics"))
        return PlanningFormat::calendar;
    return std::nullopt;
}

PlanningExchange::PlanningExchange(ModelContext& context, PlanningEdits& edits, Clock& clock, QObject* parent)
    : QObject(parent)
    , m_context(context)
    , m_edits(edits)
    , m_clock(clock) {}

PlanningExchange::~PlanningExchange() = default;

std::variant<SnapshotCounts, PlanningError> PlanningExchange::exportTo(const QString& path,
                                                                       Overwrite overwrite) const {
    const std::optional<PlanningFormat> format = planningFormatOf(path);
    if (!format)
        return PlanningError{"planning_file_unknown_format", {QFileInfo(path).fileName()}};
    if (overwrite == Overwrite::no && QFile::exists(path))
        return PlanningError{"planning_file_exists", {path}};
    PlanningSnapshot content = snapshotOf(m_context);
    const QByteArray bytes = bytesOf(content, *format, UserDays(m_clock.now()));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() ||
        !file.commit())
        return PlanningError{"planning_file_unwritable", {file.errorString()}};
    // The other formats hold tasks alone; of projects and phases they hold the names.
    if (*format != PlanningFormat::json)
        return SnapshotCounts{.tasks = static_cast<int>(content.tasks.size())};
    return countsOf(content);
}

std::variant<PlanningExchange::Imported, PlanningError> PlanningExchange::importFrom(const QString& path) {
    const std::optional<PlanningFormat> format = planningFormatOf(path);
    if (!format)
        return PlanningError{"planning_file_unknown_format", {QFileInfo(path).fileName()}};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return PlanningError{"planning_file_unreadable", {file.errorString()}};
    const QByteArray bytes = file.read(largestPlanningFile + 1);
    if (file.error() != QFileDevice::NoError)
        return PlanningError{"planning_file_unreadable", {file.errorString()}};

    PlanningReading reading = readingOf(bytes, *format, UserDays(m_clock.now()), snapshotOf(m_context));
    if (const auto* error = std::get_if<PlanningError>(&reading))
        return *error;
    PlanningFile& read = std::get<PlanningFile>(reading);
    const SnapshotCounts all = countsOf(read.content);
    const PlanningSnapshot added = newIn(std::move(read.content), m_context);
    const SnapshotCounts inserted = insert(added, m_context);
    // What cannot be saved now stays in memory, is shown as unsaved and tried again.
    static_cast<void>(m_context.save());
    if (!isNone(inserted)) {
        m_edits.offerUndo(qtTrId("undo_imported_format").arg(QFileInfo(path).fileName()),
                          [this, added] { takeBack(added); });
    }
    return Imported{.added = inserted, .alreadyThere = all - inserted, .ignored = read.ignored};
}

// What was put into the imported meanwhile is no part of the import, and stays.
void PlanningExchange::takeBack(const PlanningSnapshot& added) {
    QSet<TaskId> tasks;
    for (const TaskValues& values : added.tasks)
        tasks.insert(values.id);
    const auto detach = [&tasks](const QList<TaskItem*>& members, const auto& leave) {
        for (TaskItem* member : QList<TaskItem*>(members)) {
            if (!tasks.contains(member->id()))
                leave(*member);
        }
    };
    for (const TaskValues& values : added.tasks) {
        if (const TaskItem* const task = m_context.task(values.id))
            detach(task->subtasks(), [](TaskItem& subtask) { subtask.setParentTask(nullptr); });
    }
    // Projects first: each takes most of the rest along in one go, and what is gone with others is found no
    // more.
    for (const ProjectValues& values : added.projects) {
        if (Project* const project = m_context.project(values.id)) {
            detach(project->tasks(), [](TaskItem& task) { task.setProject(nullptr); });
            m_context.remove(*project);
        }
    }
    for (const TaskValues& values : added.tasks) {
        if (TaskItem* const task = m_context.task(values.id))
            m_context.remove(*task);
    }
    for (const PhaseValues& values : added.phases) {
        if (ProjectPhase* const phase = m_context.phase(values.id))
            m_context.remove(*phase);
    }
    for (const ResourceValues& values : added.resources) {
        if (TaskResource* const resource = m_context.resource(values.id))
            m_context.remove(*resource);
    }
}

void PlanningExchange::exportFile(const QUrl& file) {
    const QString path = file.toLocalFile();
    const auto outcome = exportTo(path, Overwrite::yes);
    if (const auto* error = std::get_if<PlanningError>(&outcome))
        setNotice(*error);
    else
        setNotice(Exported{QFileInfo(path).fileName(), std::get<SnapshotCounts>(outcome)});
}

void PlanningExchange::importFile(const QUrl& file) {
    const auto outcome = importFrom(file.toLocalFile());
    std::visit([this](const auto& result) { setNotice(result); }, outcome);
}

void PlanningExchange::dismissNotice() {
    setNotice({});
}

void PlanningExchange::setNotice(const Notice& notice) {
    m_notice = notice;
    Q_EMIT noticeChanged();
}

QString PlanningExchange::noticeText() const {
    if (const auto* exported = std::get_if<Exported>(&m_notice))
        return qtTrId("planning_exported_format")
            .arg(planningCountsText(exported->counts), exported->fileName);
    if (const auto* imported = std::get_if<Imported>(&m_notice))
        return importText(*imported);
    if (const auto* error = std::get_if<PlanningError>(&m_notice))
        return planningErrorText(*error);
    return {};
}

QString planningCountsText(const SnapshotCounts& counts) {
    QStringList parts;
    const auto add = [&parts](const char* key, int count) {
        if (count > 0)
            parts.append(qtTrId(key, count));
    };
    add("count_tasks", counts.tasks);
    add("count_projects", counts.projects);
    add("count_phases", counts.phases);
    add("count_files", counts.resources);
    return parts.isEmpty() ? qtTrId("count_tasks", 0) : enumerated(parts);
}

QString importText(const PlanningExchange::Imported& imported) {
    QStringList sentences;
    const auto total = [](const SnapshotCounts& counts) {
        return counts.projects + counts.phases + counts.tasks + counts.resources;
    };
    sentences.append(total(imported.added) > 0 || total(imported.alreadyThere) == 0
                         ? qtTrId("planning_imported_format").arg(planningCountsText(imported.added))
                         : qtTrId("planning_imported_nothing"));
    if (const int there = total(imported.alreadyThere); there > 0)
        sentences.append(
            qtTrId("planning_import_there_format").arg(planningCountsText(imported.alreadyThere)));
    if (imported.ignored > 0)
        sentences.append(qtTrId("planning_import_ignored", imported.ignored));
    return sentences.join(u' ');
}

} // namespace norvin
