#include "distraction/BrowserHealth.h"

#include "distraction/AppBlockerService.h"
#include "distraction/KnownBrowsers.h"
#include "platform/Preferences.h"

#include <QCoreApplication>

#include <utility>

namespace norvin {

namespace {

using Action = TrackingHealthModel::Action;
using Notice = TrackingHealthModel::Notice;

constexpr auto declinedKey = QLatin1String("is_browser_access_declined");
constexpr auto accessibilityOffKey = QLatin1String("health_accessibility_off");

// What a browser looks at only when it starts.
bool isMendedByRestart(const Availability& pages) {
    static const QStringList reasons{QStringLiteral("health_browser_restart"),
                                     QStringLiteral("health_browser_not_answering"),
                                     QStringLiteral("health_extension_not_connected")};
    return pages.reason() && reasons.contains(pages.reason()->reasonKey);
}

bool isKnownBrowser(const QString& bundleIdentifier) {
    return knownBrowserBundleIDs().contains(bundleIdentifier);
}

} // namespace

BrowserHealth::BrowserHealth(BrowserAccess& access, AppBlockerService& blocker, Preferences& preferences,
                             QObject* parent)
    : QObject(parent)
    , m_access(access)
    , m_blocker(blocker)
    , m_preferences(preferences) {
    connect(&m_access, &BrowserAccess::changed, this, &BrowserHealth::changed);
    connect(&m_access, &BrowserAccess::restartEnded, this, &BrowserHealth::noteRestartEnd);
    connect(&m_blocker, &AppBlockerService::listsChanged, this, &BrowserHealth::refreshBanner);
}

BrowserHealth::~BrowserHealth() = default;

TrackingHealthModel::Check BrowserHealth::accessCheck() {
    return {QStringLiteral("health_browser_pages"),
            [this] {
                const Availability accessibility = m_access.accessibility();
                if (accessibility.isAvailable())
                    return accessibility;
                // The extension alone is enough for the browser that has it.
                for (const QString& browser : knownBrowserBundleIDs()) {
                    if (m_access.isExtensionInstalled(browser))
                        return Availability::available();
                }
                return accessibility;
            },
            QString(), [this] { return accessActions(); }};
}

QList<Action> BrowserHealth::accessActions() {
    const std::optional<Unavailable> reason = m_access.accessibility().reason();
    if (!reason) {
        return {{QStringLiteral("accessibility_turn_off_button"), [this] {
                     m_access.setAccessibilityEnabled(false);
                     return Notice{};
                 }}};
    }
    if (reason->reasonKey != accessibilityOffKey)
        return {};
    return {{QStringLiteral("accessibility_turn_on_button"), [this] {
                 m_access.setAccessibilityEnabled(true);
                 return Notice{QStringLiteral("accessibility_turned_on"), {}};
             }}};
}

QList<TrackingHealthModel::Check> BrowserHealth::browserChecks() {
    QList<TrackingHealthModel::Check> checks;
    const QList<BrowserAccess::Browser> browsers = m_access.runningBrowsers();
    for (const BrowserAccess::Browser& browser : browsers) {
        checks.append({browser.isByExtension ? QStringLiteral("health_browser_by_extension")
                                             : QStringLiteral("health_browser"),
                       [pages = browser.pages] { return pages; }, browser.name,
                       [this, browser] { return browserActions(browser); }});
    }
    return checks;
}

QList<Action> BrowserHealth::browserActions(const BrowserAccess::Browser& browser) {
    const QString bundleIdentifier = browser.bundleIdentifier;
    QList<Action> actions;
    if (isMendedByRestart(browser.pages))
        actions.append(restartAction(bundleIdentifier, browser.name));
    if (m_access.isExtensionInstalled(bundleIdentifier)) {
        actions.append({QStringLiteral("extension_remove_button"), [this, bundleIdentifier] {
                            const auto step = m_access.removeExtension(bundleIdentifier);
                            return Notice{step.textKey, step.detail};
                        }});
    } else if (m_access.canInstallExtension(bundleIdentifier)) {
        actions.append({QStringLiteral("extension_install_button"), [this, bundleIdentifier] {
                            const auto step = m_access.installExtension(bundleIdentifier);
                            return Notice{step.textKey, step.detail};
                        }});
    }
    return actions;
}

Action BrowserHealth::restartAction(const QString& bundleIdentifier, const QString& name) {
    const TrackingHealthModel::Question question{QStringLiteral("browser_restart_title"),
                                                 QStringLiteral("browser_restart_message")};
    return {QStringLiteral("browser_restart_button"),
            [this, bundleIdentifier, name] {
                m_restarting.insert(bundleIdentifier, name);
                m_access.restart(bundleIdentifier);
                return Notice{QStringLiteral("browser_restart_under_way"), name};
            },
            question};
}

void BrowserHealth::noteRestartEnd(const QString& bundleIdentifier, const QString& textKey) {
    const QString name = m_restarting.take(bundleIdentifier);
    Q_EMIT noticed(textKey.isEmpty() ? Notice{} : Notice{textKey, name});
}

void BrowserHealth::refreshBanner() {
    QString reasonKey;
    QString browserName;
    bool isAnyWhitelisted = false;
    for (const QString& identifier : m_blocker.whitelistedAppBundleIDs())
        isAnyWhitelisted = isAnyWhitelisted || isKnownBrowser(identifier);
    const bool isDeclined = m_preferences.value(declinedKey).value_or(QVariant(false)).toBool();
    if (isAnyWhitelisted) {
        const Availability general = accessCheck().ask();
        if (!general.isAvailable() && !isDeclined)
            reasonKey = general.reason()->reasonKey;
        const QList<BrowserAccess::Browser> browsers =
            reasonKey.isEmpty() ? m_access.runningBrowsers() : QList<BrowserAccess::Browser>();
        for (const BrowserAccess::Browser& browser : browsers) {
            if (browser.pages.isAvailable() || browser.pages == m_access.accessibility() ||
                m_declined.contains({browser.pages.reason()->reasonKey, browser.name}) ||
                !m_blocker.whitelistedAppBundleIDs().contains(browser.bundleIdentifier))
                continue;
            reasonKey = browser.pages.reason()->reasonKey;
            browserName = browser.name;
            break;
        }
    }
    if (reasonKey == m_bannerReasonKey && browserName == m_bannerBrowser)
        return;
    m_bannerReasonKey = std::move(reasonKey);
    m_bannerBrowser = std::move(browserName);
    Q_EMIT bannerChanged();
}

QString BrowserHealth::bannerText() const {
    if (!hasBanner())
        return {};
    const QString key = m_bannerReasonKey;
    QString text = qtTrId(key.toUtf8().constData()) + u' ' +
                   qtTrId((key + QStringLiteral("_remedy")).toUtf8().constData());
    return text.replace(QLatin1String("%1"), m_bannerBrowser);
}

QString BrowserHealth::bannerActionText() const {
    if (!hasBanner())
        return {};
    return bannerLeadsToHealth() ? qtTrId("health_title") : qtTrId("accessibility_turn_on_button");
}

bool BrowserHealth::bannerLeadsToHealth() const {
    return hasBanner() && m_bannerReasonKey != accessibilityOffKey;
}

void BrowserHealth::bannerAct() {
    if (m_bannerReasonKey == accessibilityOffKey)
        m_access.setAccessibilityEnabled(true);
    refreshBanner();
}

void BrowserHealth::declineBanner() {
    if (m_bannerBrowser.isEmpty())
        m_preferences.setValue(declinedKey, true);
    else
        m_declined.insert({m_bannerReasonKey, m_bannerBrowser});
    refreshBanner();
}

} // namespace norvin
