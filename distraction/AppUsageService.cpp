#include "distraction/AppUsageService.h"

#include "distraction/AppBlockerService.h"
#include "distraction/BrowserAlertService.h"
#include "distraction/KnownBrowsers.h"
#include "distraction/UsageCategory.h"
#include "model/ModelContext.h"
#include "platform/ApplicationCatalog.h"
#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/ScriptableBrowser.h"

namespace norvin {

namespace {

constexpr std::chrono::milliseconds pollInterval{1000};

bool isOwn(const RunningApplication& app) {
    return app.bundleIdentifier == QLatin1String(ownBundleIdentifier);
}

bool isKnownBrowser(const RunningApplication& app) {
    return knownBrowserBundleIDs().contains(app.bundleIdentifier);
}

QString nameOrUnknown(const RunningApplication& app) {
    return app.localizedName.isEmpty() ? QStringLiteral("Unknown") : app.localizedName;
}

} // namespace

AppUsageService::AppUsageService(Clock& clock, Workspace& workspace, AppBlockerService& blocker,
                                 const BrowserDomainProbe& probe, BrowserAlertService& alert, QObject* parent)
    : QObject(parent)
    , m_clock(clock)
    , m_workspace(workspace)
    , m_blocker(blocker)
    , m_probe(probe)
    , m_alert(alert) {
    connect(&m_workspace, &Workspace::applicationActivated, this, &AppUsageService::handleSwitch);
    connect(&m_workspace, &Workspace::frontmostApplicationLost, this, &AppUsageService::handleFrontmostLost);
    connect(&m_workspace, &Workspace::willSleep, this, &AppUsageService::closeCurrentSession);
    connect(&m_workspace, &Workspace::didWake, this, &AppUsageService::handleWake);
    connect(&m_workspace, &Workspace::availabilityChanged, this,
            &AppUsageService::trackingAvailabilityChanged);
    connect(&m_blocker, &AppBlockerService::listsChanged, this, &AppUsageService::handleListsChanged);
}

AppUsageService::~AppUsageService() = default;

void AppUsageService::startTracking() {
    logLine(QStringLiteral("AppUsageService: Starting tracking for Deep Work session"));
    // What is still open belongs to the session before.
    endEnforcement();
    closeBrowserDomainSession();
    stopBrowserURLPolling();
    closeCurrentSession();
    forgetIntervals();
    m_sessionLegitimateTime = 0;
    m_sessionDistractedTime = 0;
    if (!m_isTrackingActive) {
        m_isTrackingActive = true;
        Q_EMIT isTrackingActiveChanged();
    }
    Q_EMIT metricsChanged();
    if (const auto front = m_workspace.frontmostApplication())
        handleSwitch(*front);
}

void AppUsageService::stopTracking() {
    logLine(QStringLiteral("AppUsageService: Stopping tracking"));
    closeBrowserDomainSession();
    closeCurrentSession();
    stopBrowserURLPolling();
    endEnforcement();
    forgetIntervals();
    if (m_isTrackingActive) {
        m_isTrackingActive = false;
        Q_EMIT isTrackingActiveChanged();
    }
    setActivityStatus({});
}

FocusMetrics AppUsageService::getCurrentMetrics() const {
    FocusMetrics metrics{m_sessionLegitimateTime, m_sessionDistractedTime};
    if (!m_isTrackingActive || !m_currentApp)
        return metrics;
    const bool byDomain = isWhitelistedBrowser(*m_currentApp);
    const int open = byDomain ? openDomainSeconds() : openApplicationSeconds();
    const Verdict verdict = byDomain ? verdictForDomain(*m_currentApp) : verdictForApplication(*m_currentApp);
    (verdict == Verdict::legitimate ? metrics.legitimate : metrics.distracted) += open;
    return metrics;
}

void AppUsageService::applicationWillTerminate() {
    closeCurrentSession();
}

AppUsageService::Moment AppUsageService::currentMoment() const {
    return {m_clock.monotonic(), m_clock.now()};
}

int AppUsageService::wholeSecondsSince(const Moment& start) const {
    return static_cast<int>(
        std::chrono::duration_cast<std::chrono::seconds>(m_clock.monotonic() - start.monotonic).count());
}

// A browser may leave the whitelist in the middle of its interval: what was counted page by page until then
// is not counted again with the whole.
int AppUsageService::openApplicationSeconds() const {
    return m_startTime ? wholeSecondsSince(*m_startTime) - m_secondsCountedByDomain : 0;
}

// It may also join the whitelist there: its first page is as old as the interval then.
int AppUsageService::openDomainSeconds() const {
    return m_browserDomainStartTime ? wholeSecondsSince(*m_browserDomainStartTime) : openApplicationSeconds();
}

void AppUsageService::forgetIntervals() {
    m_currentApp.reset();
    m_startTime.reset();
    m_currentBrowserDomain.reset();
    m_browserDomainStartTime.reset();
    m_secondsCountedByDomain = 0;
}

bool AppUsageService::isWhitelistedBrowser(const RunningApplication& app) const {
    return isKnownBrowser(app) && m_blocker.whitelistedAppBundleIDs().contains(app.bundleIdentifier);
}

AppUsageService::Verdict AppUsageService::verdictForApplication(const RunningApplication& app) const {
    if (isWhitelistedBrowser(app))
        return Verdict::uncounted; // counted page by page
    if (isKnownBrowser(app))
        return Verdict::distracted;
    return m_blocker.whitelistedAppBundleIDs().contains(app.bundleIdentifier) || isOwn(app)
               ? Verdict::legitimate
               : Verdict::distracted;
}

AppUsageService::Verdict AppUsageService::verdictForDomain(const RunningApplication& browser) const {
    // A page that cannot be read is given the benefit of the doubt.
    if (!m_currentBrowserDomain ||
        m_blocker.isSiteLegitimate(browser.bundleIdentifier, *m_currentBrowserDomain))
        return Verdict::legitimate;
    return Verdict::distracted;
}

void AppUsageService::handleSwitch(const RunningApplication& app) {
    if (!m_isTrackingActive)
        return;
    if (m_currentApp)
        logLine(
            QStringLiteral("Switched from %1 to %2").arg(nameOrUnknown(*m_currentApp), nameOrUnknown(app)));
    endEnforcement();
    // The browser's last domain first: closing the application takes off what its domains have counted.
    closeBrowserDomainSession();
    stopBrowserURLPolling();
    closeCurrentSession();
    forgetIntervals();
    m_currentApp = app;
    m_startTime = currentMoment();
    if (isWhitelistedBrowser(app))
        startBrowserURLPolling(app);
    else
        updateActivityStatus(app, std::nullopt);
}

void AppUsageService::handleFrontmostLost() {
    if (!m_isTrackingActive)
        return;
    endEnforcement();
    closeBrowserDomainSession();
    stopBrowserURLPolling();
    closeCurrentSession();
    forgetIntervals();
    setActivityStatus({});
}

void AppUsageService::handleWake() {
    if (const auto front = m_workspace.frontmostApplication())
        handleSwitch(*front);
}

// An interval counts by the lists at its closing, so only what is shown changes here, and whether the browser
// in front is looked into.
void AppUsageService::handleListsChanged() {
    if (m_isTrackingActive && m_currentApp) {
        const RunningApplication app = *m_currentApp;
        const bool isPolled = m_browserURLPollTimer != nullptr;
        if (isWhitelistedBrowser(app) && !isPolled) {
            closeBrowserDomainSession();
            startBrowserURLPolling(app);
        } else if (!isWhitelistedBrowser(app) && isPolled) {
            stopBrowserURLPolling();
            endEnforcement();
            m_currentBrowserDomain.reset();
            m_browserDomainStartTime.reset();
        }
    }
    // The first evaluation may have hidden the browser.
    if (m_currentApp)
        updateActivityStatus(*m_currentApp, m_currentBrowserDomain);
    Q_EMIT metricsChanged();
}

void AppUsageService::startBrowserURLPolling(const RunningApplication& browser) {
    logLine(QStringLiteral("AppUsageService: [Browser] polling started for %1 (scriptable: %2)")
                .arg(browser.bundleIdentifier, scriptableBrowser(browser.bundleIdentifier)
                                                   ? QStringLiteral("true")
                                                   : QStringLiteral("false")));
    m_browserURLPollMoment = currentMoment();
    m_currentBrowserDomain.reset();
    m_browserDomainStartTime = m_browserURLPollMoment;
    // Before the first evaluation, which may hide the browser and end the polling with that.
    m_browserURLPollTimer = m_clock.every(pollInterval, [this] { pollBrowser(); });
    evaluateBrowserState(browser, true, m_browserURLPollMoment);
}

// A poll comes a few milliseconds after it is due, now more, now less. Intervals that begin when it was due
// are whole seconds long, and lose none when their length is cut to whole seconds.
void AppUsageService::pollBrowser() {
    m_browserURLPollMoment = {m_browserURLPollMoment.monotonic + pollInterval, m_clock.now()};
    if (m_currentApp)
        evaluateBrowserState(RunningApplication(*m_currentApp), false, m_browserURLPollMoment);
}

void AppUsageService::stopBrowserURLPolling() {
    m_browserURLPollTimer.reset();
}

void AppUsageService::evaluateBrowserState(const RunningApplication& browser, bool isInitial,
                                           const Moment& moment) {
    using Kind = BrowserURLReadResult::Kind;
    const BrowserURLReadResult read = m_probe.readBrowserDomain(browser);
    if (read.isAccessibilityGranted)
        setAccessibilityGranted(*read.isAccessibilityGranted);
    if (read.kind != Kind::unreadable)
        setAutomationGranted(read.kind != Kind::automationDenied);

    const std::optional<QString> domain =
        read.kind == Kind::domain ? std::optional<QString>(read.domain) : std::nullopt;
    if (isInitial || domain != m_currentBrowserDomain) {
        if (!isInitial)
            closeBrowserDomainSession();
        startBrowserInterval(browser, domain, moment);
    }
    if (domain && m_blocker.shouldBlockSite(browser.bundleIdentifier, *domain))
        enforce(browser, *domain);
    else
        endEnforcement();
}

void AppUsageService::startBrowserInterval(const RunningApplication& browser,
                                           const std::optional<QString>& domain, const Moment& start) {
    m_currentBrowserDomain = domain;
    m_browserDomainStartTime = start;
    updateActivityStatus(browser, domain);
}

void AppUsageService::enforce(const RunningApplication& browser, const QString& domain) {
    if (m_lastEnforcedDomain != domain) {
        m_lastEnforcedDomain = domain;
        Q_EMIT blockedSiteAttempt(domain);
    }
    m_alert.show(domain);
    if (closeTab(browser, domain))
        return;
    m_workspace.hide(browser);
    m_workspace.activateOwnApplication();
}

bool AppUsageService::closeTab(const RunningApplication& browser, const QString& domain) {
    const BrowserDomainProbe::CloseResult result = m_probe.closeActiveTab(browser.bundleIdentifier);
    if (result.isAutomationDenied)
        setAutomationGranted(false);
    return result.isClosed || m_probe.closeUnscriptedTab(browser, domain);
}

void AppUsageService::endEnforcement() {
    m_lastEnforcedDomain.reset();
    m_alert.dismiss();
}

void AppUsageService::closeBrowserDomainSession() {
    if (!m_currentApp || !isWhitelistedBrowser(*m_currentApp))
        return;
    const int elapsed = openDomainSeconds();
    m_browserDomainStartTime.reset();
    if (elapsed < 1)
        return;
    m_secondsCountedByDomain += elapsed;
    const Verdict verdict = verdictForDomain(*m_currentApp);
    const QString what = m_currentBrowserDomain.value_or(QStringLiteral("(no domain)"));
    const QString side =
        verdict == Verdict::legitimate ? QStringLiteral("LEGITIMATE") : QStringLiteral("DISTRACTED");
    logLine(QStringLiteral("AppUsageService: CLOSE %1 → %2 (+%3s)").arg(what, side).arg(elapsed));
    count(verdict, elapsed);
}

void AppUsageService::closeCurrentSession() {
    if (!m_currentApp || !m_startTime || !m_modelContext)
        return;
    const Moment start = *m_startTime;
    const int uncounted = openApplicationSeconds();
    const int elapsed = wholeSecondsSince(start);
    m_startTime.reset();
    if (elapsed < 1)
        return;
    count(verdictForApplication(*m_currentApp), uncounted);
    if (isOwn(*m_currentApp))
        return;

    AppUsageSession usage;
    usage.bundleID =
        m_currentApp->bundleIdentifier.isEmpty() ? QStringLiteral("unknown") : m_currentApp->bundleIdentifier;
    usage.appName =
        m_currentApp->localizedName.isEmpty() ? QStringLiteral("Inconnu") : m_currentApp->localizedName;
    usage.startTime = start.wall;
    usage.endTime = m_clock.now();
    usage.durationSeconds = elapsed;
    usage.category = resolveCategory(usage.bundleID, m_currentApp->declaredCategory);
    logLine(QStringLiteral("Recording usage: %1 (%2s) in %3")
                .arg(usage.appName)
                .arg(elapsed)
                .arg(usage.category));
    m_modelContext->insert(usage);
    // The counters have moved already; the context reports a save that fails and tries it again.
    static_cast<void>(m_modelContext->save());
}

void AppUsageService::count(Verdict verdict, int seconds) {
    switch (verdict) {
    case Verdict::legitimate:
        m_sessionLegitimateTime += seconds;
        break;
    case Verdict::distracted:
        m_sessionDistractedTime += seconds;
        break;
    case Verdict::uncounted:
        return;
    }
    Q_EMIT metricsChanged();
}

void AppUsageService::updateActivityStatus(const RunningApplication& app,
                                           const std::optional<QString>& domain) {
    if (!m_isTrackingActive) {
        setActivityStatus({});
        return;
    }
    const QString name = app.localizedName.isEmpty() ? app.bundleIdentifier : app.localizedName;
    using Kind = CurrentActivityStatus::Kind;
    if (isWhitelistedBrowser(app)) {
        const bool legitimate = !domain || m_blocker.isSiteLegitimate(app.bundleIdentifier, *domain);
        setActivityStatus({legitimate ? Kind::legitimate : Kind::distracted, name, domain});
    } else {
        const bool legitimate = verdictForApplication(app) == Verdict::legitimate;
        setActivityStatus({legitimate ? Kind::legitimate : Kind::distracted, name, std::nullopt});
    }
}

void AppUsageService::setAutomationGranted(bool isGranted) {
    if (isGranted == m_isAutomationGranted)
        return;
    m_isAutomationGranted = isGranted;
    Q_EMIT permissionsChanged();
}

void AppUsageService::setAccessibilityGranted(bool isGranted) {
    if (isGranted == m_isAccessibilityGranted)
        return;
    m_isAccessibilityGranted = isGranted;
    Q_EMIT permissionsChanged();
}

void AppUsageService::setActivityStatus(CurrentActivityStatus status) {
    if (status == m_currentActivityStatus)
        return;
    m_currentActivityStatus = std::move(status);
    Q_EMIT currentActivityStatusChanged();
}

} // namespace norvin
