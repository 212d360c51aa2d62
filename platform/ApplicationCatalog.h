#pragma once

#include "platform/Availability.h"

#include <QString>

#include <optional>
#include <vector>

namespace norvin {

/// An application installed on this machine.
struct InstalledApplication {
    QString bundleIdentifier;
    QString name;
    /// Icon theme name or absolute path; empty when there is none.
    QString iconName;
    /// Declared category name ("public.app-category.games"); none when nothing is declared.
    std::optional<QString> declaredCategory;

    bool operator==(const InstalledApplication&) const = default;
};

/// What is installed here. Main thread only.
class ApplicationCatalog {
public:
    ApplicationCatalog() = default;
    ApplicationCatalog(const ApplicationCatalog&) = delete;
    ApplicationCatalog& operator=(const ApplicationCatalog&) = delete;
    virtual ~ApplicationCatalog() = default;

    /// Every application that a menu would show, each identifier once, sorted by name for the user's locale.
    [[nodiscard]] virtual std::vector<InstalledApplication> installedApplications() const = 0;

    /// The installed application with this identifier; none when there is no such.
    [[nodiscard]] virtual std::optional<InstalledApplication>
    application(const QString& bundleIdentifier) const = 0;

    /// Whether this program runs from a prefix that holds its desktop entry (it was installed, not just
    /// built).
    [[nodiscard]] virtual bool isOwnApplicationInstalled() const = 0;
};

/// Identifier of this program, on the desktop and on the session bus.
inline constexpr auto ownBundleIdentifier = "com.norvin.Focus";

} // namespace norvin
