#include "planning/PhaseListModel.h"

#include "model/ModelContext.h"

#include <algorithm>

namespace norvin {

PhaseListModel::PhaseListModel(ModelContext& context, QObject* parent)
    : EntityListModel(parent)
    , m_context(context) {
    connect(&m_context, &ModelContext::projectAboutToBeRemoved, this, [this](const Project* project) {
        if (project == m_project)
            setProject(nullptr);
    });
    connect(&m_context, &ModelContext::phaseAboutToBeRemoved, this,
            [this](const ProjectPhase* phase) { dropRow(phase); });
    connect(&m_context, &ModelContext::phaseChanged, this, [this](const ProjectPhase* phase) {
        if (m_project != nullptr && phase->project() == m_project)
            schedule();
    });
    connect(&m_context, &ModelContext::taskChanged, this, [this](const TaskItem* task) {
        if (m_project != nullptr && task->project() == m_project)
            schedule();
    });
}

PhaseListModel::~PhaseListModel() = default;

void PhaseListModel::setProject(Project* project) {
    if (project == m_project)
        return;
    if (m_project != nullptr)
        m_project->disconnect(this);
    m_project = project;
    if (m_project != nullptr) {
        connect(m_project, &Project::phasesChanged, this, &PhaseListModel::schedule);
        connect(m_project, &Project::tasksChanged, this, &PhaseListModel::schedule);
    }
    settle();
}

void PhaseListModel::schedule() {
    if (m_isScheduled)
        return;
    m_isScheduled = true;
    QMetaObject::invokeMethod(this, &PhaseListModel::settle, Qt::QueuedConnection);
}

void PhaseListModel::settle() {
    m_isScheduled = false;
    const QList<ProjectPhase*> sorted =
        m_project != nullptr ? m_project->sortedPhases() : QList<ProjectPhase*>();
    setRows(Rows(sorted.cbegin(), sorted.cend()));
    allRowsTouched();
}

ProjectPhase* PhaseListModel::phaseAt(int row) const {
    return static_cast<ProjectPhase*>(entityAt(row));
}

int PhaseListModel::rowOf(const ProjectPhase& phase) const {
    return rowOfEntity(&phase);
}

QList<ProjectPhase*> PhaseListModel::phases() const {
    QList<ProjectPhase*> phases;
    for (int row = 0; row < count(); ++row)
        phases.append(phaseAt(row));
    return phases;
}

QVariant PhaseListModel::data(const QModelIndex& index, int role) const {
    const ProjectPhase* const phase = phaseAt(index.row());
    if (phase == nullptr)
        return {};
    switch (role) {
    case PhaseIdRole:
        return phase->id().toString();
    case NameRole:
    case Qt::DisplayRole:
        return phase->name();
    case TaskCountRole:
        return static_cast<int>(
            std::count_if(phase->tasks().cbegin(), phase->tasks().cend(), [this](const TaskItem* task) {
                return task->parentTask() == nullptr && task->project() == m_project;
            }));
    default:
        return {};
    }
}

QHash<int, QByteArray> PhaseListModel::roleNames() const {
    return {{PhaseIdRole, "phaseId"}, {NameRole, "name"}, {TaskCountRole, "taskCount"}};
}

} // namespace norvin
