#include "distraction/BlockListSuggestions.h"

#include "distraction/KnownBrowsers.h"
#include "distraction/UsageCategory.h"

#include <algorithm>
#include <array>

namespace norvin {

namespace {

using Kind = BlockListSuggestion::Kind;

struct Group {
    Kind kind;
    bool isBlocked;
    QLatin1String category;
};

// In the order in which they are offered.
constexpr std::array groups{
    Group{Kind::browser, false, QLatin1String("category_navigation")},
    Group{Kind::application, false, QLatin1String("category_productivity")},
    Group{Kind::application, false, QLatin1String("category_development")},
    Group{Kind::application, false, QLatin1String("category_design")},
    Group{Kind::application, true, QLatin1String("category_social")},
    Group{Kind::application, true, QLatin1String("category_entertainment")},
    Group{Kind::site, true, QLatin1String("category_social")},
    Group{Kind::site, true, QLatin1String("category_entertainment")},
};

struct WellKnownSite {
    QLatin1String category;
    QLatin1String pattern;
};

constexpr std::array wellKnownSites{
    WellKnownSite{QLatin1String("category_social"), QLatin1String("facebook.com")},
    WellKnownSite{QLatin1String("category_social"), QLatin1String("instagram.com")},
    WellKnownSite{QLatin1String("category_social"), QLatin1String("reddit.com")},
    WellKnownSite{QLatin1String("category_social"), QLatin1String("tiktok.com")},
    WellKnownSite{QLatin1String("category_social"), QLatin1String("x.com")},
    WellKnownSite{QLatin1String("category_entertainment"), QLatin1String("netflix.com")},
    WellKnownSite{QLatin1String("category_entertainment"), QLatin1String("twitch.tv")},
    WellKnownSite{QLatin1String("category_entertainment"), QLatin1String("youtube.com")},
};

bool isKnownBrowser(const InstalledApplication& application) {
    return knownBrowserBundleIDs().contains(application.bundleIdentifier);
}

void appendGroup(QList<BlockListSuggestion>& suggestions, const Group& group,
                 const std::vector<InstalledApplication>& installed) {
    const QString category = group.category;
    for (const InstalledApplication& application : installed) {
        const bool isOwn = application.bundleIdentifier == QLatin1String(ownBundleIdentifier);
        const bool isWantedKind = isKnownBrowser(application) == (group.kind == Kind::browser);
        if (!isOwn && isWantedKind &&
            resolveCategory(application.bundleIdentifier, application.declaredCategory) == category) {
            suggestions.append({group.kind, group.isBlocked, category, application.bundleIdentifier,
                                application.name, application.iconName});
        }
    }
}

void appendSites(QList<BlockListSuggestion>& suggestions, const Group& group) {
    for (const WellKnownSite& site : wellKnownSites) {
        if (site.category == group.category)
            suggestions.append(
                {Kind::site, group.isBlocked, site.category, site.pattern, site.pattern, QString()});
    }
}

bool isSameGroup(const BlockListSuggestion& a, const BlockListSuggestion& b) {
    return a.kind == b.kind && a.isBlocked == b.isBlocked && a.category == b.category;
}

BlockListSuggestion headingOver(const BlockListSuggestion& first) {
    return {first.kind, first.isBlocked, first.category, QString(), QString(), QString()};
}

QString headingText(const BlockListSuggestion& heading) {
    const QString category = qtTrId(heading.category.toUtf8().constData());
    if (heading.kind == Kind::browser)
        return qtTrId("suggestions_browsers");
    return heading.kind == Kind::site ? qtTrId("suggestions_sites").arg(category) : category;
}

} // namespace

QList<BlockListSuggestion> suggestedEntries(const std::vector<InstalledApplication>& installed) {
    const bool hasBrowser = std::any_of(installed.cbegin(), installed.cend(), isKnownBrowser);
    QList<BlockListSuggestion> suggestions;
    for (const Group& group : groups) {
        if (group.kind != Kind::site)
            appendGroup(suggestions, group, installed);
        else if (hasBrowser)
            appendSites(suggestions, group);
    }
    return suggestions;
}

BlockListSuggestions::BlockListSuggestions(const ApplicationCatalog& catalog, QObject* parent)
    : QAbstractListModel(parent)
    , m_catalog(catalog) {}

BlockListSuggestions::~BlockListSuggestions() = default;

int BlockListSuggestions::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant BlockListSuggestions::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows.at(index.row());
    switch (role) {
    case IsHeadingRole:
        return row.isHeading;
    case Qt::DisplayRole:
    case NameRole:
        return row.isHeading ? headingText(row.suggestion) : row.suggestion.name;
    case IconNameRole:
        return row.suggestion.iconName;
    case IsSiteRole:
        return row.suggestion.kind == Kind::site;
    case IsBlockedRole:
        return row.suggestion.isBlocked;
    case IsChosenRole:
        return row.isHeading ? isWholeGroupChosen(index.row()) : row.isChosen;
    default:
        return {};
    }
}

QHash<int, QByteArray> BlockListSuggestions::roleNames() const {
    return {{IsHeadingRole, "isHeading"}, {NameRole, "name"},           {IconNameRole, "iconName"},
            {IsSiteRole, "isSite"},       {IsBlockedRole, "isBlocked"}, {IsChosenRole, "isChosen"}};
}

int BlockListSuggestions::suggestionCount() const {
    return static_cast<int>(
        std::count_if(m_rows.cbegin(), m_rows.cend(), [](const Row& row) { return !row.isHeading; }));
}

int BlockListSuggestions::chosenCount() const {
    return static_cast<int>(
        std::count_if(m_rows.cbegin(), m_rows.cend(), [](const Row& row) { return row.isChosen; }));
}

BlockLists BlockListSuggestions::chosenLists() const {
    BlockLists lists;
    for (const Row& row : m_rows) {
        const BlockListSuggestion& suggestion = row.suggestion;
        if (!row.isChosen)
            continue;
        if (suggestion.kind != Kind::site) {
            (suggestion.isBlocked ? lists.blockedAppBundleIDs : lists.whitelistedAppBundleIDs)
                .insert(suggestion.entry);
            continue;
        }
        for (const Row& other : m_rows) {
            if (!other.isHeading && other.suggestion.kind == Kind::browser)
                lists.browserBlockedSites[other.suggestion.entry].insert(suggestion.entry);
        }
    }
    return lists;
}

void BlockListSuggestions::refresh() {
    QSet<QString> chosen;
    for (const Row& row : std::as_const(m_rows)) {
        if (row.isChosen)
            chosen.insert(row.suggestion.entry);
    }
    QList<Row> rows;
    const QList<BlockListSuggestion> suggestions = suggestedEntries(m_catalog.installedApplications());
    for (const BlockListSuggestion& suggestion : suggestions) {
        if (rows.isEmpty() || !isSameGroup(rows.last().suggestion, suggestion))
            rows.append({true, false, headingOver(suggestion)});
        rows.append({false, chosen.contains(suggestion.entry), suggestion});
    }
    beginResetModel();
    m_rows = rows;
    endResetModel();
    Q_EMIT suggestionsChanged();
    Q_EMIT chosenChanged();
}

void BlockListSuggestions::toggle(int row) {
    if (row < 0 || row >= m_rows.size())
        return;
    qsizetype heading = row;
    while (!m_rows.at(heading).isHeading)
        --heading;
    const qsizetype end = endOfGroup(heading);
    if (m_rows.at(row).isHeading) {
        const bool choose = !isWholeGroupChosen(heading);
        for (qsizetype i = heading + 1; i < end; ++i)
            m_rows[i].isChosen = choose;
    } else {
        m_rows[row].isChosen = !m_rows.at(row).isChosen;
    }
    Q_EMIT dataChanged(index(static_cast<int>(heading)), index(static_cast<int>(end - 1)), {IsChosenRole});
    Q_EMIT chosenChanged();
}

void BlockListSuggestions::retranslate() {
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {NameRole});
}

qsizetype BlockListSuggestions::endOfGroup(qsizetype heading) const {
    qsizetype end = heading + 1;
    while (end < m_rows.size() && !m_rows.at(end).isHeading)
        ++end;
    return end;
}

bool BlockListSuggestions::isWholeGroupChosen(qsizetype heading) const {
    return std::all_of(m_rows.cbegin() + heading + 1, m_rows.cbegin() + endOfGroup(heading),
                       [](const Row& row) { return row.isChosen; });
}

} // namespace norvin
