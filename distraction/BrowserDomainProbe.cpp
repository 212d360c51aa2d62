#include "distraction/BrowserDomainProbe.h"

#include "distraction/PageAddress.h"
#include "platform/AccessibilityElement.h"
#include "platform/BrowserScripting.h"
#include "platform/Log.h"
#include "platform/ScriptableBrowser.h"

#include <array>

namespace norvin {

namespace {

constexpr int deepestElement = 24;

// Numbers of the errors that scripts end with.
constexpr int notPermitted = -1743;
constexpr int privilegeError = -10004;
constexpr int noSuchObject = -1728;
constexpr int invalidIndex = -1719;

constexpr int accessibilityDisabled = -25211;

using Result = BrowserURLReadResult;

bool meansDenied(std::optional<int> errorNumber) {
    if (!errorNumber)
        return false;
    return *errorNumber == notPermitted || *errorNumber == privilegeError;
}

bool isAddressBar(AccessibilityElement& element) {
    static constexpr std::array<QLatin1String, 3> identifiers{
        QLatin1String("WEB_BROWSER_ADDRESS_AND_SEARCH_FIELD"),
        QLatin1String("addressField"),
        QLatin1String("urlbar-input"),
    };
    if (element.text(QStringLiteral("AXSubrole")) == QLatin1String("AXURLTextField"))
        return true;
    const QString identifier = element.text(QStringLiteral("AXIdentifier")).value_or(QString());
    for (const QLatin1String known : identifiers) {
        if (identifier == known)
            return true;
    }
    return element.text(QStringLiteral("AXRole")) == QLatin1String("AXTextField");
}

template <typename Search>
std::optional<QString> searchChildren(AccessibilityElement& element, int depth, Search search) {
    const AccessibilityElement::Elements children = element.elements(QStringLiteral("AXChildren"));
    if (!children.list)
        return std::nullopt;
    for (const auto& child : *children.list) {
        if (auto found = search(*child, depth + 1))
            return found;
    }
    return std::nullopt;
}

std::optional<QString> domainOf(const std::optional<QString>& address) {
    return address ? extractDomain(*address) : std::nullopt;
}

} // namespace

// Both searches go down by themselves: the depth is bounded.
// NOLINTNEXTLINE(misc-no-recursion)
std::optional<QString> findWebAreaURL(AccessibilityElement& element, int depth) {
    if (depth > deepestElement)
        return std::nullopt;
    if (element.text(QStringLiteral("AXRole")) == QLatin1String("AXWebArea")) {
        if (auto url = element.text(QStringLiteral("AXURL")))
            return url;
    }
    return searchChildren(element, depth, findWebAreaURL);
}

// NOLINTNEXTLINE(misc-no-recursion)
std::optional<QString> findURLTextField(AccessibilityElement& element, int depth) {
    if (depth > deepestElement)
        return std::nullopt;
    if (isAddressBar(element)) {
        const auto value = element.text(QStringLiteral("AXValue"));
        if (value && looksLikeURL(*value))
            return value;
    }
    return searchChildren(element, depth, findURLTextField);
}

BrowserDomainProbe::BrowserDomainProbe(BrowserScripting& scripting, AccessibilityElements& accessibility)
    : m_scripting(scripting)
    , m_accessibility(accessibility) {}

BrowserURLReadResult BrowserDomainProbe::readBrowserDomain(const RunningApplication& browser) const {
    if (browser.bundleIdentifier.isEmpty())
        return {Result::Kind::unreadable};
    if (const auto scriptable = scriptableBrowser(browser.bundleIdentifier))
        return readByScript(scriptable->readScript(), scriptable->applicationName);
    return readByAccessibility(browser);
}

BrowserURLReadResult BrowserDomainProbe::readByScript(const QString& script,
                                                      const QString& applicationName) const {
    const std::optional<ScriptAnswer> answer = m_scripting.run(script);
    if (!answer)
        return {Result::Kind::noURL};
    if (!answer->errorNumber) {
        const auto domain = domainOf(answer->text);
        return domain ? Result{Result::Kind::domain, *domain} : Result{Result::Kind::noURL};
    }
    const int number = *answer->errorNumber;
    if (meansDenied(number))
        return {Result::Kind::automationDenied};
    if (number != noSuchObject && number != invalidIndex) {
        logLine(
            QStringLiteral("AppUsageService: AppleScript error %1 for %2").arg(number).arg(applicationName));
    }
    return {Result::Kind::noURL};
}

BrowserURLReadResult BrowserDomainProbe::readByAccessibility(const RunningApplication& browser) const {
    const auto application = m_accessibility.applicationElement(browser);
    // Asks the browser to describe its pages.
    application->set(QStringLiteral("AXManualAccessibility"), true);
    application->set(QStringLiteral("AXEnhancedUserInterface"), true);

    const AccessibilityElement::Elements windows = application->elements(QStringLiteral("AXWindows"));
    const bool isGranted = windows.errorCode != accessibilityDisabled;
    if (!windows.list) {
        logLine(QStringLiteral("AppUsageService: [Firefox/AX] windows query failed (%1) — accessibility off?")
                    .arg(windows.errorCode));
        return {Result::Kind::unreadable, {}, isGranted};
    }
    for (const auto& window : *windows.list) {
        if (const auto domain = domainOf(findWebAreaURL(*window, 0))) {
            logLine(QStringLiteral("AppUsageService: [Firefox/AX] domain via AXWebArea → ") + *domain);
            return {Result::Kind::domain, *domain, isGranted};
        }
        if (const auto domain = domainOf(findURLTextField(*window, 0))) {
            logLine(QStringLiteral("AppUsageService: [Firefox/AX] domain via address bar → ") + *domain);
            return {Result::Kind::domain, *domain, isGranted};
        }
    }
    logLine(QStringLiteral("AppUsageService: [Firefox/AX] no URL found in %1 window(s)")
                .arg(windows.list->size()));
    return {Result::Kind::unreadable, {}, isGranted};
}

BrowserDomainProbe::CloseResult BrowserDomainProbe::closeActiveTab(const QString& bundleID) const {
    const auto scriptable = scriptableBrowser(bundleID);
    if (!scriptable)
        return {};
    const std::optional<ScriptAnswer> answer = m_scripting.run(scriptable->closeScript());
    if (!answer)
        return {};
    // A tab or window that is no longer there is closed.
    const bool isClosed = !answer->errorNumber || answer->errorNumber == noSuchObject;
    return {isClosed, meansDenied(answer->errorNumber)};
}

bool BrowserDomainProbe::closeUnscriptedTab(const RunningApplication& browser, const QString& domain) const {
    return !scriptableBrowser(browser.bundleIdentifier) &&
           m_scripting.closeFrontTab(browser, domain) == BrowserScripting::Closing::closed;
}

} // namespace norvin
