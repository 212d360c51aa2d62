#pragma once

#include "platform/AccessibilityElement.h"
#include "platform/linux/atspi/AtspiReader.h"

#include <functional>
#include <memory>

namespace norvin {

/// What the elements of one browser are read from.
struct AtspiElementSource {
    /// Outlives the elements, as does the clock.
    AtspiReader& reader;
    const Clock& clock;
    /// Null while nothing can be read; `access` says why then.
    AtspiReader::Transport transport;
    BrowserReadState access = BrowserReadState::unknown;
    qint64 processId = 0;
    QString windowTitle;
    /// Called with what the reads show of the browser's state.
    std::function<void(BrowserReadState)> report;
};

/// The element of a browser. Its only window is the one with the title. Below that, the document in front
/// comes first, then the toolbars, then the rest of what is on the screen; documents, menus and lists of tabs
/// give no children. Its time begins now.
[[nodiscard]] std::shared_ptr<AccessibilityElement> atspiApplicationElement(AtspiElementSource source);

} // namespace norvin
