#pragma once

#include "model/StoreError.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QUuid>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <chrono>
#include <memory>
#include <unordered_map>
#include <variant>

namespace norvin {

/// Rows of a store as the model's types. Throw SQLite::Exception, as everything of the library does; nothing
/// of that leaves the folder.
namespace row {
void bind(SQLite::Statement& statement, int index, const QUuid& id);
void bind(SQLite::Statement& statement, int index, const QString& text);
/// NULL for an invalid instant.
void bind(SQLite::Statement& statement, int index, const QDateTime& instant);
/// The epoch for an invalid instant: the column takes no NULL, and a save must not fail over it.
void bindRequired(SQLite::Statement& statement, int index, const QDateTime& instant);
[[nodiscard]] QUuid uuid(const SQLite::Statement& statement, int index);
[[nodiscard]] QString text(const SQLite::Statement& statement, int index);
[[nodiscard]] QByteArray bytes(const SQLite::Statement& statement, int index);
/// In local time; invalid for NULL.
[[nodiscard]] QDateTime instant(const SQLite::Statement& statement, int index);
} // namespace row

/// The result of an exception of the library.
[[nodiscard]] StoreError storeError(const SQLite::Exception& exception);

/// A statement of the connection's cache, ready for use and reset afterwards: a query that is left half read
/// would hold back every checkpoint.
class CachedStatement final {
public:
    explicit CachedStatement(SQLite::Statement& statement)
        : m_statement(statement) {}
    CachedStatement(const CachedStatement&) = delete;
    CachedStatement& operator=(const CachedStatement&) = delete;
    ~CachedStatement() { m_statement.tryReset(); }
    SQLite::Statement& operator*() const { return m_statement; }
    SQLite::Statement* operator->() const { return &m_statement; }

private:
    SQLite::Statement& m_statement;
};

/// An open, valid store file. Only for the thread of its container.
class StoreConnection final {
public:
    /// Opens the file and makes it a store if it is empty or missing. A lock is waited for, `lockWait` in
    /// all.
    [[nodiscard]] static std::variant<std::unique_ptr<StoreConnection>, StoreError>
    open(const QString& file, std::chrono::milliseconds lockWait);
    /// A store in memory.
    [[nodiscard]] static std::variant<std::unique_ptr<StoreConnection>, StoreError> inMemory();

    StoreConnection(const StoreConnection&) = delete;
    StoreConnection& operator=(const StoreConnection&) = delete;
    /// Moves the write-ahead log into the file.
    ~StoreConnection();

    [[nodiscard]] SQLite::Database& database() { return m_database; }
    /// The prepared statement of a text, which must be a literal: it is looked up by its address.
    [[nodiscard]] CachedStatement statement(const char* sql);

    /// Pages in the write-ahead log after the last commit.
    [[nodiscard]] int walPages() const { return m_walPages; }
    /// Moves what nobody reads any more from the log into the file; waits for nobody.
    void checkpoint();

private:
    enum class Locking { normal, exclusive };
    StoreConnection(const QString& file, std::chrono::milliseconds lockWait, Locking locking);
    [[nodiscard]] static std::variant<std::unique_ptr<StoreConnection>, StoreError>
    tryOpen(const QString& file, std::chrono::milliseconds lockWait, Locking locking);

    SQLite::Database m_database;
    std::unordered_map<const char*, SQLite::Statement> m_statements;
    int m_walPages = 0;
};

} // namespace norvin
