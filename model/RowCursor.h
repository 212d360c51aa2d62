#pragma once

#include "model/Instant.h"

#include <QByteArray>
#include <QString>
#include <QUuid>

#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace norvin {

/// The rows of a query that reads a whole table, straight from SQLite's C interface: SQLite::Column shares
/// the ownership of its statement, which costs more than reading a value. Throws SQLite::Exception.
class RowCursor final {
public:
    RowCursor(sqlite3* database, const char* sql);

    /// Gives a parameter of the query, from 1, its value; to be done before the first row.
    void bind(int parameter, qint64 value);

    /// Goes to the next row. @return false after the last one
    [[nodiscard]] bool next();

    // Values of the current row, by column number from 0.
    [[nodiscard]] bool isNull(int column) const;
    [[nodiscard]] int number(int column) const;
    /// A rowid, or any number that may be larger than an int.
    [[nodiscard]] qint64 place(int column) const;
    [[nodiscard]] double real(int column) const;
    /// Null for a value that is no id.
    [[nodiscard]] QUuid uuid(int column) const;
    [[nodiscard]] QString text(int column) const;
    [[nodiscard]] QByteArray bytes(int column) const;
    /// None for NULL.
    [[nodiscard]] Instant instant(int column) const;

private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const;
    };

    sqlite3* m_database;
    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
};

} // namespace norvin
