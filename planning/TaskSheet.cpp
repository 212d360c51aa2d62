#include "planning/TaskSheet.h"

#include "model/ModelContext.h"
#include "planning/CalendarDays.h"
#include "planning/PlanningEdits.h"
#include "planning/PlanningNotifications.h"
#include "planning/PlanningTexts.h"
#include "platform/Clock.h"

#include <QCollator>
#include <QDir>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QStandardPaths>

#include <algorithm>
#include <memory>
#include <utility>

namespace norvin {

namespace {

constexpr auto plannedField = QLatin1String("plannedDate");
constexpr auto dueField = QLatin1String("dueDate");

template <class T>
EntityId<T> idFrom(const QString& text) {
    return EntityId<T>(QUuid::fromString(text));
}

QString textOf(const Project* project) {
    return project != nullptr ? project->id().toString() : QString();
}

QString textOf(const ProjectPhase* phase) {
    return phase != nullptr ? phase->id().toString() : QString();
}

// The task and all below it that belong to its project go to another.
void moveTree(TaskItem& root, Project* target) {
    Project* const former = root.project();
    std::vector<TaskItem*> pending{&root};
    while (!pending.empty()) {
        TaskItem& task = *pending.back();
        pending.pop_back();
        if (task.project() != former)
            continue;
        pending.insert(pending.end(), task.subtasks().begin(), task.subtasks().end());
        if (task.phase() != nullptr && task.phase()->project() != target)
            task.setPhase(nullptr);
        task.setProject(target);
    }
}

} // namespace

TaskSheet::TaskSheet(ModelContext& context, PlanningEdits& edits, PlanningNotifications& notifications,
                     Clock& clock, QObject* parent)
    : QObject(parent)
    , m_context(context)
    , m_edits(edits)
    , m_notifications(notifications)
    , m_clock(clock)
    , m_sessions(context)
    , m_calendar(context, clock, m_locale) {
    connect(&m_calendar, &AgendaCalendarPopover::chosen, this, [this](QDate day) {
        if (m_isPresented)
            setDate(m_chosenField, startOfDate(day, m_clock.now()));
    });
    connect(&m_notifications, &PlanningNotifications::posted, this,
            [this](const QString& name, TaskItem* task) {
                if (name == PlanningNotifications::showTaskDetail && task != nullptr)
                    present(*task);
            });
    connect(&m_context, &ModelContext::taskAboutToBeRemoved, this, &TaskSheet::letGo);
    const auto choicesMayChange = [this] {
        if (m_isPresented)
            Q_EMIT choicesChanged();
    };
    connect(&m_context, &ModelContext::projectInserted, this, choicesMayChange);
    connect(&m_context, &ModelContext::projectChanged, this, choicesMayChange);
    connect(&m_context, &ModelContext::phaseInserted, this, choicesMayChange);
    connect(&m_context, &ModelContext::phaseChanged, this, choicesMayChange);
}

TaskSheet::~TaskSheet() = default;

void TaskSheet::present(TaskItem& task) {
    if (task.context() == &m_context)
        show(&task);
}

void TaskSheet::presentNew(Project* project, ProjectPhase* phase, TaskStatus status,
                           const QDateTime& plannedDate) {
    m_draft = Draft{.title = {},
                    .taskDescription = {},
                    .status = status,
                    .priority = TaskPriority::medium,
                    .project = project != nullptr ? project->id() : ProjectId(),
                    .phase = phase != nullptr ? phase->id() : ProjectPhaseId(),
                    .plannedDate = plannedDate,
                    .dueDate = {}};
    show(nullptr);
}

void TaskSheet::show(TaskItem* task) {
    disconnect(m_following);
    m_task = task;
    m_isPresented = true;
    if (task != nullptr)
        m_following = connect(task, &TaskItem::changed, this, &TaskSheet::fieldsChanged);
    m_subtasks.setTask(task);
    m_resources.setTask(task);
    m_sessions.setTask(task != nullptr ? std::optional(task->id()) : std::nullopt);
    setNotice({});
    Q_EMIT choicesChanged();
    Q_EMIT presentedChanged();
    Q_EMIT fieldsChanged();
}

void TaskSheet::close() {
    if (!m_isPresented)
        return;
    disconnect(m_following);
    m_isPresented = false;
    m_task = nullptr;
    m_subtasks.setTask(nullptr);
    m_resources.setTask(nullptr);
    m_sessions.setTask({});
    Q_EMIT presentedChanged();
}

void TaskSheet::letGo(const TaskItem* task) {
    if (task == m_task && m_task != nullptr)
        close();
}

void TaskSheet::retranslate() {
    if (!m_isPresented)
        return;
    Q_EMIT choicesChanged();
    Q_EMIT fieldsChanged();
}

void TaskSheet::setLocale(const QLocale& locale) {
    m_locale = locale;
    m_calendar.setLocale(locale);
    retranslate();
}

QString TaskSheet::title() const {
    return m_task != nullptr ? m_task->title() : m_draft.title;
}

void TaskSheet::setTitle(const QString& title) {
    const QString text = title.simplified();
    if (m_task == nullptr) {
        m_draft.title = text;
        Q_EMIT fieldsChanged();
    } else if (!text.isEmpty()) {
        m_task->setTitle(text);
    }
}

QString TaskSheet::taskDescription() const {
    return m_task != nullptr ? m_task->taskDescription() : m_draft.taskDescription;
}

void TaskSheet::setTaskDescription(const QString& text) {
    if (m_task != nullptr)
        m_task->setTaskDescription(text);
    else
        m_draft.taskDescription = text;
}

QString TaskSheet::statusValue() const {
    return rawValue(m_task != nullptr ? m_task->status() : m_draft.status);
}

void TaskSheet::setStatusValue(const QString& statusValue) {
    const std::optional<TaskStatus> status = taskStatusFromRawValue(statusValue);
    if (!status)
        return;
    if (m_task != nullptr) {
        m_edits.setStatus(*m_task, *status);
    } else {
        m_draft.status = *status;
        Q_EMIT fieldsChanged();
    }
}

int TaskSheet::priorityValue() const {
    if (m_task == nullptr)
        return static_cast<int>(m_draft.priority);
    const std::optional<TaskPriority> priority = m_task->priority();
    return priority ? static_cast<int>(*priority) : -1;
}

void TaskSheet::setPriorityValue(int priorityValue) {
    const std::optional<TaskPriority> priority = taskPriorityFromRawValue(priorityValue);
    if (!priority)
        return;
    if (m_task != nullptr) {
        m_task->setPriority(*priority);
    } else {
        m_draft.priority = *priority;
        Q_EMIT fieldsChanged();
    }
}

Project* TaskSheet::project() const {
    return m_task != nullptr ? m_task->project() : m_context.project(m_draft.project);
}

QString TaskSheet::projectId() const {
    return textOf(project());
}

void TaskSheet::setProjectId(const QString& projectId) {
    Project* const target = m_context.project(idFrom<Project>(projectId));
    if (target == project())
        return;
    if (m_task != nullptr) {
        moveTree(*m_task, target);
    } else {
        m_draft.project = target != nullptr ? target->id() : ProjectId();
        m_draft.phase = {};
    }
    Q_EMIT choicesChanged();
    Q_EMIT fieldsChanged();
}

QString TaskSheet::phaseId() const {
    return textOf(m_task != nullptr ? m_task->phase() : m_context.phase(m_draft.phase));
}

void TaskSheet::setPhaseId(const QString& phaseId) {
    ProjectPhase* const phase = m_context.phase(idFrom<ProjectPhase>(phaseId));
    if (m_task != nullptr) {
        m_task->setPhase(phase);
    } else {
        m_draft.phase = phase != nullptr ? phase->id() : ProjectPhaseId();
        Q_EMIT fieldsChanged();
    }
}

QVariantList TaskSheet::projects() const {
    std::vector<Project*> sorted = m_context.projects();
    QCollator collator(m_locale);
    collator.setNumericMode(true);
    std::stable_sort(sorted.begin(), sorted.end(), [&collator](const Project* a, const Project* b) {
        return collator.compare(a->name(), b->name()) < 0;
    });
    QVariantList choices{choice({}, qtTrId("task_no_project"))};
    for (const Project* each : sorted) {
        const QString name = each->emoji().isEmpty() ? each->name() : each->emoji() + u' ' + each->name();
        choices.append(choice(textOf(each), name, each->colorHex()));
    }
    return choices;
}

QVariantList TaskSheet::phases() const {
    QVariantList choices{choice({}, qtTrId("task_no_phase"))};
    if (const Project* const of = project()) {
        for (const ProjectPhase* phase : of->sortedPhases())
            choices.append(choice(textOf(phase), phase->name()));
    }
    return choices;
}

QDateTime TaskSheet::plannedDate() const {
    return m_task != nullptr ? m_task->plannedDate() : m_draft.plannedDate;
}

QDateTime TaskSheet::dueDate() const {
    return m_task != nullptr ? m_task->dueDate() : m_draft.dueDate;
}

QString TaskSheet::dayText(const QDateTime& date) const {
    const TaskItem dated({.plannedDate = date});
    return textOfDay(dated.formattedPlannedDate(m_clock.now(), m_locale));
}

QString TaskSheet::plannedText() const {
    return dayText(plannedDate());
}

QString TaskSheet::dueText() const {
    return dayText(dueDate());
}

bool TaskSheet::isPlannedLate() const {
    return m_task != nullptr && m_task->isPlannedLate(m_clock.now());
}

bool TaskSheet::isOverdue() const {
    return m_task != nullptr && m_task->isOverdue(m_clock.now());
}

QString TaskSheet::parentTitle() const {
    return m_task != nullptr && m_task->parentTask() != nullptr ? m_task->parentTask()->title() : QString();
}

QDateTime TaskSheet::createdAt() const {
    return m_task != nullptr ? m_task->createdAt() : QDateTime();
}

void TaskSheet::setDate(const QString& field, const QDateTime& date) {
    const bool isDue = field == dueField;
    if (!isDue && field != plannedField)
        return;
    if (m_task != nullptr) {
        isDue ? m_task->setDueDate(date) : m_task->setPlannedDate(date);
        return;
    }
    (isDue ? m_draft.dueDate : m_draft.plannedDate) = date;
    Q_EMIT fieldsChanged();
}

void TaskSheet::setDaysFromToday(const QString& field, int days) {
    const QDateTime now = m_clock.now();
    setDate(field, startOfDate(now.date().addDays(days), now));
}

void TaskSheet::chooseDay(const QString& field) {
    m_chosenField = field;
    const QDateTime now = m_clock.now();
    const QDateTime date = field == dueField ? dueDate() : plannedDate();
    m_calendar.open(date.isValid() ? inZoneOf(date, now).date() : now.date());
}

void TaskSheet::clearDay(const QString& field) {
    setDate(field, {});
}

bool TaskSheet::create() {
    if (!isNew() || m_draft.title.isEmpty())
        return false;
    m_context.insert(std::make_unique<TaskItem>(TaskItem::Init{.title = m_draft.title,
                                                               .taskDescription = m_draft.taskDescription,
                                                               .status = m_draft.status,
                                                               .priority = m_draft.priority,
                                                               .dueDate = m_draft.dueDate,
                                                               .plannedDate = m_draft.plannedDate,
                                                               .createdAt = m_clock.now(),
                                                               .project = project(),
                                                               .phase = m_context.phase(m_draft.phase)}));
    static_cast<void>(m_context.save());
    close();
    return true;
}

void TaskSheet::showParent() {
    if (m_task != nullptr && m_task->parentTask() != nullptr)
        show(m_task->parentTask());
}

void TaskSheet::moveSubtaskByRows(int row, int rows) {
    TaskItem* const subtask = m_subtasks.taskAt(row);
    if (subtask == nullptr || subtask->parentTask() == nullptr)
        return;
    // Rows between siblings belong to what is nested below them.
    const TaskItem* const parent = subtask->parentTask();
    const int direction = rows < 0 ? -1 : 1;
    int places = 0;
    for (int passed = row + direction; passed != row + rows + direction; passed += direction) {
        const TaskItem* const other = m_subtasks.taskAt(passed);
        if (other != nullptr && other->parentTask() == parent)
            places += direction;
    }
    moveSubtask(row, places);
}

bool TaskSheet::addSubtask(int row, const QString& title) {
    TaskItem* const parent = row < 0 ? m_task : m_subtasks.taskAt(row);
    const QString text = title.simplified();
    if (parent == nullptr || text.isEmpty())
        return false;
    auto subtask = std::make_unique<TaskItem>(
        TaskItem::Init{.title = text, .createdAt = m_clock.now(), .project = parent->project()});
    TaskItem* const inserted = m_context.insert(std::move(subtask));
    inserted->setParentTask(parent);
    return true;
}

void TaskSheet::toggleSubtask(int row) {
    if (TaskItem* const subtask = m_subtasks.taskAt(row))
        m_edits.setStatus(*subtask, subtask->isDone() ? TaskStatus::todo : TaskStatus::done);
}

void TaskSheet::renameSubtask(int row, const QString& title) {
    TaskItem* const subtask = m_subtasks.taskAt(row);
    const QString text = title.simplified();
    if (subtask != nullptr && !text.isEmpty())
        subtask->setTitle(text);
}

void TaskSheet::moveSubtask(int row, int places) {
    TaskItem* const subtask = m_subtasks.taskAt(row);
    if (subtask == nullptr || subtask->parentTask() == nullptr)
        return;
    QList<TaskItem*> siblings = subtask->parentTask()->subtasks();
    const qsizetype from = siblings.indexOf(subtask);
    const qsizetype to = std::clamp<qsizetype>(from + places, 0, siblings.size() - 1);
    siblings.removeAt(from);
    m_context.moveTask(*subtask, to < siblings.size() ? siblings.at(to) : nullptr);
}

void TaskSheet::deleteSubtask(int row) {
    if (TaskItem* const subtask = m_subtasks.taskAt(row))
        m_edits.deleteTask(*subtask);
}

void TaskSheet::showSubtask(int row) {
    if (TaskItem* const subtask = m_subtasks.taskAt(row))
        show(subtask);
}

void TaskSheet::attach(const QList<QUrl>& files) {
    if (m_task == nullptr)
        return;
    QString notice;
    for (const QUrl& url : files) {
        const QFileInfo file(url.toLocalFile());
        if (!url.isLocalFile() || !file.exists()) {
            notice = url.isLocalFile() ? QStringLiteral("attach_refused_missing")
                                       : QStringLiteral("attach_refused_not_local");
            continue;
        }
        auto resource = std::make_unique<TaskResource>(TaskResource::Init{
            .name = file.fileName(),
            // By the name alone: looking into a pipe would wait for whoever writes to it.
            .fileType = QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension).name(),
            .fileURL = url,
            .createdAt = m_clock.now()});
        const QList<TaskResource*>& attached = m_task->resources();
        const bool isAttached =
            std::any_of(attached.begin(), attached.end(), [&resource](const TaskResource* other) {
                return other->fileURLData() == resource->fileURLData();
            });
        if (isAttached) {
            notice = QStringLiteral("attach_refused_again");
            continue;
        }
        m_context.insert(std::move(resource))->setTask(m_task);
        m_fileFolder = file.absolutePath();
    }
    setNotice(notice);
}

void TaskSheet::removeResource(int row) {
    if (TaskResource* const resource = m_resources.resourceAt(row))
        m_edits.deleteResource(*resource);
}

void TaskSheet::reportUnopened() {
    setNotice(QStringLiteral("attach_not_opened"));
}

QUrl TaskSheet::fileFolder() const {
    const QString usual = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString folder = m_fileFolder.isEmpty() ? usual : m_fileFolder;
    return QUrl::fromLocalFile(QFileInfo(folder).isDir() ? folder : QDir::homePath());
}

void TaskSheet::setNotice(const QString& key) {
    if (key == m_noticeKey)
        return;
    m_noticeKey = key;
    Q_EMIT noticeChanged();
}

void TaskSheet::dismissNotice() {
    setNotice({});
}

QString TaskSheet::deletionConsequences() const {
    return m_task != nullptr ? norvin::deletionConsequences(*m_task) : QString();
}

void TaskSheet::deleteTask() {
    // Removing it closes the sheet.
    if (m_task != nullptr)
        m_edits.deleteTask(*m_task);
}

} // namespace norvin
