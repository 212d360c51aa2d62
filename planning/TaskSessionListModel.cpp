#include "planning/TaskSessionListModel.h"

#include "model/ModelContext.h"

#include <algorithm>

namespace norvin {

TaskSessionListModel::TaskSessionListModel(ModelContext& context, QObject* parent)
    : QAbstractListModel(parent)
    , m_context(context) {
    connect(&m_context, &ModelContext::sessionInserted, this, [this](const Session& session) {
        if (m_task && session.task == m_task)
            load();
    });
    const auto loadAgain = [this] {
        if (m_task)
            load();
    };
    connect(&m_context, &ModelContext::sessionsRemoved, this, loadAgain);
    connect(&m_context, &ModelContext::sessionsEdited, this, loadAgain);
}

TaskSessionListModel::~TaskSessionListModel() = default;

void TaskSessionListModel::setTask(std::optional<TaskId> task) {
    m_task = task;
    load();
}

void TaskSessionListModel::load() {
    beginResetModel();
    m_sessions.clear();
    if (m_task) {
        RecordQuery query;
        query.task = m_task;
        m_sessions = m_context.fetchSessions(query);
        std::reverse(m_sessions.begin(), m_sessions.end());
    }
    m_totalMinutes = 0;
    for (const Session& session : std::as_const(m_sessions))
        m_totalMinutes += session.durationMinutes;
    endResetModel();
    Q_EMIT changed();
}

int TaskSessionListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_sessions.size());
}

QVariant TaskSessionListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Session& session = m_sessions.at(index.row());
    switch (role) {
    case StartRole:
        return session.startTime;
    case MinutesRole:
        return session.durationMinutes;
    case HasScoreRole:
        return session.score.has_value();
    case ScoreRole:
        return session.score.value_or(0);
    default:
        return {};
    }
}

QHash<int, QByteArray> TaskSessionListModel::roleNames() const {
    return {
        {StartRole, "startTime"}, {MinutesRole, "minutes"}, {HasScoreRole, "hasScore"}, {ScoreRole, "score"}};
}

} // namespace norvin
