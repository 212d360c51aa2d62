#include "platform/linux/clock/SystemClock.h"

#include <QTimer>

#include <algorithm>
#include <map>

namespace norvin {

using namespace std::chrono_literals;
using std::chrono::milliseconds;
using std::chrono::nanoseconds;

namespace {

// Late by this much at most, so that timers started in one turn of the event loop wake the machine once.
constexpr milliseconds sharedWakeUp{8};
// QTimer counts in an int of milliseconds; a later deadline is armed for again on the way.
constexpr std::chrono::hours longestSleep{24};

nanoseconds monotonicNow() {
    // std::chrono::steady_clock is CLOCK_MONOTONIC on Linux.
    return std::chrono::duration_cast<nanoseconds>(std::chrono::steady_clock::now().time_since_epoch());
}

} // namespace

class SystemClock::Schedule final : public std::enable_shared_from_this<Schedule> {
public:
    Schedule() {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.setSingleShot(true);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { run(); });
    }

    quint64 add(nanoseconds delay, nanoseconds interval, std::function<void()> fire) {
        const quint64 id = m_nextId++;
        m_entries.emplace(id, Entry{monotonicNow() + delay, interval, std::move(fire)});
        arm();
        return id;
    }

    void remove(quint64 id) {
        m_entries.erase(id);
        // A wake-up that has become needless is cheaper than re-arming for every cancelled timer, except
        // when it was the last one: nothing may wake a program in which nothing runs.
        if (m_entries.empty()) {
            m_timer.stop();
            m_armedFor = nanoseconds::max();
        }
    }

    void clear() {
        m_entries.clear();
        m_timer.stop();
    }

private:
    struct Entry {
        nanoseconds deadline;
        nanoseconds interval; // zero for a one-shot timer
        std::function<void()> fire;
    };
    using Entries = std::map<quint64, Entry>;

    Entries::iterator earliest() {
        return std::min_element(m_entries.begin(), m_entries.end(), [](const auto& a, const auto& b) {
            return a.second.deadline < b.second.deadline;
        });
    }

    void run() {
        const std::shared_ptr<Schedule> self = shared_from_this();
        m_armedFor = nanoseconds::max();
        // Deadlines that pass while the callbacks run belong to the next wake-up, or a slow callback could
        // keep the event loop from ever turning.
        const nanoseconds now = monotonicNow();
        while (true) {
            const auto next = earliest();
            if (next == m_entries.end() || next->second.deadline > now)
                break;
            const std::function<void()> fire = next->second.fire;
            if (next->second.interval == nanoseconds::zero())
                m_entries.erase(next);
            else
                next->second.deadline += next->second.interval;
            // Armed before the callback: it may run an event loop of its own.
            arm();
            fire();
        }
        arm();
    }

    void arm() {
        const auto first = earliest();
        if (first == m_entries.end())
            return;
        nanoseconds target = first->second.deadline;
        for (const auto& [id, entry] : m_entries) {
            if (entry.deadline <= first->second.deadline + sharedWakeUp)
                target = std::max(target, entry.deadline);
        }
        if (target == m_armedFor && m_timer.isActive())
            return;
        m_armedFor = target;
        const nanoseconds wait = std::clamp<nanoseconds>(target - monotonicNow(), 0ns, longestSleep);
        m_timer.start(std::chrono::ceil<milliseconds>(wait));
    }

    QTimer m_timer;
    Entries m_entries;
    quint64 m_nextId = 0;
    nanoseconds m_armedFor = nanoseconds::max();
};

class SystemClock::Timer final : public ClockTimer {
public:
    Timer(std::shared_ptr<Schedule> schedule, quint64 id)
        : m_schedule(std::move(schedule))
        , m_id(id) {}
    ~Timer() override { m_schedule->remove(m_id); }

private:
    std::shared_ptr<Schedule> m_schedule;
    quint64 m_id;
};

SystemClock::SystemClock()
    : m_schedule(std::make_shared<Schedule>()) {}

SystemClock::~SystemClock() {
    m_schedule->clear();
}

milliseconds SystemClock::monotonic() const {
    return std::chrono::floor<milliseconds>(monotonicNow());
}

QDateTime SystemClock::now() const {
    return QDateTime::currentDateTime();
}

std::unique_ptr<ClockTimer> SystemClock::every(milliseconds interval, std::function<void()> fire) {
    Q_ASSERT(interval > milliseconds::zero());
    return std::make_unique<Timer>(m_schedule, m_schedule->add(interval, interval, std::move(fire)));
}

std::unique_ptr<ClockTimer> SystemClock::after(milliseconds delay, std::function<void()> fire) {
    const nanoseconds wait = std::max(delay, milliseconds::zero());
    return std::make_unique<Timer>(m_schedule, m_schedule->add(wait, nanoseconds::zero(), std::move(fire)));
}

} // namespace norvin
