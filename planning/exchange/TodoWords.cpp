#include "planning/exchange/TodoWords.h"

namespace norvin::todo {

namespace {

bool isAsciiDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

bool isAsciiCapital(QChar character) {
    return character >= u'A' && character <= u'Z';
}

bool isValueOf(const QString& key, const QString& value) {
    if (value.isEmpty())
        return false;
    if (key == dueKey || key == plannedKey || key == createdKey)
        return isAsciiDigit(value[0]);
    if (key == idKey || key == parentKey)
        return uuidIn(value).has_value();
    if (key == priorityKey) {
        bool isNumber = false;
        static_cast<void>(value.toInt(&isNumber));
        return isNumber || (value.size() == 1 && isAsciiCapital(value[0]));
    }
    return key == statusKey || key == noteKey;
}

} // namespace

bool isDayShaped(const QString& word) {
    if (word.size() != 10)
        return false;
    for (qsizetype at = 0; at < word.size(); ++at) {
        if (at == 4 || at == 7 ? word[at] != u'-' : !isAsciiDigit(word[at]))
            return false;
    }
    return true;
}

bool isPriority(const QString& word) {
    return word.size() == 3 && word[0] == u'(' && isAsciiCapital(word[1]) && word[2] == u')';
}

TaskPriority priorityOf(QChar letter) {
    if (letter == u'A')
        return TaskPriority::high;
    return letter == u'B' ? TaskPriority::medium : TaskPriority::low;
}

std::optional<QChar> letterOf(int priorityValue) {
    const std::optional<TaskPriority> priority = taskPriorityFromRawValue(priorityValue);
    if (!priority)
        return std::nullopt;
    switch (*priority) {
    case TaskPriority::high:
        return u'A';
    case TaskPriority::medium:
        return u'B';
    case TaskPriority::low:
        break;
    }
    return u'C';
}

std::optional<QUuid> uuidIn(const QString& text) {
    const QUuid uuid = QUuid::fromString(text);
    return uuid.isNull() || text.size() != 36 ? std::nullopt : std::optional(uuid);
}

bool isMetadata(const QString& word) {
    const qsizetype colon = word.indexOf(u':');
    return colon > 0 && isValueOf(word.left(colon), word.mid(colon + 1));
}

bool isMark(const QString& word, QChar mark) {
    return word.size() > 1 && word[0] == mark;
}

bool isSpecial(const QString& word, bool isFirst) {
    QString core = word;
    while (core.startsWith(u'\\'))
        core.remove(0, 1);
    return isMark(core, u'+') || isMark(core, u'@') || isMetadata(core) ||
           (isFirst && (core == QLatin1String("x") || isDayShaped(core) || isPriority(core)));
}

QString nameForm(const QString& name) {
    QString form = name;
    for (QChar& character : form) {
        if (character.isSpace())
            character = u'_';
    }
    return form.isEmpty() ? QStringLiteral("_") : form;
}

} // namespace norvin::todo
