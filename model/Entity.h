#pragma once

#include <QObject>

namespace norvin {

class ModelContext;

/// Base of the planning entities: tells its context, if it has one, that it wants saving. Main thread only.
/// An entity in a context is owned by it; one that was never inserted belongs to whoever made it.
class Entity : public QObject {
    Q_OBJECT
public:
    Entity() = default;
    ~Entity() override;

    /// The context the entity was inserted into; null before that and once it was removed.
    [[nodiscard]] ModelContext* context() const { return m_context; }

Q_SIGNALS:
    /// Some property changed; follows the property's own signal. One assignment gives one of these.
    void changed();

protected:
    /// Marks the entity for the next save and emits changed(). Every setter that changed something calls it.
    void touch();

private:
    friend class ModelContext;
    ModelContext* m_context = nullptr;
};

} // namespace norvin
