#pragma once

#include <QMap>
#include <QSet>
#include <QString>

namespace norvin {

/// Site patterns by the browser's bundle identifier; a browser without patterns has no entry.
using SiteLists = QMap<QString, QSet<QString>>;

/// The user's four lists as a value.
struct BlockLists {
    QSet<QString> blockedAppBundleIDs;
    QSet<QString> whitelistedAppBundleIDs;
    SiteLists browserWhitelistedSites;
    SiteLists browserBlockedSites;

    [[nodiscard]] bool isEmpty() const;
    /// Entries of the two application lists together.
    [[nodiscard]] int applicationCount() const;
    /// Entries of the site lists of all browsers together.
    [[nodiscard]] int siteCount() const;

    bool operator==(const BlockLists&) const = default;
};

/// What is in either.
[[nodiscard]] BlockLists unitedLists(const BlockLists& one, const BlockLists& other);
/// What is in the lists and not in the others, list by list.
[[nodiscard]] BlockLists listsWithout(const BlockLists& lists, const BlockLists& others);

/// What became of the four lists in one step. Taking it back leaves alone what changed since.
struct BlockListChange {
    BlockLists added;
    BlockLists removed;

    [[nodiscard]] static BlockListChange between(const BlockLists& before, const BlockLists& after);
    [[nodiscard]] bool isEmpty() const { return added.isEmpty() && removed.isEmpty(); }
    [[nodiscard]] BlockLists takenBackFrom(const BlockLists& lists) const;
};

} // namespace norvin
