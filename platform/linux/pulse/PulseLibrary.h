#pragma once

#include "platform/linux/LateLibrary.h"

#include <pulse/context.h>
#include <pulse/error.h>
#include <pulse/operation.h>
#include <pulse/proplist.h>
#include <pulse/stream.h>

// clang-format off
#define NORVIN_PULSE_FUNCTIONS(take) \
    take(pa_context_connect) \
    take(pa_context_disconnect) \
    take(pa_context_errno) \
    take(pa_context_get_state) \
    take(pa_context_new_with_proplist) \
    take(pa_context_set_state_callback) \
    take(pa_context_unref) \
    take(pa_operation_unref) \
    take(pa_proplist_free) \
    take(pa_proplist_new) \
    take(pa_proplist_sets) \
    take(pa_stream_connect_playback) \
    take(pa_stream_cork) \
    take(pa_stream_disconnect) \
    take(pa_stream_get_state) \
    take(pa_stream_get_timing_info) \
    take(pa_stream_new) \
    take(pa_stream_set_state_callback) \
    take(pa_stream_set_write_callback) \
    take(pa_stream_unref) \
    take(pa_stream_update_timing_info) \
    take(pa_stream_writable_size) \
    take(pa_stream_write) \
    take(pa_strerror) \
    take(pa_usec_to_bytes)
// clang-format on

namespace norvin {

NORVIN_LATE_LIBRARY(PulseLibrary, NORVIN_PULSE_FUNCTIONS, "pulse", 0);

/// The library where it is known to be there: of a connection that was opened.
[[nodiscard]] inline const PulseLibrary& pulse() {
    return *PulseLibrary::find();
}

} // namespace norvin
