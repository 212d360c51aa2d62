#pragma once

#include "distraction/CoachMessage.h"

#include <QList>
#include <QObject>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>

namespace norvin {

class AppBlockerService;
class Clock;
class ClockTimer;
class SessionInterruptions;

/// Answers distractions and interruptions with a short message, which stays up for a while. Main thread only.
class AICoachService final : public QObject {
    Q_OBJECT
    /// Whether the latest message is to be seen.
    Q_PROPERTY(bool isVisible READ isVisible NOTIFY isVisibleChanged)
    /// Text of the latest message; empty before the first one.
    Q_PROPERTY(QString latestText READ latestText NOTIFY messagesChanged)
public:
    static constexpr std::chrono::seconds visibleFor{8};
    /// Older messages are forgotten.
    static constexpr int mostMessages = 50;

    /// A number from 0 to bound - 1, each as likely as the others.
    using RandomNumber = std::function<int(int bound)>;

    /// Chance comes from the operating system. All references must outlive this.
    AICoachService(Clock& clock, AppBlockerService& blocker, QObject* parent = nullptr);
    AICoachService(Clock& clock, AppBlockerService& blocker, RandomNumber random, QObject* parent = nullptr);
    ~AICoachService() override;

    /// To be called once: from then on the coach hears of blocked applications and interruptions.
    void setupSubscriptions(SessionInterruptions& timerService);

    /// The oldest first.
    [[nodiscard]] const QList<CoachMessage>& messages() const { return m_messages; }
    [[nodiscard]] QString latestText() const;
    [[nodiscard]] bool isVisible() const { return m_isVisible; }

    /// Shows a message until 8 seconds later, or until the next one has been there as long.
    void addMessage(const CoachMessage& message);
    /// Takes the message away; it stays in the list.
    Q_INVOKABLE void dismissMessage();

Q_SIGNALS:
    void messagesChanged();
    void isVisibleChanged();

private:
    void handleDistraction(const QString& appName);
    void handleSessionInterruption(const QString& reason);
    void warn(const QString& text);
    void setVisible(bool visible);

    Clock& m_clock;
    AppBlockerService& m_blocker;
    RandomNumber m_random;
    QList<CoachMessage> m_messages;
    std::unique_ptr<ClockTimer> m_hideTimer;
    bool m_isVisible = false;
};

} // namespace norvin
