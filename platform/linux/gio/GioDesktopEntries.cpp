#include "platform/linux/gio/GioDesktopEntries.h"

#include "platform/Log.h"

// GIO has members of this name.
#undef signals
#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>
#include <unistd.h>

#include <memory>

namespace norvin {

namespace {

struct Unref {
    void operator()(void* object) const { g_object_unref(object); }
};

QString fromUtf8(const char* text) {
    return text ? QString::fromUtf8(text) : QString();
}

QStringList parseCommand(const char* commandLine) {
    QStringList words;
    char** arguments = nullptr;
    int count = 0;
    if (commandLine && g_shell_parse_argv(commandLine, &count, &arguments, nullptr)) {
        for (int i = 0; i < count; ++i)
            words.append(QString::fromLocal8Bit(arguments[i]));
        g_strfreev(arguments);
    }
    return words;
}

QString iconName(GAppInfo* info) {
    GIcon* icon = g_app_info_get_icon(info);
    if (!icon)
        return {};
    const std::unique_ptr<char, decltype(&g_free)> text(g_icon_to_string(icon), g_free);
    return fromUtf8(text.get());
}

DesktopEntry readEntry(GDesktopAppInfo* info) {
    GAppInfo* appInfo = G_APP_INFO(info);
    DesktopEntry entry;
    entry.id = fromUtf8(g_app_info_get_id(appInfo));
    if (entry.id.endsWith(QLatin1String(".desktop")))
        entry.id.chop(8);
    entry.name = fromUtf8(g_app_info_get_display_name(appInfo));
    entry.iconName = iconName(appInfo);
    entry.categories =
        fromUtf8(g_desktop_app_info_get_categories(info)).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    entry.windowClass = fromUtf8(g_desktop_app_info_get_startup_wm_class(info));
    entry.command = parseCommand(g_app_info_get_commandline(appInfo));
    entry.shown = g_app_info_should_show(appInfo);
    return entry;
}

} // namespace

struct GioDesktopEntries::Monitor {
    // The monitor speaks through the GLib main context, which Qt's event loop runs on Linux.
    GAppInfoMonitor* monitor = g_app_info_monitor_get();
    bool stale = true;
};

GioDesktopEntries::GioDesktopEntries()
    : m_monitor(std::make_unique<Monitor>()) {
    g_signal_connect(m_monitor->monitor, "changed", G_CALLBACK(+[](GAppInfoMonitor*, gpointer monitor) {
                         static_cast<Monitor*>(monitor)->stale = true;
                     }),
                     m_monitor.get());
}

GioDesktopEntries::~GioDesktopEntries() {
    g_signal_handlers_disconnect_by_data(m_monitor->monitor, m_monitor.get());
    g_object_unref(m_monitor->monitor);
}

const std::vector<DesktopEntry>& GioDesktopEntries::entries() const {
    if (!m_monitor->stale)
        return m_entries;
    m_monitor->stale = false;
    ++m_generation;
    m_entries.clear();
    GList* infos = g_app_info_get_all();
    for (GList* it = infos; it; it = it->next) {
        if (G_IS_DESKTOP_APP_INFO(it->data))
            m_entries.push_back(readEntry(G_DESKTOP_APP_INFO(it->data)));
    }
    g_list_free_full(infos, g_object_unref);
    return m_entries;
}

quint64 GioDesktopEntries::generation() const {
    static_cast<void>(entries());
    return m_generation;
}

bool GioDesktopEntries::launch(const QString& desktopId) {
    const QByteArray id = desktopId.toUtf8() + ".desktop";
    const std::unique_ptr<GDesktopAppInfo, Unref> info(g_desktop_app_info_new(id.constData()));
    if (!info)
        return false;
    constexpr auto flags = static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_STDOUT_TO_DEV_NULL |
                                                    G_SPAWN_STDERR_TO_DEV_NULL);
    GError* error = nullptr;
    const bool isLaunched = g_desktop_app_info_launch_uris_as_manager(
        info.get(), nullptr, nullptr, flags, [](gpointer) { static_cast<void>(::setsid()); }, nullptr,
        nullptr, nullptr, &error);
    const std::unique_ptr<GError, decltype(&g_error_free)> owned(error, g_error_free);
    if (error)
        logLine(QStringLiteral("GioDesktopEntries: %1").arg(fromUtf8(error->message)));
    return isLaunched;
}

} // namespace norvin
