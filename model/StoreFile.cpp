#include "model/StoreFile.h"

#include "model/StoreConnection.h"
#include "model/StoreSchema.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <string>

namespace norvin {

namespace {

using namespace std::chrono_literals;

// How long somebody else's lock is waited for.
constexpr std::chrono::milliseconds copyLockWait = 5s;
// One step copies a quarter of a megabyte, after which the copy can be given up.
constexpr int pagesPerStep = 64;

SQLite::Database openReading(const QString& file) {
    return SQLite::Database(QFile::encodeName(file).toStdString(),
                            SQLite::OPEN_READONLY | SQLite::OPEN_NOMUTEX,
                            static_cast<int>(copyLockWait.count()));
}

StoreError ownError(const QString& text) {
    return {.description = text};
}

StoreError systemError(const QString& what, int number) {
    const int code = number == ENOSPC || number == EDQUOT ? SQLITE_FULL : SQLITE_IOERR;
    return {.code = code,
            .description = QStringLiteral("%1: %2").arg(what, QString::fromLocal8Bit(std::strerror(number)))};
}

StoreResult checkContents(SQLite::Database& database) {
    SQLite::Statement check(database, "PRAGMA integrity_check(1)");
    if (!check.executeStep() || check.getColumn(0).getString() != "ok")
        return ownError(QStringLiteral("The file is damaged: ") +
                        QString::fromStdString(check.getColumn(0).getString()));
    if (auto difference = schema::validate(database))
        return difference;
    if (SQLite::Statement(database, "PRAGMA foreign_key_check").executeStep())
        return ownError(QStringLiteral("The file refers to rows that are not there."));
    return {};
}

StoreResult syncFile(const QString& file) {
    const int descriptor = ::open(QFile::encodeName(file).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return systemError(file, errno);
    const int failure = ::fsync(descriptor) == 0 ? 0 : errno;
    ::close(descriptor);
    if (failure != 0)
        return systemError(file, failure);
    return {};
}

// Where a copy grows until it is whole.
QString partOf(const QString& target) {
    const QFileInfo place(target);
    return place.dir().filePath(u'.' + place.fileName() + QStringLiteral(".part"));
}

// A file that only its owner may read, before anything is written into it.
StoreResult makePrivateFile(const QString& file) {
    const int descriptor = ::open(QFile::encodeName(file).constData(),
                                  O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (descriptor < 0)
        return systemError(file, errno);
    ::close(descriptor);
    return {};
}

StoreResult copyPages(SQLite::Database& from, SQLite::Database& to, const CopyProgress& progress) {
    // What is read stays as it is at this moment, so that the copy never begins anew because of a save.
    SQLite::Statement pin(from, "SELECT count(*) FROM sqlite_schema");
    from.exec("BEGIN");
    static_cast<void>(pin.executeStep());
    pin.reset();
    SQLite::Backup backup(to, from);
    const QDeadlineTimer deadline(copyLockWait);
    int percent = 0;
    for (;;) {
        if (progress && !progress(percent))
            return ownError(QStringLiteral("The copy was given up."));
        const int code = backup.executeStep(pagesPerStep);
        if (code == SQLITE_DONE)
            return {};
        if (code == SQLITE_BUSY || code == SQLITE_LOCKED) {
            if (deadline.hasExpired())
                return StoreError{.code = code, .description = QStringLiteral("The store stays locked.")};
            QThread::msleep(20);
            continue;
        }
        const int total = std::max(backup.getTotalPageCount(), 1);
        percent = (total - backup.getRemainingPageCount()) * 100 / total;
    }
}

StoreResult writeCopy(const QString& source, const QString& part, const CopyProgress& progress) {
    try {
        SQLite::Database from = openReading(source);
        SQLite::Database to(QFile::encodeName(part).toStdString(),
                            SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX);
        // The copy counts only once it is whole and on the disk, which is seen to below.
        to.exec("PRAGMA synchronous = OFF; PRAGMA locking_mode = EXCLUSIVE");
        if (auto error = copyPages(from, to, progress))
            return error;
        if (to.execAndGet("PRAGMA journal_mode = DELETE").getString() != "delete")
            return ownError(QStringLiteral("The copy cannot be made one file."));
        return {};
    } catch (const SQLite::Exception& exception) {
        return storeError(exception);
    }
}

} // namespace

bool isPassing(const StoreError& error) {
    switch (error.code) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_FULL:
    case SQLITE_NOMEM:
        return true;
    default:
        return false;
    }
}

std::variant<StoreFacts, StoreError> readStoreFacts(const QString& file, CountIntervals counting) {
    try {
        SQLite::Database database = openReading(file);
        if (auto difference = schema::validate(database))
            return *std::move(difference);
        const std::string intervals = counting == CountIntervals::yes
                                          ? "(SELECT count(*) FROM AppUsageSession)"
                                          : "EXISTS(SELECT 1 FROM AppUsageSession)";
        SQLite::Statement query(database, "SELECT (SELECT count(*) FROM Project), "
                                          "(SELECT count(*) FROM TaskItem), "
                                          "(SELECT count(*) FROM Session), " +
                                              intervals + ", (SELECT min(startTime) FROM Session)");
        static_cast<void>(query.executeStep());
        return StoreFacts{.bytes = QFileInfo(file).size() + QFileInfo(file + QStringLiteral("-wal")).size(),
                          .projects = query.getColumn(0).getInt64(),
                          .tasks = query.getColumn(1).getInt64(),
                          .sessions = query.getColumn(2).getInt64(),
                          .intervals = query.getColumn(3).getInt64(),
                          .firstSession = row::instant(query, 4)};
    } catch (const SQLite::Exception& exception) {
        return storeError(exception);
    }
}

StoreResult checkStoreFile(const QString& file) {
    try {
        SQLite::Database database = openReading(file);
        return checkContents(database);
    } catch (const SQLite::Exception& exception) {
        return storeError(exception);
    }
}

StoreResult copyStoreFile(const QString& source, const QString& target, const CopyProgress& progress) {
    const QFileInfo place(target);
    if (!place.dir().exists()) {
        if (!QDir().mkpath(place.path()))
            return systemError(place.path(), errno);
        QFile::setPermissions(place.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    const QString part = partOf(target);
    StoreResult failure = makePrivateFile(part);
    if (!failure)
        failure = writeCopy(source, part, progress);
    if (!failure)
        failure = syncFile(part);
    if (!failure)
        failure = checkStoreFile(part);
    if (!failure && ::rename(QFile::encodeName(part).constData(), QFile::encodeName(target).constData()) != 0)
        failure = systemError(target, errno);
    if (!failure)
        syncFolder(place.path());
    removeUnfinishedCopy(target);
    return failure;
}

void removeUnfinishedCopy(const QString& target) {
    const QString part = partOf(target);
    for (const char* ending : {"", "-journal", "-wal", "-shm"})
        QFile::remove(part + QLatin1String(ending));
}

bool syncFolder(const QString& folder) {
    const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool isSynced = ::fsync(descriptor) == 0;
    ::close(descriptor);
    return isSynced;
}

} // namespace norvin
