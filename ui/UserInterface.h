#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QQuickWindow;

namespace norvin {

class AICoachService;
class BlockListsScreen;
class Clock;
class CommandPalette;
class DeepWorkScreen;
class InterfaceEngine;
class Localization;
class MotionPreference;
class PlanningScreens;
class Preferences;
class PreferencesScreen;
class StatsScreen;
class TickSoundSettings;
class TrackingHealthModel;
class WelcomeScreen;
class WindowActions;
class WindowGeometry;

/// The main window and what is behind it. Needs a QGuiApplication that does not quit by itself when its last
/// window closes. Main thread only.
///
/// Closing the window during a session only hides it. Otherwise closing it, like Ctrl+Q, asks to quit; what
/// quitting means is decided by whoever listens.
class UserInterface final : public QObject {
    Q_OBJECT
    /// What is wrong with the store, shown as a banner for as long as it is not empty.
    Q_PROPERTY(QString storeProblem READ storeProblem WRITE setStoreProblem NOTIFY storeProblemChanged)
public:
    /// What the window shows.
    struct Screens {
        DeepWorkScreen& deepWork;
        PlanningScreens& planning;
        StatsScreen& stats;
        TickSoundSettings& tickSounds;
        BlockListsScreen& blockLists;
        TrackingHealthModel& health;
        PreferencesScreen& preferences;
        WelcomeScreen& welcome;
        /// The window adds those of its own.
        WindowActions& actions;
        CommandPalette& palette;
    };
    /// Everything given by reference must outlive this.
    UserInterface(std::unique_ptr<InterfaceEngine> engine, const Screens& screens, Localization& localization,
                  QObject* parent = nullptr);
    ~UserInterface() override;

    /// Whose messages the Deep Work screen shows, to be said before load(). @param coach must outlive this
    void setCoach(AICoachService& coach) { m_coach = &coach; }
    /// Lives as long as this.
    [[nodiscard]] InterfaceEngine& engine() { return *m_engine; }

    /// Builds the window, hidden. @return whether it is there; a failure is logged
    [[nodiscard]] bool load();
    /// Puts the window where it was when the program ran last, and remembers where it goes. To be called
    /// once, between load() and showWindow(). Both must outlive this
    void rememberGeometry(Preferences& preferences, Clock& clock);
    /// Brings the window to the front, from wherever it is.
    void showWindow();
    /// Null before load() and after it failed.
    [[nodiscard]] QQuickWindow* window() const { return m_window.get(); }

    [[nodiscard]] const QString& storeProblem() const { return m_storeProblem; }

    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    void setStoreProblem(const QString& text);

Q_SIGNALS:
    void storeProblemChanged();
    void quitRequested();
    /// The window was closed, and the session goes on without it.
    void windowClosedWhileRunning();
    /// The window's first picture is on the screen; sent once.
    void firstFrameShown();

private Q_SLOTS:
    void quit();

private:
    [[nodiscard]] bool isPhaseUnderWay() const;
    void addActions();

    Screens m_screens;
    Localization& m_localization;
    AICoachService* m_coach = nullptr;
    std::unique_ptr<MotionPreference> m_motion;
    std::unique_ptr<InterfaceEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<WindowGeometry> m_geometry;
    QString m_storeProblem;
    bool m_isQuitting = false;
};

} // namespace norvin
