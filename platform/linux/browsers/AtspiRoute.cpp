#include "platform/linux/browsers/AtspiRoute.h"

#include "platform/AccessibilityElement.h"
#include "platform/linux/atspi/AtspiBrowsers.h"
#include "platform/linux/browsers/BrowserRoutes.h"

namespace norvin {

namespace {

using State = BrowserRoute::State;

State stateOf(BrowserReadState state) {
    switch (state) {
    case BrowserReadState::unknown:
        return State::unknown;
    case BrowserReadState::readable:
        return State::readable;
    case BrowserReadState::serviceMissing:
    case BrowserReadState::accessibilityOff:
        return State::off;
    case BrowserReadState::notOnBus:
        return State::notConnected;
    case BrowserReadState::noWindow:
        return State::noWindow;
    case BrowserReadState::noDocument:
        return State::noPage;
    case BrowserReadState::notAnswering:
        return State::notAnswering;
    }
    return State::unknown;
}

} // namespace

AtspiRoute::AtspiRoute(AtspiBrowsers& browsers)
    : m_browsers(browsers) {}

BrowserRoute::FrontPage AtspiRoute::readFrontPage(const FrontWindow& window) {
    const BrowserFrontPage page = m_browsers.readFrontPage(window.processId, window.title);
    return {stateOf(page.state), page.url};
}

BrowserRoute::Closing AtspiRoute::closeFrontTab(const FrontWindow& window, const QString& domain) {
    const BrowserCloseResult result = m_browsers.closeFrontTab(
        window.processId, window.title, [&domain](const QString& url) { return webDomain(url) == domain; });
    switch (result) {
    case BrowserCloseResult::closed:
        return Closing::closed;
    case BrowserCloseResult::otherPage:
        return Closing::otherPage;
    case BrowserCloseResult::notClosable:
    case BrowserCloseResult::failed:
        break;
    }
    return lastState(window.processId) == State::notAnswering ? Closing::notAnswering : Closing::failed;
}

BrowserRoute::State AtspiRoute::lastState(qint64 processId) const {
    return stateOf(m_browsers.lastState(processId));
}

std::shared_ptr<AccessibilityElement> AtspiRoute::applicationElement(const FrontWindow& window) {
    return m_browsers.applicationElement(window.processId, window.title);
}

} // namespace norvin
