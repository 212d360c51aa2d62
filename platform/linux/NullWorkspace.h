#pragma once

#include "platform/SleepMonitor.h"
#include "platform/Workspace.h"

namespace norvin {

/// A desktop that cannot be watched, for a reason that stays. Sleep is passed on, and own windows come to the
/// front as far as Qt's own request goes.
class NullWorkspace final : public Workspace {
    Q_OBJECT
public:
    NullWorkspace(const Availability& reason, SleepMonitor& sleep, QObject* parent = nullptr);

    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] std::optional<RunningApplication> frontmostApplication() const override { return {}; }
    [[nodiscard]] std::optional<QString> frontmostWindowTitle() const override { return {}; }
    [[nodiscard]] std::vector<RunningApplication> runningApplications() const override { return {}; }
    void hide(const RunningApplication& application) override { Q_UNUSED(application) }
    void activateOwnApplication() override;

private:
    Availability m_availability;
};

} // namespace norvin
