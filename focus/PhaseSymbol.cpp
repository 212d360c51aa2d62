#include "focus/PhaseSymbol.h"

namespace norvin {

QString phaseSymbol(TimerState state, PomodoroPhase phase) {
    switch (state) {
    case TimerState::idle:
        return QStringLiteral("brain");
    case TimerState::paused:
        return QStringLiteral("pause.circle.fill");
    case TimerState::completed:
        return QStringLiteral("checkmark.circle.fill");
    case TimerState::running:
        break;
    }
    switch (phase) {
    case PomodoroPhase::work:
        return QStringLiteral("brain.head.profile");
    case PomodoroPhase::breakTime:
        return QStringLiteral("cup.and.saucer.fill");
    case PomodoroPhase::rearming:
        return QStringLiteral("arrow.clockwise");
    }
    return {};
}

} // namespace norvin
