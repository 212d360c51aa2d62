#include "planning/AgendaRowsModel.h"

#include "model/ModelContext.h"
#include "model/Project.h"
#include "planning/CalendarDays.h"
#include "planning/PlanningNotifications.h"
#include "planning/PlanningTexts.h"
#include "platform/Clock.h"

#include <utility>

namespace norvin {

QString priorityLabel(std::optional<TaskPriority> priority) {
    if (!priority)
        return {};
    switch (*priority) {
    case TaskPriority::low:
        return qtTrId("priority_low");
    case TaskPriority::medium:
        return qtTrId("priority_medium");
    case TaskPriority::high:
        return qtTrId("priority_high");
    }
    return {};
}

AgendaRowsModel::AgendaRowsModel(ModelContext& context, Clock& clock, PlanningNotifications& notifications,
                                 const QLocale& locale, LiveTaskList::Predicate accept,
                                 LiveTaskList::Order order, QObject* parent)
    : QIdentityProxyModel(parent)
    , m_clock(clock)
    , m_notifications(notifications)
    , m_locale(locale)
    , m_tasks(context, std::move(accept), std::move(order)) {
    setSourceModel(&m_tasks);
    connect(&m_tasks, &LiveTaskList::countChanged, this, &AgendaRowsModel::countChanged);
    connect(&m_tasks, &LiveTaskList::countChanged, this, &AgendaRowsModel::textsChanged);
    connect(&context, &ModelContext::projectChanged, this, [this](const Project* project) {
        touchRowsWhere([project](const TaskItem& task) { return task.project() == project; });
    });
    connect(&context, &ModelContext::taskChanged, this, [this](const TaskItem* parentTask) {
        if (!parentTask->subtasks().isEmpty())
            touchRowsWhere([parentTask](const TaskItem& task) { return task.parentTask() == parentTask; });
    });
}

AgendaRowsModel::~AgendaRowsModel() = default;

template <class Condition>
void AgendaRowsModel::touchRowsWhere(Condition holds) {
    for (int row = 0; row < count(); ++row) {
        if (holds(*taskAt(row)))
            Q_EMIT dataChanged(index(row, 0), index(row, 0));
    }
}

void AgendaRowsModel::refreshRows(const QLocale& locale) {
    m_locale = locale;
    if (count() > 0)
        Q_EMIT dataChanged(index(0, 0), index(count() - 1, 0));
    Q_EMIT textsChanged();
}

void AgendaRowsModel::openRow(int row) {
    if (TaskItem* task = taskAt(row))
        m_notifications.post(PlanningNotifications::showTaskDetail, task);
}

QVariant AgendaRowsModel::data(const QModelIndex& index, int role) const {
    const TaskItem* task = taskAt(index.row());
    if (task == nullptr)
        return {};
    switch (role) {
    case PriorityLabelRole:
        return priorityLabel(task->priority());
    case ProjectNameRole:
        return task->project() != nullptr ? task->project()->name() : QString();
    case ProjectColorRole:
        return task->project() != nullptr ? task->project()->colorHex() : QString();
    case ParentTitleRole:
        return task->parentTask() != nullptr ? task->parentTask()->title() : QString();
    case DueTextRole:
        return textOfDay(task->formattedDueDate(m_clock.now(), m_locale));
    case PlannedTextRole:
        return textOfDay(task->formattedPlannedDate(m_clock.now(), m_locale));
    case IsLateRole:
        return task->isOverdue(m_clock.now()) || task->isPlannedLate(m_clock.now());
    case IsOverdueRole:
        return task->isOverdue(m_clock.now());
    case IsPlannedForTodayRole:
        return dateOf(task->plannedInstant(), m_clock.now()) == m_clock.now().date();
    default:
        return QIdentityProxyModel::data(index, role);
    }
}

QHash<int, QByteArray> AgendaRowsModel::roleNames() const {
    QHash<int, QByteArray> names = m_tasks.roleNames();
    names.insert({{PriorityLabelRole, "priorityLabel"},
                  {ProjectNameRole, "projectName"},
                  {ProjectColorRole, "projectColor"},
                  {ParentTitleRole, "parentTitle"},
                  {DueTextRole, "dueText"},
                  {PlannedTextRole, "plannedText"},
                  {IsLateRole, "isLate"},
                  {IsOverdueRole, "isOverdue"},
                  {IsPlannedForTodayRole, "isPlannedForToday"}});
    return names;
}

} // namespace norvin
