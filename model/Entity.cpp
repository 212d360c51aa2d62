#include "model/Entity.h"

#include "model/ModelContext.h"

namespace norvin {

Entity::~Entity() = default;

void Entity::touch() {
    Q_EMIT changed();
    // A slot of changed() may have removed the entity.
    if (m_context != nullptr)
        m_context->entityTouched(*this);
}

} // namespace norvin
