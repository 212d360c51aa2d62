#include "planning/exchange/CalendarFile.h"

#include "planning/exchange/CalendarLines.h"
#include "planning/exchange/CalendarNames.h"
#include "planning/exchange/CalendarZones.h"
#include "planning/exchange/NamedPlaces.h"

#include <QRegularExpression>
#include <QSet>
#include <QUuid>

#include <algorithm>

namespace norvin {

using namespace calendar;

namespace {

using Problem = std::optional<PlanningError>;

// Identifiers of other programs become ids in this space: the same one is the same task again.
constexpr QUuid foreignIds(0x7d0c7a52, 0x41a7, 0x4d0e, 0x9b, 0x5e, 0x2f, 0x60, 0x1c, 0x83, 0xd9, 0x4b);

TaskPriority priorityOfNumber(int number) {
    if (number == 0 || number == 5)
        return TaskPriority::medium;
    return number < 5 ? TaskPriority::high : TaskPriority::low;
}

/// The lines of one task, without those of what stands in it.
struct Todo {
    int line = 0;
    std::vector<CalendarLine> lines;

    [[nodiscard]] const CalendarLine* find(const QString& name) const {
        const auto found = std::find_if(lines.cbegin(), lines.cend(), [&name](const CalendarLine& candidate) {
            return candidate.name == name;
        });
        return found == lines.cend() ? nullptr : &*found;
    }
};

PlanningError wrongValue(const CalendarLine& line) {
    return {"planning_file_wrong_value", {line.name, line.value}, line.line};
}

/// Finds the tasks and the time zones of a file.
class Components final {
public:
    [[nodiscard]] Problem read(const QByteArray& bytes) {
        CalendarLineReader reader(bytes);
        for (;;) {
            auto next = reader.next();
            if (const auto* error = std::get_if<PlanningError>(&next))
                return *error;
            std::optional<CalendarLine>& line = std::get<std::optional<CalendarLine>>(next);
            if (!line)
                break;
            if (Problem problem = take(std::move(*line)))
                return problem;
        }
        if (!m_open.empty())
            return PlanningError{"planning_file_unclosed", {m_open.back().first}, m_open.back().second};
        if (!m_hasCalendar)
            return PlanningError{"planning_file_no_calendar"};
        return std::nullopt;
    }

    [[nodiscard]] const std::vector<Todo>& todos() const { return m_todos; }
    [[nodiscard]] const CalendarZones& zones() const { return m_zones; }
    [[nodiscard]] int ignored() const { return m_ignored; }

private:
    [[nodiscard]] bool isIn(const QString& component) const {
        return m_open.size() >= 2 && m_open[1].first == component;
    }

    Problem take(CalendarLine line) {
        if (line.name == QLatin1String("BEGIN"))
            return begin(line);
        if (line.name == QLatin1String("END"))
            return end(line);
        if (m_open.empty())
            return PlanningError{"planning_file_no_calendar", {}, line.line};
        if (m_open.size() == 1 && line.name == QLatin1String("VERSION") && line.value != QLatin1String("2.0"))
            return PlanningError{"planning_file_wrong_version", {line.value}, line.line};
        if (isIn(timeZoneComponent))
            m_zones.addLine(line);
        else if (isIn(todoComponent) && m_open.size() == 2)
            m_todos.back().lines.push_back(std::move(line));
        return std::nullopt;
    }

    Problem begin(const CalendarLine& line) {
        const QString component = line.value.trimmed().toUpper();
        if (m_open.empty() != (component == calendarComponent))
            return m_open.empty() ? PlanningError{"planning_file_no_calendar", {}, line.line}
                                  : wrongValue(line);
        m_hasCalendar = true;
        m_open.emplace_back(component, line.line);
        if (m_open.size() == 2 && component == todoComponent)
            m_todos.push_back({.line = line.line, .lines = {}});
        else if (m_open.size() == 2 && component != timeZoneComponent)
            ++m_ignored;
        return std::nullopt;
    }

    Problem end(const CalendarLine& line) {
        if (m_open.empty() || m_open.back().first != line.value.trimmed().toUpper())
            return wrongValue(line);
        if (m_open.size() == 2 && isIn(timeZoneComponent))
            m_zones.endZone();
        if (m_open.size() == 2 && isIn(todoComponent) && m_todos.back().find(recurrenceName) != nullptr) {
            // One turn of a task that repeats, which is there as a whole already.
            m_todos.pop_back();
            ++m_ignored;
        }
        m_open.pop_back();
        return std::nullopt;
    }

    /// Components that have begun, each with its line.
    std::vector<std::pair<QString, int>> m_open;
    std::vector<Todo> m_todos;
    CalendarZones m_zones;
    int m_ignored = 0;
    bool m_hasCalendar = false;
};

class TodoReader final {
public:
    TodoReader(const Components& components, const UserDays& days, const PlanningSnapshot& known)
        : m_zones(components.zones())
        , m_days(days)
        , m_places(
              known, m_file.content, m_lines, [](const QString& name) { return name.trimmed(); },
              days.now()) {
        m_file.ignored = components.ignored();
        for (const TaskValues& task : known.tasks)
            m_known.insert(task.id);
    }

    [[nodiscard]] Problem read(const Todo& lines) {
        if (Problem problem = repeatedLine(lines))
            return problem;
        TaskValues task;
        const CalendarLine* const uid = lines.find(uidName);
        task.id = uid == nullptr ? TaskId::create() : idOf(uid->text());
        const CalendarLine* const summary = lines.find(summaryName);
        if (summary == nullptr)
            return PlanningError{"planning_file_no_title", {}, lines.line};
        task.title = summary->text();
        if (const CalendarLine* const description = lines.find(descriptionName))
            task.taskDescription = description->text();
        for (const auto take : {&TodoReader::takeStatus, &TodoReader::takePriority, &TodoReader::takeDates}) {
            if (Problem problem = (this->*take)(lines, task))
                return problem;
        }
        takePlaces(lines, task);
        m_file.content.tasks.push_back(task);
        m_lines.tasks.push_back(lines.line);
        return std::nullopt;
    }

    [[nodiscard]] PlanningReading finish(const PlanningSnapshot& known) {
        QSet<TaskId> ids = m_known;
        for (const TaskValues& task : m_file.content.tasks)
            ids.insert(task.id);
        for (TaskValues& task : m_file.content.tasks) {
            // A task may well be related to what another file holds.
            if (task.parentTask && !ids.contains(*task.parentTask))
                task.parentTask.reset();
        }
        if (Problem problem = planningFault(m_file.content, m_lines, known))
            return *problem;
        return std::move(m_file);
    }

private:
    static TaskId idOf(const QString& uid) {
        const QUuid own = QUuid::fromString(uid);
        return TaskId(own.isNull() || uid.size() != 36 ? QUuid::createUuidV5(foreignIds, uid) : own);
    }

    [[nodiscard]] static Problem repeatedLine(const Todo& lines) {
        static const QSet<QString> once{uidName,      summaryName,    descriptionName, statusName,
                                        priorityName, dueName,        startName,       createdName,
                                        ownPhaseName, ownPlannedName, ownStatusName,   ownPriorityName};
        QSet<QString> seen;
        for (const CalendarLine& line : lines.lines) {
            if (!once.contains(line.name))
                continue;
            if (seen.contains(line.name))
                return PlanningError{"planning_file_repeated_member", {line.name}, line.line};
            seen.insert(line.name);
        }
        return std::nullopt;
    }

    Problem takeStatus(const Todo& lines, TaskValues& task) {
        TaskStatus status = lines.find(completedName) != nullptr ? TaskStatus::done : TaskStatus::todo;
        if (const CalendarLine* const line = lines.find(statusName)) {
            const QString text = line->value.trimmed().toUpper();
            const auto found = std::find_if(statusTexts.begin(), statusTexts.end(),
                                            [&text](const StatusText& known) { return known.text == text; });
            if (found == statusTexts.end())
                return wrongValue(*line);
            status = found->status;
        }
        const CalendarLine* const own = lines.find(ownStatusName);
        task.statusValue = own != nullptr ? own->text() : rawValue(status);
        return std::nullopt;
    }

    Problem takePriority(const Todo& lines, TaskValues& task) {
        task.priorityValue = static_cast<int>(TaskPriority::medium);
        for (const QString& name : {priorityName, ownPriorityName}) {
            const CalendarLine* const line = lines.find(name);
            if (line == nullptr)
                continue;
            bool isNumber = false;
            const int number = line->value.trimmed().toInt(&isNumber);
            const bool isOwn = name == ownPriorityName;
            if (!isNumber || (!isOwn && (number < 0 || number > 9)))
                return wrongValue(*line);
            task.priorityValue = isOwn ? number : static_cast<int>(priorityOfNumber(number));
        }
        return std::nullopt;
    }

    Problem takeDates(const Todo& lines, TaskValues& task) {
        task.createdAt = m_days.now();
        for (const auto& [name, target] : {std::pair{dueName, &task.dueDate},
                                           {startName, &task.plannedDate},
                                           {ownPlannedName, &task.plannedDate},
                                           {createdName, &task.createdAt}}) {
            const CalendarLine* const line = lines.find(name);
            if (line == nullptr)
                continue;
            if (Problem problem = readDate(*line, *target))
                return problem;
        }
        return std::nullopt;
    }

    Problem readDate(const CalendarLine& line, QDateTime& target) const {
        static const QRegularExpression shape(QRegularExpression::anchoredPattern(
            QStringLiteral("(\\d{4})(\\d\\d)(\\d\\d)(?:T(\\d\\d)(\\d\\d)(\\d\\d)(Z?))?")));
        const QRegularExpressionMatch match = shape.match(line.value.trimmed());
        const auto part = [&match](int number) { return match.capturedView(number).toInt(); };
        const QDate day(part(1), part(2), part(3));
        const bool hasTime = match.capturedLength(4) > 0;
        // The sixtieth second is a leap second.
        const QTime time = hasTime ? QTime(part(4), part(5), std::min(part(6), 59)) : QTime(0, 0);
        if (!match.hasMatch() || !day.isValid() || !time.isValid() || part(6) > 60)
            return wrongValue(line);
        const QString zoneId = line.parameters.value(QStringLiteral("TZID"));
        if (!hasTime) {
            target = m_days.startOf(day);
        } else if (match.capturedLength(7) > 0) {
            target = QDateTime(day, time, Qt::UTC);
        } else if (zoneId.isEmpty()) {
            target = m_days.at(day, time);
        } else {
            const QTimeZone zone = m_zones.zone(zoneId);
            if (!zone.isValid())
                return PlanningError{"planning_file_unknown_zone", {zoneId}, line.line};
            target = QDateTime(day, time, zone);
        }
        return std::nullopt;
    }

    void takePlaces(const Todo& lines, TaskValues& task) {
        for (const CalendarLine& line : lines.lines) {
            const QString relation =
                line.parameters.value(QStringLiteral("RELTYPE"), QStringLiteral("PARENT"));
            if (line.name == relatedName && relation.toUpper() == QLatin1String("PARENT"))
                task.parentTask = idOf(line.text());
        }
        const CalendarLine* const categories = lines.find(categoriesName);
        // What the store has keeps its own places, so nothing is made for it.
        if (categories == nullptr || m_known.contains(task.id))
            return;
        const QString project = categories->texts().constFirst();
        if (project.trimmed().isEmpty())
            return;
        task.project = m_places.project(project.trimmed(), project, categories->line);
        if (const CalendarLine* const phase = lines.find(ownPhaseName))
            task.phase =
                m_places.makePhase(*task.project, phase->text().trimmed(), phase->text(), phase->line);
    }

    const CalendarZones& m_zones;
    const UserDays& m_days;
    PlanningFile m_file;
    PlanningLines m_lines;
    NamedPlaces m_places;
    QSet<TaskId> m_known;
};

} // namespace

PlanningReading tasksFromCalendar(const QByteArray& bytes, const UserDays& days,
                                  const PlanningSnapshot& known) {
    if (bytes.size() > largestPlanningFile)
        return PlanningError{"planning_file_too_large"};
    Components components;
    if (Problem problem = components.read(bytes))
        return *problem;
    TodoReader reader(components, days, known);
    for (const Todo& lines : components.todos()) {
        if (Problem problem = reader.read(lines))
            return *problem;
    }
    return reader.finish(known);
}

} // namespace norvin
