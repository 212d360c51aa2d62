#pragma once

#include <QString>

#include <optional>

namespace norvin {

/// Why the store refused an operation.
struct StoreError {
    /// SQLite's primary result code; -1 where the refusal is our own (another schema, say).
    int code = -1;
    /// One line in English, for the log.
    QString description;
};

/// Result of an operation on the store that yields nothing: none on success.
using StoreResult = std::optional<StoreError>;

} // namespace norvin
