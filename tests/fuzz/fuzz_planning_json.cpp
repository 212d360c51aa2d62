// The file of everything, with whatever may be in it.

#include "planning/exchange/PlanningJson.h"
#include "tests/fuzz/PlanningInput.h"

using namespace norvin;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    checkPlanningReader(
        data, size, [](const QByteArray& bytes) { return planningFromJson(bytes); },
        [](const PlanningSnapshot& content) { return planningJson(content); });
    return 0;
}
