#pragma once

#include "platform/linux/atspi/AtspiProbe.h"

namespace norvin {

// Where things are in a browser's window, whatever the browser and the user's language. What is not on the
// screen, menus and the content of pages are never looked into.

/// The document that the window shows in front; null when there is none.
[[nodiscard]] AtspiReference findFrontDocument(AtspiProbe& probe, const AtspiReference& window);

struct FrontTab {
    /// Null when there is not exactly one selected tab.
    AtspiReference tab;
    /// Null when the tab has none, as a pinned one.
    AtspiReference closeButton;
};
/// The selected tab of the window.
[[nodiscard]] FrontTab findFrontTab(AtspiProbe& probe, const AtspiReference& window);

} // namespace norvin
