#pragma once

#include "planning/exchange/PlanningFile.h"

#include <QHash>
#include <QString>

#include <functional>
#include <map>
#include <optional>

namespace norvin {

/// Finds the projects and phases that a file of tasks names, and makes those that are missing.
class NamedPlaces final {
public:
    /// @param known what the store has @param content takes the projects and phases that are made, with their
    /// lines @param form what a name becomes in the file; names of the same form are taken for one
    NamedPlaces(const PlanningSnapshot& known, PlanningSnapshot& content, PlanningLines& lines,
                const std::function<QString(const QString&)>& form, const QDateTime& createdAt);

    /// The project of that form: of the store, without regard to case unless that tells two apart, or made by
    /// this file; else one is made. @param name of the project to make
    ProjectId project(const QString& form, const QString& name, int line);
    /// The phase of that form in a project; none where there is none.
    [[nodiscard]] std::optional<ProjectPhaseId> phase(ProjectId project, const QString& form) const;
    /// The same, but one is made if need be, as the project's last.
    ProjectPhaseId makePhase(ProjectId project, const QString& form, const QString& name, int line);
    /// Whether this file made the project.
    [[nodiscard]] bool isMade(ProjectId project) const { return m_made.contains(project); }

private:
    using PhaseKey = std::pair<QUuid, QString>;

    PlanningSnapshot& m_content;
    PlanningLines& m_lines;
    QDateTime m_createdAt;
    QHash<QString, ProjectId> m_projects;
    QHash<QString, ProjectId> m_foldedProjects;
    std::map<PhaseKey, ProjectPhaseId> m_phases;
    std::map<PhaseKey, ProjectPhaseId> m_foldedPhases;
    QHash<ProjectId, int> m_nextOrderIndex;
    QHash<ProjectId, bool> m_made;
};

} // namespace norvin
