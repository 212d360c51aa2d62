#pragma once

#include "platform/Workspace.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace norvin {

/// A part of another program's user interface: the application itself, a window, a text field, a web page.
/// Main thread only. All reads that start from one application element wait 300 ms at most together; what is
/// not read by then is absent.
class AccessibilityElement {
public:
    AccessibilityElement() = default;
    AccessibilityElement(const AccessibilityElement&) = delete;
    AccessibilityElement& operator=(const AccessibilityElement&) = delete;
    virtual ~AccessibilityElement() = default;

    using List = std::vector<std::shared_ptr<AccessibilityElement>>;
    struct Elements {
        /// None when the attribute could not be read or holds no elements.
        std::optional<List> list;
        /// 0 when it could be read, -25211 where accessibility is off, another number otherwise (-25204: the
        /// program is not there or does not answer).
        int errorCode = 0;
    };

    /// Value of "AXRole", "AXSubrole", "AXIdentifier", "AXURL" or "AXValue"; none when the element has none.
    [[nodiscard]] virtual std::optional<QString> text(const QString& attribute) = 0;
    /// Value of "AXWindows" (of an application, the one in front first) or "AXChildren".
    [[nodiscard]] virtual Elements elements(const QString& attribute) = 0;
    /// Sets "AXManualAccessibility" or "AXEnhancedUserInterface", by which a program is asked to describe its
    /// pages; failures are ignored.
    virtual void set(const QString& attribute, bool value) = 0;
};

/// Gives the elements to start from. Main thread only.
class AccessibilityElements {
public:
    AccessibilityElements() = default;
    AccessibilityElements(const AccessibilityElements&) = delete;
    AccessibilityElements& operator=(const AccessibilityElements&) = delete;
    virtual ~AccessibilityElements() = default;

    /// The element of a running application; never null, even where nothing of it can be read.
    [[nodiscard]] virtual std::shared_ptr<AccessibilityElement>
    applicationElement(const RunningApplication& application) = 0;
};

} // namespace norvin
