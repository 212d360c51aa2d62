#include "focus/SessionAmbience.h"

#include "focus/PomodoroTimerService.h"
#include "sound/AmbientSoundService.h"
#include "sound/ImmersionService.h"

namespace norvin {

SessionAmbience::SessionAmbience(PomodoroTimerService& timer, AmbientSoundService& sound,
                                 ImmersionService& immersion, QObject* parent)
    : QObject(parent)
    , m_timer(timer)
    , m_sound(sound)
    , m_immersion(immersion) {
    connect(&timer, &PomodoroTimerService::stateChanged, this, &SessionAmbience::followState);
    connect(&timer, &PomodoroTimerService::phaseChanged, this, &SessionAmbience::followState);
    connect(&timer, &PomodoroTimerService::timeRemainingChanged, this, &SessionAmbience::followTime);
}

bool SessionAmbience::isWorkRunning() const {
    return m_timer.state() == TimerState::running && m_timer.phase() == PomodoroPhase::work;
}

void SessionAmbience::followState() {
    m_sound.followSession(isWorkRunning());
    followTime();
}

void SessionAmbience::followTime() {
    if (isWorkRunning())
        m_immersion.followWork(std::chrono::seconds(m_timer.initialDuration() - m_timer.timeRemaining()));
    else
        m_immersion.surface();
}

} // namespace norvin
