#pragma once

#include "platform/SystemSounds.h"

#include <memory>

namespace norvin {

/// The desktop's own event sounds through libcanberra, which may block for many seconds on a sound server
/// that hangs: all of it runs on one worker thread. Sounds that could not be started within two seconds are
/// dropped. After a failure unavailable with "health_no_sound_server", or "health_no_sound_theme" where the
/// server works and the sound does not exist, until a sound succeeds.
class CanberraSounds final : public SystemSounds {
    Q_OBJECT
public:
    explicit CanberraSounds(QObject* parent = nullptr);
    /// Waits for a quarter of a second at most; a worker that hangs is left behind.
    ~CanberraSounds() override;

    [[nodiscard]] Availability availability() const override { return m_availability; }
    void play(const QString& name, double volume) override;
    void beep() override;

    /// Whether the server answers, found out in the background without a sound.
    void probe();

private:
    struct Worker;

    void setAvailability(const Availability& availability);

    Availability m_availability = Availability::available();
    // Shared with the thread, which may outlive this object.
    std::shared_ptr<Worker> m_worker;
};

} // namespace norvin
