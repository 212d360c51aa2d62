#include "platform/linux/x11/X11Workspace.h"

#include "platform/ApplicationCatalog.h"
#include "platform/linux/OwnWindows.h"
#include "platform/linux/identity/ApplicationIdentity.h"

#include <QCoreApplication>
#include <QWindow>

#include <algorithm>

namespace norvin {

using namespace std::chrono_literals;

namespace {

// Window managers take the keyboard from everyone for a moment while it passes from window to window.
constexpr auto emptyFrontTolerance = 250ms;
// An application that is being hidden may be about to open its next window.
constexpr auto hidingLasts = 1000ms;
constexpr auto activationLasts = 2000ms;

bool isSameApplication(const RunningApplication& a, const RunningApplication& b) {
    if (!a.bundleIdentifier.isEmpty() || !b.bundleIdentifier.isEmpty())
        return a.bundleIdentifier == b.bundleIdentifier;
    return a.processId == b.processId && a.processId != 0;
}

RunningApplication ownApplication() {
    RunningApplication application;
    application.bundleIdentifier = QString::fromLatin1(ownBundleIdentifier);
    application.localizedName = QStringLiteral("Norvin Focus");
    application.iconName = application.bundleIdentifier;
    application.declaredCategory = QStringLiteral("public.app-category.productivity");
    application.processId = QCoreApplication::applicationPid();
    return application;
}

} // namespace

X11Workspace::X11Workspace(xcb_connection_t* connection, Clock& clock, SleepMonitor& sleep,
                           const ApplicationIdentity& identity, QObject* parent)
    : Workspace(parent)
    , m_windows(connection)
    , m_clock(clock)
    , m_identity(identity)
    , m_availability(Availability::unavailable(QStringLiteral("health_no_window_manager"))) {
    connect(&sleep, &SleepMonitor::willSleep, this, &Workspace::willSleep);
    connect(&sleep, &SleepMonitor::didWake, this, &Workspace::didWake);
    m_windows.watchRoot();
    QCoreApplication::instance()->installNativeEventFilter(this);
    updateAvailability();
}

X11Workspace::~X11Workspace() {
    QCoreApplication::instance()->removeNativeEventFilter(this);
}

bool X11Workspace::nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) {
    Q_UNUSED(result)
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    const int type = event->response_type & 0x7f;
    if (type == XCB_PROPERTY_NOTIFY) {
        const auto* notify = reinterpret_cast<const xcb_property_notify_event_t*>(event);
        if (notify->window == m_windowManager.window && !m_windowManager.isRunning &&
            notify->atom == m_windows.windowManagerAtom())
            updateAvailability();
        if (notify->window != m_windows.root())
            return false;
        if (notify->atom == m_windows.activeWindowAtom())
            updateFrontmost();
        else if (notify->atom == m_windows.clientListAtom())
            updateClientList();
        else if (notify->atom == m_windows.windowManagerAtom())
            updateAvailability();
    } else if (type == XCB_DESTROY_NOTIFY) {
        const auto* notify = reinterpret_cast<const xcb_destroy_notify_event_t*>(event);
        if (notify->window == m_windowManager.window)
            updateAvailability();
    }
    return false;
}

void X11Workspace::updateAvailability() {
    m_windowManager = m_windows.windowManager();
    const Availability availability =
        m_windowManager.isRunning ? Availability::available()
                                  : Availability::unavailable(QStringLiteral("health_no_window_manager"));
    if (availability != m_availability) {
        m_availability = availability;
        Q_EMIT availabilityChanged();
    }
    if (m_availability.isAvailable()) {
        updateFrontmost();
        return;
    }
    m_identified.clear();
    m_hiding.clear();
    m_losing.reset();
    m_frontmostWindow = XCB_NONE;
    if (m_frontmost) {
        m_frontmost.reset();
        Q_EMIT frontmostApplicationLost();
    }
}

void X11Workspace::updateFrontmost() {
    if (!m_availability.isAvailable())
        return;
    const xcb_window_t window = m_windows.activeWindow();
    if (window == XCB_NONE || window == m_windows.root()) {
        startLosing();
        return;
    }
    if (m_windows.isOwn(window)) {
        bringToFront(window, ownApplication());
        return;
    }
    identify({window});
    const auto identified = m_identified.constFind(window);
    if (identified == m_identified.constEnd() || identified->isShellSurface)
        startLosing();
    else
        bringToFront(window, RunningApplication(identified->application));
}

void X11Workspace::bringToFront(xcb_window_t window, const RunningApplication& application) {
    m_losing.reset();
    m_frontmostWindow = window;
    const bool same = m_frontmost && isSameApplication(*m_frontmost, application);
    m_frontmost = application;
    if (!same)
        Q_EMIT applicationActivated(application);
}

void X11Workspace::startLosing() {
    m_frontmostWindow = XCB_NONE;
    if (!m_frontmost || m_losing)
        return;
    m_losing = m_clock.after(emptyFrontTolerance, [this] {
        m_losing.reset();
        // A window may have become active before the window manager listed it.
        if (isManaged(m_windows.activeWindow())) {
            updateFrontmost();
            if (m_frontmostWindow != XCB_NONE)
                return;
        }
        m_losing.reset();
        m_frontmost.reset();
        Q_EMIT frontmostApplicationLost();
    });
}

bool X11Workspace::isManaged(xcb_window_t window) const {
    const std::vector<xcb_window_t> managed = m_windows.clientList();
    return std::find(managed.begin(), managed.end(), window) != managed.end();
}

void X11Workspace::updateClientList() {
    m_identified.clear();
    if (!m_availability.isAvailable())
        return;
    // Some window managers go on naming the last window active after it was closed.
    if (m_frontmostWindow != XCB_NONE && !isManaged(m_frontmostWindow))
        startLosing();
    for (const Hiding& hiding : m_hiding)
        iconifyWindowsOf(hiding.application);
    activateOwnWindows();
}

std::optional<RunningApplication> X11Workspace::frontmostApplication() const {
    return m_frontmost;
}

std::optional<QString> X11Workspace::frontmostWindowTitle() const {
    if (m_frontmostWindow == XCB_NONE)
        return std::nullopt;
    return m_windows.title(m_frontmostWindow);
}

void X11Workspace::identify(const std::vector<xcb_window_t>& windows) const {
    std::vector<xcb_window_t> unknown;
    for (const xcb_window_t window : windows) {
        if (!m_identified.contains(window) && !m_windows.isOwn(window))
            unknown.push_back(window);
    }
    const std::vector<X11Windows::Description> descriptions = m_windows.describe(unknown);
    for (size_t i = 0; i < unknown.size(); ++i) {
        if (!descriptions[i].isGone)
            m_identified.insert(unknown[i],
                                {m_identity.identify(descriptions[i].clues), descriptions[i].isShellSurface});
    }
}

std::vector<RunningApplication> X11Workspace::runningApplications() const {
    std::vector<RunningApplication> result;
    if (!m_availability.isAvailable())
        return result;
    const std::vector<xcb_window_t> windows = m_windows.clientList();
    identify(windows);
    for (const xcb_window_t window : windows) {
        RunningApplication application;
        if (m_windows.isOwn(window)) {
            application = ownApplication();
        } else {
            const auto identified = m_identified.constFind(window);
            if (identified == m_identified.constEnd() || identified->isShellSurface)
                continue;
            application = identified->application;
        }
        const bool listed = std::any_of(result.begin(), result.end(), [&](const auto& other) {
            return isSameApplication(other, application);
        });
        if (!listed)
            result.push_back(std::move(application));
    }
    return result;
}

void X11Workspace::hide(const RunningApplication& application) {
    if (!m_availability.isAvailable())
        return;
    iconifyWindowsOf(application);
    std::erase_if(m_hiding,
                  [&](const Hiding& hiding) { return isSameApplication(hiding.application, application); });
    m_hiding.push_back({application, m_clock.after(hidingLasts, [this, application] {
                            std::erase_if(m_hiding, [&](const Hiding& hiding) {
                                return isSameApplication(hiding.application, application);
                            });
                        })});
}

void X11Workspace::iconifyWindowsOf(const RunningApplication& application) const {
    const std::vector<xcb_window_t> windows = m_windows.clientList();
    identify(windows);
    for (const xcb_window_t window : windows) {
        if (m_windows.isOwn(window))
            continue;
        const auto identified = m_identified.constFind(window);
        if (identified != m_identified.constEnd() && !identified->isShellSurface &&
            isSameApplication(identified->application, application))
            m_windows.iconify(window);
    }
    m_windows.flush();
}

void X11Workspace::activateOwnApplication() {
    m_activating.clear();
    for (const QWindow* window : presentOwnWindows())
        m_activating.push_back(static_cast<xcb_window_t>(window->winId()));
    // A window just opened becomes known to the window manager a little later.
    m_activatingExpiry = m_clock.after(activationLasts, [this] {
        m_activating.clear();
        m_activatingExpiry.reset();
    });
    activateOwnWindows();
}

void X11Workspace::activateOwnWindows() {
    if (m_activating.empty())
        return;
    const std::vector<xcb_window_t> managed = m_windows.clientList();
    std::erase_if(m_activating, [&](xcb_window_t window) {
        if (std::find(managed.begin(), managed.end(), window) == managed.end())
            return false;
        m_windows.activate(window);
        return true;
    });
    m_windows.flush();
}

} // namespace norvin
