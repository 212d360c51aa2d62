#pragma once

#include "model/Project.h"
#include "model/TaskItem.h"

#include <QAbstractListModel>
#include <QDate>
#include <QHash>
#include <QLocale>
#include <QSet>
#include <QString>
#include <QTimer>
#include <QVariantList>

#include <optional>
#include <vector>

namespace norvin {

class Clock;
class ModelContext;

/// The unfinished top-level tasks of all projects, to tick several of them for a day. What is late comes
/// first, then what has no date, then the rest by date. Searching sees titles and project names, without case
/// and accents. Empty unless open. Main thread only.
class TaskPickList final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    /// Maps with "id", "name" and "color"; the first stands for all.
    Q_PROPERTY(QVariantList projects READ projects NOTIFY projectsChanged)
    /// The project to which the list is narrowed; empty for all.
    Q_PROPERTY(QString projectId READ projectId WRITE setProjectId NOTIFY projectsChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    /// Tasks that could be found, whatever is searched for.
    Q_PROPERTY(int total READ total NOTIFY countChanged)
    Q_PROPERTY(int tickedCount READ tickedCount NOTIFY tickedCountChanged)
public:
    enum Role {
        TitleRole = Qt::UserRole + 1, ///< "title"
        ProjectNameRole,              ///< "projectName": empty without a project
        ProjectColorRole,             ///< "projectColor": colour text, empty without a project
        WhenRole,                     ///< "when": the day that it stands on, in words; empty without one
        IsLateRole,                   ///< "isLate"
        IsTickedRole,                 ///< "isTicked"
    };

    /// Everything must outlive this.
    TaskPickList(ModelContext& context, Clock& clock, const QLocale& locale, QObject* parent = nullptr);
    ~TaskPickList() override;

    /// Fills the list. @param task ticked in advance, and in the list even if it is a subtask; null for none
    void open(TaskItem* task);
    void close();

    [[nodiscard]] const QString& searchText() const { return m_searchText; }
    void setSearchText(const QString& text);
    [[nodiscard]] const QVariantList& projects() const { return m_projects; }
    [[nodiscard]] QString projectId() const { return m_project ? m_project->toString() : QString(); }
    void setProjectId(const QString& id);
    [[nodiscard]] int count() const { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] int total() const { return static_cast<int>(m_all.size()); }
    [[nodiscard]] int tickedCount() const { return static_cast<int>(m_ticked.size()); }
    /// Those that are ticked, found or not, in the order of the list.
    [[nodiscard]] QList<TaskItem*> tickedTasks() const;

    /// Ticks the task of a row, or takes the tick away.
    Q_INVOKABLE void toggle(int row);

    void retranslate(const QLocale& locale);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void searchTextChanged();
    void projectsChanged();
    void countChanged();
    void tickedCountChanged();

private:
    struct Candidate {
        TaskItem* task;
        /// What a search sees of the title; null until it is first asked for.
        QString key;
    };
    void load();
    void find();
    void warmUp();
    static const QString& keyOf(Candidate& candidate);
    void forget(TaskItem* task);
    void scheduleLoad();
    void fillProjects();
    [[nodiscard]] QString whenText(const TaskItem& task) const;

    ModelContext& m_context;
    Clock& m_clock;
    QLocale m_locale;
    QString m_searchText;
    QVariantList m_projects;
    std::optional<ProjectId> m_project;
    /// The task that the list was opened for.
    std::optional<TaskId> m_asked;
    // Keys are made once for each text, since every character that is typed looks at all of them.
    std::vector<Candidate> m_all;
    std::vector<TaskItem*> m_rows;
    QSet<TaskItem*> m_ticked;
    /// Whose keys are out of date.
    QSet<const TaskItem*> m_changed;
    QHash<const Project*, QString> m_projectKeys;
    /// Makes the keys in the background, a few at a time.
    QTimer m_warmUp;
    size_t m_warm = 0;
    bool m_isOpen = false;
    bool m_isLoadScheduled = false;
};

} // namespace norvin
