#pragma once

#include "planning/exchange/PlanningFile.h"
#include "planning/exchange/UserDays.h"

#include <QByteArray>

namespace norvin {

/// The tasks as VTODO components of an iCalendar file; docs/planning-files.md says what stands for what.
/// Attachments have no place in it.
[[nodiscard]] QByteArray calendarOf(const PlanningSnapshot& content, const UserDays& days);

/// Reads the tasks of an iCalendar file, whoever wrote it. Its other components are counted as ignored.
/// @param known what the store has: projects and phases are found there by name, and a task that it has needs
/// neither
[[nodiscard]] PlanningReading tasksFromCalendar(const QByteArray& bytes, const UserDays& days,
                                                const PlanningSnapshot& known = {});

} // namespace norvin
