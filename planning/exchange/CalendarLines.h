#pragma once

#include "planning/exchange/PlanningFile.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

namespace norvin {

/// One property of an iCalendar file, or the beginning or end of a component.
struct CalendarLine {
    /// In capitals.
    QString name;
    /// By their names in capitals, without the quotation marks.
    QHash<QString, QString> parameters;
    /// As it stands in the file.
    QString value;
    /// That it begins on, counted from 1.
    int line = 0;

    /// The value as text, without its escapes.
    [[nodiscard]] QString text() const;
    /// The texts of a value that is a list, taken apart at its commas.
    [[nodiscard]] QStringList texts() const;
};

/// Takes an iCalendar file apart line by line, folded ones put together.
class CalendarLineReader final {
public:
    /// @param bytes has to outlive the reader
    explicit CalendarLineReader(const QByteArray& bytes);

    /// The next line that is not blank; none at the end.
    /// @return why the line is none of a calendar
    [[nodiscard]] std::variant<std::optional<CalendarLine>, PlanningError> next();

private:
    [[nodiscard]] QByteArrayView physicalLine();

    const QByteArray& m_bytes;
    qsizetype m_at = 0;
    int m_line = 0;
};

/// A property as it stands in a file, folded, with its line end.
/// @param name with its parameters @param value escaped already where it is a text
[[nodiscard]] QByteArray calendarLine(const QString& name, const QString& value);
/// A text with the escapes that it needs in a file; line ends become "\n".
[[nodiscard]] QString calendarEscaped(const QString& text);

} // namespace norvin
