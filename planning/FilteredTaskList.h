#pragma once

#include "planning/AgendaRowsModel.h"

#include <QDateTime>
#include <QList>
#include <QPointer>
#include <QString>

namespace norvin {

class PlanningEdits;
class PomodoroTimerService;
class SoundService;

/// Everything that the lists of the agenda work with; all of it must outlive them.
struct AgendaCollaborators {
    ModelContext& context;
    PomodoroTimerService& timer;
    SoundService& sounds;
    PlanningEdits& edits;
    PlanningNotifications& notifications;
    Clock& clock;
};

/// The unfinished top-level tasks that stand on one day: those planned for it, and of those without a planned
/// date those due on it. The highest priority comes first, tasks of the same in store order. Made anew for
/// each day. Main thread only.
///
/// While its day is today and somebody sees it, the timer's queue follows the list: each time tasks come or
/// go, at the end of the event-loop turn.
class FilteredTaskList final : public AgendaRowsModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    /// What is being typed as a new task.
    Q_PROPERTY(
        QString quickTaskTitle READ quickTaskTitle WRITE setQuickTaskTitle NOTIFY quickTaskTitleChanged)
    /// Whether a task waits for the confirmation that it is to be unscheduled.
    Q_PROPERTY(bool asksToUnschedule READ asksToUnschedule NOTIFY taskToUnscheduleChanged)
    Q_PROPERTY(QString titleToUnschedule READ titleToUnschedule NOTIFY taskToUnscheduleChanged)
    /// How far the day is, in words.
    Q_PROPERTY(QString progressText READ progressText NOTIFY textsChanged)
public:
    FilteredTaskList(const QDateTime& selectedDate, const AgendaCollaborators& collaborators,
                     const QLocale& locale, QObject* parent = nullptr);
    ~FilteredTaskList() override;

    [[nodiscard]] const QDateTime& selectedDate() const { return m_selectedDate; }
    [[nodiscard]] QList<TaskItem*> filteredTasks() const;
    /// Whether somebody can see the list. Not at first.
    void setIsShown(bool shown) { m_isShown = shown; }
    [[nodiscard]] const QString& quickTaskTitle() const { return m_quickTaskTitle; }
    void setQuickTaskTitle(const QString& title);
    /// Null while none waits for confirmation.
    [[nodiscard]] TaskItem* taskToUnschedule() const { return m_taskToUnschedule; }
    [[nodiscard]] bool asksToUnschedule() const { return m_taskToUnschedule != nullptr; }
    [[nodiscard]] QString titleToUnschedule() const;

    /// Makes a task of quickTaskTitle on this day; a title of white space makes none and stays.
    Q_INVOKABLE void createQuickTaskWithoutProject();
    /// Opens the detail sheet of a row's task.
    Q_INVOKABLE void openAt(int row) { openRow(row); }
    /// Asks for confirmation; nothing else.
    void requestUnschedule(TaskItem* task);
    Q_INVOKABLE void requestUnscheduleAt(int row) { requestUnschedule(taskAt(row)); }
    Q_INVOKABLE void confirmUnschedule();
    Q_INVOKABLE void cancelUnschedule() { requestUnschedule(nullptr); }
    /// Takes the task off the agenda; one without a project is deleted. Can be undone.
    void unschedule(TaskItem& task);
    /// Ticks the task of a row off. Can be undone.
    Q_INVOKABLE void completeAt(int row);
    /// Brings the timer's queue in line with these tasks of today; does nothing on other days.
    void syncWithDeepWorkQueue(const QList<TaskItem*>& newTasks);
    /// The list is shown no longer: the queue does not follow it from the next turn on.
    void retire();
    /// The day's line for a list of so many tasks. None of those that the list shows is done.
    [[nodiscard]] QString dayProgressBar(int count) const;
    [[nodiscard]] QString progressText() const { return dayProgressBar(this->count()); }

Q_SIGNALS:
    void quickTaskTitleChanged();
    void taskToUnscheduleChanged();

private:
    [[nodiscard]] bool isToday() const;
    void scheduleSync();

    AgendaCollaborators m_with;
    QDateTime m_selectedDate;
    QString m_quickTaskTitle;
    QPointer<TaskItem> m_taskToUnschedule;
    bool m_isSyncScheduled = false;
    bool m_isShown = false;
};

} // namespace norvin
