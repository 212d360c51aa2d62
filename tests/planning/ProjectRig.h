#pragma once

#include "planning/PlanningEdits.h"
#include "planning/PlanningNotifications.h"
#include "tests/support/FocusRig.h"

#include <QAbstractItemModel>

namespace norvin::test {

/// What planning screens stand on: a store in memory, a focus timer on fakes, and the edits.
struct ProjectRig {
    [[nodiscard]] ModelContext& context() const { return focus.context(); }

    Project* addProject(const QString& name, const QDateTime& createdAt = morningOf(1)) const {
        return context().insert(std::make_unique<Project>(
            Project::Init{.name = name, .colorHex = QStringLiteral("#7c3aed"), .createdAt = createdAt}));
    }
    ProjectPhase* addPhase(Project* project, const QString& name, int orderIndex) const {
        return context().insert(std::make_unique<ProjectPhase>(
            ProjectPhase::Init{.name = name, .orderIndex = orderIndex, .project = project}));
    }
    TaskItem* addTask(Project* project, const QString& title, TaskStatus status = TaskStatus::todo,
                      ProjectPhase* phase = nullptr, TaskItem* parent = nullptr) const {
        auto task = std::make_unique<TaskItem>(
            TaskItem::Init{.title = title, .status = status, .project = project, .phase = phase});
        task->setParentTask(parent);
        return context().insert(std::move(task));
    }
    [[nodiscard]] static QDateTime morningOf(int dayOfMarch) {
        return QDateTime(QDate(2025, 3, dayOfMarch), QTime(9, 0), Qt::UTC);
    }
    /// One role of all rows.
    [[nodiscard]] static QStringList column(const QAbstractItemModel& model, int role = Qt::DisplayRole) {
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts.append(model.index(row, 0).data(role).toString());
        return texts;
    }

    FocusRig focus;
    PlanningEdits edits{focus.context(), focus.timer, focus.clock};
    PlanningNotifications notifications;
};

} // namespace norvin::test
