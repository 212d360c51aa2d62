#pragma once

#include "platform/Workspace.h"

#include <QString>

#include <optional>

namespace norvin {

class AccessibilityElement;
class AccessibilityElements;
class BrowserScripting;

/// Outcome of asking a browser for the page in front.
struct BrowserURLReadResult {
    enum class Kind {
        domain,           ///< it shows a page with a domain
        noURL,            ///< it answered, but no page with a domain is in front
        automationDenied, ///< it does not let this program ask
        unreadable,       ///< nothing could be asked, or nothing was found
    };

    Kind kind = Kind::unreadable;
    /// Never empty for Kind::domain, else empty.
    QString domain = {};
    /// Whether the browser's accessible interface could be reached; none when it was not tried.
    std::optional<bool> isAccessibilityGranted = std::nullopt;
};

/// Address of the first web page below the element, depth first; none below depth 24. @param depth of the
/// element
[[nodiscard]] std::optional<QString> findWebAreaURL(AccessibilityElement& element, int depth);
/// Text of the first address bar below the element that holds an address, in the same way.
[[nodiscard]] std::optional<QString> findURLTextField(AccessibilityElement& element, int depth);

/// Asks a browser for the domain of the page in front, by script where it has scripts, else through its
/// accessible interface. Keeps no state. Main thread only; a call waits as long as its collaborators do.
class BrowserDomainProbe final {
public:
    BrowserDomainProbe(BrowserScripting& scripting, AccessibilityElements& accessibility);

    [[nodiscard]] BrowserURLReadResult readBrowserDomain(const RunningApplication& browser) const;

    struct CloseResult {
        bool isClosed = false;
        /// The browser does not let this program close tabs.
        bool isAutomationDenied = false;
    };
    /// Closes the front tab of a browser that has scripts; the tab of any other stays.
    [[nodiscard]] CloseResult closeActiveTab(const QString& bundleID) const;

    /// Closes the front tab of a browser that has no scripts while it shows that domain. @return whether it
    /// is gone
    [[nodiscard]] bool closeUnscriptedTab(const RunningApplication& browser, const QString& domain) const;

private:
    [[nodiscard]] BrowserURLReadResult readByScript(const QString& script,
                                                    const QString& applicationName) const;
    [[nodiscard]] BrowserURLReadResult readByAccessibility(const RunningApplication& browser) const;

    BrowserScripting& m_scripting;
    AccessibilityElements& m_accessibility;
};

} // namespace norvin
