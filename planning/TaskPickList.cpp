#include "planning/TaskPickList.h"

#include "model/ModelContext.h"
#include "planning/AgendaRowsModel.h"
#include "planning/CalendarDays.h"
#include "planning/PlanningTexts.h"
#include "platform/Clock.h"
#include "platform/TextSearch.h"

#include <QUuid>
#include <QtGlobal>

#include <algorithm>
#include <tuple>
#include <utility>

namespace norvin {

namespace {

// About a millisecond's worth.
constexpr size_t keysAtATime = 500;

} // namespace

TaskPickList::TaskPickList(ModelContext& context, Clock& clock, const QLocale& locale, QObject* parent)
    : QAbstractListModel(parent)
    , m_context(context)
    , m_clock(clock)
    , m_locale(locale) {
    connect(&m_context, &ModelContext::taskInserted, this, &TaskPickList::scheduleLoad);
    connect(&m_context, &ModelContext::taskChanged, this, [this](const TaskItem* task) {
        if (m_isOpen)
            m_changed.insert(task);
        scheduleLoad();
    });
    connect(&m_context, &ModelContext::taskAboutToBeRemoved, this, &TaskPickList::forget);
    connect(&m_context, &ModelContext::projectInserted, this, &TaskPickList::scheduleLoad);
    connect(&m_context, &ModelContext::projectChanged, this, [this] {
        m_projectKeys.clear();
        scheduleLoad();
    });
    connect(&m_context, &ModelContext::projectAboutToBeRemoved, this, [this](const Project* project) {
        m_projectKeys.remove(project);
        scheduleLoad();
    });
    connect(&m_warmUp, &QTimer::timeout, this, &TaskPickList::warmUp);
}

TaskPickList::~TaskPickList() = default;

void TaskPickList::open(TaskItem* task) {
    m_isOpen = true;
    m_asked = task != nullptr ? std::optional(task->id()) : std::nullopt;
    m_project.reset();
    m_searchText.clear();
    m_ticked.clear();
    if (task != nullptr)
        m_ticked.insert(task);
    load();
    m_warm = 0;
    m_warmUp.start();
    Q_EMIT searchTextChanged();
    Q_EMIT tickedCountChanged();
}

void TaskPickList::close() {
    m_isOpen = false;
    m_warmUp.stop();
    beginResetModel();
    m_all.clear();
    m_rows.clear();
    m_ticked.clear();
    m_changed.clear();
    m_projectKeys.clear();
    endResetModel();
    Q_EMIT countChanged();
    Q_EMIT tickedCountChanged();
}

void TaskPickList::load() {
    struct Place {
        int group;
        Instant date;
        size_t inStore;
        TaskItem* task;
    };
    enum Group { askedFor, late, undated, dated };
    const Instant today(startOfDay(m_clock.now()));
    std::vector<Place> places;
    places.reserve(m_context.tasks().size());
    for (TaskItem* task : m_context.tasks()) {
        const bool isAsked = m_asked == task->id();
        if (!isAsked && (task->parentTask() != nullptr || task->isDone()))
            continue;
        const Instant date = task->agendaInstant();
        const Group group = isAsked ? askedFor : date.isNone() ? undated : date < today ? late : dated;
        places.push_back({group, date, places.size(), task});
    }
    std::sort(places.begin(), places.end(), [](const Place& a, const Place& b) {
        return std::tie(a.group, a.date, a.inStore) < std::tie(b.group, b.date, b.inStore);
    });
    QHash<const TaskItem*, QString> keys;
    for (const Candidate& known : m_all) {
        if (!known.key.isNull() && !m_changed.contains(known.task))
            keys.insert(known.task, known.key);
    }
    m_changed.clear();
    m_all.clear();
    m_all.reserve(places.size());
    for (const Place& place : places)
        m_all.push_back({place.task, keys.value(place.task)});
    fillProjects();
    find();
}

void TaskPickList::scheduleLoad() {
    if (!m_isOpen || std::exchange(m_isLoadScheduled, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isLoadScheduled = false;
            if (m_isOpen)
                load();
        },
        Qt::QueuedConnection);
}

void TaskPickList::fillProjects() {
    QVariantList projects{choice({}, qtTrId("choice_all_projects"))};
    for (const Project* project : m_context.projects())
        projects.append(choice(project->id().toString(), project->name(), project->colorHex()));
    if (m_project && m_context.project(*m_project) == nullptr)
        m_project.reset();
    m_projects = projects;
    Q_EMIT projectsChanged();
}

void TaskPickList::setProjectId(const QString& id) {
    m_project = id.isEmpty() ? std::nullopt : std::optional(ProjectId(QUuid(id)));
    Q_EMIT projectsChanged();
    find();
}

const QString& TaskPickList::keyOf(Candidate& candidate) {
    if (candidate.key.isNull())
        candidate.key = searchKey(candidate.task->title()) + QLatin1Char(' ');
    return candidate.key;
}

void TaskPickList::warmUp() {
    const size_t end = std::min(m_warm + keysAtATime, m_all.size());
    while (m_warm < end)
        static_cast<void>(keyOf(m_all[m_warm++]));
    if (m_warm >= m_all.size())
        m_warmUp.stop();
}

void TaskPickList::setSearchText(const QString& text) {
    if (text == m_searchText)
        return;
    m_searchText = text;
    find();
    Q_EMIT searchTextChanged();
}

void TaskPickList::find() {
    const QStringList words = searchKey(m_searchText).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const Project* const project = m_project ? m_context.project(*m_project) : nullptr;
    const auto projectSays = [this](const Project* of, const QString& word) {
        if (of == nullptr)
            return false;
        QString& key = m_projectKeys[of];
        if (key.isNull())
            key = searchKey(of->name()) + QLatin1Char(' ');
        return key.contains(word);
    };
    std::vector<TaskItem*> found;
    for (Candidate& candidate : m_all) {
        const Project* const of = candidate.task->project();
        if (project != nullptr && of != project)
            continue;
        if (std::all_of(words.cbegin(), words.cend(), [&](const QString& word) {
                return keyOf(candidate).contains(word) || projectSays(of, word);
            }))
            found.push_back(candidate.task);
    }
    if (found == m_rows) {
        if (count() > 0)
            Q_EMIT dataChanged(index(0), index(count() - 1));
    } else {
        beginResetModel();
        m_rows = std::move(found);
        endResetModel();
    }
    Q_EMIT countChanged();
}

void TaskPickList::forget(TaskItem* task) {
    const auto row = std::find(m_rows.begin(), m_rows.end(), task);
    if (row != m_rows.end()) {
        const int number = static_cast<int>(std::distance(m_rows.begin(), row));
        beginRemoveRows({}, number, number);
        m_rows.erase(row);
        endRemoveRows();
    }
    std::erase_if(m_all, [task](const Candidate& candidate) { return candidate.task == task; });
    m_changed.remove(task);
    if (m_ticked.remove(task))
        Q_EMIT tickedCountChanged();
    scheduleLoad();
    Q_EMIT countChanged();
}

void TaskPickList::toggle(int row) {
    if (row < 0 || row >= count())
        return;
    TaskItem* const task = m_rows[static_cast<size_t>(row)];
    if (!m_ticked.remove(task))
        m_ticked.insert(task);
    Q_EMIT dataChanged(index(row), index(row), {IsTickedRole});
    Q_EMIT tickedCountChanged();
}

QList<TaskItem*> TaskPickList::tickedTasks() const {
    QList<TaskItem*> tasks;
    for (const Candidate& candidate : m_all) {
        if (m_ticked.contains(candidate.task))
            tasks.append(candidate.task);
    }
    return tasks;
}

void TaskPickList::retranslate(const QLocale& locale) {
    m_locale = locale;
    if (m_isOpen)
        load();
}

QString TaskPickList::whenText(const TaskItem& task) const {
    if (task.agendaInstant().isNone())
        return {};
    const QDateTime now = m_clock.now();
    const QString day = dayInWords(dateOf(task.agendaInstant(), now), now.date(), m_locale);
    return qtTrId(task.plannedInstant().isNone() ? "chip_due" : "chip_planned").arg(day);
}

int TaskPickList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant TaskPickList::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    TaskItem* const task = m_rows[static_cast<size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return task->title();
    case ProjectNameRole:
        return task->project() != nullptr ? task->project()->name() : QString();
    case ProjectColorRole:
        return task->project() != nullptr ? task->project()->colorHex() : QString();
    case WhenRole:
        return whenText(*task);
    case IsLateRole:
        return task->isOverdue(m_clock.now()) || task->isPlannedLate(m_clock.now());
    case IsTickedRole:
        return m_ticked.contains(task);
    default:
        return {};
    }
}

QHash<int, QByteArray> TaskPickList::roleNames() const {
    return {{TitleRole, "title"}, {ProjectNameRole, "projectName"}, {ProjectColorRole, "projectColor"},
            {WhenRole, "when"},   {IsLateRole, "isLate"},           {IsTickedRole, "isTicked"}};
}

} // namespace norvin
