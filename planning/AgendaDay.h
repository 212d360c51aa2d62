#pragma once

#include "model/Instant.h"
#include "model/TaskItem.h"

#include <QDateTime>

namespace norvin {

/// A calendar day of the user's as a half-open range of instants.
struct AgendaDay {
    Instant start;
    Instant end;

    /// False for no instant.
    [[nodiscard]] bool contains(Instant instant) const { return start <= instant && instant < end; }
};

/// The calendar day of `instant`, in its own time zone; not always 24 hours long. `instant` must be valid.
[[nodiscard]] AgendaDay dayOf(const QDateTime& instant);

/// Whether a task stands on the agenda of the day from `start` to before `end`: an open top-level task that
/// is planned for that day, or without a plan due on it.
[[nodiscard]] bool isOnAgendaDay(const TaskItem& task, Instant start, Instant end);

} // namespace norvin
