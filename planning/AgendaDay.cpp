#include "planning/AgendaDay.h"

#include "platform/Clock.h"

namespace norvin {

AgendaDay dayOf(const QDateTime& instant) {
    // By the calendar: a day on which the clocks change is not 24 hours long.
    QDateTime noon = instant;
    noon.setTime(QTime(12, 0));
    return {.start = Instant(startOfDay(instant)), .end = Instant(startOfDay(noon.addDays(1)))};
}

bool isOnAgendaDay(const TaskItem& task, Instant start, Instant end) {
    return task.parentTask() == nullptr && AgendaDay{start, end}.contains(task.agendaInstant()) &&
           !task.isDone();
}

} // namespace norvin
