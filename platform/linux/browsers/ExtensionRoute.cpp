#include "platform/linux/browsers/ExtensionRoute.h"

#include "platform/AccessibilityElement.h"
#include "platform/linux/webextension/ExtensionServer.h"

#include <utility>

namespace norvin {

namespace {

/// An application with one window, a window with one page, or the page.
class PageElement final : public AccessibilityElement {
public:
    enum class Kind { application, window, page };
    PageElement(Kind kind, QString domain)
        : m_kind(kind)
        , m_domain(std::move(domain)) {}

    [[nodiscard]] std::optional<QString> text(const QString& attribute) override {
        if (attribute == QLatin1String("AXRole")) {
            switch (m_kind) {
            case Kind::application:
                return QStringLiteral("AXApplication");
            case Kind::window:
                return QStringLiteral("AXWindow");
            case Kind::page:
                return QStringLiteral("AXWebArea");
            }
        }
        if (m_kind == Kind::page && attribute == QLatin1String("AXURL") && !m_domain.isEmpty())
            return m_domain;
        return std::nullopt;
    }

    [[nodiscard]] Elements elements(const QString& attribute) override {
        if (m_kind == Kind::application && attribute == QLatin1String("AXWindows"))
            return {List{std::make_shared<PageElement>(Kind::window, m_domain)}, 0};
        if (m_kind == Kind::window && attribute == QLatin1String("AXChildren"))
            return {List{std::make_shared<PageElement>(Kind::page, m_domain)}, 0};
        return {List{}, 0};
    }

    void set(const QString& /*attribute*/, bool /*value*/) override {}

private:
    const Kind m_kind;
    const QString m_domain; // empty where the page has none
};

} // namespace

ExtensionRoute::ExtensionRoute(ExtensionServer& server)
    : m_server(server) {}

BrowserRoute::FrontPage ExtensionRoute::readFrontPage(const FrontWindow& window) {
    const auto page = m_server.frontPage(window.processId);
    if (!page)
        return {State::notConnected, {}};
    if (!page->isFocused)
        return {State::elsewhere, {}};
    return page->domain ? FrontPage{State::readable, *page->domain} : FrontPage{State::noPage, {}};
}

BrowserRoute::Closing ExtensionRoute::closeFrontTab(const FrontWindow& window, const QString& domain) {
    switch (m_server.closeFrontTab(window.processId, domain)) {
    case ExtensionServer::CloseResult::closed:
        return Closing::closed;
    case ExtensionServer::CloseResult::otherPage:
        return Closing::otherPage;
    case ExtensionServer::CloseResult::notAnswering:
        return Closing::notAnswering;
    case ExtensionServer::CloseResult::notClosable:
    case ExtensionServer::CloseResult::failed:
        break;
    }
    return Closing::failed;
}

BrowserRoute::State ExtensionRoute::lastState(qint64 processId) const {
    return m_server.isConnected(processId) ? State::readable : State::notConnected;
}

std::shared_ptr<AccessibilityElement> ExtensionRoute::applicationElement(const FrontWindow& window) {
    const auto page = m_server.frontPage(window.processId);
    if (!page || !page->isFocused)
        return nullptr;
    return std::make_shared<PageElement>(PageElement::Kind::application, page->domain.value_or(QString()));
}

} // namespace norvin
