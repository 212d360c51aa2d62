#pragma once

#include "platform/Clock.h"

#include <memory>

namespace norvin {

/// The machine's clocks: CLOCK_MONOTONIC, which stands still in suspend, and the wall clock in the local time
/// zone. All timers of one SystemClock share a single precise timer, and timers whose deadlines lie within
/// 8 ms of each other share one wake-up: they fire up to that much late, never early. Needs an event loop.
class SystemClock final : public Clock {
public:
    SystemClock();
    ~SystemClock() override;

    [[nodiscard]] std::chrono::milliseconds monotonic() const override;
    [[nodiscard]] QDateTime now() const override;
    [[nodiscard]] std::unique_ptr<ClockTimer> every(std::chrono::milliseconds interval,
                                                    std::function<void()> fire) override;
    [[nodiscard]] std::unique_ptr<ClockTimer> after(std::chrono::milliseconds delay,
                                                    std::function<void()> fire) override;

private:
    class Schedule;
    class Timer;
    // Shared with the timers, which may outlive the clock.
    std::shared_ptr<Schedule> m_schedule;
};

} // namespace norvin
