#pragma once

#include "distraction/BrowserDomainProbe.h"
#include "distraction/CurrentActivityStatus.h"
#include "platform/SharedInstance.h"
#include "platform/Workspace.h"

#include <QDateTime>
#include <QObject>
#include <QString>

#include <chrono>
#include <memory>
#include <optional>

namespace norvin {

class AppBlockerService;
class BrowserAlertService;
class Clock;
class ClockTimer;
class ModelContext;

/// Seconds of a focus session.
struct FocusMetrics {
    int legitimate = 0;
    int distracted = 0;

    bool operator==(const FocusMetrics&) const = default;
};

/// Follows the frontmost application while a focus session runs, counts its seconds as legitimate or
/// distracted, and records one AppUsageSession per interval of at least a second. Main thread only.
///
/// While a whitelisted browser is in front, it is asked once a second for the domain of the page in front.
/// Its seconds are counted domain by domain, and a blocked site costs the user its tab; where the tab cannot
/// be closed, the browser is hidden.
///
/// A second is counted once: closing an interval forgets its start, a session takes nothing over from before
/// its start, and the time that the machine sleeps belongs to nobody.
class AppUsageService final : public QObject {
    Q_OBJECT
    Q_PROPERTY(int sessionLegitimateTime READ sessionLegitimateTime NOTIFY metricsChanged)
    Q_PROPERTY(int sessionDistractedTime READ sessionDistractedTime NOTIFY metricsChanged)
    Q_PROPERTY(bool isTrackingActive READ isTrackingActive NOTIFY isTrackingActiveChanged)
    Q_PROPERTY(bool isAutomationGranted READ isAutomationGranted NOTIFY permissionsChanged)
    Q_PROPERTY(bool isAccessibilityGranted READ isAccessibilityGranted NOTIFY permissionsChanged)
public:
    AppUsageService(Clock& clock, Workspace& workspace, AppBlockerService& blocker,
                    const BrowserDomainProbe& probe, BrowserAlertService& alert, QObject* parent = nullptr);
    ~AppUsageService() override;

    /// The process-wide instance, for start-up and the registration of the window's types.
    [[nodiscard]] static AppUsageService& shared() { return SharedInstance<AppUsageService>::get(); }

    /// Nothing is counted or recorded by application without a context.
    void setModelContext(ModelContext* context) { m_modelContext = context; }

    void startTracking();
    void stopTracking();

    /// The counters plus, while tracking is on, the open interval as its closing would count it.
    [[nodiscard]] FocusMetrics getCurrentMetrics() const;

    /// Seconds of the closed intervals only; the same for the distracted ones.
    [[nodiscard]] int sessionLegitimateTime() const { return m_sessionLegitimateTime; }
    [[nodiscard]] int sessionDistractedTime() const { return m_sessionDistractedTime; }
    [[nodiscard]] const CurrentActivityStatus& currentActivityStatus() const {
        return m_currentActivityStatus;
    }
    [[nodiscard]] bool isTrackingActive() const { return m_isTrackingActive; }
    /// The application whose interval is open; none when there is none.
    [[nodiscard]] const std::optional<RunningApplication>& currentApp() const { return m_currentApp; }
    /// Whether browsers with scripts let this program ask them, as far as the last one asked has shown; true
    /// until one has refused.
    [[nodiscard]] bool isAutomationGranted() const { return m_isAutomationGranted; }
    /// The same for browsers that are read through their accessible interface.
    [[nodiscard]] bool isAccessibilityGranted() const { return m_isAccessibilityGranted; }

    /// Whether the application in front can be known on this desktop.
    [[nodiscard]] Availability trackingAvailability() const { return m_workspace.availability(); }

    /// Closes the open intervals because the program ends.
    void applicationWillTerminate();

Q_SIGNALS:
    /// A blocked site came to the front; the text is its domain.
    void blockedSiteAttempt(const QString& domain);
    void metricsChanged();
    void currentActivityStatusChanged();
    void isTrackingActiveChanged();
    void permissionsChanged();
    void trackingAvailabilityChanged();

private:
    /// A moment on both clocks: lengths are measured on one, stamps are read from the other.
    struct Moment {
        std::chrono::milliseconds monotonic;
        QDateTime wall;
    };
    enum class Verdict { legitimate, distracted, uncounted };

    [[nodiscard]] Moment currentMoment() const;
    [[nodiscard]] int wholeSecondsSince(const Moment& start) const;
    [[nodiscard]] bool isWhitelistedBrowser(const RunningApplication& app) const;
    [[nodiscard]] Verdict verdictForApplication(const RunningApplication& app) const;
    [[nodiscard]] Verdict verdictForDomain(const RunningApplication& browser) const;
    [[nodiscard]] int openApplicationSeconds() const;
    [[nodiscard]] int openDomainSeconds() const;
    void forgetIntervals();
    void handleSwitch(const RunningApplication& app);
    void handleFrontmostLost();
    void handleWake();
    void handleListsChanged();
    void startBrowserURLPolling(const RunningApplication& browser);
    void pollBrowser();
    void stopBrowserURLPolling();
    void evaluateBrowserState(const RunningApplication& browser, bool isInitial, const Moment& moment);
    void startBrowserInterval(const RunningApplication& browser, const std::optional<QString>& domain,
                              const Moment& start);
    void enforce(const RunningApplication& browser, const QString& domain);
    [[nodiscard]] bool closeTab(const RunningApplication& browser, const QString& domain);
    void endEnforcement();
    void closeBrowserDomainSession();
    void closeCurrentSession();
    void setAutomationGranted(bool isGranted);
    void setAccessibilityGranted(bool isGranted);
    void count(Verdict verdict, int seconds);
    void updateActivityStatus(const RunningApplication& app, const std::optional<QString>& domain);
    void setActivityStatus(CurrentActivityStatus status);

    Clock& m_clock;
    Workspace& m_workspace;
    AppBlockerService& m_blocker;
    BrowserDomainProbe m_probe;
    BrowserAlertService& m_alert;
    ModelContext* m_modelContext = nullptr;
    std::optional<RunningApplication> m_currentApp;
    std::optional<Moment> m_startTime;
    std::optional<QString> m_currentBrowserDomain;
    std::optional<Moment> m_browserDomainStartTime;
    std::unique_ptr<ClockTimer> m_browserURLPollTimer;
    /// When the current poll is due, or was last.
    Moment m_browserURLPollMoment;
    int m_secondsCountedByDomain = 0; // of the open application interval
    int m_sessionLegitimateTime = 0;
    int m_sessionDistractedTime = 0;
    /// The blocked domain most recently reported; none while no blocked page is in front.
    std::optional<QString> m_lastEnforcedDomain;
    CurrentActivityStatus m_currentActivityStatus;
    bool m_isTrackingActive = false;
    bool m_isAutomationGranted = true;
    bool m_isAccessibilityGranted = true;
};

} // namespace norvin
