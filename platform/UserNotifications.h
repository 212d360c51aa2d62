#pragma once

#include "platform/Availability.h"

#include <QObject>
#include <QString>

namespace norvin {

/// Notifications shown by the desktop. Main thread only; posting never waits.
class UserNotifications : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Whether a notification daemon answers; the first answer may come a moment after start.
    [[nodiscard]] virtual Availability availability() const = 0;

    /// Shows a notification with texts already in the user's language. Where none can be shown it is dropped
    /// and availability() says why.
    virtual void post(const QString& title, const QString& body) = 0;

Q_SIGNALS:
    /// The user clicked a notification of ours.
    void activated();
    void availabilityChanged();
};

} // namespace norvin
