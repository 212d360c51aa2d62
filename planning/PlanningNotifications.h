#pragma once

#include <QObject>
#include <QString>

namespace norvin {

class TaskItem;

/// What one screen asks of the others, by name. Main thread only.
class PlanningNotifications final : public QObject {
    Q_OBJECT
public:
    /// Opens the planning sheet; the task, if any, is the one to plan.
    static inline const QString showPlanningSheet = QStringLiteral("ShowPlanningSheet");
    /// Opens the detail sheet of the task.
    static inline const QString showTaskDetail = QStringLiteral("ShowTaskDetail");

    using QObject::QObject;

    /// @param task what it is about; null for nothing in particular
    void post(const QString& name, norvin::TaskItem* task = nullptr) { Q_EMIT posted(name, task); }

Q_SIGNALS:
    void posted(const QString& name, norvin::TaskItem* task);
};

} // namespace norvin
