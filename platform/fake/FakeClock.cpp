#include "platform/fake/FakeClock.h"

#include <algorithm>

namespace norvin {

using std::chrono::milliseconds;

struct FakeClock::State {
    struct Entry {
        milliseconds deadline;
        milliseconds interval; // zero for a one-shot timer
        std::function<void()> fire;
    };
    std::map<quint64, Entry> entries;
    quint64 nextId = 0;
};

class FakeClock::Timer final : public ClockTimer {
public:
    Timer(std::shared_ptr<State> state, quint64 id)
        : m_state(std::move(state))
        , m_id(id) {}
    ~Timer() override { m_state->entries.erase(m_id); }

private:
    std::shared_ptr<State> m_state;
    quint64 m_id;
};

FakeClock::FakeClock(const QDateTime& now)
    : m_state(std::make_shared<State>())
    , m_now(now) {}

FakeClock::~FakeClock() = default;

std::unique_ptr<ClockTimer> FakeClock::every(milliseconds interval, std::function<void()> fire) {
    Q_ASSERT(interval > milliseconds::zero());
    const quint64 id = m_state->nextId++;
    m_state->entries.emplace(id, State::Entry{m_monotonic + interval, interval, std::move(fire)});
    return std::make_unique<Timer>(m_state, id);
}

std::unique_ptr<ClockTimer> FakeClock::after(milliseconds delay, std::function<void()> fire) {
    const quint64 id = m_state->nextId++;
    const milliseconds deadline = m_monotonic + std::max(delay, milliseconds::zero());
    m_state->entries.emplace(id, State::Entry{deadline, milliseconds::zero(), std::move(fire)});
    return std::make_unique<Timer>(m_state, id);
}

void FakeClock::advance(milliseconds duration) {
    const milliseconds end = m_monotonic + duration;
    fireDue(end);
    m_now = m_now.addMSecs((end - m_monotonic).count());
    m_monotonic = end;
}

void FakeClock::stall(milliseconds duration) {
    m_now = m_now.addMSecs(duration.count());
    m_monotonic += duration;
    fireDue(m_monotonic);
}

void FakeClock::fireDue(milliseconds end) {
    while (true) {
        auto next = m_state->entries.end();
        for (auto it = m_state->entries.begin(); it != m_state->entries.end(); ++it) {
            if (next == m_state->entries.end() || it->second.deadline < next->second.deadline)
                next = it;
        }
        if (next == m_state->entries.end() || next->second.deadline > end)
            break;
        // Deadlines that passed in a stall are met late.
        const milliseconds step = std::max(next->second.deadline - m_monotonic, milliseconds::zero());
        m_monotonic += step;
        m_now = m_now.addMSecs(step.count());
        const std::function<void()> fire = next->second.fire;
        if (next->second.interval == milliseconds::zero())
            m_state->entries.erase(next);
        else
            next->second.deadline += next->second.interval;
        fire();
    }
}

void FakeClock::suspend(milliseconds duration) {
    m_now = m_now.addMSecs(duration.count());
}

int FakeClock::activeTimers() const {
    return static_cast<int>(m_state->entries.size());
}

} // namespace norvin
