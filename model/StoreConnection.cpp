#include "model/StoreConnection.h"

#include "model/StoreSchema.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QThread>

#include <SQLiteCpp/Exception.h>
#include <fcntl.h>
#include <sqlite3.h>

#include <algorithm>
#include <cerrno>

namespace norvin {

namespace {

using namespace std::chrono_literals;

using OpenResult = std::variant<std::unique_ptr<StoreConnection>, StoreError>;

// How long a save waits for somebody else's transaction; it runs on the main thread and is tried again
// anyway.
constexpr std::chrono::milliseconds saveLockWait = 500ms;
// Pause between two attempts to open where the library reports a lock at once instead of waiting for it.
constexpr std::chrono::milliseconds openRetryPause = 50ms;

bool isLock(const StoreError& error) {
    return error.code == SQLITE_BUSY || error.code == SQLITE_LOCKED;
}

// Whether the folder's file system has no room for the few pages that opening a store needs.
bool isDiskFull(const QString& file) {
    constexpr off_t needed = 128 * 1024;
    QTemporaryFile probe(QFileInfo(file).absolutePath() + QStringLiteral("/.norvin-XXXXXX"));
    if (!probe.open())
        return errno == ENOSPC || errno == EDQUOT;
    const int failure = ::posix_fallocate(probe.handle(), 0, needed);
    return failure == ENOSPC || failure == EDQUOT;
}

} // namespace

namespace row {

void bind(SQLite::Statement& statement, int index, const QUuid& id) {
    const QByteArray raw = id.toRfc4122();
    statement.bind(index, raw.constData(), static_cast<int>(raw.size()));
}

void bind(SQLite::Statement& statement, int index, const QString& text) {
    statement.bind(index, text.toStdString());
}

void bind(SQLite::Statement& statement, int index, const QDateTime& instant) {
    if (instant.isValid())
        statement.bind(index, static_cast<int64_t>(instant.toMSecsSinceEpoch()));
    else
        statement.bind(index);
}

void bindRequired(SQLite::Statement& statement, int index, const QDateTime& instant) {
    statement.bind(index, instant.isValid() ? static_cast<int64_t>(instant.toMSecsSinceEpoch()) : 0);
}

QUuid uuid(const SQLite::Statement& statement, int index) {
    const SQLite::Column column = statement.getColumn(index);
    const auto* raw = static_cast<const char*>(column.getBlob());
    return QUuid::fromRfc4122(QByteArrayView(raw, column.getBytes()));
}

QString text(const SQLite::Statement& statement, int index) {
    const SQLite::Column column = statement.getColumn(index);
    const char* utf8 = column.getText();
    return QString::fromUtf8(utf8, column.getBytes());
}

QByteArray bytes(const SQLite::Statement& statement, int index) {
    const SQLite::Column column = statement.getColumn(index);
    const auto* raw = static_cast<const char*>(column.getBlob());
    return QByteArray(raw, column.getBytes());
}

QDateTime instant(const SQLite::Statement& statement, int index) {
    const SQLite::Column column = statement.getColumn(index);
    return column.isNull() ? QDateTime() : QDateTime::fromMSecsSinceEpoch(column.getInt64());
}

} // namespace row

StoreError storeError(const SQLite::Exception& exception) {
    // The library's own complaints have the code -1.
    const int code = exception.getErrorCode();
    return {.code = code < 0 ? code : code & 0xff, .description = QString::fromUtf8(exception.what())};
}

StoreConnection::StoreConnection(const QString& file, std::chrono::milliseconds lockWait, Locking locking)
    : m_database(QFile::encodeName(file).toStdString(),
                 SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE | SQLite::OPEN_NOMUTEX,
                 static_cast<int>(lockWait.count())) {
    sqlite3* const handle = m_database.getHandle();
    // Without the right to write, the library quietly opens for reading.
    if (sqlite3_db_readonly(handle, "main") == 1)
        throw SQLite::Exception("attempt to write a readonly database", SQLITE_READONLY);
    if (locking == Locking::exclusive)
        m_database.exec("PRAGMA locking_mode = EXCLUSIVE");
    if (m_database.execAndGet("PRAGMA journal_mode").getString() == "delete")
        static_cast<void>(m_database.execAndGet("PRAGMA journal_mode = WAL").getString());
    m_database.exec("PRAGMA synchronous = FULL; PRAGMA foreign_keys = ON; PRAGMA wal_autocheckpoint = 0");
    // Takes the place of the automatic checkpoint, which would run inside a user's action.
    sqlite3_wal_hook(
        handle,
        [](void* pages, sqlite3*, const char*, int count) {
            *static_cast<int*>(pages) = count;
            return SQLITE_OK;
        },
        &m_walPages);
}

StoreConnection::~StoreConnection() {
    m_statements.clear();
    // At the very end nobody should wait long for a reader.
    sqlite3_busy_timeout(m_database.getHandle(), 200);
    sqlite3_wal_checkpoint_v2(m_database.getHandle(), nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
}

OpenResult StoreConnection::tryOpen(const QString& file, std::chrono::milliseconds lockWait,
                                    Locking locking) {
    try {
        std::unique_ptr<StoreConnection> connection(new StoreConnection(file, lockWait, locking));
        SQLite::Database& database = connection->m_database;
        if (schema::isBlank(database))
            schema::create(database);
        schema::renewIndexes(database);
        if (auto difference = schema::validate(database))
            return *std::move(difference);
        database.setBusyTimeout(static_cast<int>(saveLockWait.count()));
        return connection;
    } catch (const SQLite::Exception& exception) {
        return storeError(exception);
    }
}

OpenResult StoreConnection::open(const QString& file, std::chrono::milliseconds lockWait) {
    const QDeadlineTimer deadline(lockWait);
    Locking locking = Locking::normal;
    for (;;) {
        const std::chrono::milliseconds left(deadline.remainingTime());
        OpenResult result = tryOpen(file, left, locking);
        const auto* error = std::get_if<StoreError>(&result);
        if (error == nullptr)
            return result;
        if (isLock(*error) && !deadline.hasExpired()) {
            QThread::msleep(static_cast<unsigned long>(openRetryPause.count()));
            continue;
        }
        if (locking == Locking::exclusive) {
            // Unless the file itself is at fault, it is the full disk: nobody may take the store for damaged.
            if (error->code != -1 && error->code != SQLITE_CORRUPT && error->code != SQLITE_NOTADB)
                return StoreError{.code = SQLITE_FULL, .description = error->description};
            return result;
        }
        // With several processes allowed, a store in WAL mode needs a shared-memory file beside it; on a full
        // disk that cannot be made, and an intact store would seem damaged. A connection that has the store
        // for itself keeps this index in its own memory: everything can be read, and saves fail cleanly until
        // there is room. The store stays ours alone until the program is started again.
        if (isLock(*error) || QFileInfo(file).size() == 0 || !isDiskFull(file))
            return result;
        locking = Locking::exclusive;
    }
}

OpenResult StoreConnection::inMemory() {
    return tryOpen(QStringLiteral(":memory:"), 0ms, Locking::normal);
}

CachedStatement StoreConnection::statement(const char* sql) {
    auto found = m_statements.find(sql);
    if (found == m_statements.end())
        found = m_statements.emplace(sql, SQLite::Statement(m_database, sql)).first;
    found->second.tryReset();
    found->second.clearBindings();
    return CachedStatement(found->second);
}

void StoreConnection::checkpoint() {
    int logged = 0;
    int moved = 0;
    const int code = sqlite3_wal_checkpoint_v2(m_database.getHandle(), nullptr, SQLITE_CHECKPOINT_PASSIVE,
                                               &logged, &moved);
    if (code == SQLITE_OK)
        m_walPages = logged - moved;
}

} // namespace norvin
