#pragma once

#include "planning/exchange/PlanningFile.h"
#include "planning/exchange/UserDays.h"

#include <QByteArray>

namespace norvin {

/// The tasks in the Todo.txt format, one a line; docs/planning-files.md says what stands for what. Times of
/// day and attachments have no place in it.
[[nodiscard]] QByteArray todoTxt(const PlanningSnapshot& content, const UserDays& days);

/// Reads tasks in the Todo.txt format, whoever wrote them. A line without an id is a new task.
/// @param known what the store has: projects and phases are found there by name, and a task that it has needs
/// neither
[[nodiscard]] PlanningReading tasksFromTodoTxt(const QByteArray& bytes, const UserDays& days,
                                               const PlanningSnapshot& known = {});

} // namespace norvin
