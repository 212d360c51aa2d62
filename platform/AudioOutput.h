#pragma once

#include "platform/Availability.h"

#include <QObject>

#include <chrono>
#include <vector>

namespace norvin {

/// A mono stream of generated sound to the desktop's output. What is queued is played one after the other,
/// never mixed. Main thread only; no call waits for a sound server.
class AudioOutput : public QObject {
    Q_OBJECT
public:
    /// Sound that cannot begin within this time of being queued is dropped, so that what was missed is never
    /// made up for in a burst.
    static constexpr std::chrono::milliseconds longestDelay{500};

    using QObject::QObject;

    [[nodiscard]] virtual Availability availability() const = 0;

    /// Frames a second of everything that is queued.
    [[nodiscard]] virtual int sampleRate() const = 0;

    /// Plays the samples after all that was queued before; dropped where that is not possible in time. Tried
    /// while unavailable as well: that is how a server that came back is noticed.
    /// @param samples -1.0 to 1.0, at the stream's rate
    virtual void queue(std::vector<float> samples) = 0;

Q_SIGNALS:
    void availabilityChanged();
};

} // namespace norvin
