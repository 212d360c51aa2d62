#pragma once

#include "platform/Clock.h"
#include "platform/SleepMonitor.h"
#include "platform/Workspace.h"
#include "platform/linux/x11/X11Windows.h"

#include <QAbstractNativeEventFilter>
#include <QHash>

#include <memory>
#include <vector>

namespace norvin {

class ApplicationIdentity;

/// An X11 desktop, seen through its window manager's hints on Qt's own connection. Driven by events alone:
/// only changes of the root window, and the end of the window manager, wake the program. Unavailable with
/// "health_no_window_manager" as long as no window manager runs.
class X11Workspace final : public Workspace, private QAbstractNativeEventFilter {
    Q_OBJECT
public:
    /// Needs a QGuiApplication on the xcb platform; the collaborators must outlive the workspace.
    /// @param connection Qt's own
    X11Workspace(xcb_connection_t* connection, Clock& clock, SleepMonitor& sleep,
                 const ApplicationIdentity& identity, QObject* parent = nullptr);
    ~X11Workspace() override;

    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] std::optional<RunningApplication> frontmostApplication() const override;
    [[nodiscard]] std::optional<QString> frontmostWindowTitle() const override;
    [[nodiscard]] std::vector<RunningApplication> runningApplications() const override;
    /// Windows of the application that open within a second after the call are hidden as well.
    void hide(const RunningApplication& application) override;
    void activateOwnApplication() override;

private:
    struct Identified {
        RunningApplication application;
        bool isShellSurface = false;
    };
    struct Hiding {
        RunningApplication application;
        std::unique_ptr<ClockTimer> expiry;
    };

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;
    void updateAvailability();
    void updateFrontmost();
    void updateClientList();
    void bringToFront(xcb_window_t window, const RunningApplication& application);
    void startLosing();
    [[nodiscard]] bool isManaged(xcb_window_t window) const;
    void identify(const std::vector<xcb_window_t>& windows) const;
    void iconifyWindowsOf(const RunningApplication& application) const;
    void activateOwnWindows();

    X11Windows m_windows;
    Clock& m_clock;
    const ApplicationIdentity& m_identity;
    Availability m_availability;
    X11Windows::WindowManager m_windowManager;

    std::optional<RunningApplication> m_frontmost;
    xcb_window_t m_frontmostWindow = XCB_NONE;
    std::unique_ptr<ClockTimer> m_losing;
    // Emptied whenever a window opens or closes: the server gives the number of a closed window to new ones.
    mutable QHash<xcb_window_t, Identified> m_identified;
    std::vector<Hiding> m_hiding;
    // Own windows that are to get the keyboard as soon as the window manager knows them.
    std::vector<xcb_window_t> m_activating;
    std::unique_ptr<ClockTimer> m_activatingExpiry;
};

} // namespace norvin
