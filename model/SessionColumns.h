#pragma once

/// The beginning of a query for sessions, up to its conditions: a literal, so that literals can follow it.
/// Both readers of the table count on this order of the columns.
#define NORVIN_SESSION_COLUMNS                                                                               \
    "SELECT id, startTime, durationMinutes, completed, task, score, interruptionCount, "                     \
    "blockedAttemptsCount, blockedSiteAttemptsCount, legitimateTimeSeconds, distractedTimeSeconds "          \
    "FROM Session "
