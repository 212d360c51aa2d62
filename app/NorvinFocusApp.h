#pragma once

#include "app/AppDelegate.h"
#include "app/FocusBusService.h"
#include "app/PlanningCommands.h"
#include "app/StatsReporter.h"
#include "distraction/AICoachService.h"
#include "distraction/BlockListsScreen.h"
#include "distraction/BrowserHealth.h"
#include "distraction/TrackingHealthModel.h"
#include "focus/DeepWorkScreen.h"
#include "focus/PomodoroTimerService.h"
#include "focus/SessionAmbience.h"
#include "focus/TimerInterruptions.h"
#include "model/ModelContainer.h"
#include "planning/PlanningScreens.h"
#include "services/FeedbackForm.h"
#include "services/OutsideServices.h"
#include "services/UpdaterService.h"
#include "settings/BackupService.h"
#include "settings/DataSettings.h"
#include "settings/PreferencesScreen.h"
#include "sound/AmbientSoundService.h"
#include "sound/SoundService.h"
#include "sound/TickSoundService.h"
#include "sound/TickSoundSettings.h"
#include "stats/StatsScreen.h"
#include "ui/Localization.h"
#include "ui/UserInterface.h"
#include "ui/alert/AlertWindows.h"
#include "ui/coach/CoachBubble.h"
#include "ui/panel/MenuBarExtra.h"
#include "ui/shell/CommandPalette.h"
#include "ui/shell/WindowActions.h"
#include "ui/welcome/WelcomeScreen.h"

#include <QObject>
#include <QString>

#include <memory>

namespace norvin {

class InterfaceEngine;
class LinuxPlatform;

/// The application: owns the store and the services, and puts them together. The only place, with main(),
/// that knows the concrete platform. Main thread only.
class NorvinFocusApp final : public QObject {
    Q_OBJECT
public:
    /// @param platform must outlive the application
    /// @param container the open store
    NorvinFocusApp(LinuxPlatform& platform, std::unique_ptr<ModelContainer> container,
                   std::unique_ptr<InterfaceEngine> engine);
    ~NorvinFocusApp() override;

    /// Builds the window and the bus face. @return false where the window cannot be built; the reason is
    /// logged
    [[nodiscard]] bool launch();
    void showWindow();
    [[nodiscard]] UserInterface& userInterface() { return m_userInterface; }
    /// Whether the program is to be started again when it has ended.
    [[nodiscard]] bool isRestartWanted() const { return m_isRestartWanted; }

    /// Name of the symbol that stands for the timer's state and phase.
    [[nodiscard]] QString menuBarIconName() const;

private:
    /// Says how the process-wide services are made, and ends them after everything that uses them.
    class SharedServices final {
    public:
        /// @param storeFile empty for a store in memory
        SharedServices(LinuxPlatform& platform, AlertOverlay& alert, const QString& storeFile);
        SharedServices(const SharedServices&) = delete;
        SharedServices& operator=(const SharedServices&) = delete;
        ~SharedServices();
    };

    void welcomeAtFirstLaunch();
    void wireServices();
    void followStore();
    void followPlatform();
    void followPreferences();
    void followOutsideServices();
    void makeMenuBarExtra();
    void refreshHealthSoon();
    [[nodiscard]] QList<TrackingHealthModel::Check> passingHealthChecks();
    void quit();

    LinuxPlatform& m_platform;
    // In the order in which they are made; what stands below uses what stands above.
    AppDelegate m_appDelegate;
    std::unique_ptr<ModelContainer> m_sharedModelContainer;
    Localization m_localization;
    AlertWindows m_alertWindows;
    SharedServices m_sharedServices;
    SoundService m_soundService;
    AmbientSoundService m_ambientService;
    TickSoundService m_tickSoundService;
    TickSoundSettings m_tickSoundSettings;
    PomodoroTimerService m_timerService;
    TimerInterruptions m_interruptions;
    SessionAmbience m_sessionAmbience;
    AICoachService m_coachService;
    DeepWorkScreen m_deepWorkScreen;
    PlanningScreens m_planning;
    PlanningCommands m_planningCommands;
    StatsScreen m_stats;
    StatsReporter m_statsReporter;
    BlockListsScreen m_blockLists;
    Availability m_busAvailability;
    Availability m_storeAvailability;
    Availability m_extensionAvailability;
    BrowserHealth m_browserHealth;
    BackupService m_backupService;
    TrackingHealthModel m_health;
    DataSettings m_dataSettings;
    UpdaterService& m_updater;
    FeedbackForm m_feedbackForm;
    OutsideServices m_outsideServices;
    PreferencesScreen m_preferencesScreen;
    WelcomeScreen m_welcome;
    WindowActions m_actions{nullptr};
    CommandPalette m_palette;
    UserInterface m_userInterface;
    std::unique_ptr<CoachBubble> m_coachBubble;
    std::unique_ptr<MenuBarExtra> m_menuBarExtra;
    FocusBusService m_busService;
    std::unique_ptr<ClockTimer> m_healthRefresh;
    bool m_isRestartWanted = false;
    std::unique_ptr<ClockTimer> m_trayDelay;
};

/// The checks of the tracking-health panel that need nothing but the platform and its browsers, which must
/// outlive them. The checks of the browsers that run belong at browserHealthRow.
[[nodiscard]] QList<TrackingHealthModel::Check> platformHealthChecks(LinuxPlatform& platform,
                                                                     BrowserHealth& browsers);
inline constexpr int browserHealthRow = 2;

} // namespace norvin
