#include "focus/TaskPickerModel.h"

#include "focus/PomodoroTimerService.h"
#include "model/ModelContext.h"
#include "platform/TextSearch.h"

#include <algorithm>
#include <limits>
#include <tuple>
#include <vector>

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
    // What has a date comes first, the earliest before the others; the rest as it stands in the store.
    // Instants are compared as numbers: there may be tens of thousands of tasks, and this runs at every key.
    struct Candidate {
        qint64 date;
        qsizetype place;
        TaskItem* task;
    };
    std::vector<Candidate> candidates;
    qsizetype place = 0;
    for (TaskItem* task : m_context.tasks()) {
        ++place;
        if (task->isDone() || task->parentTask() || m_timer.taskQueue().contains(task) ||
            (!wanted.isEmpty() && !searchKey(task->title()).contains(wanted)))
            continue;
        const QDateTime& date = task->plannedDate().isValid() ? task->plannedDate() : task->dueDate();
        candidates.push_back(
            {date.isValid() ? date.toMSecsSinceEpoch() : std::numeric_limits<qint64>::max(), place, task});
    }
    const auto shown = std::min<std::ptrdiff_t>(maximumRows, std::ssize(candidates));
    std::partial_sort(candidates.begin(), candidates.begin() + shown, candidates.end(),
                      [](const Candidate& a, const Candidate& b) {
                          return std::tie(a.date, a.place) < std::tie(b.date, b.place);
                      });
    QList<TaskItem*> offered;
    for (std::ptrdiff_t i = 0; i < shown; ++i)
        offered.append(candidates[static_cast<size_t>(i)].task);
    beginResetModel();
    m_tasks = offered;
    endResetModel();
    Q_EMIT countChanged();
}

} // namespace norvin
