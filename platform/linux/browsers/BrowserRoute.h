#pragma once

#include <QString>

#include <memory>

namespace norvin {

class AccessibilityElement;

/// The window in front, as far as a browser can be found by it.
struct FrontWindow {
    /// Process that the window belongs to; 0 when unknown.
    qint64 processId = 0;
    /// Empty when unknown.
    QString title;
};

/// One way to the pages of a browser. Main thread only; a call waits 300 ms at most.
class BrowserRoute {
public:
    BrowserRoute() = default;
    BrowserRoute(const BrowserRoute&) = delete;
    BrowserRoute& operator=(const BrowserRoute&) = delete;
    virtual ~BrowserRoute() = default;

    enum class State {
        unknown,   ///< it was not tried yet
        readable,  ///< the page is known
        noPage,    ///< the window is known, and shows no page with an address
        noWindow,  ///< the browser is known, its window is not
        elsewhere, ///< the browser is reached, but says that none of the windows it may tell of is in front
        off,       ///< the desktop keeps this way closed
        notConnected, ///< this browser cannot be reached on it
        notAnswering, ///< the browser did not answer in time, lately
    };
    struct FrontPage {
        State state = State::unknown;
        /// Address of the page, or its domain alone; empty unless readable.
        QString address;
    };

    /// The page in front.
    [[nodiscard]] virtual FrontPage readFrontPage(const FrontWindow& window) = 0;

    enum class Closing {
        closed,
        otherPage,    ///< another page is in front; nothing was done
        failed,       ///< the tab cannot be closed, or is still there
        denied,       ///< this way is closed
        notAnswering, ///< no answer in time; nothing is known of the tab
    };
    /// Closes the tab in front, if it still shows the domain.
    /// @param domain in lower case, without "www."
    [[nodiscard]] virtual Closing closeFrontTab(const FrontWindow& window, const QString& domain) = 0;

    /// What the last read of that process came to.
    [[nodiscard]] virtual State lastState(qint64 processId) const = 0;

    /// The browser's accessible interface, as this way knows it; null when it has none to show.
    [[nodiscard]] virtual std::shared_ptr<AccessibilityElement>
    applicationElement(const FrontWindow& window) = 0;
};

} // namespace norvin
