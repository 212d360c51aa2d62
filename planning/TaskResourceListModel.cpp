#include "planning/TaskResourceListModel.h"

#include "model/FileBookmark.h"
#include "model/TaskItem.h"
#include "model/TaskResource.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

#include <utility>

namespace norvin {

TaskResourceListModel::TaskResourceListModel(QObject* parent)
    : QAbstractListModel(parent) {}

TaskResourceListModel::~TaskResourceListModel() = default;

void TaskResourceListModel::setTask(TaskItem* task) {
    disconnect(m_following);
    m_task = task;
    m_places.clear();
    if (m_task != nullptr)
        m_following = connect(m_task, &TaskItem::resourcesChanged, this, &TaskResourceListModel::follow);
    follow();
}

void TaskResourceListModel::follow() {
    // A task has a handful of files, and they hardly change.
    beginResetModel();
    m_rows = m_task != nullptr ? m_task->resources() : QList<TaskResource*>();
    endResetModel();
    Q_EMIT countChanged();
    refresh();
}

void TaskResourceListModel::refresh() {
    for (const TaskResource* resource : std::as_const(m_rows))
        look(*resource);
}

void TaskResourceListModel::look(const TaskResource& resource) {
    const QString id = resource.id().toString();
    QThreadPool::globalInstance()->start(
        [self = QPointer<TaskResourceListModel>(this), id, data = resource.fileURLData()] {
            const std::optional<FileBookmark> bookmark = FileBookmark::fromData(data);
            const QUrl url = bookmark ? bookmark->resolve().value_or(QUrl()) : QUrl();
            // The pointer is only looked at on the thread of what it points to.
            QMetaObject::invokeMethod(
                QCoreApplication::instance(),
                [self, id, url] {
                    if (self)
                        self->setPlace(id, url);
                },
                Qt::QueuedConnection);
        });
}

void TaskResourceListModel::setPlace(const QString& resourceId, const QUrl& url) {
    Place& place = m_places[resourceId];
    place = {url.isEmpty(), url};
    for (int row = 0; row < m_rows.size(); ++row) {
        if (m_rows.at(row)->id().toString() == resourceId)
            Q_EMIT dataChanged(index(row), index(row));
    }
}

TaskResource* TaskResourceListModel::resourceAt(int row) const {
    return row >= 0 && row < m_rows.size() ? m_rows.at(row) : nullptr;
}

int TaskResourceListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant TaskResourceListModel::data(const QModelIndex& index, int role) const {
    const TaskResource* const resource = resourceAt(index.row());
    if (resource == nullptr)
        return {};
    const QString id = resource->id().toString();
    const Place place = m_places.value(id);
    switch (role) {
    case ResourceIdRole:
        return id;
    case NameRole:
    case Qt::DisplayRole:
        return resource->name();
    case UrlRole:
        return place.url;
    case IsFoundRole:
        return !place.url.isEmpty();
    case IsMissingRole:
        return place.isMissing;
    case IsImageRole:
        return resource->isImage();
    default:
        return {};
    }
}

QHash<int, QByteArray> TaskResourceListModel::roleNames() const {
    return {{ResourceIdRole, "resourceId"}, {NameRole, "name"},           {UrlRole, "fileUrl"},
            {IsFoundRole, "isFound"},       {IsMissingRole, "isMissing"}, {IsImageRole, "isImage"}};
}

} // namespace norvin
