#include "model/RecordScan.h"

#include "model/RowCursor.h"
#include "model/SessionColumns.h"
#include "model/StoreConnection.h"

#include <QFile>
#include <QHash>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>

#include <algorithm>
#include <string>
#include <utility>

namespace norvin {

namespace {

// For the moments in which the file belongs to somebody alone, as when its log is recovered.
constexpr int lockWaitMilliseconds = 2000;

void bindRange(RowCursor& rows, const RecordScan::Range& range) {
    rows.bind(1, range.from.isNone() ? std::numeric_limits<qint64>::min() : range.from.milliseconds());
    rows.bind(2, range.to.isNone() ? std::numeric_limits<qint64>::max() : range.to.milliseconds());
    rows.bind(3, range.lastRow);
}

StoredInterval intervalOf(const RowCursor& rows) {
    return {.row = rows.place(0),
            .source = rows.place(1),
            .start = Instant(rows.place(2)),
            .seconds = rows.place(3)};
}

template <class Function>
StoreResult guarded(const Function& function) {
    try {
        function();
        return {};
    } catch (const SQLite::Exception& exception) {
        return storeError(exception);
    }
}

} // namespace

class RecordScan::Private final {
public:
    explicit Private(const QString& storeFile)
        : database(QFile::encodeName(storeFile).toStdString(), SQLite::OPEN_READONLY | SQLite::OPEN_NOMUTEX,
                   lockWaitMilliseconds) {
        // The file is looked at with the first question.
        database.exec("BEGIN");
        static_cast<void>(database.execAndGet("SELECT count(*) FROM AppUsageSource").getInt());
    }
    [[nodiscard]] RowCursor rows(const char* sql) { return RowCursor(database.getHandle(), sql); }

    SQLite::Database database;
};

RecordScan::RecordScan(std::unique_ptr<Private> opened)
    : d(std::move(opened)) {}

RecordScan::~RecordScan() = default;

std::variant<std::unique_ptr<RecordScan>, StoreError> RecordScan::open(const QString& storeFile) {
    try {
        return std::unique_ptr<RecordScan>(new RecordScan(std::make_unique<Private>(storeFile)));
    } catch (const SQLite::Exception& exception) {
        return storeError(exception);
    }
}

StoreResult RecordScan::sources(std::vector<StoredSource>& sources) {
    return guarded([&] {
        RowCursor rows = d->rows("SELECT id, bundleID, appName, category FROM AppUsageSource ORDER BY id");
        while (rows.next()) {
            sources.push_back({.row = rows.place(0),
                               .bundleID = rows.text(1),
                               .appName = rows.text(2),
                               .category = rows.text(3)});
        }
    });
}

StoreResult RecordScan::sessions(const Range& range, const Visit<Session>& visit) {
    return guarded([&] {
        RowCursor rows =
            d->rows(NORVIN_SESSION_COLUMNS "WHERE startTime >= ?1 AND startTime < ?2 AND rowid <= ?3 "
                                           "ORDER BY startTime, rowid");
        bindRange(rows, range);
        while (rows.next()) {
            Session session{.id = SessionId(rows.uuid(0)),
                            .startTime = QDateTime::fromMSecsSinceEpoch(rows.place(1), Qt::UTC),
                            .durationMinutes = rows.number(2),
                            .completed = rows.number(3) != 0,
                            .task = {},
                            .score = {},
                            .interruptionCount = rows.number(6),
                            .blockedAttemptsCount = rows.number(7),
                            .blockedSiteAttemptsCount = rows.number(8),
                            .legitimateTimeSeconds = rows.number(9),
                            .distractedTimeSeconds = rows.number(10)};
            if (!rows.isNull(4))
                session.task = TaskId(rows.uuid(4));
            if (!rows.isNull(5))
                session.score = rows.real(5);
            if (!visit(session))
                return;
        }
    });
}

StoreResult RecordScan::usage(const Range& range, const Visit<StoredInterval>& visit) {
    return guarded([&] {
        // Asked to put those with the same start into store order, SQLite would sort all of them, which takes
        // as long again as reading them.
        RowCursor rows = d->rows("SELECT rowid, source, startTime, durationSeconds FROM AppUsageSession "
                                 "WHERE startTime >= ?1 AND startTime < ?2 AND rowid <= ?3 "
                                 "ORDER BY startTime");
        bindRange(rows, range);
        std::vector<StoredInterval> sameStart;
        const auto tell = [&] {
            std::sort(sameStart.begin(), sameStart.end(),
                      [](const StoredInterval& a, const StoredInterval& b) { return a.row < b.row; });
            const bool goesOn = std::all_of(sameStart.cbegin(), sameStart.cend(), visit);
            sameStart.clear();
            return goesOn;
        };
        while (rows.next()) {
            const StoredInterval interval = intervalOf(rows);
            if (!sameStart.empty() && sameStart.front().start != interval.start && !tell())
                return;
            sameStart.push_back(interval);
        }
        static_cast<void>(tell());
    });
}

StoreResult RecordScan::usageOf(const std::vector<qint64>& sources, const Range& range,
                                const std::optional<StoredInterval>& after,
                                const Visit<StoredInterval>& visit) {
    return guarded([&] {
        std::string list;
        for (const qint64 source : sources)
            list += (list.empty() ? "" : ",") + std::to_string(source);
        const std::string sql = "SELECT rowid, source, startTime, durationSeconds FROM AppUsageSession "
                                "WHERE startTime >= ?1 AND startTime < ?2 AND rowid <= ?3 "
                                "AND (startTime > ?1 OR rowid > ?4) AND source IN (" +
                                list + ") ORDER BY startTime, rowid";
        Range rest = range;
        qint64 afterRow = std::numeric_limits<qint64>::min();
        if (after) {
            rest.from = after->start;
            afterRow = after->row;
        }
        RowCursor rows = d->rows(sql.c_str());
        bindRange(rows, rest);
        rows.bind(4, afterRow);
        while (rows.next()) {
            if (!visit(intervalOf(rows)))
                return;
        }
    });
}

StoreResult RecordScan::usageRecords(const Range& range, const Visit<AppUsageSession>& visit) {
    std::vector<StoredSource> known;
    if (StoreResult error = sources(known))
        return error;
    QHash<qint64, const StoredSource*> byRow;
    for (const StoredSource& source : known)
        byRow.insert(source.row, &source);
    return guarded([&] {
        RowCursor rows = d->rows("SELECT id, source, startTime, endTime, durationSeconds "
                                 "FROM AppUsageSession "
                                 "WHERE startTime >= ?1 AND startTime < ?2 AND rowid <= ?3 "
                                 "ORDER BY startTime, rowid");
        bindRange(rows, range);
        const auto inUtc = [&rows](int column) {
            return QDateTime::fromMSecsSinceEpoch(rows.place(column), Qt::UTC);
        };
        while (rows.next()) {
            const StoredSource* const source = byRow.value(rows.place(1));
            if (source == nullptr)
                continue;
            if (!visit({.id = AppUsageSessionId(rows.uuid(0)),
                        .bundleID = source->bundleID,
                        .appName = source->appName,
                        .startTime = inUtc(2),
                        .endTime = inUtc(3),
                        .durationSeconds = rows.number(4),
                        .category = source->category}))
                return;
        }
    });
}

} // namespace norvin
