#include "ui/shell/WindowGeometry.h"

#include "platform/Clock.h"
#include "platform/Preferences.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QStringList>
#include <QWindow>

#include <algorithm>
#include <array>

namespace norvin {

namespace {

constexpr std::chrono::milliseconds restAfterMove{800};
// So much of the window, in pixels, must be on a screen for the user to find and move it.
constexpr QSize reachable{120, 60};
// No desktop is larger, and no sum of such numbers overflows.
constexpr int furthest = 100'000;

bool isReachable(const QRect& geometry) {
    const QList<QScreen*> screens = QGuiApplication::screens();
    return std::any_of(screens.cbegin(), screens.cend(), [&geometry](const QScreen* screen) {
        const QRect seen = screen->availableGeometry().intersected(geometry);
        // The title bar is what a window is moved by.
        return seen.width() >= reachable.width() && seen.height() >= reachable.height() &&
               geometry.top() >= screen->availableGeometry().top();
    });
}

// What was stored may come from a larger screen that is gone.
QSize largestRoom() {
    QSize room;
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* screen : screens)
        room = room.expandedTo(screen->availableSize());
    return room;
}

} // namespace

QString geometryText(const QRect& geometry) {
    return QStringLiteral("%1 %2 %3 %4")
        .arg(geometry.x())
        .arg(geometry.y())
        .arg(geometry.width())
        .arg(geometry.height());
}

std::optional<QRect> geometryFromText(const QString& text) {
    const QStringList parts = text.split(QLatin1Char(' '));
    std::array<int, 4> numbers{};
    if (parts.size() != std::ssize(numbers))
        return std::nullopt;
    for (qsizetype i = 0; i < parts.size(); ++i) {
        bool isNumber = false;
        const int number = parts.at(i).toInt(&isNumber);
        if (!isNumber || number < -furthest || number > furthest)
            return std::nullopt;
        numbers.at(static_cast<size_t>(i)) = number;
    }
    const QRect geometry(numbers[0], numbers[1], numbers[2], numbers[3]);
    return geometry.isEmpty() ? std::nullopt : std::optional(geometry);
}

WindowGeometry::WindowGeometry(QWindow& window, Preferences& preferences, Clock& clock, QObject* parent)
    : QObject(parent)
    , m_window(window)
    , m_preferences(preferences)
    , m_clock(clock) {
    restore();
    for (const auto signal :
         {&QWindow::xChanged, &QWindow::yChanged, &QWindow::widthChanged, &QWindow::heightChanged})
        connect(&m_window, signal, this, &WindowGeometry::keepSoon);
    connect(&m_window, &QWindow::windowStateChanged, this, &WindowGeometry::keepSoon);
    // What has not come to rest when the program ends counts as well.
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] {
        if (m_settling)
            keep();
    });
}

WindowGeometry::~WindowGeometry() = default;

void WindowGeometry::restore() {
    const auto stored = m_preferences.value(QLatin1String(geometryKey));
    const auto geometry = stored ? geometryFromText(stored->toString()) : std::nullopt;
    if (geometry) {
        m_window.resize(geometry->size().boundedTo(largestRoom()).expandedTo(m_window.minimumSize()));
        if (isReachable(*geometry))
            m_window.setFramePosition(geometry->topLeft());
    }
    if (m_preferences.value(QLatin1String(maximizedKey)).value_or(QVariant(false)).toBool())
        m_window.setWindowStates(Qt::WindowMaximized);
}

void WindowGeometry::keepSoon() {
    if (m_window.isVisible())
        m_settling = m_clock.after(restAfterMove, [this] { keep(); });
}

void WindowGeometry::keep() {
    m_settling.reset();
    const Qt::WindowStates states = m_window.windowStates();
    if (states.testFlag(Qt::WindowMinimized))
        return;
    const auto set = [this](const char* key, const QVariant& value) {
        if (m_preferences.value(QLatin1String(key)).value_or(QVariant()).toString() != value.toString())
            m_preferences.setValue(QLatin1String(key), value);
    };
    const bool isFilling = states.testFlag(Qt::WindowMaximized) || states.testFlag(Qt::WindowFullScreen);
    set(maximizedKey, isFilling && !states.testFlag(Qt::WindowFullScreen));
    // The size it had before it filled the screen is the one to come back to.
    if (!isFilling)
        set(geometryKey, geometryText({m_window.framePosition(), m_window.size()}));
}

} // namespace norvin
