#pragma once

#include "planning/AgendaCalendarPopover.h"
#include "planning/AgendaRowsModel.h"

#include <QDate>
#include <QPointer>

namespace norvin {

/// The unfinished tasks and subtasks that are due or planned for a day that is over, the longest overdue one
/// first. Main thread only.
class LateTaskList final : public AgendaRowsModel {
    Q_OBJECT
    /// Where the other day is chosen.
    Q_PROPERTY(norvin::AgendaCalendarPopover* calendar READ calendar CONSTANT)
    /// Whether a task waits for the day that it is to be planned for, and its title.
    Q_PROPERTY(bool asksForDay READ asksForDay NOTIFY asksForDayChanged)
    Q_PROPERTY(QString titleToPlan READ titleToPlan NOTIFY asksForDayChanged)
public:
    LateTaskList(ModelContext& context, Clock& clock, PlanningNotifications& notifications,
                 const QLocale& locale, QObject* parent = nullptr);
    ~LateTaskList() override;

    /// Opens the detail sheet of a row's task.
    Q_INVOKABLE void openAt(int row) { openRow(row); }
    /// Plans the task of a row for today, or for another day. It stays in the list while its due date is
    /// over.
    Q_INVOKABLE void planForTodayAt(int row);
    void planAt(int row, QDate day);
    /// Asks for the other day; cancelDay() gives up asking.
    Q_INVOKABLE void askForDayAt(int row);
    Q_INVOKABLE void cancelDay() { setTaskToPlan(nullptr); }

    [[nodiscard]] AgendaCalendarPopover* calendar() { return &m_calendar; }
    [[nodiscard]] bool asksForDay() const { return m_taskToPlan != nullptr; }
    [[nodiscard]] QString titleToPlan() const;

    /// Today is another day, or the language another one.
    void refresh(const QLocale& locale);

Q_SIGNALS:
    void asksForDayChanged();

private:
    void setTaskToPlan(TaskItem* task);
    void plan(TaskItem& task, QDate day);

    AgendaCalendarPopover m_calendar;
    QPointer<TaskItem> m_taskToPlan;
};

/// How many tasks and subtasks that are not done are due or planned for a day before the one that begins at
/// `startOfToday`.
[[nodiscard]] int countLateTasks(const ModelContext& context, Instant startOfToday);

} // namespace norvin
