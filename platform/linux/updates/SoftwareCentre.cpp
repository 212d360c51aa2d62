#include "platform/linux/updates/SoftwareCentre.h"

#include "platform/ApplicationCatalog.h"
#include "platform/Log.h"

#include <memory>

#undef signals
#include <gio/gio.h>

namespace norvin {

bool hasSoftwareCentre() {
    const std::unique_ptr<GAppInfo, decltype(&g_object_unref)> handler(
        g_app_info_get_default_for_uri_scheme("appstream"), &g_object_unref);
    return handler != nullptr;
}

void openSoftwareCentre() {
    const QByteArray address = QByteArray("appstream://") + ownBundleIdentifier;
    GError* error = nullptr;
    if (g_app_info_launch_default_for_uri(address.constData(), nullptr, &error))
        return;
    const std::unique_ptr<GError, decltype(&g_error_free)> owned(error, &g_error_free);
    logLine(QStringLiteral("SoftwareCentre: ") + QString::fromUtf8(error->message));
}

} // namespace norvin
