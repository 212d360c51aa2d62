#pragma once

#include "distraction/BlockLists.h"
#include "distraction/SiteVerdict.h"
#include "platform/SharedInstance.h"
#include "platform/Workspace.h"

#include <QMetaObject>
#include <QObject>
#include <QSet>
#include <QString>

namespace norvin {

class Preferences;
class SystemSounds;

/// The user's four lists, and, while blocking is active, the hiding of blocked applications. Main thread
/// only.
///
/// Every change of a list is stored in the preferences at once. A list is empty when nothing, or nothing
/// readable, is stored.
class AppBlockerService final : public QObject {
    Q_OBJECT
public:
    using SiteLists = norvin::SiteLists;

    AppBlockerService(Preferences& preferences, Workspace& workspace, SystemSounds& sounds,
                      QObject* parent = nullptr);
    ~AppBlockerService() override;

    /// The process-wide instance, for start-up and the registration of the window's types.
    [[nodiscard]] static AppBlockerService& shared() { return SharedInstance<AppBlockerService>::get(); }

    [[nodiscard]] const QSet<QString>& blockedAppBundleIDs() const { return m_lists.blockedAppBundleIDs; }
    [[nodiscard]] const QSet<QString>& whitelistedAppBundleIDs() const {
        return m_lists.whitelistedAppBundleIDs;
    }
    /// Patterns by the browser's bundle identifier; the same for the blocked ones.
    [[nodiscard]] const SiteLists& browserWhitelistedSites() const { return m_lists.browserWhitelistedSites; }
    [[nodiscard]] const SiteLists& browserBlockedSites() const { return m_lists.browserBlockedSites; }
    [[nodiscard]] const BlockLists& lists() const { return m_lists; }
    [[nodiscard]] bool isBlockingActive() const { return m_isBlockingActive; }

    /// Hides the frontmost application if it is blocked, and every blocked one that comes to the front from
    /// now.
    void startBlocking();
    void stopBlocking();

    /// The list operations return false when they changed nothing: the entry was there already (or was not,
    /// for the removals), or the identifier is empty.
    bool addAppToBlocklist(const QString& bundleID);
    bool addAppToWhitelist(const QString& bundleID);
    bool removeAppFromBlocklist(const QString& bundleID);
    bool removeAppFromWhitelist(const QString& bundleID);

    enum class SiteChange { changed, unchanged, notASite };
    /// @param site anything a user may paste: an address, a domain, a pattern; notASite when no host name is
    /// in it
    SiteChange addSiteToWhitelist(const QString& browserBundleID, const QString& site);
    SiteChange addSiteToBlocklist(const QString& browserBundleID, const QString& site);
    SiteChange removeSiteFromWhitelist(const QString& browserBundleID, const QString& site);
    SiteChange removeSiteFromBlocklist(const QString& browserBundleID, const QString& site);

    /// Replaces all four lists in one step. The patterns are taken as they are: see normalizedSitePattern().
    /// @return false when these are the lists already
    bool replaceLists(const BlockLists& lists);

    [[nodiscard]] QSet<QString> getWhitelistedSites(const QString& browserBundleID) const;
    [[nodiscard]] QSet<QString> getBlockedSites(const QString& browserBundleID) const;
    /// Whether the browser has any site in either list.
    [[nodiscard]] bool hasSiteConfiguration(const QString& browserBundleID) const;

    /// The rules of the browser's lists for a domain, and which of them decides. Whether the browser itself
    /// is on a list is another matter.
    [[nodiscard]] SiteVerdict siteVerdict(const QString& browserBundleID, const QString& domain) const;
    [[nodiscard]] bool isSiteLegitimate(const QString& browserBundleID, const QString& domain) const;
    [[nodiscard]] bool shouldBlockSite(const QString& browserBundleID, const QString& domain) const;

Q_SIGNALS:
    /// A blocked application came to the front and was hidden; the text is its name.
    void blockedAppAttempt(const QString& appName);
    void listsChanged();

private:
    void checkAndBlock(const RunningApplication& app);
    void loadFromDefaults();
    void saveToDefaults();
    bool changeApps(QSet<QString>& apps, const QString& bundleID, bool add);
    SiteChange changeSites(SiteLists& lists, const QString& browserBundleID, const QString& site, bool add);

    Preferences& m_preferences;
    Workspace& m_workspace;
    SystemSounds& m_sounds;
    BlockLists m_lists;
    bool m_isBlockingActive = false;
    QMetaObject::Connection m_workspaceSubscription;
};

} // namespace norvin
