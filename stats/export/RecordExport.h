#pragma once

#include "model/RecordScan.h"
#include "stats/StatsPeriod.h"
#include "stats/export/RecordWriter.h"

#include <QList>
#include <QString>
#include <QTimeZone>

#include <atomic>
#include <functional>
#include <optional>
#include <variant>

namespace norvin {

/// Which records go into a file, and in which format; docs/statistics.md describes them.
enum class RecordFile {
    sessions, ///< sessions as CSV
    usage,    ///< usage intervals as CSV
    json      ///< both
};

struct RecordExport {
    RecordFile kind = RecordFile::json;
    /// Replaced as a whole, or left as it is.
    QString file;
    /// Raw value of the period.
    QString period;
    RecordScan::Range range;
    Instant now;
    QTimeZone zone;
    TaskLabels tasks;
    /// Where the records are read; empty for those below.
    QString storeFile;
    QList<Session> sessions;
    QList<AppUsageSession> usage;
};

/// How a job on another thread is watched and stopped.
struct ExportControl {
    std::atomic<bool> isCancelled = false;
    /// Called with 0 to 100 on the thread of the job, at most once for each. Empty where nobody listens.
    std::function<void(int percent)> showProgress = {};
};

struct ExportCounts {
    int sessions = 0;
    int usage = 0;
};
/// The file is there.
struct ExportDone {
    /// What it holds; none for a file that holds no records.
    std::optional<ExportCounts> counts;
};
/// Why there is no file, or no new one: what the system says, in its language.
struct ExportFailure {
    QString reason;
};
struct ExportCancelled {};
using ExportOutcome = std::variant<ExportDone, ExportFailure, ExportCancelled>;

/// Writes the file, without holding the records of the store in memory. On any thread.
[[nodiscard]] ExportOutcome writeRecords(const RecordExport& wanted, ExportControl& control);

} // namespace norvin
