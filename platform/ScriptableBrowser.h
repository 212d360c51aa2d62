#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace norvin {

/// A browser that answers scripts.
struct ScriptableBrowser {
    QString bundleIdentifier;
    /// Name by which scripts address it.
    QString applicationName;
    /// What scripts call the tab in front.
    QString tabPhrase;

    /// Script that gives the address of the page in front.
    [[nodiscard]] QString readScript() const;
    /// Script that closes the tab in front.
    [[nodiscard]] QString closeScript() const;
};

/// All of them, in a fixed order.
[[nodiscard]] const QList<ScriptableBrowser>& scriptableBrowsers();

/// The entry of exactly that bundle identifier; none for browsers that have no scripts.
[[nodiscard]] std::optional<ScriptableBrowser> scriptableBrowser(const QString& bundleIdentifier);

} // namespace norvin
