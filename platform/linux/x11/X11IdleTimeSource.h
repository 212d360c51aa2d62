#pragma once

#include "platform/IdleTimeSource.h"

#include <xcb/sync.h>
#include <xcb/xcb.h>

namespace norvin {

/// The X server's own idle time: the MIT-SCREEN-SAVER extension or, without it, the IDLETIME counter of the
/// SYNC extension. Unavailable with "health_no_idle_source" where the server has neither. A read is one round
/// trip to the server.
class X11IdleTimeSource final : public IdleTimeSource {
public:
    /// @param connection outlives this object; a broken one counts as a server without either extension
    explicit X11IdleTimeSource(xcb_connection_t* connection);

    [[nodiscard]] Availability availability() const override;
    [[nodiscard]] std::optional<std::chrono::milliseconds> timeSinceLastInput() override;

private:
    enum class Source { ScreenSaver, SyncCounter, None };

    [[nodiscard]] bool findScreenSaver() const;
    [[nodiscard]] bool findSyncCounter();

    xcb_connection_t* m_connection;
    xcb_window_t m_root = XCB_NONE;
    xcb_sync_counter_t m_counter = XCB_NONE;
    Source m_source = Source::None;
};

} // namespace norvin
