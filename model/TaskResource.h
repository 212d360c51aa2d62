#pragma once

#include "model/Entity.h"
#include "model/EntityId.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QUrl>

#include <optional>

namespace norvin {

class TaskItem;
class TaskResource;

using TaskResourceId = EntityId<TaskResource>;

/// A file attached to a task.
class TaskResource final : public Entity {
    Q_OBJECT
public:
    /// Values of a new attachment, which belongs to no task yet.
    struct Init {
        TaskResourceId id = TaskResourceId::create();
        QString name = {};
        QString fileType = {};
        /// Turned into fileURLData; none for an attachment without a file.
        std::optional<QUrl> fileURL = {};
        QDateTime createdAt = QDateTime::currentDateTime();
    };
    explicit TaskResource(const Init& init);
    ~TaskResource() override;

    [[nodiscard]] TaskResourceId id() const { return m_id; }
    [[nodiscard]] const QString& name() const { return m_name; }
    void setName(const QString& name);
    /// What kind of file it is, as whoever attached it said ("image/png"); may be empty.
    [[nodiscard]] const QString& fileType() const { return m_fileType; }
    /// A bookmark of the file: its address and what is needed to find it again after it moved within its
    /// folder. Empty when there is none.
    [[nodiscard]] const QByteArray& fileURLData() const { return m_fileURLData; }
    [[nodiscard]] const QDateTime& createdAt() const { return m_createdAt; }
    /// Null when there is none.
    [[nodiscard]] TaskItem* task() const { return m_task; }
    void setTask(TaskItem* task);

    /// Where the file is now; none without data or when the file is found no more. Looks at the disk.
    [[nodiscard]] std::optional<QUrl> resolvedURL() const;
    /// Whether the type, or else the extension of the file (of the name, where there is no file), is that of
    /// an image.
    [[nodiscard]] bool isImage() const;

Q_SIGNALS:
    void nameChanged();
    void taskChanged();

private:
    friend class ModelContext;
    friend class PlanningGraph;
    friend class SnapshotAccess;
    friend class TaskItem;

    TaskResourceId m_id;
    QString m_name;
    QString m_fileType;
    QByteArray m_fileURLData;
    QDateTime m_createdAt;
    TaskItem* m_task = nullptr;
};

} // namespace norvin
