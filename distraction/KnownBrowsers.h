#pragma once

#include <QSet>
#include <QString>

namespace norvin {

/// Identifiers of the browsers whose pages can be told apart.
[[nodiscard]] const QSet<QString>& knownBrowserBundleIDs();

} // namespace norvin
