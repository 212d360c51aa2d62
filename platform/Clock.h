#pragma once

#include <QDateTime>

#include <chrono>
#include <functional>
#include <memory>

namespace norvin {

/// A timer started by a Clock; destroying it cancels it. It may be destroyed from its own callback.
class ClockTimer {
public:
    ClockTimer() = default;
    ClockTimer(const ClockTimer&) = delete;
    ClockTimer& operator=(const ClockTimer&) = delete;
    virtual ~ClockTimer() = default;
};

/// The only source of time. Lengths come from monotonic(), stamps and calendar days from now().
/// Main thread only.
class Clock {
public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    /// Time since an arbitrary fixed point. Never goes back and stands still while the machine is suspended.
    [[nodiscard]] virtual std::chrono::milliseconds monotonic() const = 0;

    /// Wall-clock time in the user's current time zone. May jump in either direction.
    [[nodiscard]] virtual QDateTime now() const = 0;

    /// Calls `fire` once for every whole `interval` that has passed on the monotonic clock: a main thread
    /// that stood still gets the firings it missed, a suspended machine gets none for the time it slept.
    /// @param interval at least 1 ms
    [[nodiscard]] virtual std::unique_ptr<ClockTimer> every(std::chrono::milliseconds interval,
                                                            std::function<void()> fire) = 0;

    /// Calls `fire` once, when `delay` has passed on the monotonic clock.
    /// @param delay at once, from the event loop, where it is not above zero
    [[nodiscard]] virtual std::unique_ptr<ClockTimer> after(std::chrono::milliseconds delay,
                                                            std::function<void()> fire) = 0;
};

/// The first instant of the calendar day of `instant`, in its own time zone (not always midnight).
[[nodiscard]] QDateTime startOfDay(const QDateTime& instant);

} // namespace norvin
