#pragma once

#include "model/AppUsageSession.h"
#include "model/Instant.h"
#include "model/Session.h"
#include "stats/StatsDays.h"

#include <QHash>
#include <QString>

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace norvin {

/// One recorded session, as the statistics hold it.
struct SessionRow {
    Instant start;
    /// Julian day number of the calendar day it starts in.
    qint64 day = 0;
    SessionId id;
    std::optional<TaskId> task;
    std::optional<double> score;
    int durationMinutes = 0;
    int interruptionCount = 0;
    int blockedAttemptsCount = 0;
    int blockedSiteAttemptsCount = 0;
    int legitimateTimeSeconds = 0;
    int distractedTimeSeconds = 0;
    bool completed = false;
    bool operator==(const SessionRow&) const = default;
};

/// An application under one of the names and categories that it was recorded with.
struct UsageSource {
    QString bundleID;
    QString appName;
    QString category;
    bool operator==(const UsageSource&) const = default;
};

/// All intervals of one source that start on one calendar day.
struct UsageEntry {
    /// Julian day number.
    qint64 day = 0;
    /// When the first of them starts.
    Instant first;
    qint64 seconds = 0;
    /// How many there are.
    int intervals = 0;
    /// Index of the source.
    int source = 0;
};

using SessionSpan = std::span<const SessionRow>;
using UsageSpan = std::span<const UsageEntry>;

/// The records as columns for the statistics: each session, and the usage intervals added up by calendar day
/// and source, which is all that any figure needs and a twentieth of the intervals themselves. Values without
/// a thread of their own.
class StatsTables final {
public:
    explicit StatsTables(const QTimeZone& zone)
        : m_days(zone) {}

    /// Sorted in by start; after those with the same.
    void add(const Session& session);
    void add(SessionRow session);
    void add(const AppUsageSession& usage);
    /// One interval. @param source as of sourceIndex()
    void add(Instant start, qint64 seconds, int source);
    /// The index that stands for a source from now on.
    [[nodiscard]] int sourceIndex(const UsageSource& source);
    /// Takes the sessions of another table of the same zone in place of these.
    void replaceSessions(StatsTables&& other);
    /// Releases what growing reserved.
    void shrink();

    /// By ascending start; of equal ones in store order.
    [[nodiscard]] SessionSpan sessions() const { return m_sessions; }
    /// By ascending day, of one day by the first interval.
    [[nodiscard]] UsageSpan usage() const { return m_usage; }
    [[nodiscard]] const std::vector<UsageSource>& sources() const { return m_sources; }
    [[nodiscard]] StatsDays& days() { return m_days; }
    [[nodiscard]] const StatsDays& days() const { return m_days; }
    /// Bytes that the columns take.
    [[nodiscard]] size_t bytes() const;

private:
    static void addTo(UsageEntry& sum, const UsageEntry& more);
    void addToEarlierDay(const UsageEntry& entry);
    void sortLastDay();

    StatsDays m_days;
    std::vector<SessionRow> m_sessions;
    std::vector<UsageEntry> m_usage;
    std::vector<UsageSource> m_sources;
    QHash<QString, std::vector<int>> m_sourcesOfBundle;
    /// By source: the place of its entry of the last day, or −1.
    std::vector<std::ptrdiff_t> m_lastDayEntries;
    size_t m_lastDayBegin = 0;
};

} // namespace norvin
