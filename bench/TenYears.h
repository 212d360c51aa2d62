#pragma once

#include "model/ModelContainer.h"
#include "tests/support/PlausibleUser.h"

#include <QDate>

#include <cstdio>
#include <cstdlib>

namespace norvin {

[[noreturn]] inline void fail(const char* what) {
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

/// Writes into a store what a heavy user records up to a day: about ten sessions a day, forty intervals each.
inline void fillWithRecords(ModelContext& context, QDate last, int days) {
    PlausibleUser user(1, QTimeZone::systemTimeZone(),
                       {.sessionsADay = 15, .intervals = 43, .applications = 120});
    int unsaved = 0;
    const auto saveSometimes = [&] {
        // Without it, everything would be held twice.
        if (++unsaved % 50'000 == 0 && context.save())
            fail("the records cannot be saved");
    };
    user.live(
        last.addDays(1 - days), last,
        [&](const Session& session) {
            context.insert(session);
            saveSometimes();
        },
        [&](const AppUsageSession& usage) {
            context.insert(usage);
            saveSometimes();
        });
    if (context.save())
        fail("the records cannot be saved");
}

} // namespace norvin
