#pragma once

#include "platform/Availability.h"

#include <QList>
#include <QObject>
#include <QString>

#include <optional>

namespace norvin {

/// Whether the pages of the browsers that run here can be told apart, and what opens the ways to them.
/// Nothing is opened but by the set and install functions, which are for the user's own decision, as is
/// restart(). Main thread only.
class BrowserAccess : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    struct Browser {
        QString bundleIdentifier;
        QString name;
        /// Whether its pages can be read now; available too where nothing speaks against it yet.
        Availability pages = Availability::available();
        /// Whether its pages come through the extension.
        bool isByExtension = false;

        bool operator==(const Browser&) const = default;
    };
    /// The known browsers that have windows now, by name. May wait 300 ms for each that is new.
    [[nodiscard]] virtual QList<Browser> runningBrowsers() = 0;

    /// Whether the desktop lets programs read one another's windows: "health_accessibility_off" where it does
    /// not, "health_accessibility_missing" where it has no such service.
    [[nodiscard]] virtual Availability accessibility() const = 0;
    /// Asks the desktop to turn this on or off for all programs, lastingly. changed() follows; a desktop that
    /// does not do it is logged.
    virtual void setAccessibilityEnabled(bool isEnabled) = 0;

    /// What the user has to do next, or why nothing came of it.
    struct ExtensionStep {
        bool isDone = false;
        /// Localisation key of a sentence.
        QString textKey;
        /// A file or address that the sentence speaks of; may be empty.
        QString detail;
    };
    /// Whether this program knows how to put its extension into that browser.
    [[nodiscard]] virtual bool canInstallExtension(const QString& bundleIdentifier) const = 0;
    /// Whether it has done so.
    [[nodiscard]] virtual bool isExtensionInstalled(const QString& bundleIdentifier) const = 0;
    [[nodiscard]] virtual ExtensionStep installExtension(const QString& bundleIdentifier) = 0;
    /// Takes back what installExtension() has written, and nothing else.
    [[nodiscard]] virtual ExtensionStep removeExtension(const QString& bundleIdentifier) = 0;

    /// Asks that browser to end as a logout would, and opens it again the way it was started, without the
    /// pages it was given then. Returns at once; restartEnded() follows. A browser that has not ended after
    /// 20 s is left as it is.
    virtual void restart(const QString& bundleIdentifier) = 0;

Q_SIGNALS:
    void changed();
    /// What came of restart(), after changed(). @param textKey localisation key of why it was not opened
    /// again
    /// (%1 stands for the browser); empty where it was
    void restartEnded(const QString& bundleIdentifier, const QString& textKey);
};

} // namespace norvin
