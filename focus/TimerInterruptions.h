#pragma once

#include "distraction/SessionInterruptions.h"
#include "focus/PomodoroTimerService.h"

namespace norvin {

/// The interruptions of the focus timer's phases. Leaving a phase that is complete, or stopping where nothing
/// is under way, interrupts nothing. Main thread only.
class TimerInterruptions final : public SessionInterruptions {
    Q_OBJECT
public:
    /// @param timer must outlive this
    explicit TimerInterruptions(PomodoroTimerService& timer, QObject* parent = nullptr);

private:
    void followState();
    void forward(const QString& reason);

    PomodoroTimerService& m_timer;
    TimerState m_state;
    bool m_wasUnderWay = false; // in the state before this one
};

} // namespace norvin
