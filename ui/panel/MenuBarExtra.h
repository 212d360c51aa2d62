#pragma once

#include "platform/StatusItem.h"
#include "ui/panel/FloatingTimer.h"
#include "ui/panel/TrayPanel.h"

#include <QObject>

#include <optional>

namespace norvin {

class Localization;
class WindowActions;

/// What there is of the program beside its window: the item in the tray with its menu, the panel behind it,
/// and the floating timer. Main thread only.
class MenuBarExtra final : public QObject {
    Q_OBJECT
public:
    /// What it works with; all of it must outlive this.
    struct Collaborators {
        StatusItem& item;
        PomodoroTimerService& timer;
        DeepWorkScreen& deepWork;
        Preferences& preferences;
        const OverlaySupport& support;
        Clock& clock;
        InterfaceEngine& engine;
        Localization& localization;
        /// The menu offers some of them; this adds those that open the panel and switch the floating timer.
        WindowActions& actions;
        QQuickWindow& mainWindow;
        /// Null for a panel without the ambient sound.
        AmbientSoundService* ambientSound = nullptr;
    };

    explicit MenuBarExtra(const Collaborators& collaborators, QObject* parent = nullptr);
    ~MenuBarExtra() override;

    /// Puts the item into the tray, as soon as there is one.
    void show();
    [[nodiscard]] TrayPanel& panel() { return m_panel; }
    [[nodiscard]] FloatingTimer& floatingTimer() { return m_floatingTimer; }

Q_SIGNALS:
    /// The main window is to be shown.
    void windowWanted();

private:
    void addActions();
    void refresh();
    void countSecond();
    void refreshTexts();
    void refreshMenu();
    void choose(const QString& id);
    void openPanel(std::optional<QPoint> position);
    void appendAction(QList<StatusItem::MenuEntry>& entries, const char* id) const;
    [[nodiscard]] QString phaseText() const;
    [[nodiscard]] QString timeText() const;
    [[nodiscard]] int minutesLeft() const;

    Collaborators m_with;
    FloatingTimer m_floatingTimer;
    TrayPanel m_panel;
    StatusItem::Content m_content;
    int m_shownMinutes = 0;
    bool m_isShown = false;
};

} // namespace norvin
