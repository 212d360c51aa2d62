#include "planning/ProjectListModel.h"

#include "model/ModelContext.h"
#include "platform/TextSearch.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace norvin {

ProjectListModel::ProjectListModel(ModelContext& context, QObject* parent)
    : EntityListModel(parent)
    , m_context(context) {
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    m_collator.setNumericMode(true);
}

ProjectListModel::~ProjectListModel() = default;

void ProjectListModel::load() {
    if (m_isLoaded)
        return;
    m_isLoaded = true;
    for (Project* project : m_context.projects())
        follow(project);
    connect(&m_context, &ModelContext::projectInserted, this, [this](Project* project) {
        follow(project);
        Q_EMIT totalChanged();
    });
    connect(&m_context, &ModelContext::projectAboutToBeRemoved, this, &ProjectListModel::forget);
    connect(&m_context, &ModelContext::projectChanged, this, &ProjectListModel::touch);
    // A task that comes, goes or changes places is heard of from its projects; what it is, from itself.
    connect(&m_context, &ModelContext::taskChanged, this,
            [this](const TaskItem* task) { touch(task->project()); });
    Q_EMIT totalChanged();
    settle();
}

void ProjectListModel::follow(Project* project) {
    m_tiles.insert(project, {});
    touch(project);
    const auto touched = [this, project] { touch(project); };
    connect(project, &Project::tasksChanged, this, touched);
    connect(project, &Project::phasesChanged, this, touched);
}

void ProjectListModel::forget(Project* project) {
    project->disconnect(this);
    m_touched.remove(project);
    dropRow(project);
    m_tiles.remove(project);
    Q_EMIT totalChanged();
}

void ProjectListModel::touch(Project* project) {
    // Tasks that were never inserted may belong to projects that were not either.
    if (project == nullptr || !m_tiles.contains(project))
        return;
    if (m_touched.isEmpty())
        QMetaObject::invokeMethod(this, &ProjectListModel::settle, Qt::QueuedConnection);
    m_touched.insert(project);
}

void ProjectListModel::settle() {
    if (m_touched.isEmpty())
        return;
    const QSet<Project*> touched = std::exchange(m_touched, {});
    for (Project* project : touched)
        countTasks(*project);
    arrange();
    rowsTouched(QSet<const Entity*>(touched.cbegin(), touched.cend()));
}

void ProjectListModel::countTasks(const Project& project) {
    Tile tile;
    for (const TaskItem* task : project.tasks()) {
        if (task->parentTask() != nullptr)
            continue;
        ++tile.tasks;
        if (task->isDone())
            ++tile.done;
    }
    tile.phases = static_cast<int>(project.phases().size());
    tile.searchKey = searchKey(project.name() + QLatin1Char('\n') + project.projectDescription());
    tile.nameKey = m_collator.sortKey(project.name());
    m_tiles.insert(&project, tile);
}

bool ProjectListModel::comesBefore(const Project& a, const Project& b) const {
    const Tile& one = *m_tiles.constFind(&a);
    const Tile& other = *m_tiles.constFind(&b);
    switch (m_order) {
    case Order::created:
        if (a.createdAt() != b.createdAt())
            return a.createdAt() > b.createdAt();
        break;
    case Order::progress:
        if (one.progress() > other.progress() || one.progress() < other.progress())
            return one.progress() > other.progress();
        break;
    case Order::name:
        break;
    }
    return one.nameKey->compare(*other.nameKey) < 0;
}

void ProjectListModel::arrange() {
    if (!m_isLoaded)
        return;
    std::vector<Project*> shown;
    std::copy_if(m_context.projects().begin(), m_context.projects().end(), std::back_inserter(shown),
                 [this](const Project* project) {
                     const auto tile = m_tiles.constFind(project);
                     return tile != m_tiles.cend() && tile->nameKey && tile->searchKey.contains(m_wanted);
                 });
    std::stable_sort(shown.begin(), shown.end(),
                     [this](const Project* a, const Project* b) { return comesBefore(*a, *b); });
    setRows(Rows(shown.cbegin(), shown.cend()));
}

void ProjectListModel::setSearchText(const QString& text) {
    m_wanted = searchKey(text.trimmed());
    arrange();
}

void ProjectListModel::setOrder(Order order) {
    if (order == m_order)
        return;
    m_order = order;
    arrange();
}

void ProjectListModel::setLocale(const QLocale& locale) {
    m_collator.setLocale(locale);
    for (auto tile = m_tiles.begin(); tile != m_tiles.end(); ++tile)
        tile->nameKey = m_collator.sortKey(static_cast<const Project*>(tile.key())->name());
    arrange();
}

Project* ProjectListModel::projectAt(int row) const {
    return static_cast<Project*>(entityAt(row));
}

QVariant ProjectListModel::data(const QModelIndex& index, int role) const {
    const Project* const project = projectAt(index.row());
    if (project == nullptr)
        return {};
    const auto tile = m_tiles.constFind(project);
    switch (role) {
    case ProjectIdRole:
        return project->id().toString();
    case NameRole:
    case Qt::DisplayRole:
        return project->name();
    case EmojiRole:
        return project->emoji();
    case ColorRole:
        return project->colorHex();
    case DescriptionRole:
        return project->projectDescription();
    case TaskCountRole:
        return tile->tasks;
    case OpenCountRole:
        return tile->tasks - tile->done;
    case DoneCountRole:
        return tile->done;
    case ProgressRole:
        return tile->progress();
    case PhaseCountRole:
        return tile->phases;
    default:
        return {};
    }
}

QHash<int, QByteArray> ProjectListModel::roleNames() const {
    return {{ProjectIdRole, "projectId"},
            {NameRole, "name"},
            {EmojiRole, "emoji"},
            {ColorRole, "colorHex"},
            {DescriptionRole, "description"},
            {TaskCountRole, "taskCount"},
            {OpenCountRole, "openCount"},
            {DoneCountRole, "doneCount"},
            {ProgressRole, "progress"},
            {PhaseCountRole, "phaseCount"}};
}

} // namespace norvin
