#include "platform/linux/updates/UpdateSources.h"

#include "platform/linux/updates/FlatpakUpdateSource.h"
#include "platform/linux/updates/NullUpdateSource.h"
#include "platform/linux/updates/PackageKitUpdateSource.h"

#include <QFile>

namespace norvin {

namespace {

// dpkg's own list says it without starting dpkg, which would take longer than the window does.
bool belongsToPackage(const UpdatePlaces& places) {
    QFile list(places.dpkgInfo + u'/' + QLatin1String(ownPackageName) + QStringLiteral(".list"));
    if (!list.open(QIODevice::ReadOnly))
        return false;
    return list.readAll().split('\n').contains(QFile::encodeName(places.program));
}

} // namespace

std::unique_ptr<UpdateSource> makeUpdateSource(const UpdatePlaces& places, const QDBusConnection& sessionBus,
                                               const QDBusConnection& systemBus, Clock& clock) {
    if (QFile::exists(places.flatpakInfo))
        return std::make_unique<FlatpakUpdateSource>(sessionBus, clock);
    if (belongsToPackage(places))
        return std::make_unique<PackageKitUpdateSource>(systemBus, QLatin1String(ownPackageName), clock);
    return std::make_unique<NullUpdateSource>(
        Availability::unavailable(QStringLiteral("update_source_build"), places.program));
}

} // namespace norvin
