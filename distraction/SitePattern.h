#pragma once

#include <QSet>
#include <QString>

#include <optional>

namespace norvin {

/// A site as a user gives it, reduced to the form in which patterns are kept: lower case, in ASCII (IDN),
/// without scheme, user, "www.", port, path, query or fragment; a leading "*." is dropped, since a pattern
/// covers the domain and its sub-domains anyway.
/// @return none when nothing is left that could be a host name
[[nodiscard]] std::optional<QString> normalizedSitePattern(const QString& text);

/// A domain as the site tests see it: what follows "://", without a leading "www.", up to the first "/".
[[nodiscard]] QString normalizedDomain(const QString& domain);

/// Whether the domain equals one of the patterns or is a sub-domain of one.
[[nodiscard]] bool matchesDomain(const QString& domain, const QSet<QString>& patterns);

} // namespace norvin
