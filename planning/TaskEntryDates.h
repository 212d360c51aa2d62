#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <QStringList>

#include <optional>

namespace norvin {

/// Words that name a day, English or French ("tomorrow", "by 12 December", "lundi prochain").
struct DatePhrase {
    QDate day;
    /// Whether the words name a deadline, not the day on which to do it.
    bool isDue = false;
    /// How many words it takes.
    qsizetype wordCount = 0;
    /// Whether the words can mean nothing else, wherever they stand; others count only at the end of a line.
    bool isUnmistakable = false;
};

/// The longest phrase that begins with the first of these words; none where they name no day.
/// @param words without case, accents and trailing punctuation (searchKey())
/// @param locale in which order it writes day and month
[[nodiscard]] std::optional<DatePhrase> datePhraseAt(const QStringList& words, QDate today,
                                                     const QLocale& locale);
/// Whether a date after this word is a part of what the word says ("every Monday", "since 2 May").
[[nodiscard]] bool claimsDate(const QString& word);
/// Whether the word only adds to a date before it ("morning").
[[nodiscard]] bool isPartOfDay(const QString& word);

} // namespace norvin
