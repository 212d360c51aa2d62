#pragma once

#include "model/EntityId.h"
#include "model/TaskItem.h"

#include <QDateTime>

#include <optional>

namespace norvin {

/// One finished work phase. Written once, then only read: a plain value.
struct Session {
    EntityId<Session> id = EntityId<Session>::create();
    QDateTime startTime;
    /// Whole minutes, rounded up.
    int durationMinutes = 0;
    /// Whether the phase ran to its natural end.
    bool completed = false;
    /// The task worked on; none when there was none. Deleting the task deletes its sessions.
    std::optional<TaskId> task;
    /// Focus score, 0 to 10; none when it was not computed.
    std::optional<double> score;
    int interruptionCount = 0;
    int blockedAttemptsCount = 0;
    int blockedSiteAttemptsCount = 0;
    int legitimateTimeSeconds = 0;
    int distractedTimeSeconds = 0;

    bool operator==(const Session&) const = default;
};

using SessionId = EntityId<Session>;

} // namespace norvin
