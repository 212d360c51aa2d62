#pragma once

#include "platform/Availability.h"

#include <QObject>

namespace norvin {

/// Whether the program starts, hidden, when the user logs in. Main thread only.
class Autostart : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Whether that can be decided here.
    [[nodiscard]] virtual Availability availability() const = 0;
    /// As the desktop sees it now; somebody else may have changed it.
    [[nodiscard]] virtual bool isEnabled() const = 0;
    /// Counts at once, or when the desktop has answered; changed() follows either way, also where nothing
    /// could be changed.
    virtual void setEnabled(bool enabled) = 0;

Q_SIGNALS:
    /// The state or its availability may be another.
    void changed();
};

} // namespace norvin
