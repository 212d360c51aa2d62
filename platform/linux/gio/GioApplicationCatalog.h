#pragma once

#include "platform/ApplicationCatalog.h"
#include "platform/linux/identity/DesktopEntry.h"

namespace norvin {

/// The applications of the installed desktop entries. Entries that menus hide are not listed, but found by
/// their identifier.
class GioApplicationCatalog final : public ApplicationCatalog {
public:
    /// @param entries must outlive the catalog
    /// @param executable absolute path of the running program
    GioApplicationCatalog(const DesktopEntrySource& entries, QString executable);

    [[nodiscard]] std::vector<InstalledApplication> installedApplications() const override;
    [[nodiscard]] std::optional<InstalledApplication>
    application(const QString& bundleIdentifier) const override;
    [[nodiscard]] bool isOwnApplicationInstalled() const override;

private:
    const DesktopEntrySource& m_entries;
    QString m_executable;
};

} // namespace norvin
