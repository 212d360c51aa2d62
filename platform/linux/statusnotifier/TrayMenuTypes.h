#pragma once

#include <QDBusArgument>
#include <QDBusVariant>
#include <QList>
#include <QStringList>
#include <QVariantMap>

namespace norvin {

// What com.canonical.dbusmenu sends and is sent, by its signatures.

/// (ia{sv}av), the children again such structures.
struct TrayMenuNode {
    int number = 0;
    QVariantMap properties;
    QList<TrayMenuNode> children;
};

/// (ia{sv})
struct TrayMenuProperties {
    int number = 0;
    QVariantMap properties;
};

/// (ias)
struct TrayMenuRemovals {
    int number = 0;
    QStringList names;
};

/// (isvu)
struct TrayMenuEvent {
    int number = 0;
    QString kind;
    QDBusVariant data;
    uint timestamp = 0;
};

QDBusArgument& operator<<(QDBusArgument& argument, const TrayMenuNode& node);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayMenuNode& node);
QDBusArgument& operator<<(QDBusArgument& argument, const TrayMenuProperties& properties);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayMenuProperties& properties);
QDBusArgument& operator<<(QDBusArgument& argument, const TrayMenuRemovals& removals);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayMenuRemovals& removals);
QDBusArgument& operator<<(QDBusArgument& argument, const TrayMenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayMenuEvent& event);

/// To be called before any of them meets the bus; again does no harm.
void registerTrayMenuTypes();

} // namespace norvin

Q_DECLARE_METATYPE(norvin::TrayMenuNode)
Q_DECLARE_METATYPE(norvin::TrayMenuProperties)
Q_DECLARE_METATYPE(norvin::TrayMenuRemovals)
Q_DECLARE_METATYPE(norvin::TrayMenuEvent)
