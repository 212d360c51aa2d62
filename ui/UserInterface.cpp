#include "ui/UserInterface.h"

#include "distraction/AICoachService.h"
#include "distraction/BlockListsScreen.h"
#include "distraction/TrackingHealthModel.h"
#include "focus/DeepWorkScreen.h"
#include "planning/PlanningScreens.h"
#include "sound/TickSoundSettings.h"
#include "stats/StatsScreen.h"
#include "ui/InterfaceEngine.h"
#include "ui/Localization.h"
#include "ui/MotionPreference.h"

#include <QCoreApplication>
#include <QCursor>
#include <QEvent>
#include <QFont>
#include <QGuiApplication>
#include <QIcon>
#include <QQuickWindow>
#include <QStyleHints>

namespace norvin {

namespace {

// How much of the window is there, see Main.qml.
constexpr const char* stageProperty = "stage";
// As Theme.body.
constexpr int bodyPixelSize = 14;

} // namespace

UserInterface::UserInterface(std::unique_ptr<InterfaceEngine> engine, DeepWorkScreen& deepWork,
                             PlanningScreens& planning, StatsScreen& stats, TickSoundSettings& tickSounds,
                             BlockListsScreen& blockLists, TrackingHealthModel& health,
                             Localization& localization, QObject* parent)
    : QObject(parent)
    , m_deepWork(deepWork)
    , m_planning(planning)
    , m_stats(stats)
    , m_tickSounds(tickSounds)
    , m_blockLists(blockLists)
    , m_health(health)
    , m_localization(localization)
    , m_motion(std::make_unique<MotionPreference>())
    , m_engine(std::move(engine)) {
    m_planning.retranslate(localization.locale());
    m_stats.retranslate(localization.locale());
    m_engine->setSingletons(localization, *m_motion);
    connect(&localization, &Localization::languageChanged, this, [this] {
        m_health.retranslate();
        m_planning.retranslate(m_localization.locale());
        m_stats.retranslate(m_localization.locale());
        m_blockLists.retranslate();
        m_engine->retranslate();
    });
}

UserInterface::~UserInterface() = default;

bool UserInterface::load() {
    // A blinking cursor would wake the program twice a second for as long as a field has the keyboard.
    QGuiApplication::styleHints()->setCursorFlashTime(0);
    // Controls measure the application's font even where they show another: one less to load.
    QFont font = QGuiApplication::font();
    font.setPixelSize(bodyPixelSize);
    QGuiApplication::setFont(font);
    std::unique_ptr<QObject> root = m_engine->createWindow({
        {QStringLiteral("deepWork"), QVariant::fromValue(&m_deepWork)},
        {QStringLiteral("planning"), QVariant::fromValue(&m_planning)},
        {QStringLiteral("stats"), QVariant::fromValue(&m_stats)},
        {QStringLiteral("tickSounds"), QVariant::fromValue(&m_tickSounds)},
        {QStringLiteral("blockLists"), QVariant::fromValue(&m_blockLists)},
        {QStringLiteral("health"), QVariant::fromValue(&m_health)},
        {QStringLiteral("coach"), QVariant::fromValue(m_coach)},
        {QStringLiteral("storeProblem"), m_storeProblem},
    });
    m_window.reset(qobject_cast<QQuickWindow*>(root.get()));
    if (!m_window)
        return false;
    static_cast<void>(root.release()); // the same object as m_window
    m_window->setIcon(QIcon(QStringLiteral(":/icons/com.norvin.Focus.svg")));
    m_window->installEventFilter(this);
    QCoreApplication::instance()->installEventFilter(this);
    connect(m_window.get(), SIGNAL(quitConfirmed()), this, SLOT(quit()));
    connect(
        m_window.get(), &QQuickWindow::frameSwapped, this,
        [this] {
            // Asked only now, so that a slow bus cannot hold up the first picture.
            m_motion->askDesktop();
            Q_EMIT firstFrameShown();
            m_window->setProperty(stageProperty, 2);
        },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    return true;
}

void UserInterface::showWindow() {
    if (!m_window)
        return;
    m_isQuitting = false;
    if (m_window->windowStates().testFlag(Qt::WindowMinimized))
        m_window->setWindowStates(m_window->windowStates() & ~Qt::WindowStates(Qt::WindowMinimized));
    m_window->show();
    m_window->raise();
    m_window->requestActivate();
    if (m_window->property(stageProperty).toInt() == 0) {
        // Any question to the window system sends off what it was told before, so that it gets the window
        // ready while the content is made.
        static_cast<void>(QCursor::pos());
        m_window->setProperty(stageProperty, 1);
    }
}

void UserInterface::setStoreProblem(const QString& text) {
    if (text == m_storeProblem)
        return;
    m_storeProblem = text;
    if (m_window)
        m_window->setProperty("storeProblem", text);
    Q_EMIT storeProblemChanged();
}

bool UserInterface::isPhaseUnderWay() const {
    return m_deepWork.state() == QLatin1String("running") || m_deepWork.state() == QLatin1String("paused");
}

void UserInterface::quit() {
    m_isQuitting = true;
    Q_EMIT quitRequested();
}

bool UserInterface::eventFilter(QObject* watched, QEvent* event) {
    // The application closes its windows to quit, and gives up quitting when one of them refuses.
    if (watched == QCoreApplication::instance() && event->type() == QEvent::Quit)
        m_isQuitting = true;
    if (watched != m_window.get() || event->type() != QEvent::Close || m_isQuitting)
        return QObject::eventFilter(watched, event);
    if (!isPhaseUnderWay()) {
        quit();
        return false;
    }
    event->ignore();
    m_window->hide();
    Q_EMIT windowClosedWhileRunning();
    return true;
}

} // namespace norvin
