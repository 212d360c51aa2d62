// A list of tasks, one a line, with whatever may be in it.

#include "planning/exchange/TodoTxt.h"
#include "tests/fuzz/PlanningInput.h"

using namespace norvin;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    checkPlanningReader(
        data, size, [](const QByteArray& bytes) { return tasksFromTodoTxt(bytes, fuzzDays()); },
        [](const PlanningSnapshot& content) { return todoTxt(content, fuzzDays()); });
    return 0;
}
