#pragma once

#include "distraction/BlockLists.h"

#include <QByteArray>
#include <QString>

#include <variant>

namespace norvin {

/// Why a file of block lists is refused.
struct BlockListFileError {
    enum class Fault {
        unreadable,  ///< detail: what the system says
        tooLarge,    ///< over the size that lists can have
        notJson,     ///< detail: what the parser says
        notAnObject, ///< the document, or the member that detail names, is no JSON object
        notAList,    ///< the member that detail names is no JSON array
        notAText,    ///< an entry of the list that detail names is no string
        unknownKey,
        missingKey,
        repeatedKey,
        wrongFormat,  ///< the file says that it is something else
        wrongVersion, ///< from a version of the program that this one does not know
        emptyName,    ///< an identifier is empty
        notASite,     ///< detail: the entry as it stands
    };

    Fault fault = Fault::unreadable;
    /// Where, counted from 1; 0 where no line is to blame.
    int line = 0;
    QString detail;

    bool operator==(const BlockListFileError&) const = default;
};

/// The error as a sentence in the user's language.
[[nodiscard]] QString blockListFileErrorText(const BlockListFileError& error);

/// The lists as the text of a file, UTF-8, sorted: equal lists give equal files. docs/block-lists.md
/// describes the form.
[[nodiscard]] QByteArray blockListFileText(const BlockLists& lists);

/// Takes a file of block lists as a whole or refuses it as a whole. Sites are reduced as pasted ones are, see
/// normalizedSitePattern().
[[nodiscard]] std::variant<BlockLists, BlockListFileError> blockListsFromText(const QByteArray& text);

/// Reads a file. The caller waits for the disk.
[[nodiscard]] std::variant<BlockLists, BlockListFileError> readBlockListFile(const QString& path);

/// Writes a file, which takes the place of an existing one only when all of it is on the disk.
/// @return an empty text, or what the system says
[[nodiscard]] QString writeBlockListFile(const QString& path, const BlockLists& lists);

} // namespace norvin
