#pragma once

#include "platform/Availability.h"

#include <QObject>

namespace norvin {

/// An alert that lies over everything on every screen and takes no input: the windows below stay usable, and
/// the one with the keyboard keeps it. What it shows is its own affair. Main thread only; no call waits.
class AlertOverlay : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Whether this desktop shows such an alert. Where it does not, present() does nothing.
    [[nodiscard]] virtual Availability availability() const = 0;

    /// Shows the alert, with its entrance; nothing new where it is shown already.
    virtual void present() = 0;
    /// Takes it off all screens; nothing where it is not shown.
    virtual void dismiss() = 0;
};

} // namespace norvin
