#include "stats/StatsSessionRows.h"

#include "model/ModelContext.h"
#include "stats/StatsFormats.h"

#include <algorithm>
#include <utility>

namespace norvin {

StatsSessionRows::StatsSessionRows(const ModelContext& context, QObject* parent)
    : QAbstractListModel(parent)
    , m_context(context)
    , m_days(QTimeZone::utc()) {}

void StatsSessionRows::setRows(std::vector<SessionRow> rows, const StatsDays& days) {
    if (rows == m_rows && days.zone() == m_days.zone())
        return;
    beginResetModel();
    m_days = days;
    m_rows = std::move(rows);
    endResetModel();
    Q_EMIT changed();
}

const SessionRow* StatsSessionRows::row(const SessionId& id) const {
    const auto found =
        std::find_if(m_rows.cbegin(), m_rows.cend(), [&id](const SessionRow& row) { return row.id == id; });
    return found == m_rows.cend() ? nullptr : &*found;
}

void StatsSessionRows::setLocale(const QLocale& locale) {
    m_locale = locale;
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

void StatsSessionRows::refreshTitles() {
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {TitleRole, HasTaskRole});
}

int StatsSessionRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant StatsSessionRows::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const SessionRow& row = m_rows[static_cast<size_t>(index.row())];
    const auto task = [&] { return row.task ? m_context.task(*row.task) : nullptr; };
    switch (role) {
    case SessionIdRole:
        return row.id.toString();
    case TimeRole:
        return m_locale.toString(m_days.dateTime(row.start).time(), QLocale::ShortFormat);
    case DateRole:
        return m_locale.toString(m_days.dateTime(row.start).date(), QLocale::ShortFormat);
    case MinutesRole:
        return row.durationMinutes;
    case DurationRole:
        return formatTime(row.durationMinutes);
    case HasScoreRole:
        return row.score.has_value();
    case ScoreRole:
        return row.score.value_or(0);
    case ScoreTextRole:
        return row.score ? formatScore(*row.score) : QString();
    case Qt::DisplayRole:
    case TitleRole:
        return task() != nullptr ? task()->title() : qtTrId("free_session");
    case HasTaskRole:
        return task() != nullptr;
    default:
        return {};
    }
}

QHash<int, QByteArray> StatsSessionRows::roleNames() const {
    return {{SessionIdRole, "sessionId"}, {TimeRole, "time"},           {DateRole, "date"},
            {MinutesRole, "minutes"},     {DurationRole, "duration"},   {HasScoreRole, "hasScore"},
            {ScoreRole, "score"},         {ScoreTextRole, "scoreText"}, {TitleRole, "title"},
            {HasTaskRole, "hasTask"}};
}

} // namespace norvin
