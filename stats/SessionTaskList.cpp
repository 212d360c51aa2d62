#include "stats/SessionTaskList.h"

#include "model/ModelContext.h"
#include "platform/TextSearch.h"

#include <QStringList>
#include <QtGlobal>

#include <algorithm>
#include <utility>

namespace norvin {

namespace {

// About a millisecond's worth.
constexpr size_t keysAtATime = 500;

} // namespace

SessionTaskList::SessionTaskList(ModelContext& context, QObject* parent)
    : QAbstractListModel(parent)
    , m_context(context) {
    connect(&m_context, &ModelContext::taskInserted, this, &SessionTaskList::scheduleLoad);
    connect(&m_context, &ModelContext::taskChanged, this, &SessionTaskList::scheduleLoad);
    connect(&m_context, &ModelContext::taskAboutToBeRemoved, this, &SessionTaskList::scheduleLoad);
    connect(&m_context, &ModelContext::projectChanged, this, &SessionTaskList::scheduleLoad);
    connect(&m_warmUp, &QTimer::timeout, this, &SessionTaskList::warmUp);
}

void SessionTaskList::open(std::optional<TaskId> chosen) {
    m_isOpen = true;
    m_chosen = chosen;
    m_searchText.clear();
    Q_EMIT searchTextChanged();
    load();
}

void SessionTaskList::close() {
    if (!std::exchange(m_isOpen, false))
        return;
    m_warmUp.stop();
    beginResetModel();
    m_all = {};
    m_found = {};
    endResetModel();
    Q_EMIT countChanged();
}

void SessionTaskList::scheduleLoad() {
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

void SessionTaskList::load() {
    const std::vector<TaskItem*>& tasks = m_context.tasks();
    beginResetModel();
    m_all.clear();
    m_all.reserve(tasks.size() + 1);
    m_all.push_back({.id = {}, .key = {}});
    for (const bool isDone : {false, true}) {
        for (auto task = tasks.rbegin(); task != tasks.rend(); ++task) {
            if ((*task)->isDone() == isDone)
                m_all.push_back({.id = (*task)->id(), .key = {}});
        }
    }
    m_warm = 0;
    m_warmUp.start();
    find();
    endResetModel();
    Q_EMIT countChanged();
}

void SessionTaskList::warmUp() {
    const size_t end = std::min(m_warm + keysAtATime, m_all.size());
    while (m_warm < end)
        static_cast<void>(keyOf(m_all[m_warm++]));
    if (m_warm >= m_all.size())
        m_warmUp.stop();
}

const QString& SessionTaskList::keyOf(Candidate& candidate) const {
    if (!candidate.key.isNull())
        return candidate.key;
    QString text = candidate.id ? QString() : qtTrId("free_session");
    if (const TaskItem* const task = candidate.id ? m_context.task(*candidate.id) : nullptr) {
        text = task->title();
        if (task->project() != nullptr)
            text += QLatin1Char('\n') + task->project()->name();
    }
    candidate.key = searchKey(text) + QLatin1Char('\n');
    return candidate.key;
}

void SessionTaskList::setSearchText(const QString& text) {
    if (text == m_searchText)
        return;
    m_searchText = text;
    beginResetModel();
    find();
    endResetModel();
    Q_EMIT countChanged();
    Q_EMIT searchTextChanged();
}

void SessionTaskList::find() {
    const QStringList words = searchKey(m_searchText).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    m_found.clear();
    for (size_t place = 0; place < m_all.size(); ++place) {
        if (std::all_of(words.cbegin(), words.cend(),
                        [&](const QString& word) { return keyOf(m_all[place]).contains(word); }))
            m_found.push_back(place);
    }
}

std::optional<TaskId> SessionTaskList::taskAt(int row) const {
    return m_all[m_found[static_cast<size_t>(row)]].id;
}

void SessionTaskList::retranslate() {
    if (m_isOpen)
        load();
}

int SessionTaskList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_found.size());
}

QVariant SessionTaskList::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const std::optional<TaskId> id = taskAt(index.row());
    const TaskItem* const task = id ? m_context.task(*id) : nullptr;
    const Project* const project = task != nullptr ? task->project() : nullptr;
    switch (role) {
    case TitleRole:
    case Qt::DisplayRole:
        return task != nullptr ? task->title() : id ? QString() : qtTrId("free_session");
    case ProjectNameRole:
        return project != nullptr ? project->name() : QString();
    case ProjectColorRole:
        return project != nullptr ? project->colorHex() : QString();
    case IsDoneRole:
        return task != nullptr && task->isDone();
    case IsChosenRole:
        return id == m_chosen;
    default:
        return {};
    }
}

QHash<int, QByteArray> SessionTaskList::roleNames() const {
    return {{TitleRole, "title"},
            {ProjectNameRole, "projectName"},
            {ProjectColorRole, "projectColor"},
            {IsDoneRole, "isDone"},
            {IsChosenRole, "isChosen"}};
}

} // namespace norvin
