#pragma once

#include <QString>

#include <optional>

namespace norvin {

/// The domain of an address or of what stands in an address bar: in lower case, without scheme, one leading
/// "www.", port, path, query and fragment. None when nothing is left; a bare host word counts as a domain.
[[nodiscard]] std::optional<QString> extractDomain(const QString& address);

/// Whether the text of an address bar is an address rather than words to search for.
[[nodiscard]] bool looksLikeURL(const QString& text);

} // namespace norvin
