#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

namespace norvin {

/// A site as a user gives it, reduced to the form in which patterns are kept: lower case, in ASCII (IDN),
/// without scheme, user, "www.", port, path, query or fragment; a leading "*." is dropped, since a pattern
/// covers the domain and its sub-domains anyway.
/// @return none when nothing is left that could be a host name
[[nodiscard]] std::optional<QString> normalizedSitePattern(const QString& text);

/// A domain as the site tests see it: what follows "://", without a leading "www.", up to the first "/".
[[nodiscard]] QString normalizedDomain(const QString& domain);

/// The pattern that the domain equals or is a sub-domain of, the longest where there are several; empty when
/// there is none. A pattern may begin with "*.", which changes nothing. Takes no longer for a long list.
[[nodiscard]] QString matchingPattern(const QString& domain, const QSet<QString>& patterns);

/// Whether the domain equals one of the patterns or is a sub-domain of one.
[[nodiscard]] bool matchesDomain(const QString& domain, const QSet<QString>& patterns);

/// What a user pasted, taken apart at blanks, line ends, commas and semicolons. A name without a dot is a
/// site only where it stands alone: among others it is a word that came along.
struct PastedSites {
    /// Patterns in the order in which they stand, each once.
    QStringList patterns;
    /// The pieces that are no sites, as they stand.
    QStringList refused;
};
[[nodiscard]] PastedSites pastedSites(const QString& text);

/// A pattern as people read it: an international name in its own letters.
[[nodiscard]] QString displayedSite(const QString& pattern);

} // namespace norvin
