#include "distraction/SiteListModel.h"

#include "distraction/AppBlockerService.h"
#include "distraction/SitePattern.h"
#include "platform/TextSearch.h"

#include <algorithm>
#include <tuple>

namespace norvin {

namespace {

// More changes than these are one new list to whoever shows it.
constexpr qsizetype mostRowChanges = 32;

} // namespace

SiteListModel::SiteListModel(const AppBlockerService& blocker, List list, QObject* parent)
    : QAbstractListModel(parent)
    , m_blocker(blocker)
    , m_list(list) {
    connect(&m_blocker, &AppBlockerService::listsChanged, this, &SiteListModel::update);
}

SiteListModel::~SiteListModel() = default;

int SiteListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant SiteListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows.at(index.row());
    switch (role) {
    case PatternRole:
        return row.pattern;
    case Qt::DisplayRole:
    case NameRole:
        return row.name;
    case IsOnOtherListRole:
        return m_knownOthers.contains(row.pattern);
    case CoveredByRole:
        return displayedSite(coveringPattern(row.pattern));
    default:
        return {};
    }
}

QHash<int, QByteArray> SiteListModel::roleNames() const {
    return {{PatternRole, "pattern"},
            {NameRole, "name"},
            {IsOnOtherListRole, "isOnOtherList"},
            {CoveredByRole, "coveredBy"}};
}

void SiteListModel::setBrowser(const QString& browserBundleID) {
    if (browserBundleID == m_browser)
        return;
    m_browser = browserBundleID;
    reset();
}

void SiteListModel::setFilterText(const QString& text) {
    if (text == m_filterText)
        return;
    m_filterText = text;
    reset();
    Q_EMIT filterTextChanged();
}

int SiteListModel::rowOf(const QString& pattern) const {
    const auto found = std::find_if(m_rows.cbegin(), m_rows.cend(),
                                    [&pattern](const Row& row) { return row.pattern == pattern; });
    return found == m_rows.cend() ? -1 : static_cast<int>(found - m_rows.cbegin());
}

QSet<QString> SiteListModel::patterns() const {
    return m_list == List::whitelisted ? m_blocker.getWhitelistedSites(m_browser)
                                       : m_blocker.getBlockedSites(m_browser);
}

QSet<QString> SiteListModel::otherPatterns() const {
    return m_list == List::whitelisted ? m_blocker.getBlockedSites(m_browser)
                                       : m_blocker.getWhitelistedSites(m_browser);
}

QString SiteListModel::coveringPattern(const QString& pattern) const {
    const qsizetype dot = pattern.indexOf(u'.');
    return dot < 0 ? QString() : matchingPattern(pattern.mid(dot + 1), m_known);
}

QList<SiteListModel::Row> SiteListModel::wantedRows() const {
    const QString wanted = searchKey(m_filterText.trimmed());
    QList<Row> rows;
    for (const QString& pattern : m_known) {
        const Row row{pattern, displayedSite(pattern)};
        if (wanted.isEmpty() || pattern.contains(wanted) || searchKey(row.name).contains(wanted))
            rows.append(row);
    }
    std::sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) {
        return std::tie(a.name, a.pattern) < std::tie(b.name, b.pattern);
    });
    return rows;
}

void SiteListModel::reset() {
    beginResetModel();
    m_known = patterns();
    m_knownOthers = otherPatterns();
    m_rows = wantedRows();
    endResetModel();
    Q_EMIT countChanged();
}

void SiteListModel::update() {
    // Mostly it is another list that changed.
    if (m_known == patterns() && m_knownOthers == otherPatterns())
        return;
    m_known = patterns();
    m_knownOthers = otherPatterns();
    const QList<Row> rows = wantedRows();
    const auto removals = std::count_if(m_rows.cbegin(), m_rows.cend(),
                                        [this](const Row& row) { return !m_known.contains(row.pattern); });
    const qsizetype additions = rows.size() - (m_rows.size() - removals);
    if (removals + additions > mostRowChanges)
        return reset();

    for (qsizetype i = m_rows.size() - 1; i >= 0; --i) {
        if (m_known.contains(m_rows.at(i).pattern))
            continue;
        beginRemoveRows({}, static_cast<int>(i), static_cast<int>(i));
        m_rows.removeAt(i);
        endRemoveRows();
    }
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (i < m_rows.size() && m_rows.at(i) == rows.at(i))
            continue;
        beginInsertRows({}, static_cast<int>(i), static_cast<int>(i));
        m_rows.insert(i, rows.at(i));
        endInsertRows();
    }
    // An entry of either list changes what is noted beside others.
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0), index(count() - 1), {IsOnOtherListRole, CoveredByRole});
    Q_EMIT countChanged();
}

} // namespace norvin
