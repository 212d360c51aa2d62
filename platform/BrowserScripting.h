#pragma once

#include "platform/Workspace.h"

#include <QString>

#include <optional>

namespace norvin {

/// What a script that ran came to.
struct ScriptAnswer {
    /// Result of the script; none when it has no text, and after an error.
    std::optional<QString> text;
    /// None when the script ran through. Else one of
    /// -1743 (the browser does not let us in), -10004 (privilege missing), -1728 (no such window or tab; the
    /// browser is not running), -1719 (the window has no such tab), or another number (no answer in time,
    /// say).
    std::optional<int> errorNumber;

    bool operator==(const ScriptAnswer&) const = default;
};

/// Asks browsers for the page in front and has them close it. Main thread only; a call waits 300 ms at most.
class BrowserScripting {
public:
    BrowserScripting() = default;
    BrowserScripting(const BrowserScripting&) = delete;
    BrowserScripting& operator=(const BrowserScripting&) = delete;
    virtual ~BrowserScripting() = default;

    /// Runs a script such as `tell application "Vivaldi" to get URL of active tab of front window`.
    ///
    /// A script that closes a tab reads the page again first, and closes only a tab that still shows the
    /// domain which the last read from that browser gave. Another page in front is answered with -1728: the
    /// tab is gone.
    /// @return none when the text is no script that is understood here
    [[nodiscard]] virtual std::optional<ScriptAnswer> run(const QString& source) = 0;

    enum class Closing {
        closed, ///< the tab is gone, or its page was no longer in front
        failed, ///< it is still there
    };
    /// Closes the front tab of a browser that no script is known for, if it still shows the domain. Never
    /// closes another one.
    [[nodiscard]] virtual Closing closeFrontTab(const RunningApplication& browser, const QString& domain) = 0;
};

} // namespace norvin
