#pragma once

#include "distraction/CurrentActivityStatus.h"
#include "platform/SharedInstance.h"
#include "platform/Workspace.h"

#include <QDateTime>
#include <QObject>
#include <QString>

#include <chrono>
#include <optional>

namespace norvin {

class AppBlockerService;
class Clock;
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
/// A second is counted once: closing an interval forgets its start, a session takes nothing over from before
/// its start, and the time that the machine sleeps belongs to nobody.
class AppUsageService final : public QObject {
    Q_OBJECT
    Q_PROPERTY(int sessionLegitimateTime READ sessionLegitimateTime NOTIFY metricsChanged)
    Q_PROPERTY(int sessionDistractedTime READ sessionDistractedTime NOTIFY metricsChanged)
    Q_PROPERTY(bool isTrackingActive READ isTrackingActive NOTIFY isTrackingActiveChanged)
public:
    AppUsageService(Clock& clock, Workspace& workspace, AppBlockerService& blocker,
                    QObject* parent = nullptr);
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
    void startBrowserInterval(const RunningApplication& browser);
    void closeBrowserDomainSession();
    void closeCurrentSession();
    void count(Verdict verdict, int seconds);
    void updateActivityStatus(const RunningApplication& app, const std::optional<QString>& domain);
    void setActivityStatus(CurrentActivityStatus status);

    Clock& m_clock;
    Workspace& m_workspace;
    AppBlockerService& m_blocker;
    ModelContext* m_modelContext = nullptr;
    std::optional<RunningApplication> m_currentApp;
    std::optional<Moment> m_startTime;
    std::optional<QString> m_currentBrowserDomain;
    std::optional<Moment> m_browserDomainStartTime;
    int m_secondsCountedByDomain = 0; // of the open application interval
    int m_sessionLegitimateTime = 0;
    int m_sessionDistractedTime = 0;
    CurrentActivityStatus m_currentActivityStatus;
    bool m_isTrackingActive = false;
};

} // namespace norvin
