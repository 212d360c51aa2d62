#include "planning/exchange/TodoTxt.h"

#include "planning/exchange/NamedPlaces.h"
#include "planning/exchange/TodoWords.h"

#include <QSet>
#include <QStringDecoder>
#include <QUrl>
#include <QUuid>

namespace norvin {

using namespace todo;

namespace {

using Problem = std::optional<PlanningError>;

QString nameOf(QString form) {
    return form.replace(u'_', u' ');
}

// Writing.

QString oneLine(QString text) {
    return text.replace(QLatin1String("\r\n"), QLatin1String(" ")).replace(u'\n', u' ').replace(u'\r', u' ');
}

QString safeTitle(const TaskValues& task, bool hasProject, bool hasPhase) {
    QStringList words = oneLine(task.title).split(u' ');
    for (qsizetype at = 0; at < words.size(); ++at) {
        QString& word = words[at];
        // The last mark of a line counts, so those of a title need nothing where the task's own follow.
        const bool isHarmless =
            (isMark(word, u'+') && hasProject) || (isMark(word, u'@') && (hasPhase || !hasProject));
        if (!isHarmless && isSpecial(word, at == 0))
            word.prepend(u'\\');
    }
    return words.join(u' ');
}

QString percentEncoded(const QString& text) {
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

class Writer final {
public:
    Writer(const PlanningSnapshot& content, const UserDays& days)
        : m_days(days) {
        for (const ProjectValues& project : content.projects)
            m_projects.insert(project.id, nameForm(project.name));
        for (const PhaseValues& phase : content.phases)
            m_phases.insert(phase.id, nameForm(phase.name));
    }

    [[nodiscard]] QString line(const TaskValues& task) const {
        const bool isDone = taskStatusFromRawValue(task.statusValue) == TaskStatus::done;
        const QString project = task.project ? m_projects.value(*task.project) : QString();
        // A phase is only known within its project.
        const QString phase = task.phase && !project.isEmpty() ? m_phases.value(*task.phase) : QString();
        const std::optional<QChar> letter = letterOf(task.priorityValue);
        const QString created = dayText(m_days.dayAt(task.createdAt));

        // After the "x" belongs the day of completion, which nobody knows, so the other one cannot stand
        // there.
        QStringList words{isDone ? QStringLiteral("x") : QString()};
        if (!isDone && letter)
            words.append(u'(' + QString(*letter) + u')');
        if (!isDone)
            words.append(created);
        words.removeAll(QString());
        words.append(safeTitle(task, !project.isEmpty(), !phase.isEmpty()));
        if (!project.isEmpty())
            words.append(u'+' + project);
        if (!phase.isEmpty())
            words.append(u'@' + phase);
        const auto append = [&words](QLatin1String key, const QString& value) {
            if (!value.isEmpty())
                words.append(key + u':' + value);
        };
        append(dueKey, day(task.dueDate));
        append(plannedKey, day(task.plannedDate));
        append(createdKey, isDone ? created : QString());
        if (!letter)
            append(priorityKey, QString::number(task.priorityValue));
        else if (isDone)
            append(priorityKey, QString(*letter));
        append(statusKey, status(task.statusValue));
        append(noteKey, percentEncoded(task.taskDescription));
        append(parentKey, task.parentTask ? task.parentTask->toString() : QString());
        append(idKey, task.id.toString());
        return words.join(u' ');
    }

private:
    [[nodiscard]] QString day(const QDateTime& instant) const {
        return instant.isValid() ? dayText(m_days.dayAt(instant)) : QString();
    }
    [[nodiscard]] static QString status(const QString& statusValue) {
        const std::optional<TaskStatus> status = taskStatusFromRawValue(statusValue);
        if (status)
            return *status == TaskStatus::inProgress ? QString(inProgressText) : QString();
        // One that no program of ours wrote must not be taken for the one that all do.
        return statusValue == inProgressText ? QStringLiteral("%69n-progress") : percentEncoded(statusValue);
    }

    const UserDays& m_days;
    QHash<ProjectId, QString> m_projects;
    QHash<ProjectPhaseId, QString> m_phases;
};

// Reading.

class Reader final {
public:
    Reader(const UserDays& days, const PlanningSnapshot& known)
        : m_days(days)
        , m_places(known, m_file.content, m_lines, nameForm, days.now()) {
        for (const TaskValues& task : known.tasks)
            m_known.insert(task.id);
    }

    [[nodiscard]] Problem readLine(QString text, int line) {
        m_line = line;
        m_values.clear();
        TaskValues task;
        task.statusValue = rawValue(TaskStatus::todo);
        task.priorityValue = static_cast<int>(TaskPriority::medium);
        task.createdAt = m_days.now();
        if (Problem problem = takePrefix(text, task))
            return problem;
        QStringList words = text.split(u' ');
        if (Problem problem = takeMetadata(words, task))
            return problem;
        takePlaces(words, task, line);
        for (qsizetype at = 0; at < words.size(); ++at) {
            if (words[at].startsWith(u'\\') && isSpecial(words[at], at == 0))
                words[at].remove(0, 1);
        }
        task.title = words.join(u' ');
        if (!m_values.contains(idKey)) {
            task.id = TaskId::create();
            task.title = task.title.trimmed();
            if (task.title.isEmpty())
                return PlanningError{"planning_file_no_title", {}, line};
        }
        m_file.content.tasks.push_back(task);
        m_lines.tasks.push_back(line);
        return std::nullopt;
    }

    [[nodiscard]] PlanningReading finish(const PlanningSnapshot& known) {
        if (Problem problem = planningFault(m_file.content, m_lines, known))
            return *problem;
        return std::move(m_file);
    }

private:
    // Takes the word off if it is what is asked for.
    static std::optional<QString> takeWord(QString& text, bool (*isWanted)(const QString&)) {
        const qsizetype end = text.indexOf(u' ');
        const QString word = end < 0 ? text : text.left(end);
        if (!isWanted(word))
            return std::nullopt;
        text = end < 0 ? QString() : text.mid(end + 1);
        return word;
    }

    [[nodiscard]] Problem notADay(const QString& name, const QString& value) const {
        return PlanningError{"planning_file_not_a_day", {name, value}, m_line};
    }

    [[nodiscard]] Problem takePrefix(QString& text, TaskValues& task) const {
        const bool isDone = text.startsWith(QLatin1String("x "));
        if (isDone) {
            text.remove(0, 2);
            task.statusValue = rawValue(TaskStatus::done);
        }
        if (const auto letter = takeWord(text, isPriority))
            task.priorityValue = static_cast<int>(priorityOf(letter->at(1)));
        // Of a finished task the first day is that of its completion, which no task keeps.
        std::optional<QString> created = takeWord(text, isDayShaped);
        if (isDone && created) {
            if (!dayFromText(*created))
                return notADay(QStringLiteral("x"), *created);
            created = takeWord(text, isDayShaped);
        }
        if (!created)
            return std::nullopt;
        const std::optional<QDate> day = dayFromText(*created);
        if (!day)
            return notADay(createdKey, *created);
        task.createdAt = m_days.startOf(*day);
        return std::nullopt;
    }

    [[nodiscard]] Problem takeMetadata(QStringList& words, TaskValues& task) {
        QStringList title;
        for (const QString& word : std::as_const(words)) {
            const qsizetype colon = word.indexOf(u':');
            if (!isMetadata(word)) {
                title.append(word);
                continue;
            }
            const QString key = word.left(colon);
            if (m_values.contains(key))
                return PlanningError{"planning_file_repeated_member", {key}, m_line};
            m_values.insert(key, word.mid(colon + 1));
        }
        words = title;
        for (const auto& [key, target] : {std::pair{dueKey, &task.dueDate},
                                          {plannedKey, &task.plannedDate},
                                          {createdKey, &task.createdAt}}) {
            if (!m_values.contains(key))
                continue;
            const std::optional<QDate> day = dayFromText(m_values.value(key));
            if (!day)
                return notADay(key, m_values.value(key));
            *target = m_days.startOf(*day);
        }
        if (const QString priority = m_values.value(priorityKey); !priority.isEmpty()) {
            task.priorityValue =
                priority[0].isLetter() ? static_cast<int>(priorityOf(priority[0])) : priority.toInt();
        }
        if (const QString status = m_values.value(statusKey); !status.isEmpty()) {
            task.statusValue = status == inProgressText ? rawValue(TaskStatus::inProgress)
                                                        : QUrl::fromPercentEncoding(status.toUtf8());
        }
        task.taskDescription = QUrl::fromPercentEncoding(m_values.value(noteKey).toUtf8());
        if (m_values.contains(idKey))
            task.id = TaskId(*uuidIn(m_values.value(idKey)));
        if (m_values.contains(parentKey))
            task.parentTask = TaskId(*uuidIn(m_values.value(parentKey)));
        return std::nullopt;
    }

    static QString takeLastMark(QStringList& words, QChar mark) {
        for (qsizetype at = words.size() - 1; at >= 0; --at) {
            if (isMark(words[at], mark))
                return words.takeAt(at).mid(1);
        }
        return {};
    }

    void takePlaces(QStringList& words, TaskValues& task, int line) {
        const QString project = takeLastMark(words, u'+');
        // What the store has keeps its own places, so nothing is made for it.
        const bool isKnown = m_known.contains(task.id);
        if (project.isEmpty() || isKnown)
            return;
        task.project = m_places.project(project, nameOf(project), line);
        QStringList rest = words;
        const QString phase = takeLastMark(rest, u'@');
        if (phase.isEmpty())
            return;
        task.phase = m_places.isMade(*task.project)
                         ? m_places.makePhase(*task.project, phase, nameOf(phase), line)
                         : m_places.phase(*task.project, phase);
        if (task.phase)
            words = rest;
    }

    const UserDays& m_days;
    PlanningFile m_file;
    PlanningLines m_lines;
    NamedPlaces m_places;
    QSet<TaskId> m_known;
    QHash<QString, QString> m_values;
    int m_line = 0;
};

} // namespace

QByteArray todoTxt(const PlanningSnapshot& content, const UserDays& days) {
    const Writer writer(content, days);
    QByteArray text;
    for (const TaskValues& task : content.tasks)
        text += writer.line(task).toUtf8() + '\n';
    return text;
}

PlanningReading tasksFromTodoTxt(const QByteArray& bytes, const UserDays& days,
                                 const PlanningSnapshot& known) {
    if (bytes.size() > largestPlanningFile)
        return PlanningError{"planning_file_too_large"};
    Reader reader(days, known);
    int number = 0;
    qsizetype start = bytes.startsWith("\xef\xbb\xbf") ? 3 : 0;
    while (start < bytes.size()) {
        qsizetype end = bytes.indexOf('\n', start);
        end = end < 0 ? bytes.size() : end;
        QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
        QString line = decoder(QByteArrayView(bytes).sliced(start, end - start));
        ++number;
        start = end + 1;
        if (decoder.hasError())
            return PlanningError{"planning_file_not_utf8", {}, number};
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (line.trimmed().isEmpty())
            continue;
        if (const Problem problem = reader.readLine(line, number))
            return *problem;
    }
    return reader.finish(known);
}

} // namespace norvin
