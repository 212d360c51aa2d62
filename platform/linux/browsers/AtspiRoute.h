#pragma once

#include "platform/linux/browsers/BrowserRoute.h"

namespace norvin {

class AtspiBrowsers;

/// The way through the desktop's accessibility services, which needs nothing in the browser.
class AtspiRoute final : public BrowserRoute {
public:
    /// @param browsers must outlive this
    explicit AtspiRoute(AtspiBrowsers& browsers);

    [[nodiscard]] FrontPage readFrontPage(const FrontWindow& window) override;
    [[nodiscard]] Closing closeFrontTab(const FrontWindow& window, const QString& domain) override;
    [[nodiscard]] State lastState(qint64 processId) const override;
    /// Never null.
    [[nodiscard]] std::shared_ptr<AccessibilityElement>
    applicationElement(const FrontWindow& window) override;

private:
    AtspiBrowsers& m_browsers;
};

} // namespace norvin
