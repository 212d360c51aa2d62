#pragma once

#include "platform/linux/x11/XcbSupport.h"

#include <QByteArray>

#include <xcb/xcb.h>
#include <xcb/xcb_icccm.h>

namespace norvin::test {

/// A second connection to the display, whose windows belong to no application of the rig.
class RawClient final {
public:
    RawClient()
        : m_connection(xcb_connect(nullptr, nullptr)) {}
    ~RawClient() { xcb_disconnect(m_connection); }
    Q_DISABLE_COPY_MOVE(RawClient)

    /// Opens a small window; with a null class it has none.
    xcb_window_t open(const char* windowClass) {
        const xcb_window_t window = xcb_generate_id(m_connection);
        const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 80, 60, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
        if (windowClass) {
            const QByteArray both = QByteArray(windowClass) + '\0' + windowClass + '\0';
            xcb_icccm_set_wm_class(m_connection, window, static_cast<uint32_t>(both.size()), both.data());
        }
        xcb_map_window(m_connection, window);
        xcb_flush(m_connection);
        return window;
    }

    void destroy(xcb_window_t window) {
        xcb_destroy_window(m_connection, window);
        xcb_flush(m_connection);
    }

    void setTitle(xcb_window_t window, const QByteArray& title) {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, atom("_NET_WM_NAME"),
                            atom("UTF8_STRING"), 8, static_cast<uint32_t>(title.size()), title.data());
        xcb_flush(m_connection);
    }

    [[nodiscard]] bool isIconic(xcb_window_t window) {
        const xcb_atom_t state = atom("WM_STATE");
        const auto items = items32(
            takeProperty(m_connection, xcb_get_property(m_connection, 0, window, state, state, 0, 2)).get(),
            state);
        return !items.empty() && items.front() == XCB_ICCCM_WM_STATE_ICONIC;
    }

private:
    xcb_atom_t atom(const QByteArray& name) {
        const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
            m_connection,
            xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(name.size()), name.constData()), nullptr));
        return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    }

    xcb_connection_t* m_connection;
};

} // namespace norvin::test
