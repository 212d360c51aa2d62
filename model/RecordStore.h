#pragma once

#include "model/AppUsageSession.h"
#include "model/ModelContext.h"
#include "model/RecordCut.h"
#include "model/Session.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QUuid>

#include <vector>

namespace norvin {

class StoreConnection;

/// The records of a store: those in the file, and those on their way into it. Only for the thread of its
/// container. Everything that reads or writes the file throws SQLite::Exception.
class RecordStore final {
public:
    explicit RecordStore(StoreConnection& connection)
        : m_connection(connection) {}

    void add(const Session& session) { m_newSessions.push_back(session); }
    void add(const AppUsageSession& usage) { m_newUsage.push_back(usage); }
    /// @return false when there is no such session
    bool remove(const SessionId& id);
    /// None when there is no such session.
    [[nodiscard]] std::optional<Session> session(const SessionId& id);
    /// Puts another session in the place of the one with its id, which must be there.
    void replace(const Session& session);
    [[nodiscard]] RecordCut cut();
    /// Forgets the sessions of tasks that leave; those in the file go with the row of their task.
    /// @return whether there were any
    bool forgetSessionsOf(const std::vector<TaskItem*>& tasks);

    /// By ascending start, appended to `sessions`.
    void fetch(const RecordQuery& query, QList<Session>& sessions);
    void fetch(const RecordQuery& query, QList<AppUsageSession>& usage);

    [[nodiscard]] bool hasChanges() const {
        return !m_newSessions.empty() || !m_newUsage.empty() || !m_removedSessions.empty();
    }
    /// Writes all changes, inside the caller's transaction.
    void write();
    /// The transaction was committed.
    void markWritten();
    /// The transaction was rolled back.
    void forgetWritten() { m_sources.clear(); }

private:
    struct Source {
        QString bundleID;
        QString appName;
        QString category;
        bool operator==(const Source&) const = default;
        friend size_t qHash(const Source& source, size_t seed) {
            return qHashMulti(seed, source.bundleID, source.appName, source.category);
        }
    };
    [[nodiscard]] bool isStored(const SessionId& id);
    [[nodiscard]] bool hasStoredSession(TaskId task);
    [[nodiscard]] int64_t sourceRow(const Source& source);
    [[nodiscard]] QHash<int64_t, Source> sources();

    StoreConnection& m_connection;
    std::vector<Session> m_newSessions;
    std::vector<AppUsageSession> m_newUsage;
    QSet<SessionId> m_removedSessions;
    /// Tasks whose rows, with their sessions, the next save deletes.
    QSet<TaskId> m_removedTasks;
    /// Rows of AppUsageSource by their content, as far as known.
    QHash<Source, int64_t> m_sources;
};

} // namespace norvin
