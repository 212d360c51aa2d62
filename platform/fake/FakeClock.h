#pragma once

#include "platform/Clock.h"

#include <QTimeZone>

#include <map>
#include <memory>

namespace norvin {

/// A clock that stands still until a test moves it; its timers fire while it is moved, in the order of their
/// deadlines, each at its own instant.
class FakeClock final : public Clock {
public:
    explicit FakeClock(const QDateTime& now = QDateTime(QDate(2025, 3, 10), QTime(9, 0), QTimeZone::utc()));
    ~FakeClock() override;

    [[nodiscard]] std::chrono::milliseconds monotonic() const override { return m_monotonic; }
    [[nodiscard]] QDateTime now() const override { return m_now; }
    [[nodiscard]] std::unique_ptr<ClockTimer> every(std::chrono::milliseconds interval,
                                                    std::function<void()> fire) override;
    [[nodiscard]] std::unique_ptr<ClockTimer> after(std::chrono::milliseconds delay,
                                                    std::function<void()> fire) override;

    /// Lets time pass while the machine is awake: both clocks move and timers fire.
    void advance(std::chrono::milliseconds duration);
    /// Keeps the main thread busy for that long: the timers that fall due in it fire at its end, all of them.
    void stall(std::chrono::milliseconds duration);
    /// Lets the machine sleep: only the wall clock moves.
    void suspend(std::chrono::milliseconds duration);
    /// The user or the network sets the wall clock.
    void setNow(const QDateTime& now) { m_now = now; }
    /// Timers that were started and not yet cancelled or fired.
    [[nodiscard]] int activeTimers() const;

private:
    class Timer;
    struct State;
    void fireDue(std::chrono::milliseconds end);

    std::shared_ptr<State> m_state;
    std::chrono::milliseconds m_monotonic{1'000'000};
    QDateTime m_now;
};

} // namespace norvin
