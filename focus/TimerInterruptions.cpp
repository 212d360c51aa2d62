#include "focus/TimerInterruptions.h"

#include <utility>

namespace norvin {

TimerInterruptions::TimerInterruptions(PomodoroTimerService& timer, QObject* parent)
    : SessionInterruptions(parent)
    , m_timer(timer)
    , m_state(timer.state()) {
    connect(&m_timer, &PomodoroTimerService::stateChanged, this, &TimerInterruptions::followState);
    connect(&m_timer, &PomodoroTimerService::sessionInterrupted, this, &TimerInterruptions::forward);
}

void TimerInterruptions::followState() {
    m_wasUnderWay = m_state == TimerState::running || m_state == TimerState::paused;
    m_state = m_timer.state();
}

void TimerInterruptions::forward(const QString& reason) {
    // The timer tells after it has changed its state; a stop while idle changes none.
    if (std::exchange(m_wasUnderWay, false))
        Q_EMIT sessionInterrupted(reason);
}

} // namespace norvin
