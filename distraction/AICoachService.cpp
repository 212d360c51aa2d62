#include "distraction/AICoachService.h"

#include "distraction/AppBlockerService.h"
#include "distraction/SessionInterruptions.h"
#include "platform/Clock.h"

#include <QRandomGenerator>

#include <array>
#include <utility>

namespace norvin {

AICoachService::AICoachService(Clock& clock, AppBlockerService& blocker, QObject* parent)
    : AICoachService(
          clock, blocker, [](int bound) { return QRandomGenerator::system()->bounded(bound); }, parent) {}

AICoachService::AICoachService(Clock& clock, AppBlockerService& blocker, RandomNumber random, QObject* parent)
    : QObject(parent)
    , m_clock(clock)
    , m_blocker(blocker)
    , m_random(std::move(random)) {}

AICoachService::~AICoachService() = default;

void AICoachService::setupSubscriptions(SessionInterruptions& timerService) {
    connect(&m_blocker, &AppBlockerService::blockedAppAttempt, this, &AICoachService::handleDistraction);
    connect(&timerService, &SessionInterruptions::sessionInterrupted, this,
            &AICoachService::handleSessionInterruption);
}

QString AICoachService::latestText() const {
    return m_messages.isEmpty() ? QString() : m_messages.constLast().text;
}

void AICoachService::handleDistraction(const QString& appName) {
    const std::array texts{qtTrId("coach_distraction_1"), qtTrId("coach_distraction_2"),
                           qtTrId("coach_distraction_3")};
    warn(texts.at(static_cast<size_t>(m_random(static_cast<int>(texts.size())))).arg(appName));
}

void AICoachService::handleSessionInterruption(const QString& reason) {
    if (reason == QLatin1String("pause"))
        warn(qtTrId("coach_interrupt_pause"));
    else if (reason == QLatin1String("inactivity"))
        warn(qtTrId("coach_interrupt_inactivity"));
    else
        warn(qtTrId("coach_interrupt_abandoned"));
}

void AICoachService::warn(const QString& text) {
    addMessage({.text = text, .timestamp = m_clock.now(), .type = CoachMessage::MessageType::warning});
}

void AICoachService::addMessage(const CoachMessage& message) {
    if (m_messages.size() == mostMessages)
        m_messages.removeFirst();
    m_messages.append(message);
    m_hideTimer = m_clock.after(visibleFor, [this] { dismissMessage(); });
    Q_EMIT messagesChanged();
    setVisible(true);
}

void AICoachService::dismissMessage() {
    m_hideTimer.reset();
    setVisible(false);
}

void AICoachService::setVisible(bool visible) {
    if (visible == m_isVisible)
        return;
    m_isVisible = visible;
    Q_EMIT isVisibleChanged();
}

} // namespace norvin
