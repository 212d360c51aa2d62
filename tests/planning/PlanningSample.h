#pragma once

#include "planning/exchange/PlanningFile.h"
#include "planning/exchange/UserDays.h"

#include <QTimeZone>

#include <variant>

namespace norvin::test {

/// Monday, 10 March 2025, 9:00 in Paris.
inline UserDays parisDays() {
    return UserDays(QDateTime(QDate(2025, 3, 10), QTime(9, 0), QTimeZone("Europe/Paris")));
}

inline ProjectValues projectNamed(const QString& name) {
    return {.id = ProjectId::create(),
            .name = name,
            .projectDescription = QStringLiteral("Two\nlines, a \"quotation\" and a \\"),
            .colorHex = QStringLiteral("#7c3aed"),
            .emoji = QStringLiteral("🏗️"),
            .createdAt = QDateTime(QDate(2025, 3, 1), QTime(8, 30, 15, 250), Qt::UTC)};
}

inline PhaseValues phaseOf(const ProjectValues& project, const QString& name, int orderIndex) {
    return {.id = ProjectPhaseId::create(),
            .name = name,
            .orderIndex = orderIndex,
            .createdAt = project.createdAt,
            .project = project.id};
}

inline TaskValues taskTitled(const QString& title) {
    TaskValues task;
    task.id = TaskId::create();
    task.title = title;
    task.statusValue = QStringLiteral("To Do");
    task.priorityValue = 1;
    task.createdAt = parisDays().startOf(QDate(2025, 3, 1));
    return task;
}

/// What a reading gave; fails the test, and gives nothing, where the file was refused.
inline PlanningFile accepted(const PlanningReading& reading) {
    if (const auto* error = std::get_if<PlanningError>(&reading)) {
        qCritical("refused: %s %s, line %d", qPrintable(error->key), qPrintable(error->arguments.join(u'|')),
                  error->line);
        return {};
    }
    return std::get<PlanningFile>(reading);
}

/// Why a reading was refused; an empty key where it was not.
inline PlanningError refused(const PlanningReading& reading) {
    const auto* error = std::get_if<PlanningError>(&reading);
    return error == nullptr ? PlanningError{} : *error;
}

} // namespace norvin::test
