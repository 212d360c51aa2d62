#include "platform/fake/FakeWorkspace.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace norvin {

std::optional<RunningApplication> FakeWorkspace::frontmostApplication() const {
    return m_availability.isAvailable() ? m_frontmost : std::nullopt;
}

std::optional<QString> FakeWorkspace::frontmostWindowTitle() const {
    return m_availability.isAvailable() && m_frontmost ? m_frontmostWindowTitle : std::nullopt;
}

std::vector<RunningApplication> FakeWorkspace::runningApplications() const {
    return m_availability.isAvailable() ? m_running : std::vector<RunningApplication>();
}

void FakeWorkspace::hide(const RunningApplication& application) {
    if (m_availability.isAvailable())
        m_hiddenApplications.push_back(application);
}

void FakeWorkspace::activateOwnApplication() {
    ++m_ownActivations;
}

RunningApplication FakeWorkspace::makeApplication(const QString& bundleIdentifier, const QString& name,
                                                  std::optional<QString> declaredCategory) {
    RunningApplication application;
    application.bundleIdentifier = bundleIdentifier;
    application.localizedName = name;
    application.declaredCategory = std::move(declaredCategory);
    application.processId = 1000 + static_cast<qint64>(qHash(bundleIdentifier, 0) % 30'000);
    return application;
}

void FakeWorkspace::setFrontmost(const RunningApplication& application) {
    if (std::find(m_running.begin(), m_running.end(), application) == m_running.end())
        m_running.push_back(application);
    if (m_frontmost == application)
        return;
    m_frontmost = application;
    if (m_availability.isAvailable())
        Q_EMIT applicationActivated(application);
}

void FakeWorkspace::clearFrontmost() {
    if (!m_frontmost)
        return;
    m_frontmost.reset();
    if (m_availability.isAvailable())
        Q_EMIT frontmostApplicationLost();
}

void FakeWorkspace::setRunningApplications(std::vector<RunningApplication> applications) {
    m_running = std::move(applications);
}

void FakeWorkspace::setAvailability(const Availability& availability) {
    if (m_availability == availability)
        return;
    const bool wasAvailable = std::exchange(m_availability, availability).isAvailable();
    Q_EMIT availabilityChanged();
    if (!m_frontmost || wasAvailable == availability.isAvailable())
        return;
    if (wasAvailable)
        Q_EMIT frontmostApplicationLost();
    else
        Q_EMIT applicationActivated(*m_frontmost);
}

} // namespace norvin
