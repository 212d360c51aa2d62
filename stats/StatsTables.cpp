#include "stats/StatsTables.h"

#include <algorithm>
#include <utility>

namespace norvin {

namespace {

constexpr std::ptrdiff_t noEntry = -1;

bool startsBefore(const SessionRow& a, const SessionRow& b) {
    return a.start < b.start;
}

bool firstBefore(const UsageEntry& a, const UsageEntry& b) {
    return a.first < b.first;
}

} // namespace

void StatsTables::add(const Session& session) {
    add(SessionRow{.start = Instant(session.startTime),
                   .day = 0,
                   .id = session.id,
                   .task = session.task,
                   .score = session.score,
                   .durationMinutes = session.durationMinutes,
                   .interruptionCount = session.interruptionCount,
                   .blockedAttemptsCount = session.blockedAttemptsCount,
                   .blockedSiteAttemptsCount = session.blockedSiteAttemptsCount,
                   .legitimateTimeSeconds = session.legitimateTimeSeconds,
                   .distractedTimeSeconds = session.distractedTimeSeconds,
                   .completed = session.completed});
}

void StatsTables::add(SessionRow session) {
    // A row without a start is stored as of the epoch.
    if (session.start.isNone())
        session.start = Instant(0);
    session.day = m_days.dayOf(session.start);
    const auto place = m_sessions.empty() || !startsBefore(session, m_sessions.back())
                           ? m_sessions.end()
                           : std::upper_bound(m_sessions.begin(), m_sessions.end(), session, startsBefore);
    m_sessions.insert(place, session);
}

void StatsTables::add(const AppUsageSession& usage) {
    const Instant start(usage.startTime);
    add(start.isNone() ? Instant(0) : start, usage.durationSeconds,
        sourceIndex({usage.bundleID, usage.appName, usage.category}));
}

int StatsTables::sourceIndex(const UsageSource& source) {
    std::vector<int>& known = m_sourcesOfBundle[source.bundleID];
    const auto same = std::find_if(known.cbegin(), known.cend(), [&](int index) {
        return m_sources[static_cast<size_t>(index)] == source;
    });
    if (same != known.cend())
        return *same;
    const int index = static_cast<int>(m_sources.size());
    m_sources.push_back(source);
    m_lastDayEntries.push_back(noEntry);
    known.push_back(index);
    return index;
}

void StatsTables::add(Instant start, qint64 seconds, int source) {
    const UsageEntry entry{
        .day = m_days.dayOf(start), .first = start, .seconds = seconds, .intervals = 1, .source = source};
    if (m_usage.empty() || entry.day > m_usage.back().day) {
        m_lastDayBegin = m_usage.size();
        std::fill(m_lastDayEntries.begin(), m_lastDayEntries.end(), noEntry);
    } else if (entry.day < m_usage.back().day) {
        addToEarlierDay(entry);
        return;
    }
    std::ptrdiff_t& place = m_lastDayEntries[static_cast<size_t>(source)];
    if (place == noEntry) {
        place = std::ssize(m_usage);
        m_usage.push_back(entry);
    } else {
        addTo(m_usage[static_cast<size_t>(place)], entry);
    }
    // Intervals come in the order of their start but for a clock that was set back.
    const size_t changed = static_cast<size_t>(place);
    if (changed > m_lastDayBegin && m_usage[changed].first < m_usage[changed - 1].first)
        sortLastDay();
}

void StatsTables::addTo(UsageEntry& sum, const UsageEntry& more) {
    sum.seconds += more.seconds;
    sum.intervals += more.intervals;
    sum.first = std::min(sum.first, more.first);
}

void StatsTables::addToEarlierDay(const UsageEntry& entry) {
    const auto [begin, end] =
        std::equal_range(m_usage.begin(), m_usage.end(), entry,
                         [](const UsageEntry& a, const UsageEntry& b) { return a.day < b.day; });
    const auto same = std::find_if(
        begin, end, [&entry](const UsageEntry& candidate) { return candidate.source == entry.source; });
    if (same != end) {
        addTo(*same, entry);
        std::stable_sort(begin, end, firstBefore);
        return;
    }
    m_usage.insert(std::upper_bound(begin, end, entry, firstBefore), entry);
    ++m_lastDayBegin;
    sortLastDay();
}

void StatsTables::sortLastDay() {
    const auto begin = m_usage.begin() + static_cast<std::ptrdiff_t>(m_lastDayBegin);
    std::stable_sort(begin, m_usage.end(), firstBefore);
    for (size_t place = m_lastDayBegin; place < m_usage.size(); ++place)
        m_lastDayEntries[static_cast<size_t>(m_usage[place].source)] = static_cast<std::ptrdiff_t>(place);
}

void StatsTables::replaceSessions(StatsTables&& other) {
    m_sessions = std::move(other.m_sessions);
}

void StatsTables::shrink() {
    m_sessions.shrink_to_fit();
    m_usage.shrink_to_fit();
}

size_t StatsTables::bytes() const {
    return m_sessions.capacity() * sizeof(SessionRow) + m_usage.capacity() * sizeof(UsageEntry);
}

} // namespace norvin
