#include "platform/linux/statusnotifier/TrayMenuTypes.h"

#include <QDBusMetaType>

namespace norvin {

QDBusArgument& operator<<(QDBusArgument& argument, const TrayMenuNode& node) {
    argument.beginStructure();
    argument << node.number << node.properties;
    argument.beginArray(QMetaType::fromType<QDBusVariant>());
    for (const TrayMenuNode& child : node.children)
        argument << QDBusVariant(QVariant::fromValue(child));
    argument.endArray();
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, TrayMenuNode& node) {
    argument.beginStructure();
    argument >> node.number >> node.properties;
    argument.beginArray();
    while (!argument.atEnd()) {
        QDBusVariant child;
        argument >> child;
        node.children.append(qdbus_cast<TrayMenuNode>(child.variant()));
    }
    argument.endArray();
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const TrayMenuProperties& properties) {
    argument.beginStructure();
    argument << properties.number << properties.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, TrayMenuProperties& properties) {
    argument.beginStructure();
    argument >> properties.number >> properties.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const TrayMenuRemovals& removals) {
    argument.beginStructure();
    argument << removals.number << removals.names;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, TrayMenuRemovals& removals) {
    argument.beginStructure();
    argument >> removals.number >> removals.names;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const TrayMenuEvent& event) {
    argument.beginStructure();
    argument << event.number << event.kind << event.data << event.timestamp;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, TrayMenuEvent& event) {
    argument.beginStructure();
    argument >> event.number >> event.kind >> event.data >> event.timestamp;
    argument.endStructure();
    return argument;
}

void registerTrayMenuTypes() {
    qDBusRegisterMetaType<TrayMenuNode>();
    qDBusRegisterMetaType<TrayMenuProperties>();
    qDBusRegisterMetaType<QList<TrayMenuProperties>>();
    qDBusRegisterMetaType<TrayMenuRemovals>();
    qDBusRegisterMetaType<QList<TrayMenuRemovals>>();
    qDBusRegisterMetaType<TrayMenuEvent>();
    qDBusRegisterMetaType<QList<TrayMenuEvent>>();
}

} // namespace norvin
