#pragma once

#include "planning/ProjectListModel.h"

#include <QLocale>
#include <QObject>
#include <QString>

namespace norvin {

class ModelContext;
class PlanningEdits;
class Project;
class ProjectSheet;

/// The list of projects: what it shows, and what can be done to one of them. Projects are named by the text
/// of their id; one that is no longer there is ignored. Main thread only.
class AllProjectsView final : public QObject {
    Q_OBJECT
    Q_PROPERTY(norvin::ProjectListModel* projects READ projects CONSTANT)
    /// Projects there are, known before the list is loaded.
    Q_PROPERTY(int projectCount READ projectCount NOTIFY projectCountChanged)
    /// Only projects with this in their name or description are shown, case and accents aside.
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    /// "name", "created" (the newest first) or "progress" (the furthest first); others are ignored.
    Q_PROPERTY(QString sortBy READ sortBy WRITE setSortBy NOTIFY sortByChanged)
public:
    /// Everything must outlive this.
    AllProjectsView(ModelContext& context, PlanningEdits& edits, ProjectSheet& sheet,
                    QObject* parent = nullptr);
    ~AllProjectsView() override;

    [[nodiscard]] ProjectListModel* projects() { return &m_projects; }
    [[nodiscard]] int projectCount() const;
    [[nodiscard]] const QString& searchText() const { return m_searchText; }
    void setSearchText(const QString& text);
    [[nodiscard]] QString sortBy() const;
    void setSortBy(const QString& order);

    /// To be called when the list comes to the front; the first call counts everything.
    Q_INVOKABLE void refresh();
    /// Opens the sheet for a new project, which is opened once it is there.
    Q_INVOKABLE void createProject();
    Q_INVOKABLE void editProject(const QString& projectId);
    Q_INVOKABLE void openProject(const QString& projectId);
    /// What the deletion of the project takes along, as a sentence in the user's language; empty for nothing.
    Q_INVOKABLE [[nodiscard]] QString consequencesOfDeletion(const QString& projectId) const;
    /// Deletes the project with all that belongs to it, which can be undone for a while.
    Q_INVOKABLE void deleteProject(const QString& projectId);

    /// The order of names is that of the language.
    void setLocale(const QLocale& locale);

Q_SIGNALS:
    void projectCountChanged();
    void searchTextChanged();
    void sortByChanged();
    /// The project's board is to be shown.
    void projectOpened(norvin::Project* project);

private:
    [[nodiscard]] Project* projectWithId(const QString& projectId) const;

    ModelContext& m_context;
    PlanningEdits& m_edits;
    ProjectSheet& m_sheet;
    ProjectListModel m_projects;
    QString m_searchText;
};

} // namespace norvin
