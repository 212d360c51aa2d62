#pragma once

#include <QString>

namespace norvin {

/// What is said to the user about the last thing done on the block-list screen.
struct BlockListNotice {
    enum class Subject {
        none,
        sitesAdded,
        siteRemoved,
        siteMoved,
        sitesCopied,
        browserWhitelisted,
        suggestionsAdded,
        imported,
        importedNothing,
        takenBack,
        exported,
        exportFailed,
    };

    Subject subject = Subject::none;
    /// How many entries it is about; 0 where none are counted.
    int count = 0;
    /// The site, browser or file that it is about, or what the system says; may be empty.
    QString detail;
    /// Whether it can be taken back.
    bool isUndoable = false;

    /// In the user's language; empty for no subject.
    [[nodiscard]] QString text() const;
    [[nodiscard]] bool isProblem() const { return subject == Subject::exportFailed; }
};

} // namespace norvin
