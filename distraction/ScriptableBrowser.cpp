#include "distraction/ScriptableBrowser.h"

#include <array>

namespace norvin {

namespace {

struct Entry {
    QLatin1String bundleIdentifier;
    QLatin1String applicationName;
    QLatin1String tabPhrase;
};

constexpr QLatin1String currentTab{"current tab of front window"};
constexpr QLatin1String activeTab{"active tab of front window"};

constexpr std::array<Entry, 7> entries{{
    {QLatin1String("com.apple.Safari"), QLatin1String("Safari"), currentTab},
    {QLatin1String("com.google.Chrome"), QLatin1String("Google Chrome"), activeTab},
    {QLatin1String("com.brave.Browser"), QLatin1String("Brave Browser"), activeTab},
    {QLatin1String("com.microsoft.edgemac"), QLatin1String("Microsoft Edge"), activeTab},
    {QLatin1String("company.thebrowser.Browser"), QLatin1String("Arc"), activeTab},
    {QLatin1String("com.operasoftware.Opera"), QLatin1String("Opera"), activeTab},
    {QLatin1String("com.vivaldi.Vivaldi"), QLatin1String("Vivaldi"), activeTab},
}};

} // namespace

QString ScriptableBrowser::readScript() const {
    return QStringLiteral("tell application \"%1\" to get URL of %2").arg(applicationName, tabPhrase);
}

QString ScriptableBrowser::closeScript() const {
    return QStringLiteral("tell application \"%1\" to close %2").arg(applicationName, tabPhrase);
}

std::optional<ScriptableBrowser> scriptableBrowser(const QString& bundleIdentifier) {
    for (const Entry& entry : entries) {
        if (entry.bundleIdentifier == bundleIdentifier)
            return ScriptableBrowser{entry.bundleIdentifier, entry.applicationName, entry.tabPhrase};
    }
    return std::nullopt;
}

} // namespace norvin
