#include "focus/FocusScore.h"

#include <algorithm>

namespace norvin {

FocusScoreTerms focusScoreTerms(const FocusScoreInput& input) {
    constexpr int minimumSeconds = 10;

    FocusScoreTerms terms;
    terms.interruptionPenalty = input.interruptionCount * 0.5;
    terms.blockedAttemptsPenalty = input.blockedAttemptsCount * 1.0;
    terms.blockedSiteAttemptsPenalty = input.blockedSiteAttemptsCount * 0.5;
    terms.completedTasksBonus = input.completedTasksCount * 1.0;
    terms.completedSubtasksBonus = input.completedSubtasksCount * 0.3;

    const int total = input.metrics.legitimate + input.metrics.distracted;
    if (total < minimumSeconds)
        return terms;
    terms.hasEnoughData = true;
    terms.ratio = static_cast<double>(input.metrics.legitimate) / total;
    terms.ratioPoints = terms.ratio * 10.0;
    const double raw =
        terms.ratioPoints -
        (terms.interruptionPenalty + terms.blockedAttemptsPenalty + terms.blockedSiteAttemptsPenalty) +
        terms.completedTasksBonus + terms.completedSubtasksBonus;
    terms.score = std::clamp(raw, 0.0, 10.0);
    return terms;
}

} // namespace norvin
