#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace norvin {

/// A browser that the extension is made for.
enum class ExtensionBrowser { firefox, chromium, chrome, edge, brave, vivaldi, opera };

/// All of them, in the order of the enumeration.
[[nodiscard]] const QList<ExtensionBrowser>& extensionBrowsers();

/// The directories that the installer works in, absolute.
struct ExtensionPlaces {
    /// The user's home.
    QString home;
    /// Configuration of the user's programs ("~/.config").
    QString configHome;
    /// Where this program may keep its copies of the extension ("~/.local/share/norvin-focus/extension");
    /// everything in it is the installer's.
    QString packages;
    /// The native host.
    QString hostProgram;
    /// Where Firefox builds of distributions look for an administrator's extensions.
    QList<QString> firefoxSystem;

    /// Those of this user; HOME, XDG_CONFIG_HOME and XDG_DATA_HOME are honoured. The native host is looked
    /// for beside the program and where it is installed; hostProgram is empty where it is not there.
    [[nodiscard]] static ExtensionPlaces standard();
};

/// Puts the extension and its native host into a user's browsers, and takes them out again. Only to be called
/// at the user's explicit wish. Writes nothing but what remove() removes, and replaces no file of the native
/// host's name that names another program than ours. Browsers from Flatpak and Snap keep their configuration
/// elsewhere, and are not served. Main thread only.
class ExtensionInstaller final {
public:
    explicit ExtensionInstaller(ExtensionPlaces places = ExtensionPlaces::standard());

    enum class State {
        activeAfterRestart, ///< works once the browser was started anew
        needsStep,          ///< the user has to do what the sentence says
        removed,            ///< nothing of it is left
        failed,             ///< nothing has changed but what the sentence says
    };
    struct Result {
        State state = State::failed;
        /// Localisation key of a sentence for the user; "%1" in it stands for `detail`.
        QString sentenceKey;
        /// The file or directory that the sentence is about, or what the system said.
        QString detail;
        /// Page of the browser that the user has to open, to type in or to paste; empty where there is none.
        QString address;
    };

    /// | browser | result |
    /// |---|---|
    /// | Chromium | activeAfterRestart, "extension_restart_browser" |
    /// | its relatives | needsStep, "extension_load_unpacked": load the directory `detail` on the page
    /// `address` | | Firefox | needsStep, "extension_firefox_system": an administrator copies `detail` to a
    /// system directory, since Firefox takes unsigned extensions from there only; activeAfterRestart where
    /// that was done |
    ///
    /// failed with "extension_host_missing", "extension_foreign_file" or "extension_not_written".
    [[nodiscard]] Result install(ExtensionBrowser browser);

    /// Undoes install(); an extension that was loaded by hand stays in its browser, silent.
    /// @return removed, with "extension_removed", also where nothing was there; or failed, with
    ///         "extension_not_removed"
    [[nodiscard]] Result remove(ExtensionBrowser browser);

    /// Whether install() was called for that browser, and remove() not since.
    [[nodiscard]] bool isInstalled(ExtensionBrowser browser) const;

    /// Whether the user has ever started that browser.
    [[nodiscard]] bool isBrowserPresent(ExtensionBrowser browser) const;

private:
    [[nodiscard]] QString hostManifest(ExtensionBrowser browser) const;
    [[nodiscard]] QString externalExtensions() const;
    [[nodiscard]] std::optional<Result> writeHostManifest(ExtensionBrowser browser,
                                                          const QString& packageId) const;
    [[nodiscard]] Result installForFirefox() const;
    [[nodiscard]] Result installForChromium() const;
    [[nodiscard]] Result installUnpacked(ExtensionBrowser browser) const;
    [[nodiscard]] bool removeChromiumPackages() const;

    ExtensionPlaces m_places;
};

} // namespace norvin
