#pragma once

#include "platform/Workspace.h"

namespace norvin {

/// A desktop that a test arranges by hand. Setters change what is answered; signals are emitted where the
/// setter says so.
class FakeWorkspace final : public Workspace {
    Q_OBJECT
public:
    using Workspace::Workspace;

    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] std::optional<RunningApplication> frontmostApplication() const override;
    [[nodiscard]] std::optional<QString> frontmostWindowTitle() const override;
    [[nodiscard]] std::vector<RunningApplication> runningApplications() const override;
    /// Recorded in hiddenApplications(); the application stays in front until the test moves it.
    void hide(const RunningApplication& application) override;
    /// Counted in ownActivations(); the application in front stays until the test moves it.
    void activateOwnApplication() override;

    /// An application for tests, with a process id made from its identifier.
    [[nodiscard]] static RunningApplication makeApplication(const QString& bundleIdentifier,
                                                            const QString& name = {},
                                                            std::optional<QString> declaredCategory = {});

    /// Brings an application to the front, adds it to the running ones, and emits applicationActivated()
    /// unless it was in front already.
    void setFrontmost(const RunningApplication& application);
    /// Title of the window in front, whichever application it belongs to; none unless set.
    void setFrontmostWindowTitle(std::optional<QString> title) { m_frontmostWindowTitle = std::move(title); }
    /// Empties the front and emits frontmostApplicationLost() if it was not empty.
    void clearFrontmost();
    void setRunningApplications(std::vector<RunningApplication> applications);
    /// Emits availabilityChanged() on a change and, as a desktop does whose window manager ends or starts,
    /// frontmostApplicationLost() or applicationActivated() where an application is in front.
    void setAvailability(const Availability& availability);
    void emitWillSleep() { Q_EMIT willSleep(); }
    void emitDidWake() { Q_EMIT didWake(); }

    [[nodiscard]] const std::vector<RunningApplication>& hiddenApplications() const {
        return m_hiddenApplications;
    }
    [[nodiscard]] int ownActivations() const { return m_ownActivations; }

private:
    Availability m_availability = Availability::available();
    std::optional<RunningApplication> m_frontmost;
    std::optional<QString> m_frontmostWindowTitle;
    std::vector<RunningApplication> m_running;
    std::vector<RunningApplication> m_hiddenApplications;
    int m_ownActivations = 0;
};

} // namespace norvin
