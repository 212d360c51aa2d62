#pragma once

#include "platform/ApplicationCatalog.h"

namespace norvin {

/// A machine with the applications that a test installs.
class FakeApplicationCatalog final : public ApplicationCatalog {
public:
    [[nodiscard]] std::vector<InstalledApplication> installedApplications() const override;
    [[nodiscard]] std::optional<InstalledApplication>
    application(const QString& bundleIdentifier) const override;
    [[nodiscard]] bool isOwnApplicationInstalled() const override { return m_ownApplicationInstalled; }

    /// Adds an application, or replaces the one with the same identifier.
    void install(const InstalledApplication& application);
    void uninstall(const QString& bundleIdentifier);
    void setOwnApplicationInstalled(bool installed) { m_ownApplicationInstalled = installed; }

private:
    std::vector<InstalledApplication> m_applications;
    bool m_ownApplicationInstalled = true;
};

} // namespace norvin
