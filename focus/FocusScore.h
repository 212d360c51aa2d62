#pragma once

#include "distraction/AppUsageService.h"

namespace norvin {

/// What a focus score is made of.
struct FocusScoreInput {
    FocusMetrics metrics;
    int interruptionCount = 0;
    int blockedAttemptsCount = 0;
    int blockedSiteAttemptsCount = 0;
    int completedTasksCount = 0;
    int completedSubtasksCount = 0;
};

/// A score taken apart, so that it can be explained. All terms are points on the 0 to 10 scale.
struct FocusScoreTerms {
    /// False while fewer than 10 seconds were counted; the score is 0 then.
    bool hasEnoughData = false;
    double ratio = 0;
    double ratioPoints = 0;
    double interruptionPenalty = 0;
    double blockedAttemptsPenalty = 0;
    double blockedSiteAttemptsPenalty = 0;
    double completedTasksBonus = 0;
    double completedSubtasksBonus = 0;
    /// The clamped sum, 0 to 10.
    double score = 0;
};

[[nodiscard]] FocusScoreTerms focusScoreTerms(const FocusScoreInput& input);

} // namespace norvin
