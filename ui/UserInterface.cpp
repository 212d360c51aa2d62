#include "ui/UserInterface.h"

#include "distraction/AICoachService.h"
#include "distraction/BlockListsScreen.h"
#include "distraction/TrackingHealthModel.h"
#include "focus/DeepWorkScreen.h"
#include "planning/PlanningScreens.h"
#include "settings/PreferencesScreen.h"
#include "sound/TickSoundSettings.h"
#include "stats/StatsScreen.h"
#include "ui/InterfaceEngine.h"
#include "ui/Localization.h"
#include "ui/MotionPreference.h"
#include "ui/shell/CommandPalette.h"
#include "ui/shell/WindowActions.h"
#include "ui/shell/WindowGeometry.h"
#include "ui/welcome/WelcomeScreen.h"

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

UserInterface::UserInterface(std::unique_ptr<InterfaceEngine> engine, const Screens& screens,
                             Localization& localization, QObject* parent)
    : QObject(parent)
    , m_screens(screens)
    , m_localization(localization)
    , m_motion(std::make_unique<MotionPreference>())
    , m_engine(std::move(engine)) {
    m_screens.planning.retranslate(localization.locale());
    m_screens.stats.retranslate(localization.locale());
    m_screens.preferences.retranslate(localization.locale());
    m_engine->setSingletons(localization, *m_motion);
    connect(&localization, &Localization::languageChanged, this, [this] {
        m_screens.health.retranslate();
        m_screens.planning.retranslate(m_localization.locale());
        m_screens.stats.retranslate(m_localization.locale());
        m_screens.preferences.retranslate(m_localization.locale());
        m_screens.blockLists.retranslate();
        m_engine->retranslate();
    });
    addActions();
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
        {QStringLiteral("deepWork"), QVariant::fromValue(&m_screens.deepWork)},
        {QStringLiteral("planning"), QVariant::fromValue(&m_screens.planning)},
        {QStringLiteral("stats"), QVariant::fromValue(&m_screens.stats)},
        {QStringLiteral("tickSounds"), QVariant::fromValue(&m_screens.tickSounds)},
        {QStringLiteral("blockLists"), QVariant::fromValue(&m_screens.blockLists)},
        {QStringLiteral("health"), QVariant::fromValue(&m_screens.health)},
        {QStringLiteral("preferences"), QVariant::fromValue(&m_screens.preferences)},
        {QStringLiteral("welcome"), QVariant::fromValue(&m_screens.welcome)},
        {QStringLiteral("actions"), QVariant::fromValue(&m_screens.actions)},
        {QStringLiteral("palette"), QVariant::fromValue(&m_screens.palette)},
        {QStringLiteral("coach"), QVariant::fromValue(m_coach)},
        {QStringLiteral("storeProblem"), m_storeProblem},
    });
    m_window.reset(qobject_cast<QQuickWindow*>(root.get()));
    if (!m_window)
        return false;
    static_cast<void>(root.release()); // the same object as m_window
    m_window->installEventFilter(this);
    QCoreApplication::instance()->installEventFilter(this);
    connect(m_window.get(), SIGNAL(quitConfirmed()), this, SLOT(quit()));
    connect(
        m_window.get(), &QQuickWindow::frameSwapped, this,
        [this] {
            // Asked only now, so that a slow bus cannot hold up the first picture.
            m_motion->askDesktop();
            // To draw it takes as long as a good part of the window.
            m_window->setIcon(QIcon(QStringLiteral(":/icons/com.norvin.Focus.svg")));
            Q_EMIT firstFrameShown();
            m_window->setProperty(stageProperty, 2);
        },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    return true;
}

void UserInterface::rememberGeometry(Preferences& preferences, Clock& clock) {
    m_geometry = std::make_unique<WindowGeometry>(*m_window, preferences, clock);
}

void UserInterface::addActions() {
    WindowActions& actions = m_screens.actions;
    DeepWorkScreen& deepWork = m_screens.deepWork;
    // In the order of Main.PageNumber.
    struct PageAction {
        const char* id;
        const char* titleKey;
        const char* symbol;
    };
    int number = 0;
    for (const auto& page : {PageAction{"show_deep_work", "sidebar_deep_work", "timer"},
                             PageAction{"show_agenda", "sidebar_agenda", "calendar"},
                             PageAction{"show_projects", "sidebar_projects", "folder"},
                             PageAction{"show_statistics", "sidebar_statistics", "chart.bar"},
                             PageAction{"show_block_lists", "sidebar_block_lists", "hand.raised"},
                             PageAction{"show_health", "sidebar_health", "waveform.path.ecg"},
                             PageAction{"show_preferences", "preferences_title", "gearshape"}}) {
        actions.add({.id = QLatin1String(page.id),
                     .titleKey = QLatin1String(page.titleKey),
                     .symbol = QLatin1String(page.symbol),
                     .keys = QStringLiteral("Ctrl+%1").arg(number + 1),
                     .run = [&actions, number] { Q_EMIT actions.pageWanted(number); }});
        ++number;
    }

    WelcomeScreen& welcome = m_screens.welcome;
    connect(&m_screens.preferences, &PreferencesScreen::welcomeWanted, &welcome, &WelcomeScreen::present);
    connect(&welcome, &WelcomeScreen::started, &actions,
            [&actions] { actions.run(QStringLiteral("show_deep_work")); });
    connect(&m_screens.preferences, &PreferencesScreen::blockListsWanted, &actions,
            [&actions] { actions.run(QStringLiteral("show_block_lists")); });

    const auto isState = [&deepWork](const char* state) {
        return [&deepWork, state] { return deepWork.state() == QLatin1String(state); };
    };
    const auto canStart = [this] { return !isPhaseUnderWay(); };
    actions.add({.id = QStringLiteral("start_work"),
                 .titleKey = QStringLiteral("action_start_work"),
                 .symbol = QStringLiteral("play"),
                 .isOffered = canStart,
                 .run = [&deepWork] { deepWork.start(); }});
    actions.add({.id = QStringLiteral("start_break"),
                 .titleKey = QStringLiteral("action_start_break"),
                 .symbol = QStringLiteral("cup.and.saucer.fill"),
                 .isOffered = canStart,
                 .run = [&deepWork] { deepWork.startBreak(); }});
    actions.add({.id = QStringLiteral("start_rearming"),
                 .titleKey = QStringLiteral("action_start_rearming"),
                 .symbol = QStringLiteral("arrow.clockwise"),
                 .isOffered = canStart,
                 .run = [&deepWork] { deepWork.startRearming(); }});
    actions.add({.id = QStringLiteral("pause"),
                 .titleKey = QStringLiteral("action_pause"),
                 .symbol = QStringLiteral("pause"),
                 .isOffered = isState("running"),
                 .run = [&deepWork] { deepWork.pause(); }});
    actions.add({.id = QStringLiteral("resume"),
                 .titleKey = QStringLiteral("action_resume"),
                 .symbol = QStringLiteral("play"),
                 .isOffered = isState("paused"),
                 .run = [&deepWork] { deepWork.resume(); }});
    actions.add({.id = QStringLiteral("stop"),
                 .titleKey = QStringLiteral("action_stop"),
                 .symbol = QStringLiteral("stop"),
                 .isOffered = [this] { return isPhaseUnderWay(); },
                 .run = [&deepWork] { deepWork.stop(); }});
    connect(&deepWork, &DeepWorkScreen::stateChanged, &actions, &WindowActions::notifyChanged);

    PlanningScreens& planning = m_screens.planning;
    actions.add({.id = QStringLiteral("new_task"),
                 .titleKey = QStringLiteral("action_new_task"),
                 .symbol = QStringLiteral("plus"),
                 .run = [&planning] { planning.agenda()->plan(QStringLiteral("quickAdd")); }});
    actions.add({.id = QStringLiteral("new_project"),
                 .titleKey = QStringLiteral("action_new_project"),
                 .symbol = QStringLiteral("plus"),
                 .run = [&planning] { planning.projects()->createProject(); }});
    actions.add({.id = QStringLiteral("show_welcome"),
                 .titleKey = QStringLiteral("action_show_welcome"),
                 .symbol = QStringLiteral("sparkles"),
                 .run = [&welcome] { welcome.present(); }});
    actions.add({.id = QStringLiteral("quit"),
                 .titleKey = QStringLiteral("quit_button"),
                 .symbol = QStringLiteral("power"),
                 .keys = QStringLiteral("Ctrl+Q"),
                 .run = [this, &actions] {
                     // Who is asked must see the question.
                     if (isPhaseUnderWay())
                         showWindow();
                     Q_EMIT actions.quitWanted();
                 }});
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
    return m_screens.deepWork.state() == QLatin1String("running") ||
           m_screens.deepWork.state() == QLatin1String("paused");
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
