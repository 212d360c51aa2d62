#pragma once

#include "platform/linux/browsers/BrowserRoute.h"

namespace norvin {

class ExtensionServer;

/// The way through the extension that the user has put into a browser. It tells of pages by itself, so a read
/// waits for nothing.
class ExtensionRoute final : public BrowserRoute {
public:
    /// @param server must outlive this
    explicit ExtensionRoute(ExtensionServer& server);

    [[nodiscard]] FrontPage readFrontPage(const FrontWindow& window) override;
    [[nodiscard]] Closing closeFrontTab(const FrontWindow& window, const QString& domain) override;
    [[nodiscard]] State lastState(qint64 processId) const override;
    /// A window that holds nothing but the page; null where the extension knows no page in front.
    [[nodiscard]] std::shared_ptr<AccessibilityElement>
    applicationElement(const FrontWindow& window) override;

private:
    ExtensionServer& m_server;
};

} // namespace norvin
