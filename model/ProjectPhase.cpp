#include "model/ProjectPhase.h"

#include "model/Project.h"
#include "model/TaskItem.h"

#include <utility>

namespace norvin {

ProjectPhase::ProjectPhase(const Init& init)
    : Entity(Kind::phase)
    , m_id(init.id)
    , m_name(init.name)
    , m_orderIndex(init.orderIndex)
    , m_createdAt(init.createdAt) {
    setProject(init.project);
}

ProjectPhase::~ProjectPhase() {
    for (TaskItem* task : std::exchange(m_tasks, {})) {
        task->m_phase = nullptr;
        Q_EMIT task->phaseChanged();
        task->touch();
    }
    if (m_project != nullptr) {
        takeOut(m_project->m_phases, this);
        Q_EMIT m_project->phasesChanged();
    }
}

void ProjectPhase::setName(const QString& name) {
    if (name == m_name)
        return;
    m_name = name;
    Q_EMIT nameChanged();
    touch();
}

void ProjectPhase::setOrderIndex(int orderIndex) {
    if (orderIndex == m_orderIndex)
        return;
    m_orderIndex = orderIndex;
    Q_EMIT orderIndexChanged();
    touch();
}

void ProjectPhase::setProject(Project* project) {
    if (project == m_project)
        return;
    Project* const former = std::exchange(m_project, project);
    if (former != nullptr)
        takeOut(former->m_phases, this);
    if (project != nullptr)
        addInOrder(project->m_phases, this);
    if (former != nullptr)
        Q_EMIT former->phasesChanged();
    if (project != nullptr)
        Q_EMIT project->phasesChanged();
    Q_EMIT projectChanged();
    touch();
}

} // namespace norvin
