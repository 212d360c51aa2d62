#pragma once

#include "platform/AccessibilityElement.h"
#include "platform/AccessibilityTrust.h"
#include "platform/ApplicationCatalog.h"
#include "platform/AudioOutput.h"
#include "platform/Autostart.h"
#include "platform/BrowserAccess.h"
#include "platform/BrowserScripting.h"
#include "platform/Clock.h"
#include "platform/IdleTimeSource.h"
#include "platform/OverlaySupport.h"
#include "platform/Preferences.h"
#include "platform/SleepMonitor.h"
#include "platform/SoundStream.h"
#include "platform/StatusItem.h"
#include "platform/SystemSounds.h"
#include "platform/UpdateSource.h"
#include "platform/UserNotifications.h"
#include "platform/Workspace.h"

#include <memory>

namespace norvin {

/// This machine's capabilities, each by the first back end in a written order that can work here; where none
/// can, one that says why. Needs a QGuiApplication, which must outlive it; main thread only.
///
/// | capability | order |
/// |---|---|
/// | Workspace | X11 window manager; else none, with "health_wayland_workspace" or "health_no_display" |
/// | BrowserScripting, AccessibilityElements | extension in the browser; accessibility services |
/// | IdleTimeSource | X server; else none, with "health_wayland_idle" or "health_no_display" |
/// | OverlaySupport | X server; else none, with "health_wayland_overlay" or "health_no_display" |
/// | Autostart | background portal inside a Flatpak sandbox; else the autostart folder |
/// | UpdateSource | portal of Flatpak; PackageKit; else none, with "update_source_build" |
class LinuxPlatform final {
public:
    LinuxPlatform();
    ~LinuxPlatform();
    LinuxPlatform(const LinuxPlatform&) = delete;
    LinuxPlatform& operator=(const LinuxPlatform&) = delete;

    [[nodiscard]] AccessibilityTrust& accessibilityTrust() const;
    [[nodiscard]] AccessibilityElements& accessibility() const;
    [[nodiscard]] BrowserScripting& browserScripting() const;
    [[nodiscard]] BrowserAccess& browserAccess() const;
    /// Lets the extensions in browsers connect, until the platform ends. One process of the user's can do so.
    [[nodiscard]] Availability listenToExtensions() const;
    [[nodiscard]] Clock& clock() const;
    [[nodiscard]] Preferences& preferences() const;
    [[nodiscard]] ApplicationCatalog& applications() const;
    [[nodiscard]] SleepMonitor& sleepMonitor() const;
    [[nodiscard]] Workspace& workspace() const;
    [[nodiscard]] IdleTimeSource& idleTime() const;
    [[nodiscard]] OverlaySupport& overlays() const;
    [[nodiscard]] UserNotifications& notifications() const;
    [[nodiscard]] StatusItem& statusItem() const;
    [[nodiscard]] SystemSounds& sounds() const;
    /// Generated sound, at 44,100 frames a second.
    [[nodiscard]] AudioOutput& audioOutput() const;
    /// Continuous sound, at the same rate.
    [[nodiscard]] SoundStream& soundStream() const;
    /// Made when it is first asked for.
    [[nodiscard]] Autostart& autostart() const;
    /// Made when it is first asked for.
    [[nodiscard]] UpdateSource& updates() const;

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace norvin
