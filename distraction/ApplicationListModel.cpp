#include "distraction/ApplicationListModel.h"

#include "distraction/AppBlockerService.h"
#include "platform/TextSearch.h"
#include "platform/Workspace.h"

#include <QCollator>
#include <QHash>

#include <algorithm>

namespace norvin {

ApplicationListModel::ApplicationListModel(const ApplicationCatalog& catalog, Workspace& workspace,
                                           AppBlockerService& blocker, QObject* parent)
    : QAbstractListModel(parent)
    , m_catalog(catalog)
    , m_workspace(workspace)
    , m_blocker(blocker) {
    connect(&m_blocker, &AppBlockerService::listsChanged, this, &ApplicationListModel::handleListsChanged);
}

ApplicationListModel::~ApplicationListModel() = default;

int ApplicationListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant ApplicationListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Entry& entry = m_all.at(m_rows.at(index.row()));
    switch (role) {
    case BundleIdRole:
        return entry.application.bundleIdentifier;
    case Qt::DisplayRole:
    case NameRole:
        return entry.application.name;
    case IconNameRole:
        return entry.application.iconName;
    case IsRunningRole:
        return entry.isRunning;
    case ListRole:
        return listOf(entry.application.bundleIdentifier);
    default:
        return {};
    }
}

QHash<int, QByteArray> ApplicationListModel::roleNames() const {
    return {{BundleIdRole, "bundleId"},
            {NameRole, "name"},
            {IconNameRole, "iconName"},
            {IsRunningRole, "isRunning"},
            {ListRole, "list"}};
}

void ApplicationListModel::setFilterText(const QString& text) {
    if (text == m_filterText)
        return;
    m_filterText = text;
    applyFilter();
    Q_EMIT filterTextChanged();
}

int ApplicationListModel::blockedCount() const {
    return static_cast<int>(m_blocker.blockedAppBundleIDs().size());
}

int ApplicationListModel::whitelistedCount() const {
    return static_cast<int>(m_blocker.whitelistedAppBundleIDs().size());
}

void ApplicationListModel::refresh() {
    QHash<QString, Entry> entries;
    for (const InstalledApplication& application : m_catalog.installedApplications())
        entries.insert(application.bundleIdentifier, {application, false});
    for (const RunningApplication& running : m_workspace.runningApplications()) {
        if (running.bundleIdentifier.isEmpty())
            continue;
        Entry& entry = entries[running.bundleIdentifier];
        entry.isRunning = true;
        if (entry.application.bundleIdentifier.isEmpty()) {
            entry.application = {running.bundleIdentifier, running.localizedName, running.iconName,
                                 running.declaredCategory};
        }
    }
    // What is listed stays visible, and removable, when the application is gone.
    for (const QString& listed : m_blocker.blockedAppBundleIDs() + m_blocker.whitelistedAppBundleIDs()) {
        Entry& entry = entries[listed];
        if (entry.application.bundleIdentifier.isEmpty())
            entry.application.bundleIdentifier = listed;
    }
    m_known = QSet<QString>(entries.keyBegin(), entries.keyEnd());
    m_known.insert(QLatin1String(ownBundleIdentifier));
    entries.remove(QLatin1String(ownBundleIdentifier));
    for (Entry& entry : entries) {
        if (entry.application.name.isEmpty())
            entry.application.name = entry.application.bundleIdentifier;
    }

    QList<Entry> sorted = entries.values();
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(sorted.begin(), sorted.end(), [&collator](const Entry& a, const Entry& b) {
        const int order = collator.compare(a.application.name, b.application.name);
        return order != 0 ? order < 0 : a.application.bundleIdentifier < b.application.bundleIdentifier;
    });
    m_all = sorted;
    applyFilter();
}

void ApplicationListModel::setList(const QString& bundleID, const QString& list) {
    BlockLists lists = m_blocker.lists();
    lists.blockedAppBundleIDs.remove(bundleID);
    lists.whitelistedAppBundleIDs.remove(bundleID);
    if (list == blockedList)
        lists.blockedAppBundleIDs.insert(bundleID);
    else if (list == whitelistedList)
        lists.whitelistedAppBundleIDs.insert(bundleID);
    m_blocker.replaceLists(lists);
}

void ApplicationListModel::handleListsChanged() {
    // An application that is not here can be listed by an import or by a command.
    const auto isShown = [this](const QString& bundleID) { return m_known.contains(bundleID); };
    const QSet<QString> listed = m_blocker.blockedAppBundleIDs() + m_blocker.whitelistedAppBundleIDs();
    if (!m_known.isEmpty() && !std::all_of(listed.cbegin(), listed.cend(), isShown))
        refresh();
    else if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0), index(count() - 1), {ListRole});
    Q_EMIT listsChanged();
}

QString ApplicationListModel::listOf(const QString& bundleID) const {
    if (m_blocker.blockedAppBundleIDs().contains(bundleID))
        return blockedList;
    return m_blocker.whitelistedAppBundleIDs().contains(bundleID) ? whitelistedList : noList;
}

void ApplicationListModel::applyFilter() {
    const QString wanted = searchKey(m_filterText.trimmed());
    QList<qsizetype> rows;
    for (qsizetype i = 0; i < m_all.size(); ++i) {
        const InstalledApplication& application = m_all.at(i).application;
        if (searchKey(application.name).contains(wanted) ||
            searchKey(application.bundleIdentifier).contains(wanted))
            rows.append(i);
    }
    beginResetModel();
    m_rows = rows;
    endResetModel();
    Q_EMIT countChanged();
}

} // namespace norvin
