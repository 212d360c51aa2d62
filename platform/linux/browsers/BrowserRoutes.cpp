#include "platform/linux/browsers/BrowserRoutes.h"

#include "platform/ScriptableBrowser.h"

#include <QUrl>

#include <utility>

namespace norvin {

namespace {

using State = BrowserRoute::State;

constexpr int notPermitted = -1743;
constexpr int noSuchObject = -1728;
constexpr int invalidIndex = -1719;
constexpr int timedOut = -1712;
constexpr int notHandled = -1708;

// What a route does not reach is left to the next one.
bool isReached(State state) {
    return state == State::readable || state == State::noPage || state == State::noWindow ||
           state == State::notAnswering;
}

ScriptAnswer failed(int errorNumber) {
    return {std::nullopt, errorNumber};
}

} // namespace

QString webDomain(const QString& address) {
    QString domain;
    if (address.contains(QLatin1String("://"))) {
        const QUrl url(address);
        if (url.scheme() != QLatin1String("http") && url.scheme() != QLatin1String("https"))
            return {};
        domain = url.host(QUrl::FullyEncoded);
    } else if (!address.contains(u':')) {
        domain = address.toLower();
    }
    if (domain.startsWith(QLatin1String("www.")))
        domain.remove(0, 4);
    return domain;
}

BrowserRoutes::BrowserRoutes(Workspace& workspace, QList<BrowserRoute*> routes)
    : m_workspace(workspace)
    , m_routes(std::move(routes)) {}

BrowserRoutes::~BrowserRoutes() = default;

std::optional<ScriptAnswer> BrowserRoutes::run(const QString& source) {
    for (const ScriptableBrowser& browser : scriptableBrowsers()) {
        const bool isRead = source == browser.readScript();
        if (!isRead && source != browser.closeScript())
            continue;
        const auto window = frontWindowOf(browser.bundleIdentifier);
        if (!window)
            return failed(noSuchObject);
        return isRead ? readAddress(*window) : closeLastRead(*window);
    }
    return std::nullopt;
}

// The window system knows which window is in front; the browser itself may think otherwise.
std::optional<FrontWindow> BrowserRoutes::frontWindowOf(const QString& bundleIdentifier) const {
    const auto front = m_workspace.frontmostApplication();
    if (!front || front->bundleIdentifier != bundleIdentifier)
        return std::nullopt;
    return FrontWindow{front->processId, m_workspace.frontmostWindowTitle().value_or(QString())};
}

BrowserRoute::FrontPage BrowserRoutes::readFrontPage(const FrontWindow& window) {
    m_lastReads.remove(window.processId);
    BrowserRoute::FrontPage unreached;
    for (BrowserRoute* route : std::as_const(m_routes)) {
        BrowserRoute::FrontPage page = route->readFrontPage(window);
        if (!isReached(page.state)) {
            if (unreached.state != State::elsewhere)
                unreached = std::move(page);
            continue;
        }
        const QString domain = page.state == State::readable ? webDomain(page.address) : QString();
        if (!domain.isEmpty())
            m_lastReads.insert(window.processId, {route, domain});
        return page;
    }
    return unreached;
}

ScriptAnswer BrowserRoutes::readAddress(const FrontWindow& window) {
    const BrowserRoute::FrontPage page = readFrontPage(window);
    switch (page.state) {
    case State::readable:
        return webDomain(page.address).isEmpty() ? ScriptAnswer{} : ScriptAnswer{page.address, std::nullopt};
    case State::noPage:
    case State::elsewhere:
    case State::unknown:
        return failed(invalidIndex);
    case State::noWindow:
        return failed(noSuchObject);
    case State::notAnswering:
        return failed(timedOut);
    case State::off:
    case State::notConnected:
        break;
    }
    return failed(notPermitted);
}

ScriptAnswer BrowserRoutes::closeLastRead(const FrontWindow& window) {
    const auto read = m_lastReads.constFind(window.processId);
    if (read == m_lastReads.constEnd())
        return failed(invalidIndex);
    switch (read->route->closeFrontTab(window, read->domain)) {
    case BrowserRoute::Closing::closed:
        return {};
    case BrowserRoute::Closing::otherPage:
        return failed(noSuchObject);
    case BrowserRoute::Closing::denied:
        return failed(notPermitted);
    case BrowserRoute::Closing::notAnswering:
        return failed(timedOut);
    case BrowserRoute::Closing::failed:
        break;
    }
    return failed(notHandled);
}

BrowserScripting::Closing BrowserRoutes::closeFrontTab(const RunningApplication& browser,
                                                       const QString& domain) {
    const auto window = frontWindowOf(browser.bundleIdentifier);
    if (!window || window->processId != browser.processId)
        return Closing::closed; // its page is not in front any more
    // It is read anew, so that the route which closes is one that sees the page.
    static_cast<void>(readFrontPage(*window));
    const auto read = m_lastReads.constFind(window->processId);
    if (read == m_lastReads.constEnd())
        return Closing::failed;
    if (read->domain != webDomain(domain))
        return Closing::closed;
    const ScriptAnswer answer = closeLastRead(*window);
    return !answer.errorNumber || answer.errorNumber == noSuchObject ? Closing::closed : Closing::failed;
}

std::shared_ptr<AccessibilityElement>
BrowserRoutes::applicationElement(const RunningApplication& application) {
    const FrontWindow window{application.processId, m_workspace.frontmostWindowTitle().value_or(QString())};
    std::shared_ptr<AccessibilityElement> element;
    for (BrowserRoute* route : std::as_const(m_routes)) {
        if (element = route->applicationElement(window); element)
            break;
    }
    Q_ASSERT_X(element, "BrowserRoutes", "the last route has an element for every application");
    return element;
}

BrowserRoute::State BrowserRoutes::look(qint64 processId) {
    return readFrontPage({processId, {}}).state;
}

BrowserRoutes::Standing BrowserRoutes::standing(qint64 processId) const {
    Standing last;
    for (int i = 0; i < m_routes.size(); ++i) {
        const State state = m_routes.at(i)->lastState(processId);
        if (isReached(state))
            return {i, state};
        if (last.state != State::elsewhere)
            last = {state == State::elsewhere ? i : -1, state};
    }
    return last;
}

} // namespace norvin
