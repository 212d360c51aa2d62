#include "model/RowCursor.h"

#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

namespace norvin {

RowCursor::RowCursor(sqlite3* database, const char* sql)
    : m_database(database) {
    sqlite3_stmt* statement = nullptr;
    const int result = sqlite3_prepare_v2(database, sql, -1, &statement, nullptr);
    m_statement.reset(statement);
    if (result != SQLITE_OK)
        throw SQLite::Exception(database, result);
}

void RowCursor::Finalizer::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

void RowCursor::bind(int parameter, qint64 value) {
    if (const int result = sqlite3_bind_int64(m_statement.get(), parameter, value); result != SQLITE_OK)
        throw SQLite::Exception(m_database, result);
}

bool RowCursor::next() {
    switch (const int result = sqlite3_step(m_statement.get())) {
    case SQLITE_ROW:
        return true;
    case SQLITE_DONE:
        return false;
    default:
        throw SQLite::Exception(m_database, result);
    }
}

bool RowCursor::isNull(int column) const {
    return sqlite3_column_type(m_statement.get(), column) == SQLITE_NULL;
}

int RowCursor::number(int column) const {
    return sqlite3_column_int(m_statement.get(), column);
}

qint64 RowCursor::place(int column) const {
    return sqlite3_column_int64(m_statement.get(), column);
}

double RowCursor::real(int column) const {
    return sqlite3_column_double(m_statement.get(), column);
}

// The pointer has to be asked for before the length, which is that of its representation.
QUuid RowCursor::uuid(int column) const {
    const auto* raw = static_cast<const char*>(sqlite3_column_blob(m_statement.get(), column));
    return QUuid::fromRfc4122(QByteArrayView(raw, sqlite3_column_bytes(m_statement.get(), column)));
}

QString RowCursor::text(int column) const {
    const auto* utf8 = reinterpret_cast<const char*>(sqlite3_column_text(m_statement.get(), column));
    const int length = sqlite3_column_bytes(m_statement.get(), column);
    return length == 0 ? QString() : QString::fromUtf8(utf8, length);
}

QByteArray RowCursor::bytes(int column) const {
    const auto* raw = static_cast<const char*>(sqlite3_column_blob(m_statement.get(), column));
    return QByteArray(raw, sqlite3_column_bytes(m_statement.get(), column));
}

Instant RowCursor::instant(int column) const {
    return isNull(column) ? Instant() : Instant(sqlite3_column_int64(m_statement.get(), column));
}

} // namespace norvin
