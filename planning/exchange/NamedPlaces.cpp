#include "planning/exchange/NamedPlaces.h"

#include <algorithm>
#include <utility>

namespace norvin {

NamedPlaces::NamedPlaces(const PlanningSnapshot& known, PlanningSnapshot& content, PlanningLines& lines,
                         const std::function<QString(const QString&)>& form, const QDateTime& createdAt)
    : m_content(content)
    , m_lines(lines)
    , m_createdAt(createdAt) {
    // Of two with the same form the older one is meant.
    for (const ProjectValues& project : known.projects) {
        const QString its = form(project.name);
        if (!m_projects.contains(its))
            m_projects.insert(its, project.id);
        if (!m_foldedProjects.contains(its.toCaseFolded()))
            m_foldedProjects.insert(its.toCaseFolded(), project.id);
    }
    for (const PhaseValues& phase : known.phases) {
        if (!phase.project)
            continue;
        const QString its = form(phase.name);
        m_phases.try_emplace({phase.project->uuid(), its}, phase.id);
        m_foldedPhases.try_emplace({phase.project->uuid(), its.toCaseFolded()}, phase.id);
        int& next = m_nextOrderIndex[*phase.project];
        next =
            std::max(next, phase.orderIndex < std::numeric_limits<int>::max() ? phase.orderIndex + 1 : next);
    }
}

ProjectId NamedPlaces::project(const QString& form, const QString& name, int line) {
    if (const auto found = m_projects.constFind(form); found != m_projects.cend())
        return *found;
    if (const auto found = m_foldedProjects.constFind(form.toCaseFolded()); found != m_foldedProjects.cend())
        return *found;
    const ProjectId id = ProjectId::create();
    m_projects.insert(form, id);
    m_made.insert(id, true);
    m_content.projects.push_back({.id = id,
                                  .name = name,
                                  .projectDescription = {},
                                  .colorHex = QStringLiteral("#7c3aed"),
                                  .emoji = QStringLiteral("📋"),
                                  .createdAt = m_createdAt});
    m_lines.projects.push_back(line);
    return id;
}

std::optional<ProjectPhaseId> NamedPlaces::phase(ProjectId project, const QString& form) const {
    if (const auto found = m_phases.find({project.uuid(), form}); found != m_phases.end())
        return found->second;
    const auto found = m_foldedPhases.find({project.uuid(), form.toCaseFolded()});
    return found == m_foldedPhases.end() ? std::nullopt : std::optional(found->second);
}

ProjectPhaseId NamedPlaces::makePhase(ProjectId project, const QString& form, const QString& name, int line) {
    if (const auto found = phase(project, form))
        return *found;
    const ProjectPhaseId id = ProjectPhaseId::create();
    m_phases.emplace(PhaseKey{project.uuid(), form}, id);
    m_content.phases.push_back({.id = id,
                                .name = name,
                                .orderIndex = m_nextOrderIndex[project]++,
                                .createdAt = m_createdAt,
                                .project = project});
    m_lines.phases.push_back(line);
    return id;
}

} // namespace norvin
