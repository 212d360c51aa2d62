#pragma once

#include <QString>

#include <optional>

namespace norvin {

/// Category key of a declared category name; "category_other" for a name that is not in the table.
[[nodiscard]] QString mapSystemCategory(const QString& declaredCategory);

/// Category key guessed from words within a bundle identifier; none when no word fits.
[[nodiscard]] std::optional<QString> guessCategoryFromBundleID(const QString& bundleID);

/// Category key of an application: identifiers known by name, browsers, what the application declares, what
/// its identifier suggests, in this order; "category_other" where nothing fits.
/// @param declaredCategory none when the application declares nothing
[[nodiscard]] QString resolveCategory(const QString& bundleID,
                                      const std::optional<QString>& declaredCategory);

} // namespace norvin
