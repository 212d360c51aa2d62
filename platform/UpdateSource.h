#pragma once

#include "platform/Availability.h"

#include <QObject>
#include <QString>

namespace norvin {

/// What a look for a newer version of this program found.
struct UpdateResult {
    enum class Outcome {
        upToDate,
        /// Nobody has announced one, which is all that is known here.
        noneAnnounced,
        available,
        /// One is in place already, and is used from the next start on.
        installed,
        failed
    };

    Outcome outcome = Outcome::failed;
    /// Of the newer version; empty where it is not known.
    QString version;
    /// Why the look failed, as the localisation key of a sentence; empty unless it did.
    QString reasonKey;
    /// Technical detail of a failure in no particular language; may be empty.
    QString detail;

    bool operator==(const UpdateResult&) const = default;
};

/// Where updates of this program come from: the desktop's own software service, which alone downloads and
/// installs. Main thread only; nothing waits.
class UpdateSource : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Whether there is a software service that knows this program; the first answer may come a moment after
    /// the start.
    [[nodiscard]] virtual Availability availability() const = 0;

    /// Whether checkForUpdates() would begin a look: false without a service and while a look runs.
    [[nodiscard]] virtual bool canCheckForUpdates() const = 0;

    /// Looks for a newer version; ends with checked(). Does nothing while canCheckForUpdates() is false.
    virtual void checkForUpdates() = 0;

    /// Whether the desktop has a program that shows this one with its updates.
    [[nodiscard]] virtual bool canOpenSoftwareCentre() const = 0;
    /// Opens it; does nothing where there is none.
    virtual void openSoftwareCentre() = 0;

Q_SIGNALS:
    /// availability() or canCheckForUpdates() changed.
    void changed();
    /// The end of a look, or later word of a service that keeps looking by itself.
    void checked(const norvin::UpdateResult& result);
};

} // namespace norvin
