#include "ui/alert/AlertWindows.h"

#include "distraction/BrowserAlertModel.h"
#include "platform/Clock.h"
#include "platform/OverlaySupport.h"
#include "ui/InterfaceEngine.h"
#include "ui/alert/OverlayWindow.h"

#include <QGuiApplication>
#include <QScreen>

namespace norvin {

using namespace std::chrono_literals;

namespace {

// Compositing managers come and go seldom, and none of them tells in a way that all others share.
constexpr auto blendingInterval = 500ms;

} // namespace

AlertWindows::AlertWindows(const OverlaySupport& support, Clock& clock, QObject* parent)
    : AlertOverlay(parent)
    , m_support(support)
    , m_clock(clock) {
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &AlertWindows::cover);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &AlertWindows::uncover);
}

AlertWindows::~AlertWindows() = default;

void AlertWindows::setContent(InterfaceEngine* engine, BrowserAlertModel* model) {
    dismiss();
    m_engine = engine;
    m_model = model;
}

Availability AlertWindows::availability() const {
    return m_support.availability();
}

void AlertWindows::present() {
    if (m_isPresented || !m_engine || !m_model || !availability().isAvailable())
        return;
    m_isPresented = true;
    for (QScreen* screen : QGuiApplication::screens())
        cover(screen);
    m_blendingTimer = m_clock.every(blendingInterval, [this] { followBlending(); });
}

void AlertWindows::dismiss() {
    m_isPresented = false;
    m_blendingTimer.reset();
    m_windows.clear();
}

QList<OverlayWindow*> AlertWindows::windows() const {
    QList<OverlayWindow*> windows;
    for (const auto& [screen, window] : m_windows)
        windows.append(window.get());
    return windows;
}

void AlertWindows::cover(QScreen* screen) {
    if (!m_isPresented || m_windows.contains(screen))
        return;
    std::unique_ptr<OverlayWindow> window = m_engine->createOverlay(
        "alert/BrowserAlertWindow.qml", {{QStringLiteral("model"), QVariant::fromValue(m_model)},
                                         {QStringLiteral("isBlended"), m_support.isBlending()}});
    if (!window)
        return;
    window->setScreen(screen);
    window->present(screen->geometry());
    connect(screen, &QScreen::geometryChanged, window.get(),
            [raw = window.get()](const QRect& geometry) { raw->setGeometry(geometry); });
    m_windows.emplace(screen, std::move(window));
}

void AlertWindows::uncover(QScreen* screen) {
    m_windows.erase(screen);
}

void AlertWindows::followBlending() {
    const bool isBlending = m_support.isBlending();
    for (auto& [screen, window] : m_windows)
        window->setBlended(isBlending);
}

} // namespace norvin
