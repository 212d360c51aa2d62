#pragma once

namespace norvin {

/// What the focus timer asks for once a second. Main thread only.
class TickPlayer {
public:
    TickPlayer() = default;
    TickPlayer(const TickPlayer&) = delete;
    TickPlayer& operator=(const TickPlayer&) = delete;
    virtual ~TickPlayer() = default;

    /// Plays one tick; never waits.
    virtual void play() = 0;
};

} // namespace norvin
