#include "distraction/UsageCategory.h"

#include "distraction/KnownBrowsers.h"

#include <QHash>

#include <array>
#include <initializer_list>

namespace norvin {

namespace {

constexpr auto productivity = QLatin1String("category_productivity");
constexpr auto development = QLatin1String("category_development");
constexpr auto communication = QLatin1String("category_communication");
constexpr auto social = QLatin1String("category_social");
constexpr auto entertainment = QLatin1String("category_entertainment");
constexpr auto design = QLatin1String("category_design");
constexpr auto systemTools = QLatin1String("category_system");
constexpr auto navigation = QLatin1String("category_navigation");
constexpr auto other = QLatin1String("category_other");

struct Guess {
    QLatin1String category;
    std::initializer_list<QLatin1String> keywords;
};

// Order matters twice: an identifier with words of two categories belongs to the first one, and the loose
// substring test is wanted.
const std::array<Guess, 6>& guesses() {
    using L = QLatin1String;
    static const std::array<Guess, 6> table{{
        {development,
         {L("vscode"),   L("xcode"),       L("jetbrains"), L("intellij"),  L("pycharm"),    L("webstorm"),
          L("phpstorm"), L("goland"),      L("rubymine"),  L("android"),   L("terminal"),   L("iterm"),
          L("sublime"),  L("sublimetext"), L("github"),    L("gitkraken"), L("sourcetree"), L("tower"),
          L("fork"),     L("docker"),      L("postman"),   L("insomnia"),  L("cursor"),     L("zed"),
          L("warp"),     L("nova"),        L("fleet"),     L("dataspell"), L("tableplus"),  L("sequel")}},
        {communication,
         {L("slack"), L("discord"), L("teams"), L("zoom"), L("whatsapp"), L("telegram"), L("signal"),
          L("skype"), L("messenger"), L("webex"), L("mattermost"), L("rocketchat"), L("facetime")}},
        {social,
         {L("twitter"), L("tweetbot"), L("facebook"), L("instagram"), L("reddit"), L("tiktok"), L("mastodon"),
          L("linkedin"), L("threads"), L("bluesky")}},
        {entertainment,
         {L("spotify"), L("music"), L("netflix"), L("vlc"), L("youtube"), L("twitch"), L("steam"), L("plex"),
          L("infuse"), L("podcast"), L("soundcloud"), L("deezer"), L("iina"), L("game")}},
        {design,
         {L("figma"), L("sketch"), L("photoshop"), L("illustrator"), L("affinity"), L("pixelmator"),
          L("lightroom"), L("indesign"), L("blender"), L("canva"), L("framer")}},
        {productivity,
         {L("notion"),      L("obsidian"),   L("things"),  L("todoist"),   L("office"),   L("word"),
          L("excel"),       L("powerpoint"), L("onenote"), L("outlook"),   L("evernote"), L("bear"),
          L("craft"),       L("linear"),     L("asana"),   L("trello"),    L("clickup"),  L("airtable"),
          L("fantastical"), L("spark"),      L("readdle"), L("1password"), L("raycast"),  L("alfred")}},
    }};
    return table;
}

// Identifiers known by name. Each has the category that its name's words stand for, also where the identifier
// itself holds none of them.
const QHash<QString, QLatin1String>& exactIdentifiers() {
    static const QHash<QString, QLatin1String> table{
        {QStringLiteral("com.apple.MobileSMS"), communication},
        {QStringLiteral("com.apple.Photos"), design},
        {QStringLiteral("com.spotify.client"), entertainment},
        {QStringLiteral("com.tinyspeck.slackmacgap"), communication},
        {QStringLiteral("org.telegram.desktop"), communication},
        {QStringLiteral("com.microsoft.teams"), communication},
        {QStringLiteral("com.microsoft.VSCode"), development},
        {QStringLiteral("com.apple.dt.Xcode"), development},
        {QStringLiteral("com.apple.Terminal"), development},
        {QStringLiteral("com.googlecode.iterm2"), development},
        {QStringLiteral("com.apple.Numbers"), productivity},
        {QStringLiteral("com.apple.Keynote"), productivity},
        {QStringLiteral("com.flexibits.fantastical2.mac"), productivity},
        {QStringLiteral("com.jetbrains.intellij"), development},
        {QStringLiteral("com.twitter.twitter-mac"), social},
        {QStringLiteral("com.facebook.archon"), social},
    };
    return table;
}

} // namespace

QString mapSystemCategory(const QString& declaredCategory) {
    static const QHash<QString, QLatin1String> table{
        {QStringLiteral("public.app-category.productivity"), productivity},
        {QStringLiteral("public.app-category.business"), productivity},
        {QStringLiteral("public.app-category.developer-tools"), development},
        {QStringLiteral("public.app-category.communication"), communication},
        {QStringLiteral("public.app-category.social-networking"), communication},
        {QStringLiteral("public.app-category.music"), entertainment},
        {QStringLiteral("public.app-category.entertainment"), entertainment},
        {QStringLiteral("public.app-category.video"), entertainment},
        {QStringLiteral("public.app-category.games"), entertainment},
        {QStringLiteral("public.app-category.utilities"), systemTools},
        {QStringLiteral("public.app-category.system"), systemTools},
        {QStringLiteral("public.app-category.graphics-design"), design},
        {QStringLiteral("public.app-category.photography"), design},
    };
    return table.value(declaredCategory, other);
}

std::optional<QString> guessCategoryFromBundleID(const QString& bundleID) {
    const QString lowered = bundleID.toLower();
    for (const Guess& guess : guesses()) {
        for (const QLatin1String keyword : guess.keywords) {
            if (lowered.contains(keyword))
                return guess.category;
        }
    }
    return std::nullopt;
}

QString resolveCategory(const QString& bundleID, const std::optional<QString>& declaredCategory) {
    const auto exact = exactIdentifiers().constFind(bundleID);
    if (exact != exactIdentifiers().cend())
        return *exact;
    if (knownBrowserBundleIDs().contains(bundleID))
        return navigation;
    if (declaredCategory)
        return mapSystemCategory(*declaredCategory);
    return guessCategoryFromBundleID(bundleID).value_or(other);
}

} // namespace norvin
