#pragma once

#include "platform/linux/identity/ApplicationIdentity.h"

#include <QByteArray>
#include <QString>

#include <xcb/xcb.h>

#include <optional>
#include <vector>

namespace norvin {

/// The windows of an X display as its window manager publishes them: the questions and messages of the
/// window-manager hints, without any memory. A call waits for the X server at most, never for another
/// program; a window that is gone gives empty answers. Main thread only.
class X11Windows final {
public:
    /// What one round trip tells about a window.
    struct Description {
        WindowClues clues;
        /// Desktop backgrounds and panels: no windows of an application.
        bool isShellSurface = false;
        /// The window was destroyed before it could be asked.
        bool isGone = false;
    };

    /// @param connection an open connection, kept by the caller
    explicit X11Windows(xcb_connection_t* connection);

    [[nodiscard]] xcb_window_t root() const { return m_root; }
    [[nodiscard]] xcb_atom_t activeWindowAtom() const { return m_atoms[ActiveWindow]; }
    [[nodiscard]] xcb_atom_t clientListAtom() const { return m_atoms[ClientList]; }
    [[nodiscard]] xcb_atom_t windowManagerAtom() const { return m_atoms[SupportingWmCheck]; }

    /// Makes the root window's property changes arrive, whatever else was asked for on this connection.
    void watchRoot() const;

    /// The window by which a window manager shows itself, from now on watched for its end and its properties.
    struct WindowManager {
        xcb_window_t window = XCB_NONE;
        /// False while it is still starting, and for the mark that a killed one left behind.
        bool isRunning = false;
    };
    [[nodiscard]] WindowManager windowManager() const;

    /// XCB_NONE when no window has the keyboard.
    [[nodiscard]] xcb_window_t activeWindow() const;
    [[nodiscard]] std::vector<xcb_window_t> clientList() const;
    /// Descriptions in the order of the windows, in one round trip for all.
    [[nodiscard]] std::vector<Description> describe(const std::vector<xcb_window_t>& windows) const;
    [[nodiscard]] QString title(xcb_window_t window) const;
    /// Whether this connection made the window.
    [[nodiscard]] bool isOwn(xcb_window_t window) const;

    void iconify(xcb_window_t window) const;
    /// Asks for the keyboard the way a task bar does, which window managers do not refuse.
    void activate(xcb_window_t window) const;
    void flush() const { xcb_flush(m_connection); }

private:
    enum Atom {
        ActiveWindow,
        ClientList,
        SupportingWmCheck,
        WmPid,
        WmName,
        WmWindowType,
        WindowTypeDesktop,
        WindowTypeDock,
        GtkApplicationId,
        WmChangeState,
        atomCount,
    };

    void sendToRoot(xcb_window_t window, xcb_atom_t message, uint32_t first, uint32_t second) const;
    [[nodiscard]] xcb_get_property_cookie_t request(xcb_window_t window, xcb_atom_t property,
                                                    uint32_t maximumLength) const;

    xcb_connection_t* m_connection;
    xcb_window_t m_root = XCB_NONE;
    bool m_hasClientIds = false;
    QByteArray m_hostName;
    xcb_atom_t m_atoms[atomCount] = {};
};

} // namespace norvin
