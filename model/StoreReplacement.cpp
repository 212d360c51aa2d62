#include "model/StoreReplacement.h"

#include "model/BackupFolder.h"
#include "model/StoreConnection.h"
#include "platform/Log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace norvin {

namespace {

// How long the store may be held by somebody who looks into it.
constexpr int settleWaitMilliseconds = 2000;

const QByteArray withBackups = QByteArrayLiteral("store and backups\n");
const QByteArray withoutBackups = QByteArrayLiteral("store\n");

QString besideStore(const QString& storeFile, const char* ending) {
    const QFileInfo store(storeFile);
    return store.dir().filePath(store.completeBaseName() + QLatin1String(ending));
}

QString restoreFile(const QString& storeFile) {
    return besideStore(storeFile, ".restore");
}

QString eraseMarker(const QString& storeFile) {
    return besideStore(storeFile, ".erase");
}

void syncFolderOf(const QString& file) {
    static_cast<void>(syncFolder(QFileInfo(file).path()));
}

// Companions first: a log must never meet another file than the one that it belongs to.
void removeCompanions(const QString& storeFile) {
    for (const char* ending : {"-wal", "-shm", "-journal"})
        QFile::remove(storeFile + QLatin1String(ending));
    syncFolderOf(storeFile);
}

// Brings the store into one file without companions.
StoreResult settle(const QString& storeFile) {
    try {
        SQLite::Database database(QFile::encodeName(storeFile).toStdString(), SQLite::OPEN_READWRITE,
                                  settleWaitMilliseconds);
        database.exec("PRAGMA synchronous = FULL");
        if (database.execAndGet("PRAGMA journal_mode = DELETE").getString() != "delete")
            return StoreError{.code = SQLITE_BUSY,
                              .description = QStringLiteral("Another program has the store open.")};
        return {};
    } catch (const SQLite::Exception& exception) {
        return storeError(exception);
    }
}

QString damagedFile(const QString& storeFile) {
    return besideStore(storeFile, ".damaged");
}

void putAside(const QString& storeFile, const QString& aside) {
    QFile::remove(aside);
    QFile::remove(aside + QStringLiteral("-wal"));
    QFile::rename(storeFile + QStringLiteral("-wal"), aside + QStringLiteral("-wal"));
    QFile::rename(storeFile, aside);
}

// Whether the file itself is at fault, rather than what surrounds it.
bool isDamage(const StoreError& error) {
    return error.code == SQLITE_CORRUPT || error.code == SQLITE_NOTADB || error.code < 0;
}

// Whoever was stopped half-way finds the copy of the first attempt again by its name.
QString formerCopy(const QString& storeFile, const QString& prepared) {
    return BackupFolder(storeFile).fileFor(BackupKind::beforeRestore, QFileInfo(prepared).lastModified());
}

// What there is must be found again, whatever the user thinks of the backup afterwards.
StoreResult keepPresent(const QString& storeFile, const QString& prepared) {
    if (!QFile::exists(storeFile))
        return {};
    StoreResult failure = settle(storeFile);
    if (!failure)
        failure = checkStoreFile(storeFile);
    if (failure && isDamage(*failure)) {
        logLine(QStringLiteral("StoreReplacement: The present store cannot be backed up: ") +
                failure->description);
        putAside(storeFile, damagedFile(storeFile));
        return {};
    }
    if (failure)
        return failure;
    const QString copy = formerCopy(storeFile, prepared);
    const auto facts = readStoreFacts(storeFile, CountIntervals::no);
    const auto* held = std::get_if<StoreFacts>(&facts);
    if (QFile::exists(copy) || (held != nullptr && held->isEmpty()))
        return {};
    return copyStoreFile(storeFile, copy);
}

ReplacementOutcome refused(const QString& prepared, const QString& problem) {
    logLine(QStringLiteral("StoreReplacement: The backup was not restored: ") + problem);
    QFile::remove(prepared);
    return {.kind = ReplacementOutcome::Kind::refused, .problem = problem};
}

ReplacementOutcome restore(const QString& storeFile, const QString& prepared) {
    const auto facts = readStoreFacts(prepared, CountIntervals::no);
    if (const auto* error = std::get_if<StoreError>(&facts))
        return refused(prepared, error->description);
    if (const StoreResult failure = keepPresent(storeFile, prepared))
        return refused(prepared, failure->description);
    ReplacementOutcome outcome{.kind = ReplacementOutcome::Kind::restored,
                               .isFormerKept = QFile::exists(formerCopy(storeFile, prepared))};
    // Whoever was stopped half-way put it aside already.
    if (const QString damaged = damagedFile(storeFile); !QFile::exists(storeFile) && QFile::exists(damaged))
        outcome.damagedFile = damaged;
    removeCompanions(storeFile);
    if (std::rename(QFile::encodeName(prepared).constData(), QFile::encodeName(storeFile).constData()) != 0)
        return refused(prepared, QString::fromLocal8Bit(std::strerror(errno)));
    syncFolderOf(storeFile);
    return outcome;
}

ReplacementOutcome erase(const QString& storeFile, const QString& marker) {
    QFile file(marker);
    const bool takesBackups = file.open(QIODevice::ReadOnly) && file.readAll() == withBackups;
    file.close();
    // A store that cannot be removed keeps what is still in its log. The marker goes last, so that no other
    // store meets that log.
    if (!QFile::remove(storeFile) && QFile::exists(storeFile)) {
        QFile::remove(marker);
        return {.kind = ReplacementOutcome::Kind::refused,
                .problem = QStringLiteral("%1 cannot be removed").arg(storeFile)};
    }
    removeCompanions(storeFile);
    const QString damaged = damagedFile(storeFile);
    for (const QString& gone : {restoreFile(storeFile), damaged, damaged + QStringLiteral("-wal")})
        QFile::remove(gone);
    if (takesBackups)
        BackupFolder(storeFile).clear();
    syncFolderOf(storeFile);
    QFile::remove(marker);
    syncFolderOf(storeFile);
    return {.kind = ReplacementOutcome::Kind::erased};
}

} // namespace

StoreResult prepareRestore(const QString& storeFile, const QString& backup, const CopyProgress& progress) {
    return copyStoreFile(backup, restoreFile(storeFile), progress);
}

StoreResult prepareErase(const QString& storeFile, ErasedBackups backups) {
    QSaveFile marker(eraseMarker(storeFile));
    if (marker.open(QIODevice::WriteOnly))
        marker.write(backups == ErasedBackups::removed ? withBackups : withoutBackups);
    if (!marker.commit())
        return StoreError{.code = SQLITE_IOERR, .description = marker.errorString()};
    syncFolderOf(storeFile);
    return {};
}

void cancelReplacement(const QString& storeFile) {
    QFile::remove(restoreFile(storeFile));
    QFile::remove(eraseMarker(storeFile));
    syncFolderOf(storeFile);
}

ReplacementOutcome carryOutReplacement(const QString& storeFile) {
    removeUnfinishedCopy(restoreFile(storeFile));
    // Erasing goes before: nobody who wanted everything gone wants an older state back.
    if (const QString marker = eraseMarker(storeFile); QFile::exists(marker))
        return erase(storeFile, marker);
    if (const QString prepared = restoreFile(storeFile); QFile::exists(prepared))
        return restore(storeFile, prepared);
    return {};
}

} // namespace norvin
