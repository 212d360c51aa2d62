#include "model/RecordStore.h"

#include "model/SessionColumns.h"
#include "model/StoreConnection.h"

#include <algorithm>
#include <limits>

namespace norvin {

namespace {

// The range of a query in the unit of the columns, the end excluded.
struct Range {
    int64_t from = std::numeric_limits<int64_t>::min();
    int64_t to = std::numeric_limits<int64_t>::max();

    explicit Range(const RecordQuery& query) {
        if (query.from.isValid())
            from = query.from.toMSecsSinceEpoch();
        if (query.to.isValid())
            to = query.to.toMSecsSinceEpoch();
    }
    [[nodiscard]] bool contains(const QDateTime& start) const {
        const int64_t instant = start.toMSecsSinceEpoch();
        return from <= instant && instant < to;
    }
};

// Adds the unsaved records in their places; of equal starts, the saved ones come first.
template <class Record, class Accept>
void merge(QList<Record>& fetched, const std::vector<Record>& unsaved, const Accept& accept) {
    const qsizetype saved = fetched.size();
    std::copy_if(unsaved.begin(), unsaved.end(), std::back_inserter(fetched), accept);
    const auto byStart = [](const Record& a, const Record& b) { return a.startTime < b.startTime; };
    std::stable_sort(fetched.begin() + saved, fetched.end(), byStart);
    std::inplace_merge(fetched.begin(), fetched.begin() + saved, fetched.end(), byStart);
}

void bindRange(SQLite::Statement& statement, const Range& range) {
    statement.bind(1, range.from);
    statement.bind(2, range.to);
}

// Of a row with the columns of NORVIN_SESSION_COLUMNS.
Session sessionOf(const SQLite::Statement& row) {
    Session session{.id = SessionId(row::uuid(row, 0)),
                    .startTime = row::instant(row, 1),
                    .durationMinutes = row.getColumn(2).getInt(),
                    .completed = row.getColumn(3).getInt() != 0,
                    .task = {},
                    .score = {},
                    .interruptionCount = row.getColumn(6).getInt(),
                    .blockedAttemptsCount = row.getColumn(7).getInt(),
                    .blockedSiteAttemptsCount = row.getColumn(8).getInt(),
                    .legitimateTimeSeconds = row.getColumn(9).getInt(),
                    .distractedTimeSeconds = row.getColumn(10).getInt()};
    if (!row.isColumnNull(4))
        session.task = TaskId(row::uuid(row, 4));
    if (!row.isColumnNull(5))
        session.score = row.getColumn(5).getDouble();
    return session;
}

} // namespace

bool RecordStore::remove(const SessionId& id) {
    if (std::erase_if(m_newSessions, [&id](const Session& session) { return session.id == id; }) > 0)
        return true;
    if (m_removedSessions.contains(id) || !isStored(id))
        return false;
    m_removedSessions.insert(id);
    return true;
}

std::optional<Session> RecordStore::session(const SessionId& id) {
    const auto unsaved = std::find_if(m_newSessions.cbegin(), m_newSessions.cend(),
                                      [&id](const Session& session) { return session.id == id; });
    if (unsaved != m_newSessions.cend())
        return *unsaved;
    if (m_removedSessions.contains(id))
        return std::nullopt;
    const CachedStatement query = m_connection.statement(NORVIN_SESSION_COLUMNS "WHERE id = ?1");
    row::bind(*query, 1, id.uuid());
    if (!query->executeStep())
        return std::nullopt;
    Session stored = sessionOf(*query);
    if (stored.task && m_removedTasks.contains(*stored.task))
        return std::nullopt;
    return stored;
}

void RecordStore::replace(const Session& session) {
    remove(session.id);
    m_newSessions.push_back(session);
}

RecordCut RecordStore::cut() {
    const auto last = [this](const char* sql) -> qint64 {
        const CachedStatement query = m_connection.statement(sql);
        query->executeStep();
        return query->getColumn(0).getInt64();
    };
    return {.lastSessionRow = last("SELECT max(rowid) FROM Session"),
            .lastUsageRow = last("SELECT max(rowid) FROM AppUsageSession"),
            .unsavedSessions = QList<Session>(m_newSessions.cbegin(), m_newSessions.cend()),
            .unsavedUsage = QList<AppUsageSession>(m_newUsage.cbegin(), m_newUsage.cend()),
            .removedSessions = m_removedSessions,
            .removedTasks = m_removedTasks};
}

bool RecordStore::isStored(const SessionId& id) {
    const CachedStatement query = m_connection.statement("SELECT 1 FROM Session WHERE id = ?1");
    row::bind(*query, 1, id.uuid());
    return query->executeStep();
}

bool RecordStore::hasStoredSession(TaskId task) {
    const CachedStatement query = m_connection.statement("SELECT 1 FROM Session WHERE task = ?1 LIMIT 1");
    row::bind(*query, 1, task.uuid());
    return query->executeStep();
}

bool RecordStore::forgetSessionsOf(const std::vector<TaskItem*>& tasks) {
    QSet<TaskId> ids;
    for (const TaskItem* task : tasks)
        ids.insert(task->id());
    m_removedTasks.unite(ids);
    const auto ofThem = [&ids](const Session& session) {
        return session.task && ids.contains(*session.task);
    };
    return std::erase_if(m_newSessions, ofThem) > 0 ||
           std::any_of(ids.cbegin(), ids.cend(), [this](TaskId id) { return hasStoredSession(id); });
}

void RecordStore::fetch(const RecordQuery& query, QList<Session>& sessions) {
    const Range range(query);
    {
        const CachedStatement rows =
            query.task
                ? m_connection.statement(NORVIN_SESSION_COLUMNS
                                         "WHERE task = ?3 AND startTime >= ?1 AND startTime < ?2 "
                                         "ORDER BY startTime, rowid")
                : m_connection.statement(NORVIN_SESSION_COLUMNS "WHERE startTime >= ?1 AND startTime < ?2 "
                                                                "ORDER BY startTime, rowid");
        bindRange(*rows, range);
        if (query.task)
            row::bind(*rows, 3, query.task->uuid());
        while (rows->executeStep()) {
            Session session = sessionOf(*rows);
            if (m_removedSessions.contains(session.id) ||
                (session.task && m_removedTasks.contains(*session.task)))
                continue;
            sessions.append(std::move(session));
        }
    }
    merge(sessions, m_newSessions, [&range, &query](const Session& session) {
        return range.contains(session.startTime) && (!query.task || session.task == query.task);
    });
}

void RecordStore::fetch(const RecordQuery& query, QList<AppUsageSession>& usage) {
    const Range range(query);
    const QHash<int64_t, Source> known = sources();
    {
        const CachedStatement rows = m_connection.statement(
            "SELECT id, source, startTime, endTime, durationSeconds FROM AppUsageSession "
            "WHERE startTime >= ?1 AND startTime < ?2 ORDER BY startTime, rowid");
        bindRange(*rows, range);
        while (rows->executeStep()) {
            const Source source = known.value(rows->getColumn(1).getInt64());
            usage.append(AppUsageSession{.id = AppUsageSessionId(row::uuid(*rows, 0)),
                                         .bundleID = source.bundleID,
                                         .appName = source.appName,
                                         .startTime = row::instant(*rows, 2),
                                         .endTime = row::instant(*rows, 3),
                                         .durationSeconds = rows->getColumn(4).getInt(),
                                         .category = source.category});
        }
    }
    merge(usage, m_newUsage,
          [&range](const AppUsageSession& record) { return range.contains(record.startTime); });
}

QHash<int64_t, RecordStore::Source> RecordStore::sources() {
    QHash<int64_t, Source> known;
    const CachedStatement rows =
        m_connection.statement("SELECT id, bundleID, appName, category FROM AppUsageSource");
    while (rows->executeStep()) {
        known.insert(rows->getColumn(0).getInt64(),
                     {row::text(*rows, 1), row::text(*rows, 2), row::text(*rows, 3)});
    }
    return known;
}

int64_t RecordStore::sourceRow(const Source& source) {
    if (const auto known = m_sources.constFind(source); known != m_sources.constEnd())
        return *known;
    const auto bind = [&source](SQLite::Statement& statement) {
        row::bind(statement, 1, source.bundleID);
        row::bind(statement, 2, source.appName);
        row::bind(statement, 3, source.category);
    };
    const CachedStatement insertion =
        m_connection.statement("INSERT INTO AppUsageSource(bundleID, appName, category) VALUES(?1, ?2, ?3) "
                               "ON CONFLICT(bundleID, appName, category) DO NOTHING");
    bind(*insertion);
    insertion->exec();
    const CachedStatement query = m_connection.statement(
        "SELECT id FROM AppUsageSource WHERE bundleID = ?1 AND appName = ?2 AND category = ?3");
    bind(*query);
    query->executeStep();
    const int64_t id = query->getColumn(0).getInt64();
    m_sources.insert(source, id);
    return id;
}

void RecordStore::write() {
    for (const SessionId& id : m_removedSessions) {
        const CachedStatement deletion = m_connection.statement("DELETE FROM Session WHERE id = ?1");
        row::bind(*deletion, 1, id.uuid());
        deletion->exec();
    }
    for (const Session& session : m_newSessions) {
        // A record that was handed in twice is one record, and no reason to refuse the whole save.
        const CachedStatement insertion = m_connection.statement(
            "INSERT INTO Session(id, startTime, durationMinutes, completed, task, score, interruptionCount, "
            "blockedAttemptsCount, blockedSiteAttemptsCount, legitimateTimeSeconds, distractedTimeSeconds) "
            "VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11) ON CONFLICT(id) DO NOTHING");
        row::bind(*insertion, 1, session.id.uuid());
        row::bindRequired(*insertion, 2, session.startTime);
        insertion->bind(3, session.durationMinutes);
        insertion->bind(4, session.completed ? 1 : 0);
        if (session.task)
            row::bind(*insertion, 5, session.task->uuid());
        if (session.score)
            insertion->bind(6, *session.score);
        insertion->bind(7, session.interruptionCount);
        insertion->bind(8, session.blockedAttemptsCount);
        insertion->bind(9, session.blockedSiteAttemptsCount);
        insertion->bind(10, session.legitimateTimeSeconds);
        insertion->bind(11, session.distractedTimeSeconds);
        insertion->exec();
    }
    for (const AppUsageSession& usage : m_newUsage) {
        const int64_t source = sourceRow({usage.bundleID, usage.appName, usage.category});
        const CachedStatement insertion = m_connection.statement(
            "INSERT INTO AppUsageSession(id, source, startTime, endTime, durationSeconds) "
            "VALUES(?1, ?2, ?3, ?4, ?5)");
        row::bind(*insertion, 1, usage.id.uuid());
        insertion->bind(2, source);
        row::bindRequired(*insertion, 3, usage.startTime);
        row::bindRequired(*insertion, 4, usage.endTime);
        insertion->bind(5, usage.durationSeconds);
        insertion->exec();
    }
}

void RecordStore::markWritten() {
    m_newSessions.clear();
    m_newUsage.clear();
    m_removedSessions.clear();
    m_removedTasks.clear();
}

} // namespace norvin
