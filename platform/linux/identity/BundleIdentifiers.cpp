#include "platform/linux/identity/BundleIdentifiers.h"

#include <QHash>

#include <array>
#include <utility>

namespace norvin {

namespace {

struct NameMapping {
    const char* name;
    const char* mapped;
};

// Desktop ids and window classes, in lower case: Debian and Fedora packages, vendors' own packages, Flatpak
// ids, Snap's "package_application".
constexpr NameMapping browserNames[] = {
    {"chromium", "com.google.Chrome"},
    {"chromium-browser", "com.google.Chrome"},
    {"chromium-freeworld", "com.google.Chrome"},
    {"chromium_chromium", "com.google.Chrome"},
    {"org.chromium.chromium", "com.google.Chrome"},
    {"io.github.ungoogled_software.ungoogled_chromium", "com.google.Chrome"},
    {"google-chrome", "com.google.Chrome"},
    {"google-chrome-stable", "com.google.Chrome"},
    {"google-chrome-beta", "com.google.Chrome"},
    {"google-chrome-unstable", "com.google.Chrome"},
    {"com.google.chrome", "com.google.Chrome"},
    {"com.google.chromedev", "com.google.Chrome"},
    {"chrome", "com.google.Chrome"},
    {"firefox", "org.mozilla.firefox"},
    {"firefox-esr", "org.mozilla.firefox"},
    {"firefox-beta", "org.mozilla.firefox"},
    {"firefox-nightly", "org.mozilla.firefox"},
    {"firefox-devedition", "org.mozilla.firefox"},
    {"firefox-developer-edition", "org.mozilla.firefox"},
    {"firefox-aurora", "org.mozilla.firefox"},
    {"firefox_firefox", "org.mozilla.firefox"},
    {"mozillafirefox", "org.mozilla.firefox"},
    {"org.mozilla.firefox", "org.mozilla.firefox"},
    {"microsoft-edge", "com.microsoft.edgemac"},
    {"microsoft-edge-stable", "com.microsoft.edgemac"},
    {"microsoft-edge-beta", "com.microsoft.edgemac"},
    {"microsoft-edge-dev", "com.microsoft.edgemac"},
    {"com.microsoft.edge", "com.microsoft.edgemac"},
    {"com.microsoft.edgemac", "com.microsoft.edgemac"},
    {"msedge", "com.microsoft.edgemac"},
    {"brave", "com.brave.Browser"},
    {"brave-browser", "com.brave.Browser"},
    {"brave-browser-stable", "com.brave.Browser"},
    {"brave-browser-beta", "com.brave.Browser"},
    {"brave-browser-nightly", "com.brave.Browser"},
    {"brave-browser_brave-browser", "com.brave.Browser"},
    {"brave_brave", "com.brave.Browser"},
    {"com.brave.browser", "com.brave.Browser"},
    {"opera", "com.operasoftware.Opera"},
    {"opera-stable", "com.operasoftware.Opera"},
    {"opera-beta", "com.operasoftware.Opera"},
    {"opera-developer", "com.operasoftware.Opera"},
    {"opera_opera", "com.operasoftware.Opera"},
    {"com.opera.opera", "com.operasoftware.Opera"},
    {"com.operasoftware.opera", "com.operasoftware.Opera"},
    {"vivaldi", "com.vivaldi.Vivaldi"},
    {"vivaldi-stable", "com.vivaldi.Vivaldi"},
    {"vivaldi-snapshot", "com.vivaldi.Vivaldi"},
    {"vivaldi-bin", "com.vivaldi.Vivaldi"},
    {"vivaldi_vivaldi-stable", "com.vivaldi.Vivaldi"},
    {"com.vivaldi.vivaldi", "com.vivaldi.Vivaldi"},
};

// From the most to the least telling: an entry takes the first of these that is among its categories.
// A null category ends the search: a web browser is for whatever site it shows.
constexpr NameMapping categoryNames[] = {
    {"WebBrowser", nullptr},
    {"Game", "public.app-category.games"},
    {"IDE", "public.app-category.developer-tools"},
    {"GUIDesigner", "public.app-category.developer-tools"},
    {"Debugger", "public.app-category.developer-tools"},
    {"RevisionControl", "public.app-category.developer-tools"},
    {"WebDevelopment", "public.app-category.developer-tools"},
    {"Profiling", "public.app-category.developer-tools"},
    {"TerminalEmulator", "public.app-category.developer-tools"},
    {"InstantMessaging", "public.app-category.communication"},
    {"Chat", "public.app-category.communication"},
    {"IRCClient", "public.app-category.communication"},
    {"VideoConference", "public.app-category.communication"},
    {"Telephony", "public.app-category.communication"},
    {"Email", "public.app-category.communication"},
    {"Photography", "public.app-category.photography"},
    {"VectorGraphics", "public.app-category.graphics-design"},
    {"RasterGraphics", "public.app-category.graphics-design"},
    {"2DGraphics", "public.app-category.graphics-design"},
    {"3DGraphics", "public.app-category.graphics-design"},
    {"Publishing", "public.app-category.graphics-design"},
    {"Music", "public.app-category.music"},
    {"Midi", "public.app-category.music"},
    {"Sequencer", "public.app-category.music"},
    {"TV", "public.app-category.video"},
    {"Video", "public.app-category.video"},
    {"AudioVideoEditing", "public.app-category.video"},
    {"Audio", "public.app-category.music"},
    {"Amusement", "public.app-category.entertainment"},
    {"AudioVideo", "public.app-category.entertainment"},
    {"News", "public.app-category.news"},
    {"Feed", "public.app-category.news"},
    {"Finance", "public.app-category.finance"},
    {"Calendar", "public.app-category.productivity"},
    {"ProjectManagement", "public.app-category.productivity"},
    {"WordProcessor", "public.app-category.productivity"},
    {"Spreadsheet", "public.app-category.productivity"},
    {"Presentation", "public.app-category.productivity"},
    {"Development", "public.app-category.developer-tools"},
    {"Office", "public.app-category.productivity"},
    {"Graphics", "public.app-category.graphics-design"},
    {"Education", "public.app-category.education"},
    {"Science", "public.app-category.education"},
    {"TextEditor", "public.app-category.productivity"},
    {"Settings", "public.app-category.system"},
    {"PackageManager", "public.app-category.system"},
    {"System", "public.app-category.system"},
    {"Utility", "public.app-category.utilities"},
};

} // namespace

QString bundleIdentifierForDesktopId(const QString& desktopId) {
    static const QHash<QString, QString> browsers = [] {
        QHash<QString, QString> result;
        for (const NameMapping& mapping : browserNames)
            result.insert(QString::fromLatin1(mapping.name), QString::fromLatin1(mapping.mapped));
        return result;
    }();
    return browsers.value(desktopId.toLower(), desktopId);
}

std::optional<QString> declaredCategoryForCategories(const QStringList& categories) {
    for (const NameMapping& mapping : categoryNames) {
        if (!categories.contains(QLatin1String(mapping.name)))
            continue;
        return mapping.mapped ? std::optional(QString::fromLatin1(mapping.mapped)) : std::nullopt;
    }
    return std::nullopt;
}

} // namespace norvin
