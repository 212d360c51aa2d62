#pragma once

#include "platform/Availability.h"

#include <QObject>

#include <cstdint>
#include <span>

namespace norvin {

/// One instant of sound in two channels, each -1.0 to 1.0.
struct SoundFrame {
    float left = 0;
    float right = 0;

    bool operator==(const SoundFrame&) const = default;
};

/// Makes what a SoundStream plays. Called on the main thread.
class SoundSource {
public:
    SoundSource() = default;
    SoundSource(const SoundSource&) = delete;
    SoundSource& operator=(const SoundSource&) = delete;
    virtual ~SoundSource() = default;

    /// Whether anything is to be heard from now on.
    [[nodiscard]] virtual bool hasSound() const = 0;
    /// A stream begins or has ended: frames are counted from zero, and nothing made before is asked for
    /// again.
    virtual void reset() = 0;

    /// Makes the frames from `first` on. Frames that were made before, but not heard yet, may be asked for
    /// once more after SoundStream::refresh(): what is to change does so from `first` on.
    /// @return whether anything but silence follows
    virtual bool fill(std::int64_t first, std::span<SoundFrame> frames) = 0;
};

/// Continuous sound for as long as its source has some, and nothing at all otherwise: no connection, no
/// timer. Sound is made well ahead, so that the program is woken about once a second. Main thread only; no
/// call waits for a sound server.
class SoundStream : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Whether what is played can be heard. Looked into only while there is something to play.
    [[nodiscard]] virtual Availability availability() const = 0;

    /// Frames a second.
    [[nodiscard]] virtual int sampleRate() const = 0;

    /// Where sound comes from, none by default. Ends at once what another source plays.
    /// @param source must outlive its time here; null for none
    virtual void setSource(SoundSource* source) = 0;

    /// The source has something else to say than before. Begins to play, or replaces what is made but not
    /// heard yet. A server that is missing is waited for.
    virtual void refresh() = 0;

Q_SIGNALS:
    void availabilityChanged();
};

} // namespace norvin
