#include "ui/panel/FloatingTimer.h"

#include "focus/DeepWorkScreen.h"
#include "platform/Clock.h"
#include "platform/OverlaySupport.h"
#include "platform/Preferences.h"
#include "ui/InterfaceEngine.h"
#include "ui/alert/OverlayWindow.h"
#include "ui/panel/ScreenRoom.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace norvin {

using namespace std::chrono_literals;

namespace {

// From one window to the next there may be none of ours, or one that is soon gone.
constexpr auto settling = 300ms;
// From the right and the lower edge of the screen, in device-independent pixels: clear of what maximised
// windows have at the top, and of the corner where notifications and the coach's messages come up.
constexpr int rightDistance = 16;
constexpr int lowerDistance = 128;

QRect homeScreen() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect();
}

QList<QRect> allScreens() {
    QList<QRect> screens{homeScreen()};
    const QList<QScreen*> present = QGuiApplication::screens();
    for (const QScreen* screen : present) {
        if (screen != QGuiApplication::primaryScreen())
            screens.append(screen->availableGeometry());
    }
    return screens;
}

QPoint usualPlace(const QSize& size, const QRect& home) {
    return {home.x() + home.width() - rightDistance - size.width(),
            home.y() + home.height() - lowerDistance - size.height()};
}

int distanceTo(const QRect& screen, const QPoint& point) {
    const QPoint nearest(std::clamp(point.x(), screen.left(), screen.right()),
                         std::clamp(point.y(), screen.top(), screen.bottom()));
    return (nearest - point).manhattanLength();
}

} // namespace

QRect floatingPlace(const QSize& size, const QRect& home, const QSizeF& offset, const QList<QRect>& screens) {
    const QPoint wanted = usualPlace(size, home) + QPointF(offset.width(), offset.height()).toPoint();
    const QPoint centre = QRect(wanted, size).center();
    const QRect screen =
        *std::min_element(screens.cbegin(), screens.cend(), [&](const QRect& left, const QRect& right) {
            return distanceTo(left, centre) < distanceTo(right, centre);
        });
    return {QPoint(placeWithin(wanted.x(), screen.left(), screen.right() + 1 - size.width()),
                   placeWithin(wanted.y(), screen.top(), screen.bottom() + 1 - size.height())),
            size};
}

QSizeF floatingOffsetOf(const QRect& place, const QRect& home) {
    const QPoint way = place.topLeft() - usualPlace(place.size(), home);
    return QSizeF(way.x(), way.y());
}

FloatingTimer::FloatingTimer(const Collaborators& collaborators, QObject* parent)
    : QObject(parent)
    , m_with(collaborators) {
    readOffset();
    // Later, as the window must not be taken down from within a click on it.
    const auto later = Qt::QueuedConnection;
    connect(&m_with.timer, &PomodoroTimerService::stateChanged, this, &FloatingTimer::update, later);
    connect(&m_with.mainWindow, &QWindow::activeChanged, this, &FloatingTimer::update, later);
    connect(&m_with.mainWindow, &QWindow::visibleChanged, this, &FloatingTimer::update, later);
    connect(&m_with.timer, &PomodoroTimerService::floatingOffsetChanged, this, [this] {
        writeOffset();
        place();
    });
    connect(&m_with.preferences, &Preferences::changed, this, [this](const QString& key) {
        if (key != QLatin1String(enabledKey))
            return;
        Q_EMIT isEnabledChanged();
        QMetaObject::invokeMethod(this, &FloatingTimer::update, Qt::QueuedConnection);
    });
}

FloatingTimer::~FloatingTimer() = default;

Availability FloatingTimer::availability() const {
    return m_with.support.availability();
}

QString FloatingTimer::problem() const {
    const Availability support = availability();
    if (support.isAvailable())
        return {};
    return qtTrId("floating_timer_unavailable") + QLatin1Char(' ') +
           qtTrId((support.reason()->reasonKey + QStringLiteral("_remedy")).toUtf8().constData());
}

bool FloatingTimer::isEnabled() const {
    const std::optional<QVariant> stored = m_with.preferences.value(QLatin1String(enabledKey));
    return !stored || !stored->canConvert<bool>() || stored->toBool();
}

void FloatingTimer::setEnabled(bool isEnabled) {
    if (isEnabled != this->isEnabled())
        m_with.preferences.setValue(QLatin1String(enabledKey), isEnabled);
}

void FloatingTimer::readOffset() {
    const std::optional<QVariant> stored = m_with.preferences.value(QLatin1String(offsetKey));
    const QStringList parts = stored.value_or(QVariant()).toString().split(QLatin1Char(' '));
    if (parts.size() != 2)
        return;
    bool isRight = false;
    bool isDown = false;
    const double right = parts[0].toDouble(&isRight);
    const double down = parts[1].toDouble(&isDown);
    // Further away no screen can be.
    constexpr double furthest = 100'000;
    if (isRight && isDown && std::abs(right) <= furthest && std::abs(down) <= furthest)
        m_with.timer.setFloatingOffset({right, down});
}

void FloatingTimer::writeOffset() {
    const QSizeF offset = m_with.timer.floatingOffset();
    m_with.preferences.setValue(QLatin1String(offsetKey),
                                QStringLiteral("%1 %2").arg(offset.width()).arg(offset.height()));
}

bool FloatingTimer::isWanted() const {
    const TimerState state = m_with.timer.state();
    // Window systems may go on calling a window active that was hidden.
    const bool isWindowInFront = m_with.mainWindow.isVisible() && m_with.mainWindow.isActive();
    return (state == TimerState::running || state == TimerState::paused) && !isWindowInFront && isEnabled() &&
           isAvailable();
}

void FloatingTimer::update() {
    if (!isWanted()) {
        m_appearing.reset();
        disappear();
    } else if (!m_window && !m_appearing) {
        m_appearing = m_with.clock.after(settling, [this] { appear(); });
    }
}

void FloatingTimer::appear() {
    m_appearing.reset();
    if (!isWanted())
        return;
    m_window = m_with.engine.createOverlay(
        "panel/FloatingTimerWindow.qml", {{QStringLiteral("deepWork"), QVariant::fromValue(&m_with.deepWork)},
                                          {QStringLiteral("floatingTimer"), QVariant::fromValue(this)},
                                          {QStringLiteral("isBlended"), m_with.support.isBlending()}});
    if (!m_window)
        return;
    connect(m_window.get(), &QWindow::widthChanged, this, &FloatingTimer::place);
    followScreens();
    place();
    Q_EMIT isShownChanged();
}

void FloatingTimer::disappear() {
    if (!m_window)
        return;
    m_window.reset();
    Q_EMIT isShownChanged();
}

void FloatingTimer::followScreens() {
    // Connections end with the window.
    const auto follow = [this, window = m_window.get()](QScreen* screen) {
        connect(screen, &QScreen::availableGeometryChanged, window, [this] { place(); });
    };
    const QList<QScreen*> present = QGuiApplication::screens();
    for (QScreen* screen : present)
        follow(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, m_window.get(), [this, follow](QScreen* screen) {
        follow(screen);
        place();
    });
    connect(
        qGuiApp, &QGuiApplication::screenRemoved, m_window.get(), [this] { place(); }, Qt::QueuedConnection);
    connect(
        qGuiApp, &QGuiApplication::primaryScreenChanged, m_window.get(), [this] { place(); },
        Qt::QueuedConnection);
}

void FloatingTimer::place() {
    if (!m_window || !QGuiApplication::primaryScreen())
        return;
    const QRect place =
        floatingPlace(m_window->size(), homeScreen(), m_with.timer.floatingOffset(), allScreens());
    if (m_window->isVisible())
        m_window->setGeometry(place);
    else
        m_window->present(place);
}

void FloatingTimer::moveBy(int right, int down) {
    if (!m_window)
        return;
    const QRect home = homeScreen();
    const QSizeF wanted = floatingOffsetOf(m_window->geometry().translated(right, down), home);
    const QRect place = floatingPlace(m_window->size(), home, wanted, allScreens());
    m_with.timer.setFloatingOffset(floatingOffsetOf(place, home));
}

void FloatingTimer::beginDrag() {
    if (m_window)
        m_dragStart = m_window->position();
}

void FloatingTimer::dragTo(double right, double down) {
    if (!m_window)
        return;
    const QRect wanted(m_dragStart + QPointF(right, down).toPoint(), m_window->size());
    const QRect home = homeScreen();
    m_window->setGeometry(
        floatingPlace(m_window->size(), home, floatingOffsetOf(wanted, home), allScreens()));
}

void FloatingTimer::endDrag() {
    if (m_window)
        m_with.timer.setFloatingOffset(floatingOffsetOf(m_window->geometry(), homeScreen()));
}

} // namespace norvin
