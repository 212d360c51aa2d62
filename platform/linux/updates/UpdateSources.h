#pragma once

#include "platform/UpdateSource.h"

#include <QDBusConnection>
#include <QString>

#include <memory>

namespace norvin {

class Clock;

/// What tells how this program was installed.
struct UpdatePlaces {
    /// There inside a Flatpak sandbox only.
    QString flatpakInfo = QStringLiteral("/.flatpak-info");
    /// Where dpkg keeps the list of files of each package.
    QString dpkgInfo = QStringLiteral("/var/lib/dpkg/info");
    /// The program's own binary, absolute.
    QString program;
};

/// The name of the package that this program comes in.
inline constexpr auto ownPackageName = "norvin-focus";

/// The first source of this order that can know the program: the portal of Flatpak inside its sandbox;
/// PackageKit where the binary belongs to a package; else none, with "update_source_build".
/// @param clock must outlive the source
[[nodiscard]] std::unique_ptr<UpdateSource> makeUpdateSource(const UpdatePlaces& places,
                                                             const QDBusConnection& sessionBus,
                                                             const QDBusConnection& systemBus, Clock& clock);

} // namespace norvin
