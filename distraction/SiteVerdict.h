#pragma once

#include <QSet>
#include <QString>

namespace norvin {

/// How a site counts in a browser, with the rule that decides. What counts the time and closes the tabs asks
/// here, and so does whoever explains it.
struct SiteVerdict {
    enum class Rule {
        noLists,        ///< the browser has no sites on either list: legitimate
        whitelisted,    ///< on the whitelist: legitimate
        notWhitelisted, ///< there is a whitelist, and the site is not on it: distracted
        blocked,        ///< no whitelist, and on the blocked list: distracted
        notBlocked,     ///< no whitelist, and not on the blocked list: legitimate
    };

    Rule rule = Rule::noLists;
    /// The entry of the whitelist that matches; empty when none does.
    QString whitelistPattern;
    /// The entry of the blocked list that matches; empty when none does. A site can match both lists.
    QString blockingPattern;

    [[nodiscard]] bool isLegitimate() const { return rule != Rule::notWhitelisted && rule != Rule::blocked; }
    [[nodiscard]] bool isBlocked() const { return !blockingPattern.isEmpty(); }

    bool operator==(const SiteVerdict&) const = default;
};

/// @param domain as a page or a user gives it, see normalizedDomain()
/// @param whitelisted patterns of the browser in question; the same for the blocked ones
[[nodiscard]] SiteVerdict judgeSite(const QString& domain, const QSet<QString>& whitelisted,
                                    const QSet<QString>& blocked);

} // namespace norvin
