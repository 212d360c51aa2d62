#include "platform/ScriptableBrowser.h"

namespace norvin {

QString ScriptableBrowser::readScript() const {
    return QStringLiteral("tell application \"%1\" to get URL of %2").arg(applicationName, tabPhrase);
}

QString ScriptableBrowser::closeScript() const {
    return QStringLiteral("tell application \"%1\" to close %2").arg(applicationName, tabPhrase);
}

const QList<ScriptableBrowser>& scriptableBrowsers() {
    static const QString currentTab = QStringLiteral("current tab of front window");
    static const QString activeTab = QStringLiteral("active tab of front window");
    static const QList<ScriptableBrowser> browsers{
        {QStringLiteral("com.apple.Safari"), QStringLiteral("Safari"), currentTab},
        {QStringLiteral("com.google.Chrome"), QStringLiteral("Google Chrome"), activeTab},
        {QStringLiteral("com.brave.Browser"), QStringLiteral("Brave Browser"), activeTab},
        {QStringLiteral("com.microsoft.edgemac"), QStringLiteral("Microsoft Edge"), activeTab},
        {QStringLiteral("company.thebrowser.Browser"), QStringLiteral("Arc"), activeTab},
        {QStringLiteral("com.operasoftware.Opera"), QStringLiteral("Opera"), activeTab},
        {QStringLiteral("com.vivaldi.Vivaldi"), QStringLiteral("Vivaldi"), activeTab},
    };
    return browsers;
}

std::optional<ScriptableBrowser> scriptableBrowser(const QString& bundleIdentifier) {
    for (const ScriptableBrowser& browser : scriptableBrowsers()) {
        if (browser.bundleIdentifier == bundleIdentifier)
            return browser;
    }
    return std::nullopt;
}

} // namespace norvin
