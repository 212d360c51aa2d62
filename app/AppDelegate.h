#pragma once

namespace norvin {

class AccessibilityTrust;

/// What the program does once when it has been launched. Main thread only.
class AppDelegate final {
public:
    explicit AppDelegate(AccessibilityTrust& accessibility);

    /// Names the program for the desktop and reports whether browsers may be read through accessibility; that
    /// answer comes later, from the event loop.
    void applicationDidFinishLaunching();

private:
    AccessibilityTrust& m_accessibility;
};

} // namespace norvin
