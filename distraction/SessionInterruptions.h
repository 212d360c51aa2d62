#pragma once

#include <QObject>
#include <QString>

namespace norvin {

/// Where the coach hears that the user breaks off a session. Main thread only.
class SessionInterruptions : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

Q_SIGNALS:
    /// "pause", "inactivity", or another word for a session that was given up.
    void sessionInterrupted(const QString& reason);
};

} // namespace norvin
