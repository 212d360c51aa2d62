#pragma once

#include "platform/linux/LateLibrary.h"

#include <canberra.h>

// clang-format off
#define NORVIN_CANBERRA_FUNCTIONS(take) \
    take(ca_context_change_props) \
    take(ca_context_create) \
    take(ca_context_destroy) \
    take(ca_context_open) \
    take(ca_context_play) \
    take(ca_strerror)
// clang-format on

namespace norvin {

NORVIN_LATE_LIBRARY(CanberraLibrary, NORVIN_CANBERRA_FUNCTIONS, "canberra", 0);

} // namespace norvin
