#include "planning/ManagePhasesSheet.h"

#include "model/ModelContext.h"
#include "planning/PlanningEdits.h"
#include "platform/Clock.h"

#include <algorithm>
#include <memory>

namespace norvin {

ManagePhasesSheet::ManagePhasesSheet(ModelContext& context, PlanningEdits& edits, Clock& clock,
                                     QObject* parent)
    : QObject(parent)
    , m_context(context)
    , m_edits(edits)
    , m_clock(clock)
    , m_phases(context) {
    connect(&m_context, &ModelContext::phaseAboutToBeRemoved, this, [this](const ProjectPhase* phase) {
        if (phase->id().toString() == m_editingPhaseId)
            cancelEdit();
    });
    connect(&m_context, &ModelContext::projectAboutToBeRemoved, this, [this](const Project* project) {
        if (project == m_project)
            setProject(nullptr);
    });
}

ManagePhasesSheet::~ManagePhasesSheet() = default;

void ManagePhasesSheet::setProject(Project* project) {
    m_project = project;
    m_phases.setProject(project);
    setNewPhaseName({});
    cancelEdit();
}

void ManagePhasesSheet::setNewPhaseName(const QString& name) {
    if (name == m_newPhaseName)
        return;
    m_newPhaseName = name;
    Q_EMIT newPhaseNameChanged();
}

void ManagePhasesSheet::setEditingName(const QString& name) {
    if (name == m_editingName)
        return;
    m_editingName = name;
    Q_EMIT editingChanged();
}

void ManagePhasesSheet::addPhase() {
    const QString name = m_newPhaseName.trimmed();
    if (name.isEmpty() || m_project == nullptr)
        return;
    m_phases.settle();
    m_context.insert(std::make_unique<ProjectPhase>(ProjectPhase::Init{
        .name = name, .orderIndex = m_phases.count(), .project = m_project, .createdAt = m_clock.now()}));
    setNewPhaseName({});
    static_cast<void>(m_context.save());
    m_phases.settle();
}

QList<ProjectPhase*> ManagePhasesSheet::phasesAt(const QList<int>& rows) const {
    QList<int> ascending = rows;
    std::sort(ascending.begin(), ascending.end());
    QList<ProjectPhase*> phases;
    for (const int row : ascending) {
        ProjectPhase* const phase = m_phases.phaseAt(row);
        if (phase != nullptr && !phases.contains(phase))
            phases.append(phase);
    }
    return phases;
}

void ManagePhasesSheet::movePhase(const QList<int>& from, int to) {
    m_phases.settle();
    const QList<ProjectPhase*> moved = phasesAt(from);
    if (moved.isEmpty() || to < 0 || to > m_phases.count())
        return;
    const QList<ProjectPhase*> listed = m_phases.phases();
    QList<ProjectPhase*> order;
    const auto takeOver = [&](int first, int end) {
        for (int row = first; row < end; ++row) {
            if (!moved.contains(listed.at(row)))
                order.append(listed.at(row));
        }
    };
    takeOver(0, to);
    order.append(moved);
    takeOver(to, m_phases.count());
    for (int position = 0; position < order.size(); ++position)
        order.at(position)->setOrderIndex(position);
    static_cast<void>(m_context.save());
    m_phases.settle();
}

void ManagePhasesSheet::deletePhase(const QList<int>& at) {
    m_edits.deletePhases(phasesAt(at));
    m_phases.settle();
}

QString ManagePhasesSheet::consequencesOfDeletion(const QList<int>& at) const {
    return deletionConsequences(phasesAt(at));
}

void ManagePhasesSheet::beginEdit(const QString& phaseId) {
    const ProjectPhase* phase = phaseWithId(phaseId);
    if (phase == nullptr)
        return;
    m_editingPhaseId = phaseId;
    m_editingName = phase->name();
    Q_EMIT editingChanged();
}

void ManagePhasesSheet::cancelEdit() {
    if (m_editingPhaseId.isEmpty())
        return;
    m_editingPhaseId.clear();
    m_editingName.clear();
    Q_EMIT editingChanged();
}

void ManagePhasesSheet::saveEdit(const QString& phaseId) {
    const QString name = m_editingName.trimmed();
    ProjectPhase* const phase = phaseWithId(phaseId);
    // The name that was typed belongs to the phase whose renaming was begun, and to no other.
    if (phase != nullptr && phaseId == m_editingPhaseId && !name.isEmpty()) {
        phase->setName(name);
        static_cast<void>(m_context.save());
    }
    cancelEdit();
    m_phases.settle();
}

void ManagePhasesSheet::undo() {
    m_edits.undo();
    m_phases.settle();
}

ProjectPhase* ManagePhasesSheet::phaseWithId(const QString& phaseId) const {
    return m_context.phase(ProjectPhaseId(QUuid::fromString(phaseId)));
}

} // namespace norvin
