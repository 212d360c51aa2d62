#pragma once

#include "platform/BrowserAccess.h"
#include "platform/linux/browsers/BrowserRestarter.h"
#include "platform/linux/browsers/BrowserRoute.h"
#include "platform/linux/webextension/ExtensionInstaller.h"

#include <QHash>

#include <map>
#include <memory>

namespace norvin {

class AtspiBrowsers;
class BrowserRoutes;
class Clock;
class ClockTimer;
class ExtensionServer;
class Workspace;

/// The browsers of this desktop: by accessibility, and by the extension where the user has put it in.
class LinuxBrowserAccess final : public BrowserAccess {
    Q_OBJECT
public:
    /// All references must outlive this.
    LinuxBrowserAccess(Workspace& workspace, BrowserRoutes& routes, AtspiBrowsers& accessibility,
                       ExtensionServer& extensions, BrowserRestarter& restarter, Clock& clock,
                       ExtensionInstaller installer = ExtensionInstaller(), QObject* parent = nullptr);
    ~LinuxBrowserAccess() override;

    [[nodiscard]] QList<Browser> runningBrowsers() override;
    [[nodiscard]] Availability accessibility() const override;
    void setAccessibilityEnabled(bool isEnabled) override;
    [[nodiscard]] bool canInstallExtension(const QString& bundleIdentifier) const override;
    [[nodiscard]] bool isExtensionInstalled(const QString& bundleIdentifier) const override;
    [[nodiscard]] ExtensionStep installExtension(const QString& bundleIdentifier) override;
    [[nodiscard]] ExtensionStep removeExtension(const QString& bundleIdentifier) override;
    void restart(const QString& bundleIdentifier) override;

private:
    void noteState(qint64 processId);
    [[nodiscard]] Availability pagesOf(const QString& bundleIdentifier, qint64 processId);
    void followRestart(const QString& bundleIdentifier, BrowserRestarter::Outcome outcome);
    void awaitPages(const QString& bundleIdentifier, int looksLeft);
    void endRestart(const QString& bundleIdentifier, const QString& textKey);
    [[nodiscard]] QList<ExtensionBrowser> presentBrowsers(const QString& bundleIdentifier) const;

    Workspace& m_workspace;
    BrowserRoutes& m_routes;
    AtspiBrowsers& m_accessibility;
    ExtensionServer& m_extensions;
    BrowserRestarter& m_restarter;
    Clock& m_clock;
    ExtensionInstaller m_installer;
    QHash<qint64, BrowserRoute::State> m_told;                // by process, as changed() has last stood for
    std::map<QString, std::unique_ptr<ClockTimer>> m_awaited; // browsers that open again
    bool m_isLooking = false;
};

} // namespace norvin
