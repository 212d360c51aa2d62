#include "stats/SessionScoreTerms.h"

#include "focus/FocusScore.h"

#include <cmath>

namespace norvin {

namespace {

int hundredths(double points) {
    return static_cast<int>(std::lround(points * 100));
}

} // namespace

SessionScoreTerms sessionScoreTerms(const SessionRow& session) {
    FocusScoreInput input;
    input.metrics = {.legitimate = session.legitimateTimeSeconds,
                     .distracted = session.distractedTimeSeconds};
    input.interruptionCount = session.interruptionCount;
    input.blockedAttemptsCount = session.blockedAttemptsCount;
    input.blockedSiteAttemptsCount = session.blockedSiteAttemptsCount;
    const FocusScoreTerms stored = focusScoreTerms(input);

    SessionScoreTerms terms;
    terms.hasScore = session.score.has_value();
    terms.hasEnoughData = stored.hasEnoughData;
    terms.ratio = stored.ratio;
    if (!terms.hasScore)
        return terms;
    terms.score = hundredths(*session.score);
    if (!terms.hasEnoughData) {
        terms.remainder = terms.score;
        return terms;
    }
    terms.interruptionPenalty = hundredths(stored.interruptionPenalty);
    terms.blockedAttemptsPenalty = hundredths(stored.blockedAttemptsPenalty);
    terms.blockedSiteAttemptsPenalty = hundredths(stored.blockedSiteAttemptsPenalty);
    terms.ratioPoints = hundredths(stored.ratioPoints);
    const int penalties =
        terms.interruptionPenalty + terms.blockedAttemptsPenalty + terms.blockedSiteAttemptsPenalty;
    const double known = stored.ratioPoints - stored.interruptionPenalty - stored.blockedAttemptsPenalty -
                         stored.blockedSiteAttemptsPenalty;
    // A rest that only rounding makes is none.
    if (std::abs(*session.score - known) < 0.005)
        terms.ratioPoints = terms.score + penalties;
    else
        terms.remainder = terms.score - terms.ratioPoints + penalties;
    return terms;
}

} // namespace norvin
