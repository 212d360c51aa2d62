#pragma once

#include "platform/linux/atspi/AtspiTransport.h"

#include <QHash>

#include <optional>
#include <vector>

namespace norvin {

// Values out of the answers of the accessibility interfaces. An answer of another form than the expected one
// gives what of it has the form, or nothing; nothing is trusted to be short.

/// The objects of a list of (connection, path); without null objects, `most` at most.
[[nodiscard]] std::vector<AtspiReference> decodeReferences(const QVariantList& reply, size_t most);
/// A text, cut to `longest` characters; empty when there is none.
[[nodiscard]] QString decodeText(const QVariantList& reply, qsizetype longest);
[[nodiscard]] std::optional<qint64> decodeNumber(const QVariantList& reply);
/// State bits out of two 32-bit words, the low one first; 0 when there are none.
[[nodiscard]] quint64 decodeStates(const QVariantList& reply);
/// Object attributes, each value cut to `longest` characters.
[[nodiscard]] QHash<QString, QString> decodeAttributes(const QVariantList& reply, qsizetype longest);
/// The first target of the first relation that says what a window embeds; null when there is none.
[[nodiscard]] AtspiReference decodeEmbedded(const QVariantList& reply);

} // namespace norvin
