#pragma once

#include "platform/SharedInstance.h"

#include <QObject>

#include <chrono>
#include <memory>

namespace norvin {

class Clock;
class ClockTimer;
class IdleTimeSource;
class Preferences;

/// Watches, while a work phase runs, how long keyboard and pointer have been untouched. Main thread only.
class MotionService final : public QObject {
    Q_OBJECT
    Q_PROPERTY(double idleTime READ idleTime NOTIFY idleTimeChanged)
    Q_PROPERTY(bool isInactive READ isInactive NOTIFY isInactiveChanged)
public:
    MotionService(Clock& clock, IdleTimeSource& idleTimeSource, Preferences& preferences,
                  QObject* parent = nullptr);
    ~MotionService() override;

    /// The process-wide instance, for start-up and the registration of the window's types.
    [[nodiscard]] static MotionService& shared() { return SharedInstance<MotionService>::get(); }

    /// Starts the refresh once a second; does nothing while monitoring.
    void startMonitoring();
    /// Stops it and clears idleTime and isInactive at once.
    void stopMonitoring();
    [[nodiscard]] bool isMonitoring() const { return m_isMonitoring; }

    /// Seconds since the last input, as of the last refresh; 0 when it cannot be known.
    [[nodiscard]] double idleTime() const { return m_idleTime; }
    /// Whether the idle time is at or above the threshold and the detector is on.
    [[nodiscard]] bool isInactive() const { return m_isInactive; }
    /// The threshold in force, from the preferences; 3 minutes where none is set.
    [[nodiscard]] std::chrono::seconds threshold() const;

Q_SIGNALS:
    void idleTimeChanged();
    void isInactiveChanged();

private:
    void updateIdleTime();
    [[nodiscard]] bool isDetectorEnabled() const;
    void setIdleTime(double seconds);
    void setInactive(bool inactive);

    Clock& m_clock;
    IdleTimeSource& m_idleTimeSource;
    Preferences& m_preferences;
    std::unique_ptr<ClockTimer> m_timer;
    double m_idleTime = 0;
    bool m_isInactive = false;
    bool m_isMonitoring = false;
};

} // namespace norvin
