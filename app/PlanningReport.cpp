#include "app/PlanningReport.h"

#include "planning/exchange/UserDays.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace norvin {

namespace {

QString priorityName(int priorityValue) {
    const std::optional<TaskPriority> priority = taskPriorityFromRawValue(priorityValue);
    if (!priority)
        return {};
    switch (*priority) {
    case TaskPriority::low:
        return QStringLiteral("low");
    case TaskPriority::medium:
        return QStringLiteral("medium");
    case TaskPriority::high:
        break;
    }
    return QStringLiteral("high");
}

QJsonValue textOrNull(const QString& text) {
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

} // namespace

QString printable(const QString& text) {
    QString result = text.simplified();
    for (QChar& character : result) {
        if (character.category() == QChar::Other_Control || character.category() == QChar::Other_Format)
            character = u' ';
    }
    return result;
}

QString counted(int count, const char* one, const char* more) {
    return QStringLiteral("%1 %2").arg(QString::number(count), QLatin1String(count == 1 ? one : more));
}

QString shortId(const QString& id) {
    return id.left(8);
}

QJsonObject agendaReport(const std::vector<TaskItem*>& tasks, QDate day, const QDateTime& now) {
    const UserDays days(now);
    const auto dayOrNull = [&days](const QDateTime& date) {
        return date.isValid() ? textOrNull(dayText(days.dayAt(date))) : QJsonValue();
    };
    QJsonArray list;
    for (const TaskItem* task : tasks) {
        const auto subtasks = static_cast<int>(task->subtasks().size());
        list.append(QJsonObject{
            {QStringLiteral("id"), task->id().toString()},
            {QStringLiteral("title"), task->title()},
            {QStringLiteral("status"), task->statusValue()},
            {QStringLiteral("priority"), textOrNull(priorityName(task->priorityValue()))},
            {QStringLiteral("project"), task->project() ? QJsonValue(task->project()->name()) : QJsonValue()},
            {QStringLiteral("phase"), task->phase() ? QJsonValue(task->phase()->name()) : QJsonValue()},
            {QStringLiteral("planned"), dayOrNull(task->plannedDate())},
            {QStringLiteral("due"), dayOrNull(task->dueDate())},
            {QStringLiteral("late"), task->isOverdue(now) || task->isPlannedLate(now)},
            {QStringLiteral("subtasks"), subtasks},
            {QStringLiteral("completedSubtasks"), task->completedSubtasksCount()}});
    }
    return {{QStringLiteral("date"), dayText(day)}, {QStringLiteral("tasks"), list}};
}

QJsonArray projectsReport(const std::vector<Project*>& projects) {
    QJsonArray list;
    for (const Project* project : projects) {
        const auto isTop = [](const TaskItem* task) { return task->parentTask() == nullptr; };
        const auto done =
            std::count_if(project->tasks().cbegin(), project->tasks().cend(),
                          [&isTop](const TaskItem* task) { return isTop(task) && task->isDone(); });
        const auto all = project->topLevelTasksCount();
        list.append(
            QJsonObject{{QStringLiteral("id"), project->id().toString()},
                        {QStringLiteral("name"), project->name()},
                        {QStringLiteral("emoji"), textOrNull(project->emoji())},
                        {QStringLiteral("open"), all - static_cast<int>(done)},
                        {QStringLiteral("done"), static_cast<int>(done)},
                        {QStringLiteral("progress"), all == 0 ? 0.0 : static_cast<double>(done) / all}});
    }
    return list;
}

QJsonObject countsReport(const SnapshotCounts& counts) {
    return {{QStringLiteral("projects"), counts.projects},
            {QStringLiteral("phases"), counts.phases},
            {QStringLiteral("tasks"), counts.tasks},
            {QStringLiteral("files"), counts.resources}};
}

SnapshotCounts countsOfReport(const QJsonObject& report) {
    return {.projects = report[QStringLiteral("projects")].toInt(),
            .phases = report[QStringLiteral("phases")].toInt(),
            .tasks = report[QStringLiteral("tasks")].toInt(),
            .resources = report[QStringLiteral("files")].toInt()};
}

QJsonObject importReport(const PlanningExchange::Imported& imported) {
    return {{QStringLiteral("added"), countsReport(imported.added)},
            {QStringLiteral("alreadyThere"), countsReport(imported.alreadyThere)},
            {QStringLiteral("ignored"), imported.ignored}};
}

PlanningExchange::Imported importOfReport(const QJsonObject& report) {
    return {.added = countsOfReport(report[QStringLiteral("added")].toObject()),
            .alreadyThere = countsOfReport(report[QStringLiteral("alreadyThere")].toObject()),
            .ignored = report[QStringLiteral("ignored")].toInt()};
}

QString agendaText(const QJsonObject& agenda) {
    const QDate day = QDate::fromString(agenda[QStringLiteral("date")].toString(), Qt::ISODate);
    const QJsonArray tasks = agenda[QStringLiteral("tasks")].toArray();
    QString text =
        QLocale(QLocale::English, QLocale::UnitedKingdom).toString(day, QStringLiteral("dddd, d MMMM yyyy"));
    if (tasks.isEmpty())
        return text + QStringLiteral(": nothing is planned.\n");
    text += QStringLiteral(": %1\n").arg(counted(static_cast<int>(tasks.size()), "task", "tasks"));
    for (const QJsonValue& value : tasks) {
        const QJsonObject task = value.toObject();
        QStringList remarks;
        if (const QString project = task[QStringLiteral("project")].toString(); !project.isEmpty())
            remarks.append(printable(project));
        if (const QString due = task[QStringLiteral("due")].toString(); !due.isEmpty())
            remarks.append(QStringLiteral("due ") + due);
        if (const int subtasks = task[QStringLiteral("subtasks")].toInt(); subtasks > 0) {
            remarks.append(QStringLiteral("%1 of %2 done")
                               .arg(task[QStringLiteral("completedSubtasks")].toInt())
                               .arg(counted(subtasks, "subtask", "subtasks")));
        }
        if (task[QStringLiteral("late")].toBool())
            remarks.append(QStringLiteral("late"));
        text += shortId(task[QStringLiteral("id")].toString()) + QStringLiteral("  ") +
                task[QStringLiteral("priority")].toString().leftJustified(6) + QStringLiteral("  ") +
                printable(task[QStringLiteral("title")].toString());
        if (!remarks.isEmpty())
            text += QStringLiteral(" (%1)").arg(remarks.join(QStringLiteral(", ")));
        text += u'\n';
    }
    return text;
}

QString projectsText(const QJsonArray& projects) {
    if (projects.isEmpty())
        return QStringLiteral("There are no projects.\n");
    QString text;
    for (const QJsonValue& value : projects) {
        const QJsonObject project = value.toObject();
        const QString emoji = project[QStringLiteral("emoji")].toString();
        text += shortId(project[QStringLiteral("id")].toString()) + QStringLiteral("  ") +
                (emoji.isEmpty() ? QString() : printable(emoji) + u' ') +
                printable(project[QStringLiteral("name")].toString()) +
                QStringLiteral(": %1 open, %2 done, %3 %\n")
                    .arg(project[QStringLiteral("open")].toInt())
                    .arg(project[QStringLiteral("done")].toInt())
                    .arg(std::lround(project[QStringLiteral("progress")].toDouble() * 100));
    }
    return text;
}

} // namespace norvin
