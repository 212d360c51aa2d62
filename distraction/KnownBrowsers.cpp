#include "distraction/KnownBrowsers.h"

namespace norvin {

const QSet<QString>& knownBrowserBundleIDs() {
    static const QSet<QString> identifiers{
        QStringLiteral("com.apple.Safari"),        QStringLiteral("com.google.Chrome"),
        QStringLiteral("org.mozilla.firefox"),     QStringLiteral("company.thebrowser.Browser"),
        QStringLiteral("com.microsoft.edgemac"),   QStringLiteral("com.brave.Browser"),
        QStringLiteral("com.operasoftware.Opera"), QStringLiteral("com.vivaldi.Vivaldi"),
    };
    return identifiers;
}

} // namespace norvin
