#include "model/Entity.h"

#include "model/ModelContext.h"

namespace norvin {

Entity::~Entity() = default;

void Entity::touch() {
    Q_EMIT changed();
    // A slot of changed() may have removed the entity. Of one that is leaving the end has been announced:
    // whoever heard that must not take it in again.
    if (m_context != nullptr && !m_leaving)
        m_context->entityTouched(*this);
}

} // namespace norvin
