#pragma once

#include <QObject>
#include <QPoint>
#include <QRect>

#include <chrono>
#include <memory>
#include <optional>

class QQuickWindow;

namespace norvin {

class AmbientSoundService;
class Clock;
class DeepWorkScreen;
class FloatingTimer;
class InterfaceEngine;
class OverlaySupport;

/// The panel that a click on the item in the tray opens: the timer with its controls, the queue, the ambient
/// sound. It stands at the item where windows can be placed, and goes when it is left; elsewhere it is a
/// small window like any other. Main thread only.
class TrayPanel final : public QObject {
    Q_OBJECT
public:
    /// What it works with; all of it must outlive the panel.
    struct Collaborators {
        DeepWorkScreen& deepWork;
        FloatingTimer& floatingTimer;
        /// Says whether windows can be placed.
        const OverlaySupport& support;
        Clock& clock;
        InterfaceEngine& engine;
        /// Null for no part with the ambient sound.
        AmbientSoundService* ambientSound = nullptr;
    };

    explicit TrayPanel(const Collaborators& collaborators, QObject* parent = nullptr);
    ~TrayPanel() override;

    /// Null while it is closed.
    [[nodiscard]] QQuickWindow* window() const { return m_window.get(); }

    /// Opens the panel, or closes it. @param position what was clicked, on the desktop in the pixels of the
    /// screen; none where there is no such place, so that it is a window like any other
    void toggle(std::optional<QPoint> position = std::nullopt);
    Q_INVOKABLE void close();
    /// Has the main window shown in its place.
    Q_INVOKABLE void leaveForWindow();

Q_SIGNALS:
    void windowWanted();

private:
    void open(std::optional<QPoint> position);
    void place(const QPoint& position);
    void onActiveChanged();

    Collaborators m_with;
    std::unique_ptr<QQuickWindow> m_window;
    /// Closed from within itself, perhaps, so that it is there a moment longer.
    std::unique_ptr<QQuickWindow> m_leaving;
    std::optional<std::chrono::milliseconds> m_leftAt;
    bool m_wasActive = false;
};

/// Where a panel stands for a click at that position: beside the edge of the screen that the click was nearer
/// to, above or below, in the middle of it as far as there is room.
/// @param screen the whole screen, available what of it is free
[[nodiscard]] QRect panelPlace(const QSize& size, const QPoint& position, const QRect& screen,
                               const QRect& available);

} // namespace norvin
