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

using ProjectId = EntityId<Project>;

/// A project with its phases and tasks.
class Project final : public Entity {
    Q_OBJECT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QString projectDescription READ projectDescription WRITE setProjectDescription NOTIFY
                   projectDescriptionChanged)
    Q_PROPERTY(QString colorHex READ colorHex WRITE setColorHex NOTIFY colorHexChanged)
    Q_PROPERTY(QString emoji READ emoji WRITE setEmoji NOTIFY emojiChanged)
public:
    /// Values of a new project.
    struct Init {
        ProjectId id = ProjectId::create();
        QString name = {};
        QString projectDescription = {};
        QString colorHex = {};
        QString emoji = {};
        QDateTime createdAt = QDateTime::currentDateTime();
    };
    explicit Project(const Init& init);
    ~Project() override;

    [[nodiscard]] ProjectId id() const { return m_id; }
    [[nodiscard]] const QString& name() const { return m_name; }
    void setName(const QString& name);
    [[nodiscard]] const QString& projectDescription() const { return m_projectDescription; }
    void setProjectDescription(const QString& text);
    /// Hexadecimal colour text ("#7c3aed").
    [[nodiscard]] const QString& colorHex() const { return m_colorHex; }
    void setColorHex(const QString& colorHex);
    /// One emoji, shown as the project's icon; empty for none.
    [[nodiscard]] const QString& emoji() const { return m_emoji; }
    void setEmoji(const QString& emoji);
    [[nodiscard]] const QDateTime& createdAt() const { return m_createdAt; }

    /// In the order of creation, subtasks included; the same order in phases().
    [[nodiscard]] const QList<TaskItem*>& tasks() const { return m_tasks; }
    [[nodiscard]] const QList<ProjectPhase*>& phases() const { return m_phases; }
    /// The phases by ascending orderIndex.
    [[nodiscard]] QList<ProjectPhase*> sortedPhases() const;
    /// The number of tasks that have no parent task.
    [[nodiscard]] int topLevelTasksCount() const;

Q_SIGNALS:
    void nameChanged();
    void projectDescriptionChanged();
    void colorHexChanged();
    void emojiChanged();
    void tasksChanged();
    void phasesChanged();

private:
    friend class ModelContext;
    friend class PlanningGraph;
    friend class SnapshotAccess;
    friend class ProjectPhase;
    friend class TaskItem;

    ProjectId m_id;
    QString m_name;
    QString m_projectDescription;
    QString m_colorHex;
    QString m_emoji;
    QDateTime m_createdAt;
    QList<TaskItem*> m_tasks;
    QList<ProjectPhase*> m_phases;
};

} // namespace norvin
