#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace norvin {

/// The bundle identifier for a desktop id: the known-browser identifier for every name under which
/// distributions, Flatpak and Snap ship one of the known browsers, any other id as it stands.
/// @param desktopId without ".desktop"; compared without case
[[nodiscard]] QString bundleIdentifierForDesktopId(const QString& desktopId);

/// The declared category name for a desktop entry's categories, the most telling one first ("Development"
/// says more than "Utility"); none when no category says what the application is for.
[[nodiscard]] std::optional<QString> declaredCategoryForCategories(const QStringList& categories);

} // namespace norvin
