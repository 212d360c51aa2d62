#include "distraction/AppBlockerService.h"

#include "distraction/SitePattern.h"
#include "platform/ApplicationCatalog.h"
#include "platform/Log.h"
#include "platform/Preferences.h"
#include "platform/SystemSounds.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace norvin {

namespace {

constexpr auto blockedAppsKey = QLatin1String("NorvinBlockedApps");
constexpr auto whitelistedAppsKey = QLatin1String("NorvinWhitelistedApps");
constexpr auto whitelistedSitesKey = QLatin1String("NorvinBrowserWhitelistedSites");
constexpr auto blockedSitesKey = QLatin1String("NorvinBrowserBlockedSites");

// The lists are kept as JSON text: an array for applications, an object of arrays for sites. Sorted, so that
// the file changes only where a list did.
QJsonArray toJson(const QSet<QString>& texts) {
    QStringList sorted(texts.cbegin(), texts.cend());
    sorted.sort();
    return QJsonArray::fromStringList(sorted);
}

QString toJsonText(const QSet<QString>& texts) {
    return QString::fromUtf8(QJsonDocument(toJson(texts)).toJson(QJsonDocument::Compact));
}

QString toJsonText(const AppBlockerService::SiteLists& lists) {
    QJsonObject object;
    for (auto it = lists.cbegin(); it != lists.cend(); ++it)
        object.insert(it.key(), toJson(it.value()));
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QSet<QString> fromJson(const QJsonArray& array) {
    QSet<QString> texts;
    for (const QJsonValue& value : array) {
        const QString text = value.toString();
        if (!text.isEmpty())
            texts.insert(text);
    }
    return texts;
}

// None where nothing is stored; a damaged value is reported and read as an empty list.
QJsonDocument storedList(const Preferences& preferences, const QString& key) {
    const std::optional<QVariant> stored = preferences.value(key);
    if (!stored)
        return {};
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(stored->toString().toUtf8(), &error);
    if (error.error != QJsonParseError::NoError) {
        logLine(QStringLiteral("AppBlockerService: The list stored under %1 cannot be read: %2")
                    .arg(key, error.errorString()));
    }
    return document;
}

QSet<QString> storedApps(const Preferences& preferences, const QString& key) {
    return fromJson(storedList(preferences, key).array());
}

AppBlockerService::SiteLists storedSites(const Preferences& preferences, const QString& key) {
    AppBlockerService::SiteLists lists;
    const QJsonObject object = storedList(preferences, key).object();
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        const QSet<QString> sites = fromJson(it.value().toArray());
        if (!sites.isEmpty())
            lists.insert(it.key(), sites);
    }
    return lists;
}

} // namespace

AppBlockerService::AppBlockerService(Preferences& preferences, Workspace& workspace, SystemSounds& sounds,
                                     QObject* parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_workspace(workspace)
    , m_sounds(sounds) {
    loadFromDefaults();
}

AppBlockerService::~AppBlockerService() = default;

void AppBlockerService::startBlocking() {
    m_isBlockingActive = true;
    if (!m_workspaceSubscription) {
        m_workspaceSubscription =
            connect(&m_workspace, &Workspace::applicationActivated, this, &AppBlockerService::checkAndBlock);
    }
    if (const auto front = m_workspace.frontmostApplication())
        checkAndBlock(*front);
}

void AppBlockerService::stopBlocking() {
    m_isBlockingActive = false;
    disconnect(m_workspaceSubscription);
    m_workspaceSubscription = {};
}

void AppBlockerService::checkAndBlock(const RunningApplication& app) {
    if (!m_isBlockingActive || app.bundleIdentifier.isEmpty() ||
        app.bundleIdentifier == QLatin1String(ownBundleIdentifier) ||
        !m_lists.blockedAppBundleIDs.contains(app.bundleIdentifier))
        return;
    // Not before the activation has run its course with everybody who listens to it. Blocking may have been
    // switched off by then.
    QMetaObject::invokeMethod(
        this,
        [this, app] {
            if (!m_isBlockingActive)
                return;
            const QString name = app.localizedName.isEmpty() ? app.bundleIdentifier : app.localizedName;
            logLine(QStringLiteral("Blocking app: ") + name);
            m_workspace.hide(app);
            m_workspace.activateOwnApplication();
            m_sounds.beep();
            Q_EMIT blockedAppAttempt(name);
        },
        Qt::QueuedConnection);
}

bool AppBlockerService::addAppToBlocklist(const QString& bundleID) {
    return changeApps(m_lists.blockedAppBundleIDs, bundleID, true);
}

bool AppBlockerService::addAppToWhitelist(const QString& bundleID) {
    return changeApps(m_lists.whitelistedAppBundleIDs, bundleID, true);
}

bool AppBlockerService::removeAppFromBlocklist(const QString& bundleID) {
    return changeApps(m_lists.blockedAppBundleIDs, bundleID, false);
}

bool AppBlockerService::removeAppFromWhitelist(const QString& bundleID) {
    return changeApps(m_lists.whitelistedAppBundleIDs, bundleID, false);
}

bool AppBlockerService::changeApps(QSet<QString>& apps, const QString& bundleID, bool add) {
    const QString identifier = bundleID.trimmed();
    if (identifier.isEmpty() || apps.contains(identifier) == add)
        return false;
    if (add)
        apps.insert(identifier);
    else
        apps.remove(identifier);
    saveToDefaults();
    return true;
}

AppBlockerService::SiteChange AppBlockerService::addSiteToWhitelist(const QString& browserBundleID,
                                                                    const QString& site) {
    return changeSites(m_lists.browserWhitelistedSites, browserBundleID, site, true);
}

AppBlockerService::SiteChange AppBlockerService::addSiteToBlocklist(const QString& browserBundleID,
                                                                    const QString& site) {
    return changeSites(m_lists.browserBlockedSites, browserBundleID, site, true);
}

AppBlockerService::SiteChange AppBlockerService::removeSiteFromWhitelist(const QString& browserBundleID,
                                                                         const QString& site) {
    return changeSites(m_lists.browserWhitelistedSites, browserBundleID, site, false);
}

AppBlockerService::SiteChange AppBlockerService::removeSiteFromBlocklist(const QString& browserBundleID,
                                                                         const QString& site) {
    return changeSites(m_lists.browserBlockedSites, browserBundleID, site, false);
}

AppBlockerService::SiteChange AppBlockerService::changeSites(SiteLists& lists, const QString& browserBundleID,
                                                             const QString& site, bool add) {
    const std::optional<QString> pattern = normalizedSitePattern(site);
    if (!pattern || browserBundleID.isEmpty())
        return SiteChange::notASite;
    QSet<QString> sites = lists.value(browserBundleID);
    // An entry written by hand may stand in the file in a form that normalising would change.
    const QString listed = !add && sites.contains(site) ? site : *pattern;
    if (sites.contains(listed) == add)
        return SiteChange::unchanged;
    if (add)
        sites.insert(listed);
    else
        sites.remove(listed);
    if (sites.isEmpty())
        lists.remove(browserBundleID);
    else
        lists.insert(browserBundleID, sites);
    saveToDefaults();
    return SiteChange::changed;
}

QSet<QString> AppBlockerService::getWhitelistedSites(const QString& browserBundleID) const {
    return m_lists.browserWhitelistedSites.value(browserBundleID);
}

QSet<QString> AppBlockerService::getBlockedSites(const QString& browserBundleID) const {
    return m_lists.browserBlockedSites.value(browserBundleID);
}

bool AppBlockerService::hasSiteConfiguration(const QString& browserBundleID) const {
    return !getWhitelistedSites(browserBundleID).isEmpty() || !getBlockedSites(browserBundleID).isEmpty();
}

SiteVerdict AppBlockerService::siteVerdict(const QString& browserBundleID, const QString& domain) const {
    return judgeSite(domain, getWhitelistedSites(browserBundleID), getBlockedSites(browserBundleID));
}

bool AppBlockerService::isSiteLegitimate(const QString& browserBundleID, const QString& domain) const {
    return siteVerdict(browserBundleID, domain).isLegitimate();
}

bool AppBlockerService::shouldBlockSite(const QString& browserBundleID, const QString& domain) const {
    return siteVerdict(browserBundleID, domain).isBlocked();
}

bool AppBlockerService::replaceLists(const BlockLists& lists) {
    if (lists == m_lists)
        return false;
    m_lists = lists;
    saveToDefaults();
    return true;
}

void AppBlockerService::loadFromDefaults() {
    m_lists.blockedAppBundleIDs = storedApps(m_preferences, blockedAppsKey);
    m_lists.whitelistedAppBundleIDs = storedApps(m_preferences, whitelistedAppsKey);
    m_lists.browserWhitelistedSites = storedSites(m_preferences, whitelistedSitesKey);
    m_lists.browserBlockedSites = storedSites(m_preferences, blockedSitesKey);
}

void AppBlockerService::saveToDefaults() {
    m_preferences.setValue(blockedAppsKey, toJsonText(m_lists.blockedAppBundleIDs));
    m_preferences.setValue(whitelistedAppsKey, toJsonText(m_lists.whitelistedAppBundleIDs));
    m_preferences.setValue(whitelistedSitesKey, toJsonText(m_lists.browserWhitelistedSites));
    m_preferences.setValue(blockedSitesKey, toJsonText(m_lists.browserBlockedSites));
    logLine(QStringLiteral("AppBlockerService: Saved to UserDefaults (blocked: %1, whitelisted: %2, browsers "
                           "with whitelisted sites: %3, with blocked sites: %4)")
                .arg(m_lists.blockedAppBundleIDs.size())
                .arg(m_lists.whitelistedAppBundleIDs.size())
                .arg(m_lists.browserWhitelistedSites.size())
                .arg(m_lists.browserBlockedSites.size()));
    Q_EMIT listsChanged();
}

} // namespace norvin
