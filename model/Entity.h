#pragma once

#include <QList>
#include <QObject>

#include <algorithm>
#include <limits>
#include <optional>

namespace norvin {

class ModelContext;

/// Base of the planning entities: tells its context, if it has one, that it wants saving. Only for the thread
/// of its container. An entity in a context is owned by it; one that was never inserted belongs to whoever
/// made it. Destroying an entity takes it out of the relationships of all others.
class Entity : public QObject {
    Q_OBJECT
public:
    ~Entity() override;

    /// The context the entity was inserted into; null before that and once it was removed.
    [[nodiscard]] ModelContext* context() const { return m_context; }
    /// Whether `a` came into the store before `b`, of the same type. Entities that were never inserted come
    /// last.
    [[nodiscard]] static bool isOlder(const Entity& a, const Entity& b) {
        return a.m_sequence < b.m_sequence;
    }

    /// Place in store order, above 0; none for an entity that was never inserted.
    [[nodiscard]] std::optional<qint64> place() const {
        return m_sequence == notInserted ? std::nullopt : std::optional(m_sequence);
    }

Q_SIGNALS:
    /// Some property changed; follows the property's own signal. One assignment gives one of these, and none
    /// at the other end of a relationship, whose list has a signal of its own.
    void changed();

protected:
    enum class Kind : quint8 { project, phase, task, resource };
    explicit Entity(Kind kind)
        : m_kind(kind) {}

    /// Marks the entity for the next save and emits changed(). Every setter that changed something calls it.
    void touch();

    /// Keeps the list of a relationship in store order.
    template <class T>
    static void addInOrder(QList<T*>& list, T* entity) {
        list.insert(std::upper_bound(list.begin(), list.end(), entity,
                                     [](const T* a, const T* b) { return isOlder(*a, *b); }),
                    entity);
    }
    /// Takes the entity out of the list of a relationship; those removed soonest are mostly the newest.
    template <class T>
    static void takeOut(QList<T*>& list, const T* entity) {
        if (const qsizetype at = list.lastIndexOf(const_cast<T*>(entity)); at >= 0)
            list.removeAt(at);
    }
    /// To be called when the entity's place in store order has changed.
    template <class T>
    static void reorder(QList<T*>& list, T* entity) {
        takeOut(list, entity);
        addInOrder(list, entity);
    }

private:
    friend class ModelContext;
    friend class PlanningGraph;
    friend class SnapshotAccess;

    ModelContext* m_context = nullptr;
    static constexpr qint64 notInserted = std::numeric_limits<qint64>::max();
    qint64 m_sequence = notInserted;
    Kind m_kind;
    /// The store has a row of this entity.
    bool m_stored = false;
    /// The row is missing or older than the object.
    bool m_dirty = false;
    /// Part of a removal that is under way.
    bool m_leaving = false;
};

} // namespace norvin
