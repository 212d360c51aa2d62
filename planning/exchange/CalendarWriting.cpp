#include "planning/exchange/CalendarFile.h"
#include "planning/exchange/CalendarLines.h"
#include "planning/exchange/CalendarNames.h"

#include <QHash>

#include <algorithm>

namespace norvin {

using namespace calendar;

namespace {

QString statusText(const QString& statusValue) {
    const TaskStatus status = taskStatusFromRawValue(statusValue).value_or(TaskStatus::todo);
    return std::find_if(statusTexts.begin(), statusTexts.end(),
                        [status](const StatusText& text) { return text.status == status; })
        ->text;
}

// The highest is 1, 0 is none.
int priorityNumber(int priorityValue) {
    switch (taskPriorityFromRawValue(priorityValue).value_or(TaskPriority::medium)) {
    case TaskPriority::high:
        return 1;
    case TaskPriority::medium:
        return 5;
    case TaskPriority::low:
        break;
    }
    return 9;
}

bool isWritable(const QDateTime& instant) {
    return instant.isValid() && !dayText(instant.toUTC().date()).isEmpty();
}

QString utcText(const QDateTime& instant) {
    return instant.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
}

class TodoWriter final {
public:
    TodoWriter(const PlanningSnapshot& content, const UserDays& days, QByteArray& text)
        : m_days(days)
        , m_text(text) {
        for (const ProjectValues& project : content.projects)
            m_projects.insert(project.id, project.name);
        for (const PhaseValues& phase : content.phases)
            m_phases.insert(phase.id, phase.name);
    }

    void write(const TaskValues& task) {
        line(QStringLiteral("BEGIN"), todoComponent);
        line(uidName, task.id.toString());
        line(QStringLiteral("DTSTAMP"), utcText(stampOf(task)));
        line(createdName, utcText(stampOf(task)));
        line(summaryName, calendarEscaped(task.title));
        if (!task.taskDescription.isEmpty())
            line(descriptionName, calendarEscaped(task.taskDescription));
        line(statusName, statusText(task.statusValue));
        if (!taskStatusFromRawValue(task.statusValue))
            line(ownStatusName, calendarEscaped(task.statusValue));
        line(priorityName, QString::number(priorityNumber(task.priorityValue)));
        if (!taskPriorityFromRawValue(task.priorityValue))
            line(ownPriorityName, QString::number(task.priorityValue));
        writeDates(task);
        if (task.project && m_projects.contains(*task.project)) {
            line(categoriesName, calendarEscaped(m_projects.value(*task.project)));
            if (task.phase && m_phases.contains(*task.phase))
                line(ownPhaseName, calendarEscaped(m_phases.value(*task.phase)));
        }
        if (task.parentTask)
            line(relatedName + QStringLiteral(";RELTYPE=PARENT"), task.parentTask->toString());
        line(QStringLiteral("END"), todoComponent);
    }

private:
    void line(const QString& name, const QString& value) { m_text += calendarLine(name, value); }

    [[nodiscard]] static QDateTime stampOf(const TaskValues& task) {
        return isWritable(task.createdAt) ? task.createdAt : QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
    }

    void writeDates(const TaskValues& task) {
        const bool hasDue = isWritable(task.dueDate);
        const bool hasPlanned = isWritable(task.plannedDate);
        // Both have to be of one kind: days, or times of day.
        const bool areDays =
            (!hasDue || m_days.isStart(task.dueDate)) && (!hasPlanned || m_days.isStart(task.plannedDate));
        if (hasDue)
            writeDate(dueName, task.dueDate, areDays);
        // A task has to start before it is due; one that is planned otherwise says so by a name of ours.
        if (hasPlanned)
            writeDate(!hasDue || task.plannedDate < task.dueDate ? startName : ownPlannedName,
                      task.plannedDate, areDays);
    }
    void writeDate(const QString& name, const QDateTime& instant, bool isDay) {
        if (isDay)
            line(name + QStringLiteral(";VALUE=DATE"), dayText(m_days.dayAt(instant)).remove(u'-'));
        else
            line(name, utcText(instant));
    }

    const UserDays& m_days;
    QByteArray& m_text;
    QHash<ProjectId, QString> m_projects;
    QHash<ProjectPhaseId, QString> m_phases;
};

} // namespace

QByteArray calendarOf(const PlanningSnapshot& content, const UserDays& days) {
    QByteArray text = calendarLine(QStringLiteral("BEGIN"), calendarComponent) +
                      calendarLine(QStringLiteral("VERSION"), QStringLiteral("2.0")) +
                      calendarLine(QStringLiteral("PRODID"), QStringLiteral("-//Norvin//Norvin Focus//EN"));
    TodoWriter writer(content, days, text);
    for (const TaskValues& task : content.tasks)
        writer.write(task);
    return text + calendarLine(QStringLiteral("END"), calendarComponent);
}

} // namespace norvin
