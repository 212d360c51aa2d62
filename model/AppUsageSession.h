#pragma once

#include "model/EntityId.h"

#include <QDateTime>
#include <QString>

namespace norvin {

/// One interval during which one application was in front. Written once, then only read: a plain value.
struct AppUsageSession {
    EntityId<AppUsageSession> id = EntityId<AppUsageSession>::create();
    /// "unknown" for an application without an identifier.
    QString bundleID;
    QString appName;
    QDateTime startTime;
    QDateTime endTime;
    /// Whole seconds between the two that the machine was awake.
    int durationSeconds = 0;
    /// Localisation key ("category_development").
    QString category;

    bool operator==(const AppUsageSession&) const = default;
};

using AppUsageSessionId = EntityId<AppUsageSession>;

} // namespace norvin
