#include "platform/linux/x11/X11IdleTimeSource.h"

#include "platform/linux/x11/XcbSupport.h"

#include <xcb/screensaver.h>

#include <string_view>

namespace norvin {

using std::chrono::milliseconds;

namespace {

bool hasExtension(xcb_connection_t* connection, xcb_extension_t* extension) {
    const xcb_query_extension_reply_t* reply = xcb_get_extension_data(connection, extension);
    return reply && reply->present;
}

// xcb_sync_systemcounter_name() counts the padding before the length field instead of the field itself: the
// name begins 14 bytes into the entry.
std::string_view nameOf(const xcb_sync_systemcounter_t* counter) {
    constexpr size_t nameOffset = 14;
    return {reinterpret_cast<const char*>(counter) + nameOffset, counter->name_len};
}

} // namespace

X11IdleTimeSource::X11IdleTimeSource(xcb_connection_t* connection)
    : m_connection(connection) {
    if (xcb_connection_has_error(m_connection))
        return;
    if (const auto screens = xcb_setup_roots_iterator(xcb_get_setup(m_connection)); screens.rem > 0)
        m_root = screens.data->root;
    if (findScreenSaver())
        m_source = Source::ScreenSaver;
    else if (findSyncCounter())
        m_source = Source::SyncCounter;
}

bool X11IdleTimeSource::findScreenSaver() const {
    if (!hasExtension(m_connection, &xcb_screensaver_id))
        return false;
    const XcbReply<xcb_screensaver_query_info_reply_t> reply(xcb_screensaver_query_info_reply(
        m_connection, xcb_screensaver_query_info(m_connection, m_root), nullptr));
    return reply != nullptr;
}

bool X11IdleTimeSource::findSyncCounter() {
    if (!hasExtension(m_connection, &xcb_sync_id))
        return false;
    const XcbReply<xcb_sync_initialize_reply_t> version(xcb_sync_initialize_reply(
        m_connection, xcb_sync_initialize(m_connection, XCB_SYNC_MAJOR_VERSION, XCB_SYNC_MINOR_VERSION),
        nullptr));
    const XcbReply<xcb_sync_list_system_counters_reply_t> counters(xcb_sync_list_system_counters_reply(
        m_connection, xcb_sync_list_system_counters(m_connection), nullptr));
    if (!version || !counters)
        return false;
    for (auto it = xcb_sync_list_system_counters_counters_iterator(counters.get()); it.rem > 0;
         xcb_sync_systemcounter_next(&it)) {
        if (nameOf(it.data) == "IDLETIME") {
            m_counter = it.data->counter;
            return true;
        }
    }
    return false;
}

Availability X11IdleTimeSource::availability() const {
    if (m_source == Source::None)
        return Availability::unavailable(QStringLiteral("health_no_idle_source"),
                                         QStringLiteral("neither MIT-SCREEN-SAVER nor an IDLETIME counter"));
    return Availability::available();
}

std::optional<milliseconds> X11IdleTimeSource::timeSinceLastInput() {
    switch (m_source) {
    case Source::ScreenSaver: {
        const XcbReply<xcb_screensaver_query_info_reply_t> reply(xcb_screensaver_query_info_reply(
            m_connection, xcb_screensaver_query_info(m_connection, m_root), nullptr));
        if (reply)
            return milliseconds(reply->ms_since_user_input);
        break;
    }
    case Source::SyncCounter: {
        const XcbReply<xcb_sync_query_counter_reply_t> reply(xcb_sync_query_counter_reply(
            m_connection, xcb_sync_query_counter(m_connection, m_counter), nullptr));
        if (reply)
            return milliseconds((static_cast<int64_t>(reply->counter_value.hi) << 32) +
                                reply->counter_value.lo);
        break;
    }
    case Source::None:
        break;
    }
    return std::nullopt;
}

} // namespace norvin
