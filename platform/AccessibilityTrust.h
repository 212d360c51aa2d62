#pragma once

#include <functional>

namespace norvin {

/// Whether this program may read other programs' windows through the accessibility services. Main thread
/// only.
class AccessibilityTrust {
public:
    AccessibilityTrust() = default;
    AccessibilityTrust(const AccessibilityTrust&) = delete;
    AccessibilityTrust& operator=(const AccessibilityTrust&) = delete;
    virtual ~AccessibilityTrust() = default;

    /// Calls `answer` once, from the event loop, with whether the services are there and switched on; no
    /// answer of theirs counts as no. What it holds on to must live until then, which may take half a minute.
    virtual void query(std::function<void(bool isTrusted)> answer) = 0;
};

} // namespace norvin
