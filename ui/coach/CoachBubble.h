#pragma once

#include <QObject>
#include <QUuid>

#include <memory>

class QQuickWindow;

namespace norvin {

class AICoachService;
class Clock;
class ClockTimer;
class InterfaceEngine;
class OverlaySupport;
class OverlayWindow;
class UserNotifications;

/// Shows the coach's message at the edge of the screen while the Deep Work screen, where it belongs, is not
/// in front; where the desktop has no overlays, in a notification. Main thread only.
class CoachBubble final : public QObject {
    Q_OBJECT
public:
    /// What it works with; all of it must outlive the bubble.
    struct Collaborators {
        AICoachService& coach;
        const OverlaySupport& support;
        UserNotifications& notifications;
        Clock& clock;
        InterfaceEngine& engine;
        QQuickWindow& mainWindow;
    };

    explicit CoachBubble(const Collaborators& collaborators, QObject* parent = nullptr);
    ~CoachBubble() override;

    /// Null while nothing is shown.
    [[nodiscard]] OverlayWindow* window() const { return m_window.get(); }

private Q_SLOTS:
    void update();

private:
    [[nodiscard]] bool isWanted() const;
    void appear();
    void notify();
    void place();

    Collaborators m_with;
    std::unique_ptr<OverlayWindow> m_window;
    std::unique_ptr<ClockTimer> m_appearing;
    QUuid m_notified; // the last message that a notification told
};

} // namespace norvin
