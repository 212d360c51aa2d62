#pragma once

#include "model/LiveTaskList.h"

#include <QIdentityProxyModel>
#include <QLocale>

namespace norvin {

class Clock;
class ModelContext;
class PlanningNotifications;
class Project;

/// What the lists of the agenda show of their tasks, over a live list of them. Main thread only.
class AgendaRowsModel : public QIdentityProxyModel {
    Q_OBJECT
public:
    /// Beside those of LiveTaskList.
    enum Role {
        PriorityLabelRole = Qt::UserRole + 100, ///< "priorityLabel": text; empty for a number that is none
        ProjectNameRole,                        ///< "projectName": text, empty without a project
        ProjectColorRole,                       ///< "projectColor": colour text, empty without a project
        ParentTitleRole,                        ///< "parentTitle": text, empty for a top-level task
        DueTextRole,                            ///< "dueText": the due day in words, empty for none
        PlannedTextRole,                        ///< "plannedText": the planned day in words, empty for none
        IsLateRole,                             ///< "isLate": due or planned for a day that is over
        IsOverdueRole,                          ///< "isOverdue": due on a day that is over
        IsPlannedForTodayRole,                  ///< "isPlannedForToday"
    };

    ~AgendaRowsModel() override;

    [[nodiscard]] int count() const { return m_tasks.count(); }
    /// Null when there is no such row.
    [[nodiscard]] TaskItem* taskAt(int row) const { return m_tasks.taskAt(row); }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Reads all rows again: the day, or the language, is another one.
    void refreshRows(const QLocale& locale);

Q_SIGNALS:
    void countChanged();
    /// What is said about the rows as a whole.
    void textsChanged();

protected:
    /// Opens the detail sheet of a row's task.
    void openRow(int row);
    AgendaRowsModel(ModelContext& context, Clock& clock, PlanningNotifications& notifications,
                    const QLocale& locale, LiveTaskList::Predicate accept, LiveTaskList::Order order,
                    QObject* parent);
    [[nodiscard]] LiveTaskList& tasks() { return m_tasks; }
    [[nodiscard]] const LiveTaskList& tasks() const { return m_tasks; }
    [[nodiscard]] Clock& clock() const { return m_clock; }
    [[nodiscard]] const QLocale& locale() const { return m_locale; }

private:
    template <class Condition>
    void touchRowsWhere(Condition holds);

    Clock& m_clock;
    PlanningNotifications& m_notifications;
    QLocale m_locale;
    LiveTaskList m_tasks;
};

/// "Low", "Medium", "High" in the language of the window; empty for none.
[[nodiscard]] QString priorityLabel(std::optional<TaskPriority> priority);

} // namespace norvin
