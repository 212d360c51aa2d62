#pragma once

#include <vector>

class QWindow;

namespace norvin {

/// Shows, restores and raises this program's application windows and asks for the keyboard: those that are
/// open, or all of them when none is. Overlays, tool windows and popups are left alone. What a desktop needs
/// beyond Qt's own request is the caller's.
/// @return the windows brought forward, the one that asked for the keyboard last
std::vector<QWindow*> presentOwnWindows();

} // namespace norvin
