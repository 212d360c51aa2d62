#pragma once

#include "platform/OverlaySupport.h"

#include <xcb/xcb.h>

namespace norvin {

/// Overlays on an X display, blended by whoever owns the selection of compositing managers.
class X11OverlaySupport final : public OverlaySupport {
public:
    /// @param connection an open connection, kept by the caller
    explicit X11OverlaySupport(xcb_connection_t* connection);

    [[nodiscard]] Availability availability() const override { return Availability::available(); }
    [[nodiscard]] bool isBlending() const override;

private:
    xcb_connection_t* m_connection;
    /// Interned when first asked: nothing of this is wanted at the start.
    mutable xcb_atom_t m_compositingManager = XCB_ATOM_NONE;
};

} // namespace norvin
