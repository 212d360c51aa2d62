#include "model/TaskResource.h"

#include "model/FileBookmark.h"
#include "model/TaskItem.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <utility>

namespace norvin {

TaskResource::TaskResource(const Init& init)
    : Entity(Kind::resource)
    , m_id(init.id)
    , m_name(init.name)
    , m_fileType(init.fileType)
    , m_createdAt(init.createdAt) {
    if (init.fileURL) {
        if (const auto bookmark = FileBookmark::of(*init.fileURL))
            m_fileURLData = bookmark->toData();
    }
}

TaskResource::~TaskResource() {
    if (m_task != nullptr) {
        takeOut(m_task->m_resources, this);
        Q_EMIT m_task->resourcesChanged();
    }
}

void TaskResource::setName(const QString& name) {
    if (name == m_name)
        return;
    m_name = name;
    Q_EMIT nameChanged();
    touch();
}

void TaskResource::setTask(TaskItem* task) {
    if (task == m_task)
        return;
    TaskItem* const former = std::exchange(m_task, task);
    if (former != nullptr)
        takeOut(former->m_resources, this);
    if (task != nullptr)
        addInOrder(task->m_resources, this);
    if (former != nullptr)
        Q_EMIT former->resourcesChanged();
    if (task != nullptr)
        Q_EMIT task->resourcesChanged();
    Q_EMIT taskChanged();
    touch();
}

std::optional<QUrl> TaskResource::resolvedURL() const {
    const auto bookmark = FileBookmark::fromData(m_fileURLData);
    return bookmark ? bookmark->resolve() : std::nullopt;
}

bool TaskResource::isImage() const {
    if (m_fileType.toLower().contains(QLatin1String("image")))
        return true;
    const auto bookmark = FileBookmark::fromData(m_fileURLData);
    const QString suffix = QFileInfo(bookmark ? bookmark->path() : m_name).suffix().toLower();
    static const std::array<QLatin1String, 5> imageSuffixes{QLatin1String("jpg"), QLatin1String("jpeg"),
                                                            QLatin1String("png"), QLatin1String("gif"),
                                                            QLatin1String("webp")};
    return std::find(imageSuffixes.begin(), imageSuffixes.end(), suffix) != imageSuffixes.end();
}

} // namespace norvin
