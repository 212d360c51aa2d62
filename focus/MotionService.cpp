#include "focus/MotionService.h"

#include "platform/Clock.h"
#include "platform/IdleTimeSource.h"
#include "platform/Preferences.h"

namespace norvin {

namespace {

constexpr auto thresholdKey = QLatin1String("inactivity_threshold_minutes");
constexpr auto enabledKey = QLatin1String("is_inactivity_detector_enabled");
constexpr std::chrono::seconds defaultThreshold{180};

} // namespace

MotionService::MotionService(Clock& clock, IdleTimeSource& idleTimeSource, Preferences& preferences,
                             QObject* parent)
    : QObject(parent)
    , m_clock(clock)
    , m_idleTimeSource(idleTimeSource)
    , m_preferences(preferences) {}

MotionService::~MotionService() = default;

void MotionService::startMonitoring() {
    if (m_isMonitoring)
        return;
    m_isMonitoring = true;
    m_timer = m_clock.every(std::chrono::seconds(1), [this] { updateIdleTime(); });
}

void MotionService::stopMonitoring() {
    m_isMonitoring = false;
    m_timer.reset();
    setIdleTime(0);
    setInactive(false);
}

std::chrono::seconds MotionService::threshold() const {
    constexpr qlonglong mostMinutes = 60LL * 24 * 365;
    const qlonglong minutes = m_preferences.value(thresholdKey).value_or(QVariant(0)).toLongLong();
    if (minutes <= 0)
        return defaultThreshold;
    return std::chrono::minutes(std::min(minutes, mostMinutes));
}

void MotionService::updateIdleTime() {
    const auto idle = m_idleTimeSource.timeSinceLastInput();
    setIdleTime(idle ? std::chrono::duration<double>(*idle).count() : 0);
    setInactive(isDetectorEnabled() && idle && *idle >= threshold());
}

bool MotionService::isDetectorEnabled() const {
    return m_preferences.value(enabledKey).value_or(QVariant(true)).toBool();
}

void MotionService::setIdleTime(double seconds) {
    if (seconds == m_idleTime)
        return;
    m_idleTime = seconds;
    Q_EMIT idleTimeChanged();
}

void MotionService::setInactive(bool inactive) {
    if (inactive == m_isInactive)
        return;
    m_isInactive = inactive;
    Q_EMIT isInactiveChanged();
}

} // namespace norvin
