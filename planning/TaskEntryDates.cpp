#include "planning/TaskEntryDates.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <utility>

namespace norvin {

namespace {

constexpr int daysInWeek = 7;
constexpr int farthestCount = 3650;
const QChar colon = QLatin1Char(':');

using Words = QHash<QString, int>;

QSet<QString> setOf(const char* words) {
    const QStringList list = QString::fromUtf8(words).split(QLatin1Char(' '));
    return {list.cbegin(), list.cend()};
}

// The first word is 1, the others count on; "/" divides words that mean the same.
Words numbered(const char* words) {
    Words numbers;
    int number = 1;
    for (const QString& group : QString::fromUtf8(words).split(QLatin1Char(' '))) {
        for (const QString& word : group.split(QLatin1Char('/')))
            numbers.insert(word, number);
        ++number;
    }
    return numbers;
}

const Words& weekdays() {
    static const Words words = numbered(
        "monday/lundi tuesday/mardi wednesday/mercredi thursday/jeudi friday/vendredi saturday/samedi "
        "sunday/dimanche");
    return words;
}

const Words& englishMonths() {
    static const Words words =
        numbered("january/jan february/feb march/mar april/apr may june/jun july/jul august/aug "
                 "september/sept/sep october/oct november/nov december/dec");
    return words;
}

const Words& frenchMonths() {
    static const Words words =
        numbered("janvier/janv fevrier/fevr/fev mars avril/avr mai juin juillet/juil aout septembre/sept "
                 "octobre/oct novembre/nov decembre/dec");
    return words;
}

// The next day of that month and day, today included; invalid where no year has it.
QDate nextOccurrence(int month, int day, QDate today) {
    constexpr int yearsBetweenLeapDays = 8;
    for (int year = today.year(); year <= today.year() + yearsBetweenLeapDays; ++year) {
        const QDate date(year, month, day);
        if (date.isValid() && date >= today)
            return date;
    }
    return {};
}

/// Reads words from a place onwards; each reader moves on when it understands, and stays when it does not.
class Reader final {
public:
    Reader(const QStringList& words, QDate today, const QLocale& locale)
        : m_words(words)
        , m_today(today)
        , m_locale(locale) {}

    std::optional<DatePhrase> read() {
        DatePhrase phrase;
        bool isMarked = readDueMark();
        phrase.isDue = isMarked;
        if (!isMarked && (take("by") || take("before") || take("due") || take("for") || take("avant") ||
                          take("pour") || take("d'ici")))
            phrase.isDue = true;
        const bool isOn = !phrase.isDue && take("on");
        const bool isThis = take("this") || take("ce");
        const bool hasArticle = !isThis && (take("le") || take("the"));
        const QString core = word();
        if (core.isEmpty())
            return std::nullopt;
        bool isUnmistakable = isMarked || isOn;
        const bool isDayAfter = core == QLatin1String("day");
        if ((!hasArticle || isDayAfter) && !isThis && (phrase.day = readNamedDay()).isValid())
            isUnmistakable = true;
        else if ((phrase.day = readIsoDate()).isValid())
            isUnmistakable = true;
        else if ((phrase.day = readWeekdayWithDate()).isValid() ||
                 (phrase.day = readDayAndMonth()).isValid() || (phrase.day = readNumbers()).isValid())
            isUnmistakable = isUnmistakable || hasArticle;
        else if (hasArticle && core != QLatin1String("next"))
            return std::nullopt; // "le lundi" is every Monday
        else
            phrase.day = readWeekday(isThis);
        if (!phrase.day.isValid())
            return std::nullopt;
        phrase.isUnmistakable = isUnmistakable;
        phrase.wordCount = m_at;
        return phrase;
    }

private:
    [[nodiscard]] QString word(qsizetype ahead = 0) const {
        if (ahead == 0 && !m_attached.isEmpty())
            return m_attached;
        return m_words.value(m_at + ahead);
    }
    void advance(qsizetype words = 1) {
        m_attached.clear();
        m_at += words;
    }
    bool take(const char* expected) {
        if (word() != QLatin1String(expected))
            return false;
        advance();
        return true;
    }
    QDate taken(QDate date, qsizetype words) {
        if (date.isValid())
            advance(words);
        return date;
    }

    // "due:", "pour :" and the like, with or without the date attached.
    bool readDueMark() {
        static const QSet<QString> marks = setOf("due pour echeance");
        const QString first = word();
        const qsizetype end = first.indexOf(colon);
        if (end < 0) {
            if (!marks.contains(first) || word(1) != colon)
                return false;
            advance(2);
            return true;
        }
        if (!marks.contains(first.left(end)))
            return false;
        if (end + 1 == first.size())
            advance();
        else
            m_attached = first.mid(end + 1);
        return true;
    }

    QDate readNamedDay() {
        if (word() == QLatin1String("today") || word() == QLatin1String("aujourd'hui"))
            return taken(m_today, 1);
        if (word() == QLatin1String("tomorrow") || word() == QLatin1String("demain"))
            return taken(m_today.addDays(1), 1);
        if (word() == QLatin1String("apres-demain"))
            return taken(m_today.addDays(2), 1);
        if (word() == QLatin1String("apres") && word(1) == QLatin1String("demain"))
            return taken(m_today.addDays(2), 2);
        if (word() == QLatin1String("day") && word(1) == QLatin1String("after") &&
            word(2) == QLatin1String("tomorrow"))
            return taken(m_today.addDays(2), 3);
        if (word() != QLatin1String("in") && word() != QLatin1String("dans"))
            return {};
        static const QSet<QString> one = setOf("a an one un une");
        static const QSet<QString> days = setOf("day days jour jours");
        static const QSet<QString> weeks = setOf("week weeks semaine semaines");
        static const QSet<QString> months = setOf("month months mois");
        const int count = one.contains(word(1)) ? 1 : word(1).toInt();
        if (count < 1 || count > farthestCount)
            return {};
        if (days.contains(word(2)))
            return taken(m_today.addDays(count), 3);
        if (weeks.contains(word(2)))
            return taken(m_today.addDays(qint64{daysInWeek} * count), 3);
        return months.contains(word(2)) ? taken(m_today.addMonths(count), 3) : QDate();
    }

    QDate readIsoDate() {
        static const QRegularExpression iso(QStringLiteral("^\\d{4}-\\d{2}-\\d{2}$"));
        return iso.match(word()).hasMatch() ? taken(QDate::fromString(word(), Qt::ISODate), 1) : QDate();
    }

    // "lundi 12 décembre", "Monday, December 12".
    QDate readWeekdayWithDate() {
        if (!weekdays().contains(word()))
            return {};
        const qsizetype before = m_at;
        const QString attached = m_attached;
        advance();
        const QDate date = readDayAndMonth();
        if (!date.isValid()) {
            m_at = before;
            m_attached = attached;
        }
        return date;
    }

    QDate readDayAndMonth() {
        const auto dayOf = [](const QString& text) {
            static const QRegularExpression number(QStringLiteral("^(\\d{1,2})(?:er|st|nd|rd|th)?$"));
            return number.match(text).captured(1).toInt();
        };
        int day = dayOf(word());
        int month = englishMonths().value(word(1), frenchMonths().value(word(1)));
        if (day == 0 || month == 0) {
            month = englishMonths().value(word());
            day = dayOf(word(1));
        }
        if (day == 0 || month == 0)
            return {};
        static const QRegularExpression year(QStringLiteral("^(?:19|20|21)\\d{2}$"));
        if (year.match(word(2)).hasMatch())
            return taken(QDate(word(2).toInt(), month, day), 3);
        return taken(nextOccurrence(month, day, m_today), 2);
    }

    // "12/01" in the order of the language, or in the only one that gives a date.
    QDate readNumbers() {
        static const QRegularExpression numbers(QStringLiteral("^(\\d{1,2})/(\\d{1,2})(?:/(\\d{4}))?$"));
        const QRegularExpressionMatch match = numbers.match(word());
        if (!match.hasMatch())
            return {};
        const QString order = m_locale.dateFormat(QLocale::ShortFormat);
        int day = match.captured(1).toInt();
        int month = match.captured(2).toInt();
        if (order.indexOf(QLatin1Char('M')) < order.indexOf(QLatin1Char('d')))
            std::swap(day, month);
        constexpr int monthsInYear = 12;
        if (month > monthsInYear)
            std::swap(day, month);
        if (match.capturedLength(3) > 0)
            return taken(QDate(match.captured(3).toInt(), month, day), 1);
        return taken(nextOccurrence(month, day, m_today), 1);
    }

    QDate readWeekday(bool isThis) {
        const QDate nextWeek = m_today.addDays(daysInWeek + 1 - m_today.dayOfWeek());
        if (take("la")) {
            if (word() != QLatin1String("semaine"))
                return {};
        }
        if ((word() == QLatin1String("semaine") && word(1) == QLatin1String("prochaine")) ||
            (word() == QLatin1String("next") && word(1) == QLatin1String("week")))
            return taken(nextWeek, 2);
        const bool isNext = take("next");
        const int weekday = weekdays().value(word());
        if (weekday == 0)
            return {};
        if (isNext)
            return taken(nextWeek.addDays(weekday - 1), 1);
        if (word(1) == QLatin1String("prochain"))
            return taken(nextWeek.addDays(weekday - 1), 2);
        const int ahead = (weekday - m_today.dayOfWeek() + daysInWeek) % daysInWeek;
        return taken(m_today.addDays(ahead == 0 && !isThis ? daysInWeek : ahead), 1);
    }

    const QStringList& m_words;
    QDate m_today;
    const QLocale& m_locale;
    qsizetype m_at = 0;
    /// What is left of a word whose beginning was understood.
    QString m_attached;
};

} // namespace

std::optional<DatePhrase> datePhraseAt(const QStringList& words, QDate today, const QLocale& locale) {
    return Reader(words, today, locale).read();
}

bool claimsDate(const QString& word) {
    static const QSet<QString> words = setOf(
        "the le la from since until till about of after every each last past and or to vs the my our your "
        "depuis des de du d' apres chaque tous toutes les tout jusqu'a jusqu'au jusque a au et ou "
        "dernier mon ma notre votre");
    return words.contains(word);
}

bool isPartOfDay(const QString& word) {
    static const QSet<QString> words =
        setOf("morning noon afternoon evening night matin midi apres-midi soir");
    return words.contains(word);
}

} // namespace norvin
