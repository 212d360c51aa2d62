#include "distraction/BrowserListModel.h"

#include "distraction/AppBlockerService.h"
#include "distraction/KnownBrowsers.h"
#include "platform/ApplicationCatalog.h"

#include <QCollator>

#include <algorithm>
#include <tuple>

namespace norvin {

namespace {

// For the known browsers that are not installed; an installed one says its name itself.
QString usualName(const QString& bundleID) {
    static const QHash<QString, QString> names{
        {QStringLiteral("com.apple.Safari"), QStringLiteral("Safari")},
        {QStringLiteral("com.google.Chrome"), QStringLiteral("Google Chrome")},
        {QStringLiteral("org.mozilla.firefox"), QStringLiteral("Firefox")},
        {QStringLiteral("company.thebrowser.Browser"), QStringLiteral("Arc")},
        {QStringLiteral("com.microsoft.edgemac"), QStringLiteral("Microsoft Edge")},
        {QStringLiteral("com.brave.Browser"), QStringLiteral("Brave")},
        {QStringLiteral("com.operasoftware.Opera"), QStringLiteral("Opera")},
        {QStringLiteral("com.vivaldi.Vivaldi"), QStringLiteral("Vivaldi")},
    };
    return names.value(bundleID, bundleID);
}

} // namespace

BrowserListModel::BrowserListModel(const ApplicationCatalog& catalog, const AppBlockerService& blocker,
                                   QObject* parent)
    : QAbstractListModel(parent)
    , m_catalog(catalog)
    , m_blocker(blocker) {
    connect(&m_blocker, &AppBlockerService::listsChanged, this, [this] {
        // A browser that was given its first site elsewhere has to appear.
        for (const SiteLists* lists :
             {&m_blocker.browserWhitelistedSites(), &m_blocker.browserBlockedSites()}) {
            for (auto it = lists->cbegin(); it != lists->cend(); ++it) {
                if (rowOf(it.key()) < 0)
                    return refresh();
            }
        }
        if (!m_rows.isEmpty())
            Q_EMIT dataChanged(index(0), index(count() - 1), {SiteCountRole});
    });
}

BrowserListModel::~BrowserListModel() = default;

int BrowserListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant BrowserListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows.at(index.row());
    switch (role) {
    case BundleIdRole:
        return row.bundleID;
    case Qt::DisplayRole:
    case NameRole:
        return row.name;
    case IconNameRole:
        return row.iconName;
    case IsInstalledRole:
        return row.isInstalled;
    case SiteCountRole:
        return siteCount(row.bundleID);
    default:
        return {};
    }
}

QHash<int, QByteArray> BrowserListModel::roleNames() const {
    return {{BundleIdRole, "bundleId"},
            {NameRole, "name"},
            {IconNameRole, "iconName"},
            {IsInstalledRole, "isInstalled"},
            {SiteCountRole, "siteCount"}};
}

void BrowserListModel::setShowsAll(bool showsAll) {
    if (showsAll == m_showsAll)
        return;
    m_showsAll = showsAll;
    refresh();
    Q_EMIT showsAllChanged();
}

void BrowserListModel::refresh() {
    const QList<Row> rows = wantedRows();
    if (rows == m_rows)
        return;
    beginResetModel();
    m_rows = rows;
    endResetModel();
    Q_EMIT countChanged();
}

int BrowserListModel::rowOf(const QString& bundleID) const {
    const auto found = std::find_if(m_rows.cbegin(), m_rows.cend(),
                                    [&bundleID](const Row& row) { return row.bundleID == bundleID; });
    return found == m_rows.cend() ? -1 : static_cast<int>(found - m_rows.cbegin());
}

QString BrowserListModel::nameOf(const QString& bundleID) const {
    const int row = rowOf(bundleID);
    if (row >= 0)
        return m_rows.at(row).name;
    const auto application = m_catalog.application(bundleID);
    return application ? application->name : usualName(bundleID);
}

QStringList BrowserListModel::usualBrowsers() const {
    QStringList identifiers;
    for (const Row& row : m_rows) {
        if (row.isInstalled || m_blocker.hasSiteConfiguration(row.bundleID))
            identifiers.append(row.bundleID);
    }
    return identifiers;
}

QStringList BrowserListModel::installedBrowsers() const {
    QStringList identifiers;
    for (const Row& row : m_rows) {
        if (row.isInstalled && knownBrowserBundleIDs().contains(row.bundleID))
            identifiers.append(row.bundleID);
    }
    return identifiers;
}

int BrowserListModel::siteCount(const QString& bundleID) const {
    return static_cast<int>(m_blocker.getWhitelistedSites(bundleID).size() +
                            m_blocker.getBlockedSites(bundleID).size());
}

QList<BrowserListModel::Row> BrowserListModel::wantedRows() const {
    QSet<QString> identifiers = knownBrowserBundleIDs();
    for (const SiteLists* lists : {&m_blocker.browserWhitelistedSites(), &m_blocker.browserBlockedSites()})
        identifiers.unite(QSet<QString>(lists->keyBegin(), lists->keyEnd()));
    QList<Row> rows;
    for (const QString& bundleID : std::as_const(identifiers)) {
        const auto application = m_catalog.application(bundleID);
        if (!application && !m_showsAll && !m_blocker.hasSiteConfiguration(bundleID))
            continue;
        rows.append({bundleID, application ? application->name : usualName(bundleID),
                     application ? application->iconName : QString(), application.has_value()});
    }
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(rows.begin(), rows.end(), [&collator](const Row& a, const Row& b) {
        if (a.isInstalled != b.isInstalled)
            return a.isInstalled;
        const int order = collator.compare(a.name, b.name);
        return order != 0 ? order < 0 : a.bundleID < b.bundleID;
    });
    return rows;
}

} // namespace norvin
