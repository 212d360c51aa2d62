#include "platform/linux/NullWorkspace.h"

#include "platform/linux/OwnWindows.h"

namespace norvin {

NullWorkspace::NullWorkspace(const Availability& reason, SleepMonitor& sleep, QObject* parent)
    : Workspace(parent)
    , m_availability(reason) {
    Q_ASSERT(!reason.isAvailable());
    connect(&sleep, &SleepMonitor::willSleep, this, &Workspace::willSleep);
    connect(&sleep, &SleepMonitor::didWake, this, &Workspace::didWake);
}

void NullWorkspace::activateOwnApplication() {
    static_cast<void>(presentOwnWindows());
}

} // namespace norvin
