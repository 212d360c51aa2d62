#include "app/NorvinFocusApp.h"

#include "app/PlanningBusService.h"
#include "app/StatsBusService.h"
#include "distraction/AppBlockerService.h"
#include "distraction/AppUsageService.h"
#include "distraction/BrowserAlertService.h"
#include "focus/MotionService.h"
#include "focus/PhaseSymbol.h"
#include "model/StoreFile.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/SessionBus.h"
#include "sound/ImmersionService.h"
#include "ui/InterfaceEngine.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QQuickWindow>

namespace norvin {

namespace {

constexpr std::chrono::milliseconds healthRefreshDelay{300};
constexpr std::chrono::milliseconds trayDelay{400};

PomodoroCollaborators timerCollaborators(LinuxPlatform& platform, SoundService& sounds) {
    return {.clock = platform.clock(),
            .blocker = AppBlockerService::shared(),
            .usage = AppUsageService::shared(),
            .motion = MotionService::shared(),
            .sounds = sounds,
            .notifications = platform.notifications(),
            .catalog = platform.applications()};
}

} // namespace

QList<TrackingHealthModel::Check> platformHealthChecks(LinuxPlatform& platform, BrowserHealth& browsers) {
    return {
        {QStringLiteral("health_frontmost_application"),
         [&platform] { return platform.workspace().availability(); }},
        browsers.accessCheck(),
        {QStringLiteral("health_hiding"), [&platform] { return platform.workspace().availability(); }},
        {QStringLiteral("health_idle_time"), [&platform] { return platform.idleTime().availability(); }},
        {QStringLiteral("health_sleep"), [&platform] { return platform.sleepMonitor().availability(); }},
        {QStringLiteral("health_browser_alert"), [&platform] { return platform.overlays().availability(); }},
        {QStringLiteral("health_notifications"),
         [&platform] { return platform.notifications().availability(); }},
        {QStringLiteral("health_sounds"), [&platform] { return platform.sounds().availability(); }},
        {QStringLiteral("health_ticks"),
         [&platform] {
             const Availability ticks = platform.audioOutput().availability();
             return ticks.isAvailable() ? platform.soundStream().availability() : ticks;
         }},
        {.capabilityKey = QStringLiteral("health_tray"),
         .ask = [&platform] { return platform.statusItem().availability(); },
         .isOptional = true},
        {QStringLiteral("health_preferences"), [&platform] { return platform.preferences().availability(); }},
    };
}

// None also where the store is in memory or cannot be read.
static std::optional<QDateTime> oldestSession(const QString& storeFile) {
    if (storeFile.isEmpty())
        return std::nullopt;
    const auto read = readStoreFacts(storeFile, CountIntervals::no);
    const auto* const facts = std::get_if<StoreFacts>(&read);
    return facts != nullptr && facts->firstSession.isValid() ? std::optional(facts->firstSession)
                                                             : std::nullopt;
}

NorvinFocusApp::SharedServices::SharedServices(LinuxPlatform& platform, AlertOverlay& alert,
                                               const QString& storeFile) {
    SharedInstance<AppBlockerService>::setFactory([&platform] {
        return std::make_unique<AppBlockerService>(platform.preferences(), platform.workspace(),
                                                   platform.sounds());
    });
    SharedInstance<BrowserAlertService>::setFactory([&platform, &alert] {
        return std::make_unique<BrowserAlertService>(alert, platform.notifications());
    });
    SharedInstance<AppUsageService>::setFactory([&platform] {
        return std::make_unique<AppUsageService>(
            platform.clock(), platform.workspace(), AppBlockerService::shared(),
            BrowserDomainProbe(platform.browserScripting(), platform.accessibility()),
            BrowserAlertService::shared());
    });
    SharedInstance<MotionService>::setFactory([&platform] {
        return std::make_unique<MotionService>(platform.clock(), platform.idleTime(), platform.preferences());
    });
    SharedInstance<ImmersionService>::setFactory(
        [&platform] { return std::make_unique<ImmersionService>(platform.preferences()); });
    SharedInstance<UpdaterService>::setFactory(
        [&platform] { return std::make_unique<UpdaterService>(platform.updates()); });
    SharedInstance<LicenseService>::setFactory([&platform, storeFile] {
        return std::make_unique<LicenseService>(
            LicenseService::builtInKey(),
            LicenseService::Collaborators{.preferences = platform.preferences(),
                                          .clock = platform.clock(),
                                          .file = LicenseService::defaultFile(),
                                          .oldestRecord = [storeFile] { return oldestSession(storeFile); }});
    });
}

NorvinFocusApp::SharedServices::~SharedServices() {
    SharedInstance<LicenseService>::reset();
    SharedInstance<UpdaterService>::reset();
    SharedInstance<ImmersionService>::reset();
    SharedInstance<MotionService>::reset();
    SharedInstance<AppUsageService>::reset();
    SharedInstance<BrowserAlertService>::reset();
    SharedInstance<AppBlockerService>::reset();
}

NorvinFocusApp::NorvinFocusApp(LinuxPlatform& platform, std::unique_ptr<ModelContainer> container,
                               std::unique_ptr<InterfaceEngine> engine)
    : m_platform(platform)
    , m_appDelegate(platform.accessibilityTrust())
    , m_sharedModelContainer(std::move(container))
    , m_localization(platform.preferences())
    , m_alertWindows(platform.overlays(), platform.clock())
    , m_sharedServices(platform, m_alertWindows, m_sharedModelContainer->storeFile())
    , m_soundService(platform.sounds())
    , m_ambientService(platform.soundStream(), platform.preferences(), platform.clock())
    , m_tickSoundService(platform.audioOutput(), platform.preferences())
    , m_tickSoundSettings(m_tickSoundService, platform.audioOutput())
    , m_timerService(timerCollaborators(platform, m_soundService))
    , m_interruptions(m_timerService)
    , m_sessionAmbience(m_timerService, m_ambientService, ImmersionService::shared())
    , m_coachService(platform.clock(), AppBlockerService::shared())
    , m_deepWorkScreen(m_timerService, AppUsageService::shared(), MotionService::shared(),
                       m_sharedModelContainer->mainContext())
    , m_planning(m_sharedModelContainer->mainContext(), m_timerService, m_soundService, platform.clock())
    , m_planningCommands(m_deepWorkScreen, m_sharedModelContainer->mainContext(), *m_planning.exchange(),
                         platform.clock())
    , m_stats(m_sharedModelContainer->mainContext(), m_sharedModelContainer->storeFile(), m_timerService,
              platform.clock(),
              [this](const QString& text, std::function<void()> takeBack) {
                  m_planning.edits()->offerUndo(text, std::move(takeBack));
              })
    , m_statsReporter(m_stats.records(), m_timerService, m_sharedModelContainer->mainContext())
    , m_blockLists(platform.applications(), platform.workspace(), AppBlockerService::shared(),
                   platform.preferences())
    , m_busAvailability(Availability::available())
    , m_storeAvailability(Availability::available())
    , m_extensionAvailability(Availability::available())
    , m_browserHealth(platform.browserAccess(), AppBlockerService::shared(), platform.preferences())
    , m_backupService(platform.clock(), m_sharedModelContainer->storeFile())
    , m_health(platformHealthChecks(platform, m_browserHealth)
               << TrackingHealthModel::Check{QStringLiteral("health_session_bus"),
                                             [this] { return m_busAvailability; }}
               << TrackingHealthModel::Check{QStringLiteral("health_store"),
                                             [this] { return m_storeAvailability; }}
               << TrackingHealthModel::Check{QStringLiteral("health_backup"),
                                             [this] { return m_backupService.availability(); }})
    , m_dataSettings(m_backupService, m_sharedModelContainer->opening(), m_timerService,
                     platform.preferences())
    , m_updater(UpdaterService::shared())
    , m_feedbackForm(FeedbackForm::builtInBaseUrl(), platform.preferences(), platform.clock())
    , m_outsideServices(m_updater, m_feedbackForm, LicenseService::shared())
    , m_preferencesScreen(platform.preferences(), m_tickSoundSettings)
    , m_welcome({.preferences = platform.preferences(),
                 .localization = m_localization,
                 .browsers = platform.browserAccess(),
                 .blockLists = m_blockLists,
                 .deepWork = m_deepWorkScreen,
                 .storeFolder = QFileInfo(m_sharedModelContainer->storeFile()).path()})
    , m_palette(m_actions, m_planning, m_sharedModelContainer->mainContext())
    , m_userInterface(std::move(engine),
                      {.deepWork = m_deepWorkScreen,
                       .planning = m_planning,
                       .stats = m_stats,
                       .tickSounds = m_tickSoundSettings,
                       .blockLists = m_blockLists,
                       .health = m_health,
                       .preferences = m_preferencesScreen,
                       .welcome = m_welcome,
                       .actions = m_actions,
                       .palette = m_palette},
                      m_localization)
    , m_busService(sessionBus(), m_deepWorkScreen, AppBlockerService::shared(), m_health) {
    // More interfaces of the same object on the bus, which owns them.
    new PlanningBusService(sessionBus(), m_planningCommands, &m_busService);
    new StatsBusService(sessionBus(), m_statsReporter, &m_busService);
    m_blockLists.setBrowserHealth(&m_browserHealth);
    followStore();
    followPlatform();
    followPreferences();
    followOutsideServices();
}

NorvinFocusApp::~NorvinFocusApp() {
    // The alert outlives what its windows are made by.
    m_alertWindows.setContent(nullptr, nullptr);
}

bool NorvinFocusApp::launch() {
    m_appDelegate.applicationDidFinishLaunching();
    welcomeAtFirstLaunch();
    m_userInterface.setCoach(m_coachService);
    m_userInterface.engine().setApplications(m_platform.applications());
    if (!m_userInterface.load())
        return false;
    m_userInterface.rememberGeometry(m_platform.preferences(), m_platform.clock());
    m_alertWindows.setContent(&m_userInterface.engine(), &BrowserAlertService::shared().model());
    m_coachBubble =
        std::make_unique<CoachBubble>(CoachBubble::Collaborators{.coach = m_coachService,
                                                                 .support = m_platform.overlays(),
                                                                 .notifications = m_platform.notifications(),
                                                                 .clock = m_platform.clock(),
                                                                 .engine = m_userInterface.engine(),
                                                                 .mainWindow = *m_userInterface.window()});
    makeMenuBarExtra();
    wireServices();
    m_busService.setShowWindow([this] { showWindow(); });
    m_busAvailability = m_busService.publish();
    m_extensionAvailability = m_platform.listenToExtensions();
    m_health.refresh();
    // Not asked at the start, which has no time for other programs.
    m_health.setPassingChecks(browserHealthRow, [this] { return passingHealthChecks(); });
    connect(&m_userInterface, &UserInterface::quitRequested, this, &NorvinFocusApp::quit);
    connect(qApp, &QCoreApplication::aboutToQuit, &AppUsageService::shared(),
            &AppUsageService::applicationWillTerminate);
    return true;
}

void NorvinFocusApp::makeMenuBarExtra() {
    m_menuBarExtra =
        std::make_unique<MenuBarExtra>(MenuBarExtra::Collaborators{.item = m_platform.statusItem(),
                                                                   .timer = m_timerService,
                                                                   .deepWork = m_deepWorkScreen,
                                                                   .preferences = m_platform.preferences(),
                                                                   .support = m_platform.overlays(),
                                                                   .clock = m_platform.clock(),
                                                                   .engine = m_userInterface.engine(),
                                                                   .localization = m_localization,
                                                                   .actions = m_actions,
                                                                   .mainWindow = *m_userInterface.window(),
                                                                   .ambientSound = &m_ambientService});
    connect(m_menuBarExtra.get(), &MenuBarExtra::windowWanted, this, &NorvinFocusApp::showWindow);
    // The window comes first.
    m_trayDelay = m_platform.clock().after(trayDelay, [this] { m_menuBarExtra->show(); });
}

void NorvinFocusApp::welcomeAtFirstLaunch() {
    const ModelContext& context = m_sharedModelContainer->mainContext();
    const bool isEmpty = context.projects().empty() && context.tasks().empty();
    if (!isEmpty || !WelcomeScreen::isFirstLaunch(m_platform.preferences()))
        return;
    if (const auto language = languageForDesktop(QLocale::system().uiLanguages()))
        m_localization.preview(*language);
    connect(&m_userInterface, &UserInterface::firstFrameShown, &m_welcome, &WelcomeScreen::present);
}

void NorvinFocusApp::wireServices() {
    ModelContext& context = m_sharedModelContainer->mainContext();
    m_timerService.setModelContext(&context);
    m_timerService.setTickSoundService(&m_tickSoundService);
    AppUsageService::shared().setModelContext(&context);
    m_coachService.setupSubscriptions(m_interruptions);
}

void NorvinFocusApp::followStore() {
    ModelContext& context = m_sharedModelContainer->mainContext();
    connect(&context, &ModelContext::saveFailed, this, [this](const StoreError& error) {
        m_userInterface.setStoreProblem(error.description);
        m_storeAvailability =
            Availability::unavailable(QStringLiteral("health_store_unsaved"), error.description);
        m_health.refresh();
    });
    connect(&context, &ModelContext::saved, this, [this] {
        if (m_storeAvailability.isAvailable())
            return;
        m_userInterface.setStoreProblem({});
        m_storeAvailability = Availability::available();
        m_health.refresh();
    });
}

void NorvinFocusApp::followPlatform() {
    const auto refresh = [this] { m_health.refresh(); };
    connect(&m_platform.workspace(), &Workspace::availabilityChanged, this, refresh);
    connect(&m_platform.sleepMonitor(), &SleepMonitor::availabilityChanged, this, refresh);
    // Midnight may have passed meanwhile.
    connect(&m_platform.sleepMonitor(), &SleepMonitor::didWake, &m_planning, &PlanningScreens::refresh);
    connect(&m_platform.sleepMonitor(), &SleepMonitor::didWake, &m_stats, &StatsScreen::refreshDay);
    connect(&m_platform.notifications(), &UserNotifications::availabilityChanged, this, refresh);
    connect(&m_platform.statusItem(), &StatusItem::availabilityChanged, this, refresh);
    connect(&m_platform.sounds(), &SystemSounds::availabilityChanged, this, refresh);
    connect(&m_platform.audioOutput(), &AudioOutput::availabilityChanged, this, refresh);
    connect(&m_platform.soundStream(), &SoundStream::availabilityChanged, this, refresh);
    connect(&m_platform.preferences(), &Preferences::availabilityChanged, this, refresh);
    connect(&m_browserHealth, &BrowserHealth::changed, this, &NorvinFocusApp::refreshHealthSoon);
    connect(&m_browserHealth, &BrowserHealth::noticed, &m_health, &TrackingHealthModel::setNotice);
    connect(&m_platform.notifications(), &UserNotifications::activated, this, &NorvinFocusApp::showWindow);
    connect(&m_userInterface, &UserInterface::windowClosedWhileRunning, this, [this] {
        m_platform.notifications().post(qtTrId("window_closed_running_title"),
                                        qtTrId("window_closed_running_body"));
    });
}

void NorvinFocusApp::followPreferences() {
    m_preferencesScreen.setCompanions({.autostart = &m_platform.autostart(),
                                       .overlays = &m_platform.overlays(),
                                       .ambientSounds = &m_ambientService,
                                       .immersion = &ImmersionService::shared(),
                                       .outside = &m_outsideServices,
                                       .data = &m_dataSettings});
    connect(&m_platform.sleepMonitor(), &SleepMonitor::didWake, &m_backupService, &BackupService::handleWake);
    connect(&m_backupService, &BackupService::availabilityChanged, this, [this] { m_health.refresh(); });
    connect(&m_dataSettings, &DataSettings::restartWanted, this, [this] {
        m_isRestartWanted = true;
        quit();
    });
    m_backupService.start();
}

void NorvinFocusApp::followOutsideServices() {
    m_actions.add({.id = QStringLiteral("check_for_updates"),
                   .titleKey = QStringLiteral("check_for_updates"),
                   .symbol = QStringLiteral("arrow.down.circle"),
                   .isEnabled = [this] { return m_updater.canCheckForUpdates(); },
                   .run = [this] { m_updater.checkForUpdates(); }});
    connect(&m_updater, &UpdaterService::canCheckForUpdatesChanged, &m_actions,
            &WindowActions::notifyChanged);
    m_actions.add({.id = QStringLiteral("send_feedback"),
                   .titleKey = QStringLiteral("action_send_feedback"),
                   .symbol = QStringLiteral("envelope"),
                   .isOffered = [this] { return m_feedbackForm.isAvailable(); },
                   .run = [this] { m_feedbackForm.present(); }});
    connect(&m_feedbackForm, &FeedbackForm::isAvailableChanged, &m_actions, &WindowActions::notifyChanged);

    LicenseService& license = LicenseService::shared();
    m_deepWorkScreen.setStartGate([&license] { return license.refusal(); });
    connect(&license, &LicenseService::changed, &m_deepWorkScreen, &DeepWorkScreen::refreshStartGate);
    connect(&m_deepWorkScreen, &DeepWorkScreen::gateHelpWanted, &license, &LicenseService::present);
    connect(&m_deepWorkScreen, &DeepWorkScreen::gateHelpWanted, this, &NorvinFocusApp::showWindow);
}

// What browsers say comes in bursts, and in the midst of asking them.
void NorvinFocusApp::refreshHealthSoon() {
    if (m_healthRefresh)
        return;
    m_healthRefresh = m_platform.clock().after(healthRefreshDelay, [this] {
        m_healthRefresh.reset();
        m_health.refresh();
        m_browserHealth.refreshBanner();
    });
}

QList<TrackingHealthModel::Check> NorvinFocusApp::passingHealthChecks() {
    QList<TrackingHealthModel::Check> checks = m_browserHealth.browserChecks();
    if (!m_extensionAvailability.isAvailable()) {
        checks.append({QStringLiteral("health_extensions"), [this] { return m_extensionAvailability; }});
    }
    return checks;
}

void NorvinFocusApp::showWindow() {
    LicenseService::shared().refresh();
    m_planning.refresh();
    m_stats.refreshDay();
    m_userInterface.showWindow();
}

QString NorvinFocusApp::menuBarIconName() const {
    return phaseSymbol(m_timerService.state(), m_timerService.phase());
}

void NorvinFocusApp::quit() {
    QCoreApplication::quit();
}

} // namespace norvin
