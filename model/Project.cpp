#include "model/Project.h"

#include "model/ProjectPhase.h"
#include "model/TaskItem.h"

#include <algorithm>
#include <utility>

namespace norvin {

Project::Project(const Init& init)
    : Entity(Kind::project)
    , m_id(init.id)
    , m_name(init.name)
    , m_projectDescription(init.projectDescription)
    , m_colorHex(init.colorHex)
    , m_emoji(init.emoji)
    , m_createdAt(init.createdAt) {}

Project::~Project() {
    for (TaskItem* task : std::exchange(m_tasks, {})) {
        task->m_project = nullptr;
        Q_EMIT task->projectChanged();
        task->touch();
    }
    for (ProjectPhase* phase : std::exchange(m_phases, {})) {
        phase->m_project = nullptr;
        Q_EMIT phase->projectChanged();
        phase->touch();
    }
}

void Project::setName(const QString& name) {
    if (name == m_name)
        return;
    m_name = name;
    Q_EMIT nameChanged();
    touch();
}

void Project::setProjectDescription(const QString& text) {
    if (text == m_projectDescription)
        return;
    m_projectDescription = text;
    Q_EMIT projectDescriptionChanged();
    touch();
}

void Project::setColorHex(const QString& colorHex) {
    if (colorHex == m_colorHex)
        return;
    m_colorHex = colorHex;
    Q_EMIT colorHexChanged();
    touch();
}

void Project::setEmoji(const QString& emoji) {
    if (emoji == m_emoji)
        return;
    m_emoji = emoji;
    Q_EMIT emojiChanged();
    touch();
}

QList<ProjectPhase*> Project::sortedPhases() const {
    QList<ProjectPhase*> sorted = m_phases;
    std::stable_sort(sorted.begin(), sorted.end(), [](const ProjectPhase* a, const ProjectPhase* b) {
        return a->orderIndex() < b->orderIndex();
    });
    return sorted;
}

int Project::topLevelTasksCount() const {
    return static_cast<int>(std::count_if(
        m_tasks.begin(), m_tasks.end(), [](const TaskItem* task) { return task->parentTask() == nullptr; }));
}

} // namespace norvin
