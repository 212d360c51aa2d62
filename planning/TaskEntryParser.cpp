#include "planning/TaskEntryParser.h"

#include "model/Project.h"
#include "model/ProjectPhase.h"
#include "planning/TaskEntryDates.h"
#include "platform/TextSearch.h"

#include <QHash>

#include <algorithm>
#include <iterator>

namespace norvin {

namespace {

const QChar backslash = QLatin1Char('\\');

// The quote that closes one; null for what opens none.
QChar closingQuote(QChar opening) {
    switch (opening.unicode()) {
    case u'"':
        return opening;
    case u'“':
        return u'”';
    case u'«':
        return u'»';
    default:
        return {};
    }
}

// Without case, accents, typographic apostrophe and the punctuation behind it.
QString wordKey(const QString& word) {
    QString key = searchKey(word).replace(QChar(u'’'), QLatin1Char('\''));
    while (!key.isEmpty() && QStringLiteral(",;.").contains(key.back()))
        key.chop(1);
    return key;
}

/// What the text behind a # or @ names.
struct Named {
    qsizetype index = -1;
    /// Characters of the name in the text.
    qsizetype length = 0;
    bool isAmbiguous = false;
};

bool endsWord(const QString& text, qsizetype at) {
    return at >= text.size() || text[at].isSpace() || QStringLiteral(",;.").contains(text[at]);
}

Named nameIn(const QString& text, const QStringList& names) {
    if (const QChar closing = text.isEmpty() ? QChar() : closingQuote(text.front()); !closing.isNull()) {
        const qsizetype end = text.indexOf(closing, 1);
        const QString key = end > 0 ? searchKey(text.mid(1, end - 1).trimmed()) : QString();
        for (qsizetype i = 0; !key.isEmpty() && i < names.size(); ++i) {
            if (searchKey(names[i]) == key)
                return {i, end + 1, false};
        }
        return {-1, std::max<qsizetype>(end + 1, 1), false};
    }
    // The longest name that stands here in full.
    Named named;
    for (qsizetype i = 0; i < names.size(); ++i) {
        const qsizetype length = names[i].size();
        if (length > named.length && endsWord(text, length) &&
            searchKey(text.left(length)) == searchKey(names[i]))
            named = {i, length, false};
    }
    if (named.index >= 0)
        return named;
    // Else the only one that begins with this word.
    qsizetype length = 0;
    while (length < text.size() && !text[length].isSpace())
        ++length;
    while (length > 0 && endsWord(text, length - 1))
        --length;
    named.length = length;
    const QString key = searchKey(text.left(length));
    for (qsizetype i = 0; !key.isEmpty() && i < names.size(); ++i) {
        if (!searchKey(names[i]).startsWith(key))
            continue;
        named.isAmbiguous = named.index >= 0 || named.isAmbiguous;
        named.index = named.isAmbiguous ? -1 : i;
    }
    return named;
}

template <class Entities>
QStringList namesOf(const Entities& entities) {
    QStringList names;
    for (const auto* entity : entities)
        names.append(entity->name());
    return names;
}

} // namespace

struct TaskEntryParser::Word {
    qsizetype start;
    qsizetype length;
    QString key;
    /// In quotes or after a backslash: a part of the title whatever it says.
    bool isPlain;
    std::optional<TaskEntryField> field = {};
};

struct TaskEntryParser::Parsed {
    const QString& line;
    std::vector<Word> words;
    TaskEntry entry;

    void give(size_t first, size_t count, TaskEntryField field) {
        for (size_t i = first; i < first + count; ++i)
            words[i].field = field;
    }
    [[nodiscard]] bool isFree(size_t index) const { return !words[index].isPlain && !words[index].field; }
};

bool TaskEntry::says(TaskEntryField field) const {
    switch (field) {
    case TaskEntryField::priority:
        return priority.has_value();
    case TaskEntryField::project:
        return project != nullptr;
    case TaskEntryField::phase:
        return phase != nullptr;
    case TaskEntryField::plannedDay:
        return plannedDay.isValid();
    case TaskEntryField::dueDay:
        return dueDay.isValid();
    }
    return false;
}

std::vector<TaskEntryParser::Word> TaskEntryParser::wordsOf(const QString& line) {
    std::vector<Word> words;
    qsizetype quoteEnd = -1;
    for (qsizetype at = 0; at < line.size();) {
        if (line[at].isSpace()) {
            ++at;
            continue;
        }
        if (const QChar closing = closingQuote(line[at]); at > quoteEnd && !closing.isNull())
            quoteEnd = line.indexOf(closing, at + 1);
        qsizetype end = at;
        while (end < line.size() && !line[end].isSpace())
            ++end;
        const QString text = line.mid(at, end - at);
        const bool isEscaped = text.size() > 1 && text.front() == backslash;
        words.push_back({at, end - at, wordKey(text), isEscaped || at <= quoteEnd});
        at = end;
    }
    return words;
}

TaskEntryParser::Parsed TaskEntryParser::parsed(const QString& line, const Project* project) const {
    Parsed result{line, wordsOf(line), {}};
    readTags(result, project);
    readPriority(result);
    readDates(result);
    QStringList title;
    for (const Word& word : result.words) {
        if (word.field)
            continue;
        const QString text = line.mid(word.start, word.length);
        title.append(text.size() > 1 && text.front() == backslash ? text.mid(1) : text);
    }
    result.entry.title = title.join(QLatin1Char(' '));
    return result;
}

void TaskEntryParser::readTags(Parsed& parsed, const Project* project) const {
    const auto read = [&parsed](QChar mark, TaskEntryField field, const QStringList& names) {
        qsizetype found = -1;
        // From behind, since the last one counts.
        for (size_t i = parsed.words.size(); i-- > 0;) {
            const Word& word = parsed.words[i];
            if (!parsed.isFree(i) || word.length < 2 || parsed.line[word.start] != mark)
                continue;
            const qsizetype start = word.start + 1;
            const Named named = nameIn(parsed.line.mid(start), names);
            if (named.length == 0)
                continue;
            if (named.index < 0) {
                parsed.entry.unknown.prepend(
                    {field, parsed.line.mid(start, named.length), named.isAmbiguous});
                continue;
            }
            if (found >= 0)
                continue;
            found = named.index;
            size_t count = 1;
            while (i + count < parsed.words.size() && parsed.words[i + count].start < start + named.length)
                ++count;
            parsed.give(i, count, field);
        }
        return found;
    };
    const qsizetype named = read(QLatin1Char('#'), TaskEntryField::project, namesOf(m_projects));
    if (named >= 0)
        parsed.entry.project = m_projects[static_cast<size_t>(named)];
    if (parsed.entry.project != nullptr)
        project = parsed.entry.project;
    const QList<ProjectPhase*> phases = project != nullptr ? project->sortedPhases() : QList<ProjectPhase*>();
    const qsizetype phase = read(QLatin1Char('@'), TaskEntryField::phase, namesOf(phases));
    if (phase >= 0)
        parsed.entry.phase = phases[phase];
}

void TaskEntryParser::readPriority(Parsed& parsed) const {
    static const QHash<QString, TaskPriority> words = {
        {QStringLiteral("!high"), TaskPriority::high},      {QStringLiteral("!haute"), TaskPriority::high},
        {QStringLiteral("!1"), TaskPriority::high},         {QStringLiteral("!medium"), TaskPriority::medium},
        {QStringLiteral("!moyenne"), TaskPriority::medium}, {QStringLiteral("!2"), TaskPriority::medium},
        {QStringLiteral("!low"), TaskPriority::low},        {QStringLiteral("!basse"), TaskPriority::low},
        {QStringLiteral("!3"), TaskPriority::low}};
    for (size_t i = parsed.words.size(); i-- > 0;) {
        const auto found = words.constFind(parsed.words[i].key);
        if (!parsed.isFree(i) || found == words.cend())
            continue;
        parsed.entry.priority = *found;
        parsed.give(i, 1, TaskEntryField::priority);
        return;
    }
}

void TaskEntryParser::readDates(Parsed& parsed) const {
    constexpr size_t longestPhrase = 8;
    struct Found {
        size_t first;
        DatePhrase phrase;
    };
    std::vector<Found> found;
    for (size_t i = 0; i < parsed.words.size();) {
        QStringList ahead;
        for (size_t next = i; next < std::min(parsed.words.size(), i + longestPhrase) && parsed.isFree(next);
             ++next)
            ahead.append(parsed.words[next].key);
        const bool isClaimed = i > 0 && !parsed.words[i - 1].field && claimsDate(parsed.words[i - 1].key);
        std::optional<DatePhrase> phrase;
        if (!isClaimed && !ahead.isEmpty())
            phrase = datePhraseAt(ahead, m_today, m_locale);
        if (phrase)
            found.push_back({i, *phrase});
        i += phrase ? static_cast<size_t>(phrase->wordCount) : 1;
    }
    // What is marked, though it names nothing or was put back into the title, does not go on with a sentence.
    const auto isAtEnd = [&parsed](size_t next) {
        return std::all_of(parsed.words.cbegin() + static_cast<std::ptrdiff_t>(next), parsed.words.cend(),
                           [&parsed](const Word& word) {
                               return word.field ||
                                      QStringLiteral("#@\\").contains(parsed.line[word.start]) ||
                                      (!word.isPlain && isPartOfDay(word.key));
                           });
    };
    for (auto last = found.crbegin(); last != found.crend(); ++last) {
        const auto count = static_cast<size_t>(last->phrase.wordCount);
        QDate& day = last->phrase.isDue ? parsed.entry.dueDay : parsed.entry.plannedDay;
        if (day.isValid() || (!last->phrase.isUnmistakable && !isAtEnd(last->first + count)))
            continue;
        day = last->phrase.day;
        parsed.give(last->first, count,
                    last->phrase.isDue ? TaskEntryField::dueDay : TaskEntryField::plannedDay);
    }
}

TaskEntry TaskEntryParser::parse(const QString& line, const Project* project) const {
    return parsed(line, project).entry;
}

QString TaskEntryParser::withFieldAsTitle(const QString& line, TaskEntryField field,
                                          const Project* project) const {
    QString changed = line;
    const std::vector<Word> words = parsed(line, project).words;
    for (auto word = words.crbegin(); word != words.crend(); ++word) {
        if (word->field == field)
            changed.insert(word->start, backslash);
    }
    return changed;
}

QString TaskEntryParser::withoutField(const QString& line, TaskEntryField field,
                                      const Project* project) const {
    QStringList kept;
    for (const Word& word : parsed(line, project).words) {
        if (word.field != field)
            kept.append(line.mid(word.start, word.length));
    }
    return kept.join(QLatin1Char(' '));
}

} // namespace norvin
