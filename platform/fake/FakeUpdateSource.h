#pragma once

#include "platform/UpdateSource.h"

namespace norvin {

/// A software service that finds what a test says, when it says so.
class FakeUpdateSource final : public UpdateSource {
    Q_OBJECT
public:
    using UpdateSource::UpdateSource;

    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] bool canCheckForUpdates() const override {
        return m_availability.isAvailable() && !m_isChecking;
    }
    void checkForUpdates() override {
        if (!canCheckForUpdates())
            return;
        m_isChecking = true;
        Q_EMIT changed();
    }
    [[nodiscard]] bool canOpenSoftwareCentre() const override { return hasSoftwareCentre; }
    void openSoftwareCentre() override { ++opened; }

    /// Ends the look that runs, or tells of an update unasked.
    void finish(const UpdateResult& result) {
        m_isChecking = false;
        Q_EMIT changed();
        Q_EMIT checked(result);
    }
    void setAvailability(const Availability& availability) {
        m_availability = availability;
        Q_EMIT changed();
    }

    bool hasSoftwareCentre = true;
    int opened = 0;

private:
    Availability m_availability = Availability::available();
    bool m_isChecking = false;
};

} // namespace norvin
