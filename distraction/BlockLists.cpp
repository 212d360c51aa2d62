#include "distraction/BlockLists.h"

#include <algorithm>
#include <numeric>

namespace norvin {

namespace {

SiteLists united(const SiteLists& one, const SiteLists& other) {
    SiteLists result = one;
    for (auto it = other.cbegin(); it != other.cend(); ++it) {
        if (!it.value().isEmpty())
            result[it.key()] += it.value();
    }
    return result;
}

SiteLists without(const SiteLists& lists, const SiteLists& others) {
    SiteLists result;
    for (auto it = lists.cbegin(); it != lists.cend(); ++it) {
        const QSet<QString> rest = it.value() - others.value(it.key());
        if (!rest.isEmpty())
            result.insert(it.key(), rest);
    }
    return result;
}

int sites(const SiteLists& lists) {
    return std::accumulate(lists.cbegin(), lists.cend(), 0, [](int sum, const QSet<QString>& patterns) {
        return sum + static_cast<int>(patterns.size());
    });
}

} // namespace

bool BlockLists::isEmpty() const {
    return applicationCount() + siteCount() == 0;
}

int BlockLists::applicationCount() const {
    return static_cast<int>(blockedAppBundleIDs.size() + whitelistedAppBundleIDs.size());
}

int BlockLists::siteCount() const {
    return sites(browserWhitelistedSites) + sites(browserBlockedSites);
}

BlockLists unitedLists(const BlockLists& one, const BlockLists& other) {
    return {one.blockedAppBundleIDs + other.blockedAppBundleIDs,
            one.whitelistedAppBundleIDs + other.whitelistedAppBundleIDs,
            united(one.browserWhitelistedSites, other.browserWhitelistedSites),
            united(one.browserBlockedSites, other.browserBlockedSites)};
}

BlockLists listsWithout(const BlockLists& lists, const BlockLists& others) {
    return {lists.blockedAppBundleIDs - others.blockedAppBundleIDs,
            lists.whitelistedAppBundleIDs - others.whitelistedAppBundleIDs,
            without(lists.browserWhitelistedSites, others.browserWhitelistedSites),
            without(lists.browserBlockedSites, others.browserBlockedSites)};
}

BlockListChange BlockListChange::between(const BlockLists& before, const BlockLists& after) {
    return {listsWithout(after, before), listsWithout(before, after)};
}

BlockLists BlockListChange::takenBackFrom(const BlockLists& lists) const {
    return unitedLists(listsWithout(lists, added), removed);
}

} // namespace norvin
