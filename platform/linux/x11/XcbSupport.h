#pragma once

#include <QByteArray>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <vector>

namespace norvin {

/// Frees what C allocated.
struct FreeDeleter {
    void operator()(void* memory) const { std::free(memory); }
};

/// A reply of libxcb, which allocates with malloc; null where the request failed.
template <typename Reply>
using XcbReply = std::unique_ptr<Reply, FreeDeleter>;

/// The reply to a request for a property; null for a window that is gone. An error is swallowed: windows of
/// other programs may vanish at any moment.
inline XcbReply<xcb_get_property_reply_t> takeProperty(xcb_connection_t* connection,
                                                       xcb_get_property_cookie_t cookie) {
    return XcbReply<xcb_get_property_reply_t>(xcb_get_property_reply(connection, cookie, nullptr));
}

/// Items of a 32-bit property of the given type; empty where it is absent or of another kind.
inline std::vector<uint32_t> items32(const xcb_get_property_reply_t* reply, xcb_atom_t type) {
    if (!reply || reply->type != type || reply->format != 32)
        return {};
    const auto* begin = static_cast<const uint32_t*>(xcb_get_property_value(reply));
    return {begin, begin + reply->value_len};
}

/// Bytes of a text property of any type; empty where it is absent.
inline QByteArray bytes8(const xcb_get_property_reply_t* reply) {
    if (!reply || reply->format != 8)
        return {};
    return QByteArray(static_cast<const char*>(xcb_get_property_value(reply)),
                      xcb_get_property_value_length(reply));
}

} // namespace norvin
