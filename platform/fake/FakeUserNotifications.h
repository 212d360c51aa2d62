#pragma once

#include "platform/UserNotifications.h"

#include <vector>

namespace norvin {

/// Keeps what was posted.
class FakeUserNotifications final : public UserNotifications {
    Q_OBJECT
public:
    struct Notification {
        QString title;
        QString body;

        bool operator==(const Notification&) const = default;
    };

    using UserNotifications::UserNotifications;

    [[nodiscard]] Availability availability() const override { return m_availability; }
    void post(const QString& title, const QString& body) override {
        if (m_availability.isAvailable())
            m_posted.push_back({title, body});
    }

    [[nodiscard]] const std::vector<Notification>& posted() const { return m_posted; }
    void emitActivated() { Q_EMIT activated(); }
    /// Emits availabilityChanged() on a change.
    void setAvailability(const Availability& availability) {
        if (m_availability == availability)
            return;
        m_availability = availability;
        Q_EMIT availabilityChanged();
    }

private:
    Availability m_availability = Availability::available();
    std::vector<Notification> m_posted;
};

} // namespace norvin
