#include "platform/linux/x11/X11Windows.h"

#include "platform/linux/x11/XcbSupport.h"

#include <QSysInfo>

#include <xcb/res.h>
#include <xcb/xcb_icccm.h>

#include <array>
#include <cstring>

namespace norvin {

namespace {

constexpr const char* atomNames[] = {
    "_NET_ACTIVE_WINDOW",  "_NET_CLIENT_LIST",    "_NET_SUPPORTING_WM_CHECK",    "_NET_WM_PID",
    "_NET_WM_NAME",        "_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DESKTOP", "_NET_WM_WINDOW_TYPE_DOCK",
    "_GTK_APPLICATION_ID", "WM_CHANGE_STATE",
};

// In 32-bit units, as the protocol counts.
constexpr uint32_t longestText = 1024;
constexpr uint32_t longestList = 16 * 1024;

qint64 processIdOf(xcb_connection_t* connection, xcb_res_query_client_ids_cookie_t cookie) {
    const XcbReply<xcb_res_query_client_ids_reply_t> reply(
        xcb_res_query_client_ids_reply(connection, cookie, nullptr));
    if (!reply)
        return 0;
    for (auto it = xcb_res_query_client_ids_ids_iterator(reply.get()); it.rem > 0;
         xcb_res_client_id_value_next(&it)) {
        if ((it.data->spec.mask & XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID) && it.data->length >= 4)
            return *xcb_res_client_id_value_value(it.data);
    }
    return 0;
}

} // namespace

X11Windows::X11Windows(xcb_connection_t* connection)
    : m_connection(connection)
    , m_hostName(QSysInfo::machineHostName().toLocal8Bit()) {
    static_assert(std::size(atomNames) == atomCount);
    std::array<xcb_intern_atom_cookie_t, atomCount> cookies;
    for (size_t i = 0; i < atomCount; ++i)
        cookies[i] =
            xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(std::strlen(atomNames[i])), atomNames[i]);
    for (size_t i = 0; i < atomCount; ++i) {
        const XcbReply<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(m_connection, cookies[i], nullptr));
        m_atoms[i] = reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    }
    if (const auto screens = xcb_setup_roots_iterator(xcb_get_setup(m_connection)); screens.rem > 0)
        m_root = screens.data->root;
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(m_connection, &xcb_res_id);
    m_hasClientIds = extension && extension->present;
}

void X11Windows::watchRoot() const {
    const XcbReply<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
        m_connection, xcb_get_window_attributes(m_connection, m_root), nullptr));
    // The mask of a connection is one: whoever sets it must keep what the others on it rely upon.
    const uint32_t present = attributes ? attributes->your_event_mask : 0;
    if (present & XCB_EVENT_MASK_PROPERTY_CHANGE)
        return;
    const uint32_t mask = present | XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(m_connection, m_root, XCB_CW_EVENT_MASK, &mask);
}

X11Windows::WindowManager X11Windows::windowManager() const {
    const xcb_atom_t atom = m_atoms[SupportingWmCheck];
    const auto onRoot = items32(takeProperty(m_connection, request(m_root, atom, 1)).get(), XCB_ATOM_WINDOW);
    if (onRoot.empty() || onRoot.front() == XCB_NONE)
        return {};
    // Watched before it is looked at, or a change in between would go unnoticed.
    const xcb_window_t window = onRoot.front();
    const uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
    const xcb_void_cookie_t watch =
        xcb_change_window_attributes_checked(m_connection, window, XCB_CW_EVENT_MASK, &mask);
    xcb_discard_reply(m_connection, watch.sequence);
    // The mark on the root window outlives a window manager that was killed; the one on its own window does
    // not, but is often set a moment later.
    const auto onItself =
        items32(takeProperty(m_connection, request(window, atom, 1)).get(), XCB_ATOM_WINDOW);
    return {window, !onItself.empty() && onItself.front() == window};
}

xcb_window_t X11Windows::activeWindow() const {
    const auto items =
        items32(takeProperty(m_connection, request(m_root, m_atoms[ActiveWindow], 1)).get(), XCB_ATOM_WINDOW);
    return items.empty() ? static_cast<xcb_window_t>(XCB_NONE) : items.front();
}

std::vector<xcb_window_t> X11Windows::clientList() const {
    return items32(takeProperty(m_connection, request(m_root, m_atoms[ClientList], longestList)).get(),
                   XCB_ATOM_WINDOW);
}

std::vector<X11Windows::Description> X11Windows::describe(const std::vector<xcb_window_t>& windows) const {
    struct Cookies {
        xcb_get_property_cookie_t windowClass;
        xcb_get_property_cookie_t applicationId;
        xcb_get_property_cookie_t type;
        xcb_get_property_cookie_t processId;
        xcb_get_property_cookie_t machine;
        xcb_res_query_client_ids_cookie_t clientIds;
    };
    std::vector<Cookies> pending;
    pending.reserve(windows.size());
    for (const xcb_window_t window : windows) {
        Cookies cookies = {};
        cookies.windowClass = request(window, XCB_ATOM_WM_CLASS, longestText);
        cookies.applicationId = request(window, m_atoms[GtkApplicationId], longestText);
        cookies.type = request(window, m_atoms[WmWindowType], longestText);
        cookies.processId = request(window, m_atoms[WmPid], 1);
        cookies.machine = request(window, XCB_ATOM_WM_CLIENT_MACHINE, longestText);
        if (m_hasClientIds) {
            const xcb_res_client_id_spec_t client = {window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
            cookies.clientIds = xcb_res_query_client_ids(m_connection, 1, &client);
        }
        pending.push_back(cookies);
    }

    std::vector<Description> result;
    result.reserve(windows.size());
    for (const Cookies& cookies : pending) {
        Description description;
        WindowClues& clues = description.clues;
        const auto windowClass = takeProperty(m_connection, cookies.windowClass);
        description.isGone = !windowClass;
        const QList<QByteArray> classParts = bytes8(windowClass.get()).split('\0');
        clues.instanceName = QString::fromLocal8Bit(classParts.value(0));
        clues.className = QString::fromLocal8Bit(classParts.value(1));
        clues.applicationId =
            QString::fromUtf8(bytes8(takeProperty(m_connection, cookies.applicationId).get()));
        for (const uint32_t type : items32(takeProperty(m_connection, cookies.type).get(), XCB_ATOM_ATOM)) {
            if (type == m_atoms[WindowTypeDesktop] || type == m_atoms[WindowTypeDock])
                description.isShellSurface = true;
        }
        const auto claimed = items32(takeProperty(m_connection, cookies.processId).get(), XCB_ATOM_CARDINAL);
        const QByteArray machine = bytes8(takeProperty(m_connection, cookies.machine).get());
        // The server knows the process at the other end of the connection; what a window claims counts on
        // its own machine only, and not at all inside a sandbox with its own process numbers.
        if (m_hasClientIds)
            clues.processId = processIdOf(m_connection, cookies.clientIds);
        if (clues.processId == 0 && !claimed.empty() && machine == m_hostName)
            clues.processId = claimed.front();
        result.push_back(std::move(description));
    }
    return result;
}

QString X11Windows::title(xcb_window_t window) const {
    const auto name = request(window, m_atoms[WmName], longestText);
    const auto legacyName = request(window, XCB_ATOM_WM_NAME, longestText);
    const QByteArray text = bytes8(takeProperty(m_connection, name).get());
    const QByteArray legacyText = bytes8(takeProperty(m_connection, legacyName).get());
    return text.isEmpty() ? QString::fromLatin1(legacyText) : QString::fromUtf8(text);
}

bool X11Windows::isOwn(xcb_window_t window) const {
    const xcb_setup_t* setup = xcb_get_setup(m_connection);
    return (window & ~setup->resource_id_mask) == setup->resource_id_base;
}

void X11Windows::iconify(xcb_window_t window) const {
    sendToRoot(window, m_atoms[WmChangeState], XCB_ICCCM_WM_STATE_ICONIC, 0);
}

void X11Windows::activate(xcb_window_t window) const {
    constexpr uint32_t fromTaskBar = 2;
    sendToRoot(window, m_atoms[ActiveWindow], fromTaskBar, XCB_CURRENT_TIME);
}

void X11Windows::sendToRoot(xcb_window_t window, xcb_atom_t message, uint32_t first, uint32_t second) const {
    xcb_client_message_event_t event = {};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = message;
    event.data.data32[0] = first;
    event.data.data32[1] = second;
    xcb_send_event(m_connection, 0, m_root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&event));
}

xcb_get_property_cookie_t X11Windows::request(xcb_window_t window, xcb_atom_t property,
                                              uint32_t maximumLength) const {
    return xcb_get_property(m_connection, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, maximumLength);
}

} // namespace norvin
