#include "distraction/SiteVerdict.h"

#include "distraction/SitePattern.h"

namespace norvin {

SiteVerdict judgeSite(const QString& domain, const QSet<QString>& whitelisted, const QSet<QString>& blocked) {
    using Rule = SiteVerdict::Rule;
    const QString site = normalizedDomain(domain);
    SiteVerdict verdict{.rule = Rule::noLists,
                        .whitelistPattern = matchingPattern(site, whitelisted),
                        .blockingPattern = matchingPattern(site, blocked)};
    if (!whitelisted.isEmpty())
        verdict.rule = verdict.whitelistPattern.isEmpty() ? Rule::notWhitelisted : Rule::whitelisted;
    else if (!blocked.isEmpty())
        verdict.rule = verdict.blockingPattern.isEmpty() ? Rule::notBlocked : Rule::blocked;
    return verdict;
}

} // namespace norvin
