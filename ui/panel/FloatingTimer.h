#pragma once

#include "platform/Availability.h"

#include <QList>
#include <QObject>
#include <QRect>
#include <QSizeF>

#include <memory>

class QQuickWindow;

namespace norvin {

class Clock;
class ClockTimer;
class DeepWorkScreen;
class InterfaceEngine;
class OverlaySupport;
class OverlayWindow;
class PomodoroTimerService;
class Preferences;

/// The time left, in a small window over all others, while a phase is under way and the main window is not
/// the active one. It never takes the keyboard. Its place is near the lower right corner of the primary
/// screen, moved by PomodoroTimerService::floatingOffset; it stays on the screens that there are. Main thread
/// only.
class FloatingTimer final : public QObject {
    Q_OBJECT
    /// On unless the user has chosen otherwise; kept under "floating_timer_enabled".
    Q_PROPERTY(bool isEnabled READ isEnabled WRITE setEnabled NOTIFY isEnabledChanged)
    /// Whether the desktop permits such a window.
    Q_PROPERTY(bool isAvailable READ isAvailable CONSTANT)
    /// Why not, and what to do, in the user's language; empty where it does.
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)
    Q_PROPERTY(bool isShown READ isShown NOTIFY isShownChanged)
public:
    static constexpr auto enabledKey = "floating_timer_enabled";
    /// "x y" in device-independent pixels, positive to the right and down.
    static constexpr auto offsetKey = "floating_timer_offset";

    /// What it works with; all of it must outlive the floating timer.
    struct Collaborators {
        PomodoroTimerService& timer;
        DeepWorkScreen& deepWork;
        Preferences& preferences;
        const OverlaySupport& support;
        Clock& clock;
        InterfaceEngine& engine;
        QQuickWindow& mainWindow;
    };

    explicit FloatingTimer(const Collaborators& collaborators, QObject* parent = nullptr);
    ~FloatingTimer() override;

    /// Unavailable with the reason of OverlaySupport.
    [[nodiscard]] Availability availability() const;
    [[nodiscard]] bool isAvailable() const { return availability().isAvailable(); }
    [[nodiscard]] QString problem() const;
    [[nodiscard]] bool isEnabled() const;
    void setEnabled(bool isEnabled);
    [[nodiscard]] bool isShown() const { return m_window != nullptr; }
    /// Null while it is not shown.
    [[nodiscard]] OverlayWindow* window() const { return m_window.get(); }

    /// Moves it by that much and keeps the place; the screens' edges stop it.
    Q_INVOKABLE void moveBy(int right, int down);
    // While it is dragged: where from, how far, and that it is let go, which keeps the place.
    Q_INVOKABLE void beginDrag();
    Q_INVOKABLE void dragTo(double right, double down);
    Q_INVOKABLE void endDrag();

    /// Gives the texts anew, for another language.
    void retranslate() { Q_EMIT problemChanged(); }

Q_SIGNALS:
    void isEnabledChanged();
    void isShownChanged();
    void problemChanged();

private Q_SLOTS:
    void update();
    void place();

private:
    [[nodiscard]] bool isWanted() const;
    void readOffset();
    void writeOffset();
    void followScreens();
    void appear();
    void disappear();

    Collaborators m_with;
    std::unique_ptr<OverlayWindow> m_window;
    std::unique_ptr<ClockTimer> m_appearing;
    QPoint m_dragStart;
};

/// Where the floating timer stands. @param home what of the primary screen is free
/// @param screens what of each screen is free, the primary one first; at least one
[[nodiscard]] QRect floatingPlace(const QSize& size, const QRect& home, const QSizeF& offset,
                                  const QList<QRect>& screens);
/// The offset that stands for a place.
[[nodiscard]] QSizeF floatingOffsetOf(const QRect& place, const QRect& home);

} // namespace norvin
