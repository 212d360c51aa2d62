#include "ui/panel/TrayPanel.h"

#include "focus/DeepWorkScreen.h"
#include "platform/Clock.h"
#include "platform/OverlaySupport.h"
#include "sound/AmbientSoundService.h"
#include "ui/InterfaceEngine.h"
#include "ui/panel/FloatingTimer.h"
#include "ui/panel/ScreenRoom.h"

#include <QGuiApplication>
#include <QIcon>
#include <QQuickWindow>
#include <QScreen>

#include <algorithm>

namespace norvin {

using namespace std::chrono_literals;

namespace {

// A click on the item takes the keyboard from the panel before it says that it was one.
constexpr auto sameClick = 300ms;
// From the edges of the screen and of its bars, in device-independent pixels.
constexpr int distance = 8;
// Half of a bar, where the window system does not say how much of the screen it takes.
constexpr int halfBar = 20;

// Trays speak of the screen's own pixels.
QPoint inWindowUnits(const QPoint& position, const QScreen& screen) {
    const QPoint origin = screen.geometry().topLeft();
    return origin + (position - origin) / screen.devicePixelRatio();
}

QScreen* screenOf(const QPoint& position) {
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (QScreen* screen : screens) {
        const QRect geometry = screen->geometry();
        const QRect pixels(geometry.topLeft(), geometry.size() * screen->devicePixelRatio());
        if (pixels.contains(position))
            return screen;
    }
    return QGuiApplication::primaryScreen();
}

} // namespace

QRect panelPlace(const QSize& size, const QPoint& position, const QRect& screen, const QRect& available) {
    const QRect room = available.adjusted(distance, distance, -distance, -distance);
    const bool isBelow = position.y() > screen.center().y();
    const int top = isBelow ? std::min(room.bottom() + 1, position.y() - halfBar) - size.height()
                            : std::max(room.top(), position.y() + halfBar);
    return {QPoint(placeWithin(position.x() - size.width() / 2, room.left(), room.right() + 1 - size.width()),
                   placeWithin(top, room.top(), room.bottom() + 1 - size.height())),
            size};
}

TrayPanel::TrayPanel(const Collaborators& collaborators, QObject* parent)
    : QObject(parent)
    , m_with(collaborators) {}

TrayPanel::~TrayPanel() = default;

void TrayPanel::toggle(std::optional<QPoint> position) {
    const bool wasJustLeft = m_leftAt && m_with.clock.monotonic() - *m_leftAt < sameClick;
    m_leftAt.reset();
    if (m_window)
        close();
    else if (!wasJustLeft || !position)
        open(position);
}

void TrayPanel::open(std::optional<QPoint> position) {
    const bool isPlaced = position && m_with.support.availability().isAvailable();
    m_wasActive = false;
    m_window = m_with.engine.createWindow(
        "panel/PanelWindow.qml",
        {{QStringLiteral("deepWork"), QVariant::fromValue(&m_with.deepWork)},
         {QStringLiteral("floatingTimer"), QVariant::fromValue(&m_with.floatingTimer)},
         {QStringLiteral("panel"), QVariant::fromValue(this)},
         {QStringLiteral("ambientSound"), QVariant::fromValue(m_with.ambientSound)},
         {QStringLiteral("isPlaced"), isPlaced},
         {QStringLiteral("isBlended"), m_with.support.isBlending()}});
    if (!m_window)
        return;
    m_window->setIcon(QIcon(QStringLiteral(":/icons/com.norvin.Focus.svg")));
    connect(m_window.get(), &QWindow::activeChanged, this, &TrayPanel::onActiveChanged);
    connect(m_window.get(), &QWindow::visibleChanged, this, [this](bool isVisible) {
        if (!isVisible)
            close();
    });
    if (isPlaced) {
        connect(m_window.get(), &QWindow::heightChanged, this, [this, at = *position] { place(at); });
        place(*position);
    }
    m_window->show();
    m_window->raise();
    m_window->requestActivate();
}

void TrayPanel::place(const QPoint& position) {
    const QScreen* screen = screenOf(position);
    if (!screen)
        return;
    m_window->setGeometry(panelPlace(m_window->size(), inWindowUnits(position, *screen), screen->geometry(),
                                     screen->availableGeometry()));
}

void TrayPanel::onActiveChanged() {
    if (m_window->isActive()) {
        m_wasActive = true;
    } else if (m_wasActive && m_window->property("isPlaced").toBool()) {
        m_leftAt = m_with.clock.monotonic();
        close();
    }
}

void TrayPanel::close() {
    if (!m_window)
        return;
    m_leaving = std::move(m_window);
    m_leaving->disconnect(this);
    m_leaving->hide();
    QMetaObject::invokeMethod(
        this, [this] { m_leaving.reset(); }, Qt::QueuedConnection);
}

void TrayPanel::leaveForWindow() {
    close();
    Q_EMIT windowWanted();
}

} // namespace norvin
