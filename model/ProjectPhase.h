#pragma once

#include "model/Entity.h"
#include "model/EntityId.h"

#include <QDateTime>
#include <QList>
#include <QString>

namespace norvin {

class Project;
class ProjectPhase;
class TaskItem;

using ProjectPhaseId = EntityId<ProjectPhase>;

/// A column of a project's board.
class ProjectPhase final : public Entity {
    Q_OBJECT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(int orderIndex READ orderIndex WRITE setOrderIndex NOTIFY orderIndexChanged)
public:
    /// Values of a new phase.
    struct Init {
        ProjectPhaseId id = ProjectPhaseId::create();
        QString name = {};
        int orderIndex = 0;
        Project* project = nullptr;
        QDateTime createdAt = QDateTime::currentDateTime();
    };
    explicit ProjectPhase(const Init& init);
    ~ProjectPhase() override;

    [[nodiscard]] ProjectPhaseId id() const { return m_id; }
    [[nodiscard]] const QString& name() const { return m_name; }
    void setName(const QString& name);
    /// Position of the column within its project, ascending; any number, and not necessarily the only one.
    [[nodiscard]] int orderIndex() const { return m_orderIndex; }
    void setOrderIndex(int orderIndex);
    [[nodiscard]] const QDateTime& createdAt() const { return m_createdAt; }
    /// Null when there is none.
    [[nodiscard]] Project* project() const { return m_project; }
    void setProject(Project* project);
    /// In the order of creation.
    [[nodiscard]] const QList<TaskItem*>& tasks() const { return m_tasks; }

Q_SIGNALS:
    void nameChanged();
    void orderIndexChanged();
    void projectChanged();
    void tasksChanged();

private:
    friend class ModelContext;
    friend class PlanningGraph;
    friend class SnapshotAccess;
    friend class Project;
    friend class TaskItem;

    ProjectPhaseId m_id;
    QString m_name;
    int m_orderIndex;
    QDateTime m_createdAt;
    Project* m_project = nullptr;
    QList<TaskItem*> m_tasks;
};

} // namespace norvin
