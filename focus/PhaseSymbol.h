#pragma once

#include "focus/PomodoroTimerService.h"

#include <QString>

namespace norvin {

/// Name of the symbol that stands for a state and phase of the timer, in the tray and everywhere else.
[[nodiscard]] QString phaseSymbol(TimerState state, PomodoroPhase phase);

} // namespace norvin
