#pragma once

#include "model/AppUsageSession.h"
#include "model/Session.h"

#include <QList>
#include <QSet>

namespace norvin {

/// The records at one moment, for who reads the file beside the context: how far the file reaches, and in
/// what it is not yet what the context has. What is recorded later, the context tells.
struct RecordCut {
    /// Rows of the file up to these were there; 0 where there were none.
    qint64 lastSessionRow = 0;
    qint64 lastUsageRow = 0;
    // All empty but after a save that failed.
    QList<Session> unsavedSessions;
    QList<AppUsageSession> unsavedUsage;
    QSet<SessionId> removedSessions;
    QSet<TaskId> removedTasks;

    /// Whether a session of the file is no longer one.
    [[nodiscard]] bool isRemoved(const Session& session) const {
        return removedSessions.contains(session.id) || (session.task && removedTasks.contains(*session.task));
    }
};

} // namespace norvin
