#pragma once

#include "platform/Availability.h"

#include <QObject>
#include <QString>

namespace norvin {

/// One-shot sounds of the desktop, known by name: "Ping", "Blow", "Bottle", "Pop", "Glass", "Submarine".
/// Main thread only; a call never waits for the sound server.
class SystemSounds : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    [[nodiscard]] virtual Availability availability() const = 0;

    /// Plays a sound once; one that is unknown or cannot be played is dropped. Tried while unavailable as
    /// well: that is how a server that came back is noticed.
    /// @param volume 0.0 (silent) to 1.0 (as loud as the desktop plays its own)
    virtual void play(const QString& name, double volume) = 0;

    /// The short sound by which the desktop says no.
    virtual void beep() = 0;

Q_SIGNALS:
    void availabilityChanged();
};

} // namespace norvin
