#pragma once

#include <QDBusVirtualObject>
#include <QString>
#include <QVariantMap>

namespace norvin {

/// What trays read over the session bus: an interface of this program with its properties. Main thread only.
class TrayObject : public QDBusVirtualObject {
    Q_OBJECT
public:
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) final;

protected:
    /// @param interfaceName must outlive this
    TrayObject(const char* interfaceName, QObject* parent)
        : QDBusVirtualObject(parent)
        , m_interfaceName(interfaceName) {}

    [[nodiscard]] virtual QVariantMap properties() const = 0;
    /// Somebody has asked for that property alone.
    virtual void handlePropertyRead(const QString& name) { static_cast<void>(name); }
    /// The answer to a call of the interface; an invalid message for one that it does not have.
    [[nodiscard]] virtual QDBusMessage answerTo(const QDBusMessage& call) = 0;

private:
    [[nodiscard]] QDBusMessage propertiesFor(const QDBusMessage& call);

    const char* m_interfaceName;
};

} // namespace norvin
