#include "ui/coach/CoachBubble.h"

#include "distraction/AICoachService.h"
#include "platform/Clock.h"
#include "platform/OverlaySupport.h"
#include "platform/UserNotifications.h"
#include "ui/InterfaceEngine.h"
#include "ui/alert/OverlayWindow.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

namespace norvin {

using namespace std::chrono_literals;

namespace {

// What calls for a message may bring the window to the front as well, which takes a moment.
constexpr auto patience = 400ms;
// From the edges of the screen, in device-independent pixels.
constexpr int margin = 16;
// As in Main.qml.
constexpr int deepWorkPage = 0;

} // namespace

CoachBubble::CoachBubble(const Collaborators& collaborators, QObject* parent)
    : QObject(parent)
    , m_with(collaborators) {
    // Later, as the bubble must not be taken down from within the click on it.
    const auto later = Qt::QueuedConnection;
    connect(&m_with.coach, &AICoachService::isVisibleChanged, this, &CoachBubble::update, later);
    connect(&m_with.coach, &AICoachService::messagesChanged, this, &CoachBubble::update, later);
    connect(&m_with.mainWindow, &QWindow::activeChanged, this, &CoachBubble::update, later);
    connect(&m_with.mainWindow, SIGNAL(pageChanged()), this, SLOT(update()), later);
}

CoachBubble::~CoachBubble() = default;

bool CoachBubble::isWanted() const {
    const bool isInFront =
        m_with.mainWindow.isActive() && m_with.mainWindow.property("page").toInt() == deepWorkPage;
    return m_with.coach.isVisible() && !isInFront;
}

void CoachBubble::update() {
    if (!isWanted()) {
        m_appearing.reset();
        m_window.reset();
    } else if (!m_window && !m_appearing) {
        m_appearing = m_with.clock.after(patience, [this] { appear(); });
    }
}

void CoachBubble::appear() {
    m_appearing.reset();
    if (!isWanted())
        return;
    if (!m_with.support.availability().isAvailable()) {
        notify();
        return;
    }
    m_window = m_with.engine.createOverlay("coach/CoachBubbleWindow.qml",
                                           {{QStringLiteral("coach"), QVariant::fromValue(&m_with.coach)},
                                            {QStringLiteral("isBlended"), m_with.support.isBlending()}});
    if (!m_window)
        return;
    connect(m_window.get(), &QWindow::heightChanged, this, &CoachBubble::place);
    place();
}

void CoachBubble::notify() {
    const CoachMessage& message = m_with.coach.messages().constLast();
    if (message.id == m_notified)
        return;
    m_notified = message.id;
    m_with.notifications.post(QStringLiteral("Norvin Focus"), message.text);
}

void CoachBubble::place() {
    // Where the user is looking, as far as that can be known.
    const QScreen* screen = QGuiApplication::screenAt(QCursor::pos());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    QRect place(QPoint(0, 0), m_window->size());
    place.moveBottomRight(screen->availableGeometry().bottomRight() - QPoint(margin, margin));
    m_window->present(place);
}

} // namespace norvin
