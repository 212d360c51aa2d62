#pragma once

#include <QHash>
#include <QUuid>

#include <compare>

namespace norvin {

/// Identity of an entity of one type; ids of different types do not mix.
template <class Entity>
class EntityId final {
public:
    /// The null id, which no stored entity has.
    constexpr EntityId() = default;
    explicit constexpr EntityId(const QUuid& uuid)
        : m_uuid(uuid) {}

    /// An id that no other entity has.
    [[nodiscard]] static EntityId create() { return EntityId(QUuid::createUuid()); }

    [[nodiscard]] constexpr bool isNull() const { return m_uuid.isNull(); }
    [[nodiscard]] constexpr const QUuid& uuid() const { return m_uuid; }
    /// Lower-case hexadecimal digits with hyphens, without braces.
    [[nodiscard]] QString toString() const { return m_uuid.toString(QUuid::WithoutBraces); }

    friend bool operator==(const EntityId&, const EntityId&) = default;
    friend bool operator<(const EntityId& a, const EntityId& b) { return a.m_uuid < b.m_uuid; }
    friend size_t qHash(const EntityId& id, size_t seed = 0) { return ::qHash(id.m_uuid, seed); }

private:
    QUuid m_uuid;
};

} // namespace norvin
