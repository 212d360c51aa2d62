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
    void willSleep();
    void didWake();
    void availabilityChanged();
};

} // namespace norvin
