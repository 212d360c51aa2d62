#include "stats/StatsRecords.h"

#include "model/RecordScan.h"
#include "platform/Clock.h"

#include <QPointer>

#include <chrono>
#include <utility>

namespace norvin {

namespace {

// How many records are read between two looks at whether they are still wanted.
constexpr int recordsBetweenLooks = 1024;

} // namespace

/// What the reading thread and the main thread know of one reading. The thread only looks at what was set
/// before it was started, and at `cancelled`.
struct StatsRecords::Reading {
    QString storeFile;
    RecordCut cut;
    QTimeZone zone = QTimeZone::utc();
    qint64 today = 0;
    bool onlySessions = false;
    std::atomic<bool> cancelled = false;
    /// What was recorded since, in order; main thread only.
    std::vector<Session> newSessions;
    std::vector<AppUsageSession> newUsage;

    [[nodiscard]] StoreResult readSessions(RecordScan& scan, Instant from, StatsTables& tables) const;
    [[nodiscard]] StoreResult readUsage(RecordScan& scan, Instant from, StatsTables& tables) const;
};

StoreResult StatsRecords::Reading::readSessions(RecordScan& scan, Instant from, StatsTables& tables) const {
    int count = 0;
    const StoreResult failure =
        scan.sessions({.from = from, .to = {}, .lastRow = cut.lastSessionRow}, [&](const Session& session) {
            if (!cut.isRemoved(session))
                tables.add(session);
            return ++count % recordsBetweenLooks != 0 || !cancelled;
        });
    for (const Session& session : cut.unsavedSessions) {
        if (from <= Instant(session.startTime))
            tables.add(session);
    }
    return failure;
}

StoreResult StatsRecords::Reading::readUsage(RecordScan& scan, Instant from, StatsTables& tables) const {
    std::vector<StoredSource> stored;
    if (StoreResult failure = scan.sources(stored))
        return failure;
    // Rows are numbered from 1 without great gaps.
    std::vector<int> indexes;
    for (const StoredSource& source : stored) {
        indexes.resize(static_cast<size_t>(source.row) + 1, -1);
        indexes.back() = tables.sourceIndex(
            {.bundleID = source.bundleID, .appName = source.appName, .category = source.category});
    }
    int count = 0;
    const StoreResult failure = scan.usage(
        {.from = from, .to = {}, .lastRow = cut.lastUsageRow}, [&](const StoredInterval& interval) {
            const auto source = static_cast<size_t>(interval.source);
            if (source < indexes.size() && indexes[source] >= 0)
                tables.add(interval.start, interval.seconds, indexes[source]);
            return ++count % recordsBetweenLooks != 0 || !cancelled;
        });
    for (const AppUsageSession& usage : cut.unsavedUsage) {
        if (from <= Instant(usage.startTime))
            tables.add(usage);
    }
    return failure;
}

StatsRecords::StatsRecords(ModelContext& context, QString storeFile, Clock& clock, QObject* parent)
    : QObject(parent)
    , m_context(context)
    , m_storeFile(std::move(storeFile))
    , m_clock(clock)
    , m_tables(clock.now().timeZone()) {
    m_thread.setMaxThreadCount(1);
    // Nothing of it is wanted between two readings.
    m_thread.setExpiryTimeout(1000);
    m_today = m_tables.days().dayOf(now());
}

StatsRecords::~StatsRecords() {
    cancelReading();
    m_thread.waitForDone();
}

void StatsRecords::acquire() {
    if (m_holders++ > 0)
        return;
    m_connections = {
        connect(&m_context, &ModelContext::sessionInserted, this,
                [this](const Session& session) {
                    if (m_reading)
                        m_reading->newSessions.push_back(session);
                    m_tables.add(session);
                    Q_EMIT changed();
                }),
        connect(&m_context, &ModelContext::appUsageInserted, this,
                [this](const AppUsageSession& usage) {
                    if (m_reading)
                        m_reading->newUsage.push_back(usage);
                    m_tables.add(usage);
                    Q_EMIT changed();
                }),
        connect(&m_context, &ModelContext::sessionsRemoved, this, &StatsRecords::readSessionsAgain),
        connect(&m_context, &ModelContext::sessionsEdited, this, &StatsRecords::readSessionsAgain),
    };
    reload();
}

void StatsRecords::release() {
    Q_ASSERT(m_holders > 0);
    if (--m_holders > 0)
        return;
    for (const QMetaObject::Connection& connection : m_connections)
        disconnect(connection);
    m_connections.clear();
    cancelReading();
    m_midnight.reset();
    m_tables = StatsTables(m_clock.now().timeZone());
    m_stage = Stage::empty;
    m_problem.clear();
}

void StatsRecords::reload() {
    if (m_holders == 0)
        return;
    const QTimeZone zone = m_clock.now().timeZone();
    if (zone != m_tables.days().zone()) {
        m_tables = StatsTables(zone);
        m_stage = Stage::empty;
    }
    m_today = m_tables.days().dayOf(now());
    watchMidnight();
    startReading(Wanted::everything);
}

void StatsRecords::readSessionsAgain() {
    // A reading that is under way may have seen them as they were.
    startReading(m_stage == Stage::complete ? Wanted::sessions : Wanted::everything);
}

void StatsRecords::startReading(Wanted wanted) {
    cancelReading();
    m_problem.clear();
    m_reading = std::make_shared<Reading>();
    m_reading->storeFile = m_storeFile;
    std::optional<RecordCut> cut = m_context.cutRecords();
    if (!cut) {
        fail(QStringLiteral("The store cannot be read."));
        return;
    }
    m_reading->cut = *std::move(cut);
    m_reading->zone = m_tables.days().zone();
    m_reading->today = m_today;
    m_reading->onlySessions = wanted == Wanted::sessions;
    if (m_storeFile.isEmpty()) {
        readThroughContext();
        return;
    }
    m_thread.start([this, reading = m_reading] { read(*reading, this, reading); });
}

// On the reading thread; `receiver` outlives it, and is only told things there.
void StatsRecords::read(const Reading& reading, StatsRecords* receiver,
                        const std::shared_ptr<Reading>& which) {
    const auto tell = [&](auto&& news) {
        QMetaObject::invokeMethod(
            receiver,
            [receiver, which, news = std::forward<decltype(news)>(news)]() mutable {
                // Another reading may have been started meanwhile.
                if (receiver->m_reading == which)
                    news(*receiver);
            },
            Qt::QueuedConnection);
    };
    const auto deliver = [&](Stage stage, StatsTables tables) {
        tables.shrink();
        auto shared = std::make_shared<StatsTables>(std::move(tables));
        tell([stage, shared](StatsRecords& records) { records.take(stage, std::move(*shared)); });
    };

    auto opened = RecordScan::open(reading.storeFile);
    if (std::holds_alternative<StoreError>(opened)) {
        // A file that its context has for itself alone, as on a full disk, is read through the context.
        tell([](StatsRecords& records) { records.readThroughContext(); });
        return;
    }
    RecordScan& scan = *std::get<std::unique_ptr<RecordScan>>(opened);
    const Instant month = StatsDays(reading.zone).startOf(reading.today - firstDays);
    StoreResult failure;
    if (!reading.onlySessions) {
        StatsTables tables(reading.zone);
        failure = reading.readSessions(scan, month, tables);
        if (!failure)
            failure = reading.readUsage(scan, month, tables);
        if (!failure && !reading.cancelled)
            deliver(Stage::month, std::move(tables));
    }
    if (!failure && !reading.cancelled) {
        StatsTables tables(reading.zone);
        failure = reading.readSessions(scan, {}, tables);
        if (!failure && !reading.cancelled)
            deliver(Stage::sessions, tables);
        if (!failure && !reading.onlySessions && !reading.cancelled) {
            failure = reading.readUsage(scan, {}, tables);
            if (!failure && !reading.cancelled)
                deliver(Stage::complete, std::move(tables));
        }
    }
    if (failure)
        tell([failure](StatsRecords& records) { records.fail(failure->description); });
}

void StatsRecords::readThroughContext() {
    StatsTables tables(m_tables.days().zone());
    for (const Session& session : m_context.fetchSessions())
        tables.add(session);
    for (const AppUsageSession& usage : m_context.fetchAppUsage())
        tables.add(usage);
    // They include what was recorded since.
    m_reading->newSessions.clear();
    m_reading->newUsage.clear();
    take(Stage::complete, std::move(tables));
}

void StatsRecords::take(Stage stage, StatsTables tables) {
    for (const Session& session : m_reading->newSessions)
        tables.add(session);
    if (stage == Stage::sessions) {
        // Of usage there is what was there before: the last month, or all.
        m_tables.replaceSessions(std::move(tables));
    } else {
        for (const AppUsageSession& usage : m_reading->newUsage)
            tables.add(usage);
        // What is shown must not shrink while everything is read again.
        if (stage == Stage::month && m_stage > Stage::month)
            return;
        m_tables = std::move(tables);
    }
    const bool isLast = stage == Stage::complete || m_reading->onlySessions;
    m_stage = isLast || m_stage == Stage::complete ? Stage::complete : stage;
    if (isLast)
        m_reading.reset();
    m_today = m_tables.days().dayOf(now());
    Q_EMIT changed();
}

void StatsRecords::fail(const QString& problem) {
    m_reading.reset();
    m_problem = problem;
    Q_EMIT changed();
}

void StatsRecords::cancelReading() {
    if (m_reading)
        m_reading->cancelled = true;
    m_reading.reset();
}

bool StatsRecords::isComplete(StatsPeriod period) const {
    const std::optional<int> back = daysBack(period);
    return m_stage == Stage::complete || (m_stage != Stage::empty && back.has_value() && *back <= firstDays);
}

Instant StatsRecords::now() const {
    return Instant(m_clock.now());
}

void StatsRecords::watchMidnight() {
    const std::chrono::milliseconds left(m_tables.days().startOf(m_today + 1).milliseconds() -
                                         now().milliseconds());
    m_midnight = m_clock.after(left, [this] { refreshDay(); });
}

void StatsRecords::refreshDay() {
    if (m_holders == 0)
        return;
    if (m_clock.now().timeZone() != m_tables.days().zone()) {
        reload();
        return;
    }
    const qint64 today = m_tables.days().dayOf(now());
    const bool isOther = today != m_today;
    m_today = today;
    // Also where it still is the same day: the clock may have been set.
    watchMidnight();
    if (isOther)
        Q_EMIT changed();
}

} // namespace norvin
