#include "planning/AllProjectsView.h"

#include "model/ModelContext.h"
#include "planning/PlanningEdits.h"
#include "planning/ProjectSheet.h"

#include <array>
#include <utility>

namespace norvin {

namespace {

using Order = ProjectListModel::Order;

constexpr std::array orders = {
    std::pair(QLatin1String("name"), Order::name),
    std::pair(QLatin1String("created"), Order::created),
    std::pair(QLatin1String("progress"), Order::progress),
};

} // namespace

AllProjectsView::AllProjectsView(ModelContext& context, PlanningEdits& edits, ProjectSheet& sheet,
                                 QObject* parent)
    : QObject(parent)
    , m_context(context)
    , m_edits(edits)
    , m_sheet(sheet)
    , m_projects(context) {
    connect(&context, &ModelContext::projectInserted, this, &AllProjectsView::projectCountChanged);
    // It is still counted when this is said.
    connect(&context, &ModelContext::projectAboutToBeRemoved, this, &AllProjectsView::projectCountChanged,
            Qt::QueuedConnection);
}

AllProjectsView::~AllProjectsView() = default;

int AllProjectsView::projectCount() const {
    return static_cast<int>(m_context.projects().size());
}

void AllProjectsView::setSearchText(const QString& text) {
    if (text == m_searchText)
        return;
    m_searchText = text;
    m_projects.setSearchText(text);
    Q_EMIT searchTextChanged();
}

QString AllProjectsView::sortBy() const {
    for (const auto& [name, order] : orders) {
        if (order == m_projects.order())
            return name;
    }
    return {};
}

void AllProjectsView::setSortBy(const QString& order) {
    for (const auto& [name, value] : orders) {
        if (name != order || value == m_projects.order())
            continue;
        m_projects.setOrder(value);
        Q_EMIT sortByChanged();
    }
}

void AllProjectsView::refresh() {
    m_projects.load();
    m_projects.settle();
}

void AllProjectsView::createProject() {
    m_sheet.present(nullptr, [this](Project* project) { Q_EMIT projectOpened(project); });
}

void AllProjectsView::editProject(const QString& projectId) {
    if (Project* project = projectWithId(projectId))
        m_sheet.present(project);
}

void AllProjectsView::openProject(const QString& projectId) {
    if (Project* project = projectWithId(projectId))
        Q_EMIT projectOpened(project);
}

QString AllProjectsView::consequencesOfDeletion(const QString& projectId) const {
    const Project* project = projectWithId(projectId);
    return project != nullptr ? deletionConsequences(*project) : QString();
}

void AllProjectsView::deleteProject(const QString& projectId) {
    if (Project* project = projectWithId(projectId))
        m_edits.deleteProject(*project);
}

void AllProjectsView::setLocale(const QLocale& locale) {
    m_projects.setLocale(locale);
}

Project* AllProjectsView::projectWithId(const QString& projectId) const {
    return m_context.project(ProjectId(QUuid::fromString(projectId)));
}

} // namespace norvin
