#pragma once

#include <QAbstractListModel>
#include <QHash>
#include <QUrl>

namespace norvin {

class TaskItem;
class TaskResource;

/// The files attached to one task, and where each of them is now. Main thread only; the disk is looked at on
/// another, since a network folder may take its time.
class TaskResourceListModel final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)
public:
    enum Role {
        ResourceIdRole = Qt::UserRole + 1, ///< "resourceId": text
        NameRole,                          ///< "name": text
        UrlRole,                           ///< "fileUrl": where the file is; empty while not known
        IsFoundRole,                       ///< "isFound": it was looked for and is there
        IsMissingRole,                     ///< "isMissing": it was looked for and is not there
        IsImageRole,                       ///< "isImage"
    };

    explicit TaskResourceListModel(QObject* parent);
    ~TaskResourceListModel() override;

    /// Whose files are shown; null for nobody's. To be called with another before the task is destroyed.
    void setTask(TaskItem* task);
    /// Looks again where the files are.
    Q_INVOKABLE void refresh();
    /// Null for a row that is not there.
    [[nodiscard]] TaskResource* resourceAt(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    struct Place {
        bool isMissing = false;
        QUrl url;
    };
    void follow();
    void look(const TaskResource& resource);
    void setPlace(const QString& resourceId, const QUrl& url);

    TaskItem* m_task = nullptr;
    QMetaObject::Connection m_following;
    QList<TaskResource*> m_rows;
    /// By the text of the id.
    QHash<QString, Place> m_places;
};

} // namespace norvin
