#pragma once

#include "platform/AccessibilityElement.h"
#include "platform/BrowserScripting.h"
#include "platform/linux/browsers/BrowserRoute.h"

#include <QHash>
#include <QList>

namespace norvin {

/// Browsers by the routes that this desktop has to them: each question goes to the first route that reaches
/// the browser in front, and its tab is closed by the route that read its page. Main thread only.
///
/// Only the window in front is asked, and only for pages of the web (http, https).
class BrowserRoutes final : public BrowserScripting, public AccessibilityElements {
public:
    /// @param routes in the order in which they are tried; all must outlive this
    BrowserRoutes(Workspace& workspace, QList<BrowserRoute*> routes);
    ~BrowserRoutes() override;

    [[nodiscard]] std::optional<ScriptAnswer> run(const QString& source) override;
    [[nodiscard]] Closing closeFrontTab(const RunningApplication& browser, const QString& domain) override;
    [[nodiscard]] std::shared_ptr<AccessibilityElement>
    applicationElement(const RunningApplication& application) override;

    /// The route that serves the browser now, and what the last read by it came to.
    struct Standing {
        /// Position of the route; -1 when none has reached the browser.
        int route = -1;
        /// Of that route; of the last one where none has reached it.
        BrowserRoute::State state = BrowserRoute::State::unknown;
    };
    [[nodiscard]] Standing standing(qint64 processId) const;
    /// Tries the routes to a browser that need not be in front. @return what came of it
    [[nodiscard]] BrowserRoute::State look(qint64 processId);

private:
    struct LastRead {
        BrowserRoute* route = nullptr;
        QString domain;
    };

    [[nodiscard]] std::optional<FrontWindow> frontWindowOf(const QString& bundleIdentifier) const;
    [[nodiscard]] ScriptAnswer readAddress(const FrontWindow& window);
    [[nodiscard]] ScriptAnswer closeLastRead(const FrontWindow& window);
    [[nodiscard]] BrowserRoute::FrontPage readFrontPage(const FrontWindow& window);

    Workspace& m_workspace;
    QList<BrowserRoute*> m_routes;
    QHash<qint64, LastRead> m_lastReads; // by process
};

/// The domain of an address of the web, or of a domain alone, in lower case and without "www."; empty for any
/// other address.
[[nodiscard]] QString webDomain(const QString& address);

} // namespace norvin
