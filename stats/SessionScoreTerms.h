#pragma once

#include "stats/StatsTables.h"

namespace norvin {

/// The score of a recorded session taken apart, as far as its record tells. Points are in hundredths, rounded
/// so that ratio - penalties + remainder is the score exactly.
struct SessionScoreTerms {
    /// False when no score was recorded; then all points are 0.
    bool hasScore = false;
    /// False when fewer than 10 seconds were measured: nothing but the remainder then makes up the score.
    bool hasEnoughData = false;
    /// Share of the measured time that was legitimate, 0 to 1.
    double ratio = 0;
    int ratioPoints = 0;
    int interruptionPenalty = 0;
    int blockedAttemptsPenalty = 0;
    int blockedSiteAttemptsPenalty = 0;
    /// What the record does not hold: tasks and subtasks that were finished, and the limits 0 and 10.
    int remainder = 0;
    int score = 0;
};

[[nodiscard]] SessionScoreTerms sessionScoreTerms(const SessionRow& session);

} // namespace norvin
