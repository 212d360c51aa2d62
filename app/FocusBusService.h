#pragma once

#include "platform/Availability.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <functional>

namespace norvin {

class AppBlockerService;
class DeepWorkScreen;
class TrackingHealthModel;

/// Name on the session bus, and name of the interface.
inline constexpr auto focusBusName = "com.norvin.Focus";
inline constexpr auto focusBusPath = "/com/norvin/Focus";
/// Error of a call that was refused; the message is the localisation key of the reason.
inline constexpr auto focusBusRefused = "com.norvin.Focus.Error.Refused";

/// The program's face on the session bus. Main thread only.
///
/// Properties are announced by PropertiesChanged, except for those that change every second while a phase
/// runs (TimeRemaining, LegitimateSeconds, DistractedSeconds, Score): ask for them, or call Follow().
class FocusBusService final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.norvin.Focus")
    Q_PROPERTY(QString State READ state)
    Q_PROPERTY(QString Phase READ phase)
    Q_PROPERTY(int TimeRemaining READ timeRemaining)
    Q_PROPERTY(int InitialDuration READ initialDuration)
    Q_PROPERTY(int SelectedDuration READ selectedDuration)
    Q_PROPERTY(int InterruptionCount READ interruptionCount)
    Q_PROPERTY(int BlockedAttemptsCount READ blockedAttemptsCount)
    Q_PROPERTY(int BlockedSiteAttemptsCount READ blockedSiteAttemptsCount)
    Q_PROPERTY(int CompletedTasksCount READ completedTasksCount)
    Q_PROPERTY(int CompletedSubtasksCount READ completedSubtasksCount)
    Q_PROPERTY(int LegitimateSeconds READ legitimateSeconds)
    Q_PROPERTY(int DistractedSeconds READ distractedSeconds)
    Q_PROPERTY(double Score READ score)
    Q_PROPERTY(QString ActivityKind READ activityKind)
    Q_PROPERTY(QString ActivityAppName READ activityAppName)
    Q_PROPERTY(QString ActivityDomain READ activityDomain)
    Q_PROPERTY(QString ActiveTask READ activeTask)
    Q_PROPERTY(QStringList Queue READ queue)
public:
    FocusBusService(QDBusConnection bus, DeepWorkScreen& screen, AppBlockerService& blocker,
                    TrackingHealthModel& health, QObject* parent = nullptr);
    ~FocusBusService() override;

    /// Puts the object on the bus and asks for the name.
    /// @return why that failed: no session bus, or the name belongs to somebody else
    Availability publish();

    /// What ShowWindow() does.
    void setShowWindow(std::function<void()> showWindow) { m_showWindow = std::move(showWindow); }

    [[nodiscard]] QString state() const;
    [[nodiscard]] QString phase() const;
    [[nodiscard]] int timeRemaining() const;
    [[nodiscard]] int initialDuration() const;
    [[nodiscard]] int selectedDuration() const;
    [[nodiscard]] int interruptionCount() const;
    [[nodiscard]] int blockedAttemptsCount() const;
    [[nodiscard]] int blockedSiteAttemptsCount() const;
    [[nodiscard]] int completedTasksCount() const;
    [[nodiscard]] int completedSubtasksCount() const;
    [[nodiscard]] int legitimateSeconds() const;
    [[nodiscard]] int distractedSeconds() const;
    [[nodiscard]] double score() const;
    [[nodiscard]] QString activityKind() const;
    [[nodiscard]] QString activityAppName() const;
    [[nodiscard]] QString activityDomain() const;
    [[nodiscard]] QString activeTask() const;
    [[nodiscard]] QStringList queue() const;

public Q_SLOTS:
    /// @param minutes 1 to 1440, or 0 for the usual length
    /// @param task title of the task to work on, made if it is not queued; empty for the one at hand
    /// @param phase "work", "break_time" or "rearming"
    void StartSession(int minutes, const QString& task, const QString& phase);
    void Pause();
    void Resume();
    void Stop();
    void AddTask(const QString& title);
    void ShowWindow();
    /// JSON texts; see StatusReport.
    QString Status();
    QString Tasks();
    QString Lists();
    QString Doctor();
    /// The status, and from now on StatusChanged for as long as the caller stays on the bus.
    QString Follow();
    void ChangeApplication(bool blocked, const QString& bundleIdentifier, bool remove);
    void ChangeSite(bool blocked, const QString& browser, const QString& site, bool remove);

Q_SIGNALS:
    void StatusChanged(const QString& status);
    void SessionInterrupted(const QString& reason);

private:
    void refuse(const QString& reasonKey);
    void scheduleAnnouncement();
    void announce();
    [[nodiscard]] QString statusJson();
    [[nodiscard]] QVariantMap steadyProperties() const;

    QDBusConnection m_bus;
    DeepWorkScreen& m_screen;
    AppBlockerService& m_blocker;
    TrackingHealthModel& m_health;
    QDBusServiceWatcher m_followerWatch;
    QSet<QString> m_followers;
    QVariantMap m_announced;
    QString m_followedStatus;
    bool m_announcementScheduled = false;
    std::function<void()> m_showWindow;
};

} // namespace norvin
