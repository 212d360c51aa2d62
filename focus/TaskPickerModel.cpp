#include "focus/TaskPickerModel.h"

#include "focus/PomodoroTimerService.h"
#include "model/ModelContext.h"
#include "platform/TextSearch.h"

namespace norvin {

TaskPickerModel::TaskPickerModel(ModelContext& context, PomodoroTimerService& timer, QObject* parent)
    : QAbstractListModel(parent)
    , m_context(context)
    , m_timer(timer) {
    connect(&m_context, &ModelContext::taskInserted, this, &TaskPickerModel::scheduleRefresh);
    connect(&m_context, &ModelContext::taskChanged, this, &TaskPickerModel::scheduleRefresh);
    connect(&m_timer, &PomodoroTimerService::taskQueueChanged, this, &TaskPickerModel::scheduleRefresh);
    connect(&m_context, &ModelContext::taskAboutToBeRemoved, this, [this](TaskItem* task) {
        const auto row = static_cast<int>(m_tasks.indexOf(task));
        if (row >= 0) {
            beginRemoveRows({}, row, row);
            m_tasks.removeAt(row);
            endRemoveRows();
            Q_EMIT countChanged();
        }
        scheduleRefresh();
    });
    refresh();
}

TaskPickerModel::~TaskPickerModel() = default;

int TaskPickerModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant TaskPickerModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const TaskItem& task = *m_tasks.at(index.row());
    switch (role) {
    case TaskIdRole:
        return task.id().toString();
    case Qt::DisplayRole:
    case TitleRole:
        return task.title();
    case ProjectNameRole:
        return task.project() ? task.project()->name() : QString();
    default:
        return {};
    }
}

QHash<int, QByteArray> TaskPickerModel::roleNames() const {
    return {{TaskIdRole, "taskId"}, {TitleRole, "title"}, {ProjectNameRole, "projectName"}};
}

void TaskPickerModel::setFilterText(const QString& text) {
    if (text == m_filterText)
        return;
    m_filterText = text;
    refresh();
    Q_EMIT filterTextChanged();
}

// Many tasks may change in one turn.
void TaskPickerModel::scheduleRefresh() {
    if (m_refreshScheduled)
        return;
    m_refreshScheduled = true;
    QMetaObject::invokeMethod(this, &TaskPickerModel::refresh, Qt::QueuedConnection);
}

void TaskPickerModel::refresh() {
    m_refreshScheduled = false;
    const QString wanted = searchKey(m_filterText.trimmed());
    const auto isOffered = [&](const TaskItem& task) {
        return !task.isDone() && !task.parentTask() &&
               (wanted.isEmpty() || searchKey(task.title()).contains(wanted));
    };
    // What has a date comes first, the earliest before the others; the rest as it stands in the store.
    const auto referenceDate = [](const TaskItem& task) {
        return task.plannedDate().isValid() ? task.plannedDate() : task.dueDate();
    };
    const auto before = [&](const TaskItem& a, const TaskItem& b) {
        const QDateTime dateA = referenceDate(a);
        const QDateTime dateB = referenceDate(b);
        return dateA.isValid() && (!dateB.isValid() || dateA < dateB);
    };
    QList<TaskItem*> offered;
    for (TaskItem* task : m_context.fetchTasks(isOffered, before)) {
        if (m_timer.taskQueue().contains(task))
            continue;
        offered.append(task);
        if (offered.size() == maximumRows)
            break;
    }
    beginResetModel();
    m_tasks = offered;
    endResetModel();
    Q_EMIT countChanged();
}

} // namespace norvin
