#pragma once

#include "model/StoreError.h"

#include <QDateTime>
#include <QString>

#include <functional>
#include <variant>

namespace norvin {

/// What a store file holds, told without taking part in it.
struct StoreFacts {
    qint64 bytes = 0; ///< with what has not yet been moved into the file itself
    qint64 projects = 0;
    qint64 tasks = 0; ///< with subtasks
    qint64 sessions = 0;
    qint64 intervals = 0;        ///< 1 stands for any number where they were not counted
    QDateTime firstSession = {}; ///< in local time; invalid where there is none

    [[nodiscard]] bool isEmpty() const { return projects + tasks + sessions + intervals == 0; }
};

/// Whether the error says nothing about the file: somebody has it locked, or disk or memory are short.
[[nodiscard]] bool isPassing(const StoreError& error);

// The following open a file on a connection of their own, and may be called on any thread, also while the
// store is open elsewhere.

/// Counting them reads some ten megabytes for ten years.
enum class CountIntervals { yes, no };

/// Counts what is in the file, which must have our schema.
[[nodiscard]] std::variant<StoreFacts, StoreError> readStoreFacts(const QString& file,
                                                                  CountIntervals counting);

/// Reads the whole file: whether SQLite finds it sound, the schema is ours, and no reference hangs in the
/// air. Takes about a second for ten years. @return what is wrong
[[nodiscard]] StoreResult checkStoreFile(const QString& file);

/// Called before each step with how much has been copied, in per cent; @return whether to go on
using CopyProgress = std::function<bool(int percent)>;

/// Makes a copy of the store as it stands at this moment, in one file without companions. Nobody who writes
/// to the store meanwhile waits for it. The target is there, checked by checkStoreFile() and on the disk,
/// when this succeeds, and stays as it was when this fails or the machine stops half-way. Its folder is made
/// if missing; only its owner may read either.
[[nodiscard]] StoreResult copyStoreFile(const QString& source, const QString& target,
                                        const CopyProgress& progress = {});

/// Removes what is left of a copy to that target whose maker was stopped half-way.
void removeUnfinishedCopy(const QString& target);

/// Has the names in a folder reach the disk. @return false where the system refuses
bool syncFolder(const QString& folder);

} // namespace norvin
