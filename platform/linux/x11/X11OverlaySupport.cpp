#include "platform/linux/x11/X11OverlaySupport.h"

#include "platform/linux/x11/XcbSupport.h"

#include <string_view>

namespace norvin {

X11OverlaySupport::X11OverlaySupport(xcb_connection_t* connection)
    : m_connection(connection) {}

bool X11OverlaySupport::isBlending() const {
    if (m_compositingManager == XCB_ATOM_NONE) {
        // Displays with several unconnected screens have gone out of use: the first is the one.
        constexpr std::string_view name = "_NET_WM_CM_S0";
        const XcbReply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
            m_connection, xcb_intern_atom(m_connection, 0, name.size(), name.data()), nullptr));
        if (!atom)
            return false;
        m_compositingManager = atom->atom;
    }
    const XcbReply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        m_connection, xcb_get_selection_owner(m_connection, m_compositingManager), nullptr));
    return owner && owner->owner != XCB_NONE;
}

} // namespace norvin
