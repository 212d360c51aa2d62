#pragma once

namespace norvin {

/// Whether a window system answers where the environment points to (DISPLAY, WAYLAND_DISPLAY, or what
/// QT_QPA_PLATFORM asks for). To be asked before a QGuiApplication is made, which ends the program otherwise.
[[nodiscard]] bool isDisplayReachable();

} // namespace norvin
