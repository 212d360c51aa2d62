#pragma once

#include "platform/Availability.h"

#include <QObject>

namespace norvin {

/// Word of the machine going to sleep and waking. A Workspace passes it on. Main thread only.
class SleepMonitor : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    [[nodiscard]] virtual Availability availability() const = 0;

Q_SIGNALS:
    /// The machine is about to be suspended; delivered before it is.
    void willSleep();
    /// The machine runs again. Follows every willSleep(), even where the word of it got lost.
    void didWake();
    void availabilityChanged();
};

} // namespace norvin
