#pragma once

#include "platform/Availability.h"

namespace norvin {

/// What the desktop permits to a window that lies over all others, full-screen ones included. Main thread
/// only; a call waits for the display server at most.
class OverlaySupport {
public:
    OverlaySupport() = default;
    OverlaySupport(const OverlaySupport&) = delete;
    OverlaySupport& operator=(const OverlaySupport&) = delete;
    virtual ~OverlaySupport() = default;

    /// Whether such a window stays over all others, and can leave the keyboard and the pointer to them.
    [[nodiscard]] virtual Availability availability() const = 0;

    /// Whether what lies behind a translucent window shows through it now; it may change at any time. Where
    /// it does not, a window covers all of its shape.
    [[nodiscard]] virtual bool isBlending() const = 0;
};

} // namespace norvin
