#pragma once

#include <memory>

struct pa_mainloop_api;

namespace norvin {

class Clock;

/// Lets libpulse live on the Qt event loop of the thread that made this, without a thread of its own. Must
/// outlive every libpulse object that was made with it.
class PulseEventLoop final {
public:
    /// @param clock must outlive the loop
    explicit PulseEventLoop(Clock& clock);
    ~PulseEventLoop();
    PulseEventLoop(const PulseEventLoop&) = delete;
    PulseEventLoop& operator=(const PulseEventLoop&) = delete;

    /// What libpulse asks for; never null.
    [[nodiscard]] pa_mainloop_api* api() const { return m_api.get(); }

private:
    std::unique_ptr<pa_mainloop_api> m_api;
};

} // namespace norvin
