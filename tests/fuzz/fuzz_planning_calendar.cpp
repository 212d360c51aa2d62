// The tasks of a calendar, with whatever may be in it.

#include "planning/exchange/CalendarFile.h"
#include "tests/fuzz/PlanningInput.h"

using namespace norvin;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    checkPlanningReader(
        data, size, [](const QByteArray& bytes) { return tasksFromCalendar(bytes, fuzzDays()); },
        [](const PlanningSnapshot& content) { return calendarOf(content, fuzzDays()); });
    return 0;
}
