#pragma once

#include "model/Instant.h"
#include "planning/AgendaDay.h"

#include <QDate>
#include <QDateTime>
#include <QLocale>
#include <QString>

namespace norvin {

// Calendar days where the user is, which is where `now` is told.

/// The first instant of a day, not always midnight; invalid for a day that the time zone leaves out.
[[nodiscard]] QDateTime startOfDate(QDate day, const QDateTime& now);
/// The day of an instant; invalid for none.
[[nodiscard]] QDate dateOf(Instant instant, const QDateTime& now);
/// The same instant as a clock where the user is shows it.
[[nodiscard]] QDateTime inZoneOf(const QDateTime& instant, const QDateTime& now);

/// A day by its date. @param day within the years 1 to 9999
[[nodiscard]] AgendaDay agendaDayOf(QDate day, const QDateTime& now);

/// Weekday, day and month in the words of the language, with the year where it is not this one.
[[nodiscard]] QString dateInWords(QDate day, QDate today, const QLocale& locale);
/// The same, but for today and tomorrow the words for them.
[[nodiscard]] QString dayInWords(QDate day, QDate today, const QLocale& locale);

} // namespace norvin
