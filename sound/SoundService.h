#pragma once

#include <QString>

namespace norvin {

class SystemSounds;

/// The one-shot sounds of the program, each a named sound of the desktop.
enum class SoundEffect {
    ping,      ///< something begins: a phase starts or goes on, or the rearming is over and work is next
    blow,      ///< a pause
    bottle,    ///< a stop
    pop,       ///< a task was added
    glass,     ///< the work is done
    submarine, ///< the break is over; the longest, for somebody who has left the desk
};

/// Plays one-shot sounds; returns before they are heard. Main thread only.
class SoundService final {
public:
    explicit SoundService(SystemSounds& sounds);

    /// @param volume 0.0 (silent) to 1.0
    void play(SoundEffect effect, double volume = 1.0);

    /// "Ping", "Blow", "Bottle", "Pop", "Glass", "Submarine".
    [[nodiscard]] static QString soundName(SoundEffect effect);

private:
    SystemSounds& m_sounds;
};

} // namespace norvin
