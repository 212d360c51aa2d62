#pragma once

#include "model/StoreError.h"

namespace SQLite {
class Database;
}

namespace norvin::schema {

/// Number of the schema in the file's user_version: 1.0.0 as 10000.
inline constexpr int version = 10000;

/// Whether the file holds no object of anybody's yet. Throws SQLite::Exception.
[[nodiscard]] bool isBlank(SQLite::Database& database);
/// Makes all tables, indexes and views, in one transaction. Throws SQLite::Exception.
void create(SQLite::Database& database);
/// Makes indexes anew that an earlier version of the program made in another way, which takes about a second
/// for ten years of records; leaves them where the disk is full, and a file of another version as it is.
/// Throws SQLite::Exception.
void renewIndexes(SQLite::Database& database);
/// Compares the version and our tables, indexes and views with what create() makes, or an index with what it
/// once made; other objects in the file are nobody's business. Throws SQLite::Exception when the file cannot
/// be read.
/// @return what differs; none when the file is ours
[[nodiscard]] StoreResult validate(SQLite::Database& database);

} // namespace norvin::schema
