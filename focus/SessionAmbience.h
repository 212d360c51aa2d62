#pragma once

#include <QObject>

namespace norvin {

class AmbientSoundService;
class ImmersionService;
class PomodoroTimerService;

/// Has the ambient sound and the immersion follow the focus timer: both belong to a running work phase. Main
/// thread only.
class SessionAmbience final : public QObject {
    Q_OBJECT
public:
    /// All three must outlive this.
    SessionAmbience(PomodoroTimerService& timer, AmbientSoundService& sound, ImmersionService& immersion,
                    QObject* parent = nullptr);

private:
    [[nodiscard]] bool isWorkRunning() const;
    void followState();
    void followTime();

    PomodoroTimerService& m_timer;
    AmbientSoundService& m_sound;
    ImmersionService& m_immersion;
};

} // namespace norvin
