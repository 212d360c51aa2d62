#pragma once

#include "platform/BrowserAccess.h"

#include <QSet>
#include <QStringList>

namespace norvin {

/// Browsers as a test describes them; what is opened or installed is done at once and kept.
class FakeBrowserAccess final : public BrowserAccess {
    Q_OBJECT
public:
    using BrowserAccess::BrowserAccess;

    [[nodiscard]] QList<Browser> runningBrowsers() override { return m_browsers; }
    [[nodiscard]] Availability accessibility() const override { return m_accessibility; }
    void setAccessibilityEnabled(bool isEnabled) override {
        setAccessibility(isEnabled ? Availability::available()
                                   : Availability::unavailable(QStringLiteral("health_accessibility_off")));
    }
    [[nodiscard]] bool canInstallExtension(const QString& bundleIdentifier) const override {
        return m_installable.contains(bundleIdentifier);
    }
    [[nodiscard]] bool isExtensionInstalled(const QString& bundleIdentifier) const override {
        return m_installed.contains(bundleIdentifier);
    }
    [[nodiscard]] ExtensionStep installExtension(const QString& bundleIdentifier) override {
        if (!canInstallExtension(bundleIdentifier))
            return {};
        m_installed.insert(bundleIdentifier);
        Q_EMIT changed();
        return {true, QStringLiteral("extension_restart_browser"), {}};
    }
    [[nodiscard]] ExtensionStep removeExtension(const QString& bundleIdentifier) override {
        m_installed.remove(bundleIdentifier);
        Q_EMIT changed();
        return {true, QStringLiteral("extension_removed"), {}};
    }

    void restart(const QString& bundleIdentifier) override { m_restarting.append(bundleIdentifier); }

    void setBrowsers(const QList<Browser>& browsers) {
        m_browsers = browsers;
        Q_EMIT changed();
    }
    void setAccessibility(const Availability& availability) {
        m_accessibility = availability;
        Q_EMIT changed();
    }
    void setInstallable(const QSet<QString>& bundleIdentifiers) { m_installable = bundleIdentifiers; }
    /// The browsers whose restart was asked for, oldest first.
    [[nodiscard]] const QStringList& restarting() const { return m_restarting; }

private:
    QList<Browser> m_browsers;
    Availability m_accessibility = Availability::unavailable(QStringLiteral("health_accessibility_off"));
    QSet<QString> m_installable;
    QSet<QString> m_installed;
    QStringList m_restarting;
};

} // namespace norvin
