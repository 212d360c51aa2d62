#include "stats/AppTotalRows.h"

#include "stats/StatsFormats.h"

#include <algorithm>
#include <utility>

namespace norvin {

AppTotalRows::AppTotalRows(QObject* parent)
    : QAbstractListModel(parent) {}

void AppTotalRows::setRows(QList<AppTotal> rows, qint64 totalSeconds) {
    if (rows == m_rows && totalSeconds == m_totalSeconds)
        return;
    const auto sameApp = [](const AppTotal& a, const AppTotal& b) { return a.bundleID == b.bundleID; };
    const bool onlyTotals =
        std::equal(rows.cbegin(), rows.cend(), m_rows.cbegin(), m_rows.cend(), sameApp) && !rows.isEmpty();
    // While a session runs its applications grow, and rarely change places.
    if (!onlyTotals)
        beginResetModel();
    m_rows = std::move(rows);
    m_totalSeconds = totalSeconds;
    if (onlyTotals)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    else
        endResetModel();
    Q_EMIT changed();
}

void AppTotalRows::retranslate() {
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

int AppTotalRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant AppTotalRows::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const AppTotal& row = m_rows.at(index.row());
    switch (role) {
    case RankRole:
        return index.row() + 1;
    case BundleIDRole:
        return row.bundleID;
    case Qt::DisplayRole:
    case NameRole:
        return row.name;
    case CategoryRole:
        return categoryName(row.category);
    case SecondsRole:
        return row.duration;
    case DurationRole:
        return formatSeconds(row.duration);
    case ShareRole:
        return m_totalSeconds > 0
                   ? std::clamp(static_cast<double>(row.duration) / static_cast<double>(m_totalSeconds), 0.0,
                                1.0)
                   : 0.0;
    default:
        return {};
    }
}

QHash<int, QByteArray> AppTotalRows::roleNames() const {
    return {{RankRole, "rank"},         {BundleIDRole, "bundleID"}, {NameRole, "name"},
            {CategoryRole, "category"}, {SecondsRole, "seconds"},   {DurationRole, "duration"},
            {ShareRole, "share"}};
}

} // namespace norvin
