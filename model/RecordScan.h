#pragma once

#include "model/AppUsageSession.h"
#include "model/Instant.h"
#include "model/Session.h"
#include "model/StoreError.h"

#include <QString>

#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace norvin {

/// One application under one of the names and categories that it was recorded with, as stored.
struct StoredSource {
    /// By what intervals refer to it.
    qint64 row = 0;
    QString bundleID;
    QString appName;
    QString category;
};

/// One interval of the store, without what no sum needs.
struct StoredInterval {
    /// Its place in the store, by which a scan can go on after it.
    qint64 row = 0;
    qint64 source = 0;
    Instant start;
    qint64 seconds = 0;
};

/// The records of a store file on a connection of its own, which only reads, beside the context that writes.
/// What it reads is the file as it stood when it was opened. For one thread, any one.
class RecordScan final {
public:
    /// What of the records to read: those that start in [from, to), of rows that the file had by a certain
    /// time. None of an instant is open.
    struct Range {
        Instant from = {};
        Instant to = {};
        qint64 lastRow = std::numeric_limits<qint64>::max();
    };
    /// Called for each record; @return whether to go on
    template <class Record>
    using Visit = std::function<bool(const Record&)>;

    [[nodiscard]] static std::variant<std::unique_ptr<RecordScan>, StoreError> open(const QString& storeFile);
    RecordScan(const RecordScan&) = delete;
    RecordScan& operator=(const RecordScan&) = delete;
    ~RecordScan();

    // All by ascending start, of equal ones in store order. Each stops at a read error, which it answers.

    [[nodiscard]] StoreResult sources(std::vector<StoredSource>& sources);
    /// Their starts are in UTC.
    [[nodiscard]] StoreResult sessions(const Range& range, const Visit<Session>& visit);
    [[nodiscard]] StoreResult usage(const Range& range, const Visit<StoredInterval>& visit);
    /// @param sources only intervals of these
    /// @param after only what comes after this one in order; none for all
    [[nodiscard]] StoreResult usageOf(const std::vector<qint64>& sources, const Range& range,
                                      const std::optional<StoredInterval>& after,
                                      const Visit<StoredInterval>& visit);
    /// With all that the store holds of them; both ends are in UTC.
    [[nodiscard]] StoreResult usageRecords(const Range& range, const Visit<AppUsageSession>& visit);

private:
    class Private;
    explicit RecordScan(std::unique_ptr<Private> opened);
    std::unique_ptr<Private> d;
};

} // namespace norvin
