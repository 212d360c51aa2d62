#pragma once

#include "model/StoreError.h"
#include "model/StoreFile.h"

#include <QString>

namespace norvin {

// A store is never replaced while it is open. What is to take its place is laid beside it, and takes it when
// the program opens the store the next time, before anything else does: "<store>.restore" holds the contents
// of a backup, "<store>.erase" says that everything goes. Whoever carries that out may be killed at any
// moment: the next one goes on, and there is always one store, the old or the new, whole.

enum class ErasedBackups { kept, removed };

/// What became of a replacement.
struct ReplacementOutcome {
    enum class Kind { none, restored, erased, refused };
    Kind kind = Kind::none;
    /// Whether the store that gave way is among the backups: not where it was empty, damaged or missing.
    bool isFormerKept = false;
    /// Where the store that gave way lies because it could not be read; empty for all others.
    QString damagedFile = {};
    /// Why the old store stayed, in English; only where it was refused.
    QString problem = {};
};

/// Lays a checked copy of the backup beside the store. Any thread. @return why that failed; nothing has
/// changed then
[[nodiscard]] StoreResult prepareRestore(const QString& storeFile, const QString& backup,
                                         const CopyProgress& progress = {});
/// Any thread. @return why that failed; nothing has changed then
[[nodiscard]] StoreResult prepareErase(const QString& storeFile, ErasedBackups backups);

/// Drops what was prepared.
void cancelReplacement(const QString& storeFile);

/// Carries out what was prepared. Only for a process that has the store to itself, before it opens the store.
/// The store that gives way to a backup is backed up itself first; one that cannot be read is put aside as
/// "<store>.damaged". Where the old one is in use or the disk is full, it stays, and the preparation is
/// dropped.
[[nodiscard]] ReplacementOutcome carryOutReplacement(const QString& storeFile);

} // namespace norvin
