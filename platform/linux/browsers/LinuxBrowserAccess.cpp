#include "platform/linux/browsers/LinuxBrowserAccess.h"

#include "platform/Clock.h"
#include "platform/ScriptableBrowser.h"
#include "platform/Workspace.h"
#include "platform/linux/atspi/AtspiBrowsers.h"
#include "platform/linux/browsers/BrowserRoutes.h"
#include "platform/linux/webextension/ExtensionServer.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace norvin {

namespace {

using State = BrowserRoute::State;

// A browser that was opened is there a while before its pages are, and longest on a busy machine.
constexpr std::chrono::seconds lookInterval{2};
constexpr int looksAfterRestart = 10;

// The browsers that go by an identifier here; each keeps its own settings.
QList<ExtensionBrowser> browsersOf(const QString& bundleIdentifier) {
    static const QList<std::pair<QString, QList<ExtensionBrowser>>> table{
        {QStringLiteral("org.mozilla.firefox"), {ExtensionBrowser::firefox}},
        {QStringLiteral("com.google.Chrome"), {ExtensionBrowser::chromium, ExtensionBrowser::chrome}},
        {QStringLiteral("com.microsoft.edgemac"), {ExtensionBrowser::edge}},
        {QStringLiteral("com.brave.Browser"), {ExtensionBrowser::brave}},
        {QStringLiteral("com.vivaldi.Vivaldi"), {ExtensionBrowser::vivaldi}},
        {QStringLiteral("com.operasoftware.Opera"), {ExtensionBrowser::opera}},
    };
    for (const auto& [identifier, browsers] : table) {
        if (identifier == bundleIdentifier)
            return browsers;
    }
    return {};
}

bool isBrowser(const RunningApplication& application) {
    return scriptableBrowser(application.bundleIdentifier) ||
           !browsersOf(application.bundleIdentifier).isEmpty();
}

bool isReadable(State state) {
    return state == State::readable || state == State::noPage || state == State::noWindow ||
           state == State::elsewhere;
}

} // namespace

LinuxBrowserAccess::LinuxBrowserAccess(Workspace& workspace, BrowserRoutes& routes,
                                       AtspiBrowsers& accessibility, ExtensionServer& extensions,
                                       BrowserRestarter& restarter, Clock& clock,
                                       ExtensionInstaller installer, QObject* parent)
    : BrowserAccess(parent)
    , m_workspace(workspace)
    , m_routes(routes)
    , m_accessibility(accessibility)
    , m_extensions(extensions)
    , m_restarter(restarter)
    , m_clock(clock)
    , m_installer(std::move(installer)) {
    connect(&m_accessibility, &AtspiBrowsers::accessibilityEnabledChanged, this, &BrowserAccess::changed);
    connect(&m_accessibility, &AtspiBrowsers::stateChanged, this, &LinuxBrowserAccess::noteState);
    connect(&m_extensions, &ExtensionServer::connectionsChanged, this, &BrowserAccess::changed);
    connect(&m_restarter, &BrowserRestarter::finished, this, &LinuxBrowserAccess::followRestart);
}

LinuxBrowserAccess::~LinuxBrowserAccess() = default;

// A browser goes from page to page all the time; news is only whether pages can be read.
void LinuxBrowserAccess::noteState(qint64 processId) {
    const State state = m_routes.standing(processId).state;
    const State told = isReadable(state) ? State::readable : state;
    if (std::exchange(m_told[processId], told) != told && !m_isLooking)
        Q_EMIT changed();
}

QList<BrowserAccess::Browser> LinuxBrowserAccess::runningBrowsers() {
    const QScopedValueRollback looking(m_isLooking, true);
    QList<Browser> browsers;
    for (const RunningApplication& application : m_workspace.runningApplications()) {
        if (!isBrowser(application))
            continue;
        browsers.append(
            {application.bundleIdentifier,
             application.localizedName.isEmpty() ? application.bundleIdentifier : application.localizedName,
             pagesOf(application.bundleIdentifier, application.processId),
             m_extensions.isConnected(application.processId)});
    }
    std::sort(browsers.begin(), browsers.end(), [](const Browser& a, const Browser& b) {
        const int order = QString::localeAwareCompare(a.name, b.name);
        return order != 0 ? order < 0 : a.bundleIdentifier < b.bundleIdentifier;
    });
    return browsers;
}

Availability LinuxBrowserAccess::pagesOf(const QString& bundleIdentifier, qint64 processId) {
    State state = m_routes.standing(processId).state;
    // Where nothing reached it so far, something may by now.
    if (!isReadable(state) && state != State::notAnswering)
        state = m_routes.look(processId);
    if (isReadable(state))
        return Availability::available();
    if (state == State::notAnswering)
        return Availability::unavailable(QStringLiteral("health_browser_not_answering"));
    if (isExtensionInstalled(bundleIdentifier))
        return Availability::unavailable(QStringLiteral("health_extension_not_connected"));
    if (Availability general = accessibility(); !general.isAvailable())
        return general;
    return Availability::unavailable(QStringLiteral("health_browser_restart"));
}

Availability LinuxBrowserAccess::accessibility() const {
    const std::optional<bool> isEnabled = m_accessibility.isAccessibilityEnabled();
    if (!isEnabled)
        return Availability::unavailable(QStringLiteral("health_accessibility_missing"));
    return *isEnabled ? Availability::available()
                      : Availability::unavailable(QStringLiteral("health_accessibility_off"));
}

void LinuxBrowserAccess::setAccessibilityEnabled(bool isEnabled) {
    m_accessibility.setAccessibilityEnabled(isEnabled);
}

// Of browsers that share an identifier, those that the user has.
QList<ExtensionBrowser> LinuxBrowserAccess::presentBrowsers(const QString& bundleIdentifier) const {
    const QList<ExtensionBrowser> browsers = browsersOf(bundleIdentifier);
    QList<ExtensionBrowser> present;
    std::copy_if(browsers.cbegin(), browsers.cend(), std::back_inserter(present),
                 [this](ExtensionBrowser browser) { return m_installer.isBrowserPresent(browser); });
    return present.isEmpty() ? browsers.first(std::min<qsizetype>(1, browsers.size())) : present;
}

bool LinuxBrowserAccess::canInstallExtension(const QString& bundleIdentifier) const {
    return !browsersOf(bundleIdentifier).isEmpty();
}

bool LinuxBrowserAccess::isExtensionInstalled(const QString& bundleIdentifier) const {
    const QList<ExtensionBrowser> browsers = browsersOf(bundleIdentifier);
    return std::any_of(browsers.cbegin(), browsers.cend(),
                       [this](ExtensionBrowser browser) { return m_installer.isInstalled(browser); });
}

BrowserAccess::ExtensionStep LinuxBrowserAccess::installExtension(const QString& bundleIdentifier) {
    ExtensionStep step;
    for (const ExtensionBrowser browser : presentBrowsers(bundleIdentifier)) {
        const ExtensionInstaller::Result result = m_installer.install(browser);
        const bool isDone = result.state != ExtensionInstaller::State::failed;
        // What the user still has to do is worth more words than what works by itself.
        if (step.textKey.isEmpty() || !isDone || result.state == ExtensionInstaller::State::needsStep)
            step = {isDone, result.sentenceKey, result.detail};
    }
    Q_EMIT changed();
    return step;
}

BrowserAccess::ExtensionStep LinuxBrowserAccess::removeExtension(const QString& bundleIdentifier) {
    ExtensionStep step;
    for (const ExtensionBrowser browser : browsersOf(bundleIdentifier)) {
        if (!m_installer.isInstalled(browser))
            continue;
        const ExtensionInstaller::Result result = m_installer.remove(browser);
        if (step.textKey.isEmpty() || result.state == ExtensionInstaller::State::failed)
            step = {result.state == ExtensionInstaller::State::removed, result.sentenceKey, result.detail};
    }
    Q_EMIT changed();
    return step;
}

void LinuxBrowserAccess::restart(const QString& bundleIdentifier) {
    std::optional<RunningApplication> browser;
    for (const RunningApplication& application : m_workspace.runningApplications()) {
        if (application.bundleIdentifier != bundleIdentifier)
            continue;
        // Of several that share the identifier, one that cannot be looked into.
        const bool isInTrouble = !pagesOf(bundleIdentifier, application.processId).isAvailable();
        if (!browser || isInTrouble)
            browser = application;
        if (isInTrouble)
            break;
    }
    if (!browser) {
        // It was closed meanwhile, which leaves nothing to do.
        QMetaObject::invokeMethod(
            this, [this, bundleIdentifier] { endRestart(bundleIdentifier, {}); }, Qt::QueuedConnection);
        return;
    }
    // Firefox finds its tabs again by itself after such an end.
    const QList<ExtensionBrowser> browsers = browsersOf(bundleIdentifier);
    const bool isFirefox = browsers.isEmpty() || browsers.contains(ExtensionBrowser::firefox);
    m_restarter.restart(*browser,
                        isFirefox ? QStringList() : QStringList{QStringLiteral("--restore-last-session")});
}

void LinuxBrowserAccess::followRestart(const QString& bundleIdentifier, BrowserRestarter::Outcome outcome) {
    switch (outcome) {
    case BrowserRestarter::Outcome::notClosed:
        endRestart(bundleIdentifier, QStringLiteral("browser_restart_not_closed"));
        return;
    case BrowserRestarter::Outcome::notOpened:
        endRestart(bundleIdentifier, QStringLiteral("browser_restart_not_opened"));
        return;
    case BrowserRestarter::Outcome::opened:
        awaitPages(bundleIdentifier, looksAfterRestart);
    }
}

void LinuxBrowserAccess::awaitPages(const QString& bundleIdentifier, int looksLeft) {
    m_awaited[bundleIdentifier] = m_clock.after(lookInterval, [this, bundleIdentifier, looksLeft] {
        const QList<Browser> browsers = runningBrowsers();
        const bool isReached = std::any_of(browsers.cbegin(), browsers.cend(), [&](const Browser& browser) {
            return browser.bundleIdentifier == bundleIdentifier && browser.pages.isAvailable();
        });
        if (isReached || looksLeft <= 1)
            endRestart(QString(bundleIdentifier), {});
        else
            awaitPages(QString(bundleIdentifier), looksLeft - 1);
    });
}

void LinuxBrowserAccess::endRestart(const QString& bundleIdentifier, const QString& textKey) {
    m_awaited.erase(bundleIdentifier);
    Q_EMIT changed();
    Q_EMIT restartEnded(bundleIdentifier, textKey);
}

} // namespace norvin
