#pragma once

#include "planning/EntityListModel.h"

namespace norvin {

class ModelContext;
class Project;
class ProjectPhase;

/// The phases of a project by orderIndex, those with the same one in store order, kept up to date at the end
/// of each event-loop turn. Main thread only.
class PhaseListModel final : public norvin::EntityListModel {
    Q_OBJECT
public:
    enum Role {
        PhaseIdRole = Qt::UserRole + 1, ///< "phaseId": text
        NameRole,                       ///< "name"; also the display role
        TaskCountRole,                  ///< "taskCount": the project's tasks in the phase, without subtasks
    };
    Q_ENUM(Role)

    /// @param context must outlive this
    explicit PhaseListModel(ModelContext& context, QObject* parent = nullptr);
    ~PhaseListModel() override;

    /// Null for none. A project that leaves the store is let go of.
    void setProject(Project* project);
    /// Takes what changed into account now rather than at the end of the turn.
    void settle();

    /// Null when there is no such row.
    [[nodiscard]] ProjectPhase* phaseAt(int row) const;
    /// −1 when the phase is not in the list.
    [[nodiscard]] int rowOf(const ProjectPhase& phase) const;
    [[nodiscard]] QList<ProjectPhase*> phases() const;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    void schedule();

    ModelContext& m_context;
    Project* m_project = nullptr;
    bool m_isScheduled = false;
};

} // namespace norvin
