#include "platform/linux/LinuxPlatform.h"

#include "platform/linux/NullIdleTimeSource.h"
#include "platform/linux/NullOverlaySupport.h"
#include "platform/linux/NullWorkspace.h"
#include "platform/linux/SessionBus.h"
#include "platform/linux/atspi/AtspiBrowsers.h"
#include "platform/linux/atspi/AtspiTrust.h"
#include "platform/linux/autostart/PortalAutostart.h"
#include "platform/linux/autostart/XdgAutostart.h"
#include "platform/linux/browsers/AtspiRoute.h"
#include "platform/linux/browsers/BrowserRestarter.h"
#include "platform/linux/browsers/BrowserRoutes.h"
#include "platform/linux/browsers/ExtensionRoute.h"
#include "platform/linux/browsers/LinuxBrowserAccess.h"
#include "platform/linux/canberra/CanberraSounds.h"
#include "platform/linux/clock/SystemClock.h"
#include "platform/linux/freedesktop/FreedesktopNotifications.h"
#include "platform/linux/gio/GioApplicationCatalog.h"
#include "platform/linux/gio/GioDesktopEntries.h"
#include "platform/linux/identity/ApplicationIdentity.h"
#include "platform/linux/login1/Login1SleepMonitor.h"
#include "platform/linux/pulse/PulseAudioOutput.h"
#include "platform/linux/pulse/PulseSoundStream.h"
#include "platform/linux/settings/IniPreferences.h"
#include "platform/linux/statusnotifier/StatusNotifierItem.h"
#include "platform/linux/updates/UpdateSources.h"
#include "platform/linux/webextension/ExtensionServer.h"
#include "platform/linux/x11/X11IdleTimeSource.h"
#include "platform/linux/x11/X11OverlaySupport.h"
#include "platform/linux/x11/X11Workspace.h"
#include "platform/linux/x11/XcbSupport.h"

#include <QFile>
#include <QGuiApplication>

#include <cstring>

namespace norvin {

namespace {

// The X server that a Wayland compositor runs for old programs sees those alone.
bool isXwayland(xcb_connection_t* connection) {
    constexpr const char* name = "XWAYLAND";
    const XcbReply<xcb_query_extension_reply_t> reply(xcb_query_extension_reply(
        connection, xcb_query_extension(connection, static_cast<uint16_t>(std::strlen(name)), name),
        nullptr));
    // Servers older than the extension are told by the session.
    return (reply && reply->present) || qgetenv("XDG_SESSION_TYPE") == "wayland";
}

constexpr int audioSampleRate = 44100;

enum class Display { X11, Wayland, None };

struct DisplayServer {
    Display kind = Display::None;
    xcb_connection_t* connection = nullptr;
};

DisplayServer findDisplay() {
    // The interface is there on every platform, the connection only on X11.
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 && x11->connection()) {
        if (!isXwayland(x11->connection()))
            return {Display::X11, x11->connection()};
        return {Display::Wayland, nullptr};
    }
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        return {Display::Wayland, nullptr};
    return {};
}

} // namespace

struct LinuxPlatform::Parts {
    // In the order of what leans on what; taken down from the last to the first.
    SystemClock clock;
    IniPreferences preferences;
    GioDesktopEntries entries;
    ApplicationIdentity identity{entries};
    GioApplicationCatalog applications{entries, QCoreApplication::applicationFilePath()};
    Login1SleepMonitor sleepMonitor{QDBusConnection::systemBus()};
    FreedesktopNotifications notifications{sessionBus()};
    StatusNotifierItem statusItem{sessionBus()};
    CanberraSounds sounds;
    PulseAudioOutput audioOutput{clock, audioSampleRate};
    PulseSoundStream soundStream{clock, audioSampleRate};
    AtspiTrust accessibilityTrust{sessionBus()};
    AtspiBrowsers accessibleBrowsers{sessionBus(), clock};
    ExtensionServer extensions{clock};
    ExtensionRoute extensionRoute{extensions};
    AtspiRoute accessibilityRoute{accessibleBrowsers};
    BrowserRestarter browserRestarter{clock, entries, &GioDesktopEntries::launch};
    std::unique_ptr<Workspace> workspace;
    std::unique_ptr<BrowserRoutes> browserRoutes;
    std::unique_ptr<BrowserAccess> browserAccess;
    std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t*)> idleConnection{nullptr, &xcb_disconnect};
    std::unique_ptr<IdleTimeSource> idleTime;
    std::unique_ptr<OverlaySupport> overlays;
    std::unique_ptr<Autostart> autostart;
    std::unique_ptr<UpdateSource> updates;
    std::unique_ptr<ClockTimer> laterProbe;

    Parts() {
        // Not at once: the first frame needs the processor more.
        laterProbe = clock.after(std::chrono::milliseconds(400), [this] {
            sounds.probe();
            audioOutput.probe();
            statusItem.probe();
        });
        lookAtDisplay();
        browserRoutes = std::make_unique<BrowserRoutes>(
            *workspace, QList<BrowserRoute*>{&extensionRoute, &accessibilityRoute});
        browserAccess = std::make_unique<LinuxBrowserAccess>(*workspace, *browserRoutes, accessibleBrowsers,
                                                             extensions, browserRestarter, clock);
    }

    void lookAtDisplay() {
        const DisplayServer display = findDisplay();
        if (display.kind == Display::X11) {
            workspace = std::make_unique<X11Workspace>(display.connection, clock, sleepMonitor, identity);
            // Asked once a second: an answer on Qt's connection would wake its event thread besides the
            // asker.
            idleConnection.reset(xcb_connect(nullptr, nullptr));
            idleTime = std::make_unique<X11IdleTimeSource>(idleConnection.get());
            overlays = std::make_unique<X11OverlaySupport>(display.connection);
            return;
        }
        const bool wayland = display.kind == Display::Wayland;
        workspace = std::make_unique<NullWorkspace>(
            Availability::unavailable(wayland ? QStringLiteral("health_wayland_workspace")
                                              : QStringLiteral("health_no_display"),
                                      QGuiApplication::platformName()),
            sleepMonitor);
        idleTime = std::make_unique<NullIdleTimeSource>(Availability::unavailable(
            wayland ? QStringLiteral("health_wayland_idle") : QStringLiteral("health_no_display"),
            QGuiApplication::platformName()));
        overlays = std::make_unique<NullOverlaySupport>(Availability::unavailable(
            wayland ? QStringLiteral("health_wayland_overlay") : QStringLiteral("health_no_display"),
            QGuiApplication::platformName()));
    }
};

LinuxPlatform::LinuxPlatform()
    : m_parts(std::make_unique<Parts>()) {}

LinuxPlatform::~LinuxPlatform() = default;

AccessibilityTrust& LinuxPlatform::accessibilityTrust() const {
    return m_parts->accessibilityTrust;
}

AccessibilityElements& LinuxPlatform::accessibility() const {
    return *m_parts->browserRoutes;
}

BrowserScripting& LinuxPlatform::browserScripting() const {
    return *m_parts->browserRoutes;
}

BrowserAccess& LinuxPlatform::browserAccess() const {
    return *m_parts->browserAccess;
}

Availability LinuxPlatform::listenToExtensions() const {
    return m_parts->extensions.listen();
}

Clock& LinuxPlatform::clock() const {
    return m_parts->clock;
}

Preferences& LinuxPlatform::preferences() const {
    return m_parts->preferences;
}

ApplicationCatalog& LinuxPlatform::applications() const {
    return m_parts->applications;
}

SleepMonitor& LinuxPlatform::sleepMonitor() const {
    return m_parts->sleepMonitor;
}

Workspace& LinuxPlatform::workspace() const {
    return *m_parts->workspace;
}

IdleTimeSource& LinuxPlatform::idleTime() const {
    return *m_parts->idleTime;
}

OverlaySupport& LinuxPlatform::overlays() const {
    return *m_parts->overlays;
}

UserNotifications& LinuxPlatform::notifications() const {
    return m_parts->notifications;
}

StatusItem& LinuxPlatform::statusItem() const {
    return m_parts->statusItem;
}

SystemSounds& LinuxPlatform::sounds() const {
    return m_parts->sounds;
}

AudioOutput& LinuxPlatform::audioOutput() const {
    return m_parts->audioOutput;
}

SoundStream& LinuxPlatform::soundStream() const {
    return m_parts->soundStream;
}

Autostart& LinuxPlatform::autostart() const {
    if (!m_parts->autostart) {
        if (QFile::exists(UpdatePlaces().flatpakInfo))
            m_parts->autostart = std::make_unique<PortalAutostart>(sessionBus(), m_parts->preferences);
        else
            m_parts->autostart = std::make_unique<XdgAutostart>(XdgAutostart::ownPlaces());
    }
    return *m_parts->autostart;
}

UpdateSource& LinuxPlatform::updates() const {
    if (!m_parts->updates) {
        UpdatePlaces places;
        places.program = QCoreApplication::applicationFilePath();
        m_parts->updates =
            makeUpdateSource(places, sessionBus(), QDBusConnection::systemBus(), m_parts->clock);
    }
    return *m_parts->updates;
}

} // namespace norvin
