#include "distraction/BlockListsScreen.h"

#include "distraction/AppBlockerService.h"
#include "distraction/SitePattern.h"
#include "platform/Preferences.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace norvin {

namespace {

using Subject = BlockListNotice::Subject;

// More steps back than anybody remembers.
constexpr qsizetype mostChanges = 50;

QString otherList(const QString& list) {
    return list == whitelistedList ? blockedList : whitelistedList;
}

QString displayedNames(const QStringList& patterns) {
    QStringList names;
    for (const QString& pattern : patterns)
        names.append(displayedSite(pattern));
    return names.join(QStringLiteral(", "));
}

} // namespace

BlockListsScreen::BlockListsScreen(const ApplicationCatalog& catalog, Workspace& workspace,
                                   AppBlockerService& blocker, Preferences& preferences, QObject* parent)
    : QObject(parent)
    , m_blocker(blocker)
    , m_preferences(preferences)
    , m_applications(catalog, workspace, blocker)
    , m_browsers(catalog, blocker)
    , m_whitelistedSites(blocker, SiteListModel::List::whitelisted)
    , m_blockedSites(blocker, SiteListModel::List::blocked)
    , m_suggestions(catalog) {
    connect(&m_blocker, &AppBlockerService::listsChanged, this, &BlockListsScreen::handleListsChanged);
}

BlockListsScreen::~BlockListsScreen() = default;

int BlockListsScreen::siteCount() const {
    return m_blocker.lists().siteCount();
}

void BlockListsScreen::setBrowser(const QString& bundleID) {
    if (bundleID == m_browser)
        return;
    m_browser = bundleID;
    m_whitelistedSites.setBrowser(bundleID);
    m_blockedSites.setBrowser(bundleID);
    m_whitelistEntry = {};
    m_blockedEntry = {};
    Q_EMIT browserChanged();
    Q_EMIT browserListChanged();
    Q_EMIT reportsChanged();
    Q_EMIT testChanged();
}

QString BlockListsScreen::browserList() const {
    // A blocked browser is hidden, whatever else is said about it.
    if (m_blocker.blockedAppBundleIDs().contains(m_browser))
        return blockedList;
    return m_blocker.whitelistedAppBundleIDs().contains(m_browser) ? whitelistedList : noList;
}

bool BlockListsScreen::canCopySites() const {
    const QStringList browsers = m_browsers.usualBrowsers();
    return m_blocker.hasSiteConfiguration(m_browser) &&
           std::any_of(browsers.cbegin(), browsers.cend(),
                       [this](const QString& browser) { return browser != m_browser; });
}

void BlockListsScreen::refresh() {
    m_applications.refresh();
    m_browsers.refresh();
    if (m_browsers.count() == 0)
        m_browsers.setShowsAll(true);
    if (m_browsers.rowOf(m_browser) < 0)
        setBrowser(m_browsers.bundleIdAt(0));
    if (m_blocker.lists().isEmpty())
        m_suggestions.refresh();
    updateOffer();
    Q_EMIT browserListChanged();
}

QString BlockListsScreen::addSites(const QString& list, const QString& text) {
    const auto sites = siteListsOf(list);
    if (!sites || m_browser.isEmpty())
        return text;
    const PastedSites pasted = pastedSites(text);
    BlockLists lists = m_blocker.lists();
    EntryReport report{.refused = pasted.refused, .listedAlready = {}};
    QStringList added;
    for (const QString& pattern : pasted.patterns) {
        QSet<QString>& patterns = (lists.*sites)[m_browser];
        if (patterns.contains(pattern)) {
            report.listedAlready.append(pattern);
        } else {
            patterns.insert(pattern);
            added.append(pattern);
        }
    }
    if (!added.isEmpty()) {
        change(lists, {.subject = Subject::sitesAdded,
                       .count = static_cast<int>(added.size()),
                       .detail = added.size() == 1 ? displayedSite(added.first()) : QString()});
    }
    setReport(list, report);
    return pasted.refused.join(u' ');
}

void BlockListsScreen::removeSite(const QString& list, const QString& pattern) {
    const auto sites = siteListsOf(list);
    if (!sites)
        return;
    BlockLists removed;
    (removed.*sites)[m_browser].insert(pattern);
    change(listsWithout(m_blocker.lists(), removed),
           {.subject = Subject::siteRemoved, .count = 1, .detail = displayedSite(pattern)});
}

void BlockListsScreen::moveSite(const QString& list, const QString& pattern) {
    const auto from = siteListsOf(list);
    const auto to = siteListsOf(otherList(list));
    if (!from || !(m_blocker.lists().*from).value(m_browser).contains(pattern))
        return;
    BlockLists removed;
    (removed.*from)[m_browser].insert(pattern);
    BlockLists added;
    (added.*to)[m_browser].insert(pattern);
    change(unitedLists(listsWithout(m_blocker.lists(), removed), added),
           {.subject = Subject::siteMoved, .count = 1, .detail = displayedSite(pattern)});
}

void BlockListsScreen::copySites() {
    BlockLists added;
    const QStringList browsers = m_browsers.usualBrowsers();
    for (const QString& browser : browsers) {
        added.browserWhitelistedSites[browser] = m_blocker.getWhitelistedSites(m_browser);
        added.browserBlockedSites[browser] = m_blocker.getBlockedSites(m_browser);
    }
    const BlockLists missing = listsWithout(added, m_blocker.lists());
    change(unitedLists(m_blocker.lists(), missing),
           {.subject = Subject::sitesCopied, .count = missing.siteCount(), .detail = browserName()});
}

void BlockListsScreen::whitelistBrowser() {
    BlockLists lists = m_blocker.lists();
    lists.blockedAppBundleIDs.remove(m_browser);
    lists.whitelistedAppBundleIDs.insert(m_browser);
    change(lists, {.subject = Subject::browserWhitelisted, .count = 1, .detail = browserName()});
}

void BlockListsScreen::clearReport(const QString& list) {
    setReport(list, {});
}

void BlockListsScreen::addChosenSuggestions() {
    const BlockLists chosen = m_suggestions.chosenLists();
    change(unitedLists(m_blocker.lists(), chosen),
           {.subject = Subject::suggestionsAdded, .count = m_suggestions.chosenCount(), .detail = {}});
}

void BlockListsScreen::dismissSuggestions() {
    m_preferences.setValue(QLatin1String(suggestionsDismissedKey), true);
    updateOffer();
}

void BlockListsScreen::undo() {
    if (m_changes.isEmpty())
        return;
    const BlockListChange last = m_changes.takeLast();
    m_blocker.replaceLists(last.takenBackFrom(m_blocker.lists()));
    say({.subject = Subject::takenBack, .count = 0, .detail = {}});
}

void BlockListsScreen::clearNotice() {
    say({});
}

QUrl BlockListsScreen::fileFolder() const {
    const QString usual = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString folder = m_fileFolder.isEmpty() ? usual : m_fileFolder;
    return QUrl::fromLocalFile(QFileInfo(folder).isDir() ? folder : QDir::homePath());
}

void BlockListsScreen::rememberFolder(const QString& path) {
    m_fileFolder = QFileInfo(path).absolutePath();
    Q_EMIT fileFolderChanged();
}

void BlockListsScreen::exportLists(const QUrl& file) {
    const QString path = file.toLocalFile();
    rememberFolder(path);
    const QString problem = writeBlockListFile(path, m_blocker.lists());
    if (problem.isEmpty())
        say({.subject = Subject::exported, .count = 0, .detail = QDir::toNativeSeparators(path)});
    else
        say({.subject = Subject::exportFailed, .count = 0, .detail = problem});
}

void BlockListsScreen::examineImport(const QUrl& file) {
    dropImport();
    rememberFolder(file.toLocalFile());
    m_importFileName = QFileInfo(file.toLocalFile()).fileName();
    auto read = readBlockListFile(file.toLocalFile());
    if (auto* error = std::get_if<BlockListFileError>(&read))
        m_importError = *error;
    else
        m_import = std::get<BlockLists>(read);
    Q_EMIT importChanged();
}

void BlockListsScreen::applyImport(bool replacing) {
    if (!m_import)
        return;
    const BlockLists lists = replacing ? *m_import : unitedLists(m_blocker.lists(), *m_import);
    if (!change(lists, {.subject = Subject::imported, .count = 0, .detail = m_importFileName}))
        say({.subject = Subject::importedNothing, .count = 0, .detail = m_importFileName});
    dropImport();
}

void BlockListsScreen::dropImport() {
    m_import.reset();
    m_importError.reset();
    Q_EMIT importChanged();
}

QString BlockListsScreen::importState() const {
    if (m_importError)
        return QStringLiteral("refused");
    return m_import ? QStringLiteral("ready") : QStringLiteral("none");
}

QString BlockListsScreen::importProblem() const {
    return m_importError ? blockListFileErrorText(*m_importError) : QString();
}

int BlockListsScreen::importApplicationCount() const {
    return m_import ? m_import->applicationCount() : 0;
}

int BlockListsScreen::importSiteCount() const {
    return m_import ? m_import->siteCount() : 0;
}

int BlockListsScreen::importAddedCount() const {
    if (!m_import)
        return 0;
    const BlockLists added = listsWithout(*m_import, m_blocker.lists());
    return added.applicationCount() + added.siteCount();
}

int BlockListsScreen::importRemovedCount() const {
    if (!m_import)
        return 0;
    const BlockLists removed = listsWithout(m_blocker.lists(), *m_import);
    return removed.applicationCount() + removed.siteCount();
}

void BlockListsScreen::setTestText(const QString& text) {
    if (text == m_testText)
        return;
    m_testText = text;
    Q_EMIT testTextChanged();
    Q_EMIT testChanged();
}

QString BlockListsScreen::testOutcome() const {
    if (m_testText.trimmed().isEmpty())
        return {};
    const std::optional<QString> site = normalizedSitePattern(m_testText);
    if (!site)
        return QStringLiteral("unreadable");
    if (browserList() == blockedList)
        return blockedList;
    if (browserList() == noList)
        return QStringLiteral("distracted");
    const SiteVerdict verdict = m_blocker.siteVerdict(m_browser, *site);
    if (verdict.isBlocked())
        return blockedList;
    return verdict.isLegitimate() ? QStringLiteral("legitimate") : QStringLiteral("distracted");
}

QString BlockListsScreen::testReason() const {
    const std::optional<QString> site = normalizedSitePattern(m_testText);
    if (m_testText.trimmed().isEmpty())
        return {};
    if (!site)
        return qtTrId("verdict_unreadable");
    if (browserList() == blockedList)
        return qtTrId("verdict_browser_blocked").arg(browserName());
    if (browserList() == noList)
        return qtTrId("verdict_browser_not_whitelisted").arg(browserName());
    const SiteVerdict verdict = m_blocker.siteVerdict(m_browser, *site);
    const QString whitelistPattern = displayedSite(verdict.whitelistPattern);
    const QString blockingPattern = displayedSite(verdict.blockingPattern);
    if (verdict.isBlocked()) {
        return verdict.isLegitimate()
                   ? qtTrId("verdict_blocked_and_whitelisted").arg(blockingPattern, whitelistPattern)
                   : qtTrId("verdict_blocked").arg(blockingPattern);
    }
    switch (verdict.rule) {
    case SiteVerdict::Rule::noLists:
        return qtTrId("verdict_no_lists");
    case SiteVerdict::Rule::whitelisted:
        return qtTrId("verdict_whitelisted").arg(whitelistPattern);
    case SiteVerdict::Rule::notWhitelisted:
        return qtTrId("verdict_not_whitelisted");
    case SiteVerdict::Rule::blocked:
    case SiteVerdict::Rule::notBlocked:
        break;
    }
    return qtTrId("verdict_not_blocked");
}

QString BlockListsScreen::EntryReport::text() const {
    QStringList sentences;
    if (!refused.isEmpty())
        sentences.append(qtTrId("site_entry_refused").arg(refused.join(QStringLiteral(", "))));
    if (!listedAlready.isEmpty())
        sentences.append(qtTrId("site_entry_listed_already").arg(displayedNames(listedAlready)));
    return sentences.join(u'\n');
}

void BlockListsScreen::retranslate() {
    m_suggestions.retranslate();
    if (m_browserHealth)
        m_browserHealth->retranslate();
    Q_EMIT reportsChanged();
    Q_EMIT testChanged();
    Q_EMIT noticeChanged();
    Q_EMIT importChanged();
}

SiteLists BlockLists::*BlockListsScreen::siteListsOf(const QString& list) {
    if (list == whitelistedList)
        return &BlockLists::browserWhitelistedSites;
    return list == blockedList ? &BlockLists::browserBlockedSites : nullptr;
}

BlockListsScreen::EntryReport& BlockListsScreen::reportOf(const QString& list) {
    return list == whitelistedList ? m_whitelistEntry : m_blockedEntry;
}

bool BlockListsScreen::change(const BlockLists& lists, const BlockListNotice& notice) {
    const BlockLists before = m_blocker.lists();
    if (!m_blocker.replaceLists(lists))
        return false;
    m_changes.append(BlockListChange::between(before, lists));
    if (m_changes.size() > mostChanges)
        m_changes.removeFirst();
    BlockListNotice undoable = notice;
    undoable.isUndoable = true;
    say(undoable);
    return true;
}

void BlockListsScreen::say(const BlockListNotice& notice) {
    m_notice = notice;
    Q_EMIT noticeChanged();
}

void BlockListsScreen::setReport(const QString& list, const EntryReport& report) {
    if (!siteListsOf(list))
        return;
    reportOf(list) = report;
    Q_EMIT reportsChanged();
}

void BlockListsScreen::handleListsChanged() {
    updateOffer();
    Q_EMIT listsChanged();
    Q_EMIT browserListChanged();
    Q_EMIT testChanged();
    if (m_import)
        Q_EMIT importChanged();
}

void BlockListsScreen::updateOffer() {
    const bool wasDismissed =
        m_preferences.value(QLatin1String(suggestionsDismissedKey)).value_or(QVariant(false)).toBool();
    const bool offers = m_blocker.lists().isEmpty() && !wasDismissed && m_suggestions.suggestionCount() > 0;
    if (offers == m_offersSuggestions)
        return;
    m_offersSuggestions = offers;
    Q_EMIT offersSuggestionsChanged();
}

} // namespace norvin
