#pragma once

#include "planning/AgendaPlanningSheet.h"
#include "planning/FilteredTaskList.h"
#include "planning/HorizontalDatePicker.h"
#include "planning/LateTaskList.h"

#include <QDateTime>
#include <QLocale>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>

#include <memory>

namespace norvin {

class ClockTimer;

/// What the daily agenda shows and does. Main thread only.
///
/// Lives as long as the window: what comes to stand on today's agenda is queued for the timer whether or not
/// the page is seen. Only a page that is seen takes tasks out of the queue, so that one which was ticked off
/// on the Deep Work screen stays there to be looked at.
///
/// A page that nobody sees goes on to the new day at midnight; one that is seen stays on the day that it
/// shows, and only its strip of days moves on.
class DailyAgendaView final : public QObject {
    Q_OBJECT
    /// The chosen day in words: weekday, day, month.
    Q_PROPERTY(QString dateText READ dateText NOTIFY selectedDateChanged)
    Q_PROPERTY(bool isToday READ isToday NOTIFY selectedDateChanged)
    /// The tasks of the chosen day; another list for each day.
    Q_PROPERTY(norvin::FilteredTaskList* list READ list NOTIFY listChanged)
    Q_PROPERTY(norvin::HorizontalDatePicker* datePicker READ datePicker CONSTANT)
    /// Made when first asked for; the same for planningSheet.
    Q_PROPERTY(norvin::AgendaCalendarPopover* calendar READ calendar CONSTANT)
    Q_PROPERTY(norvin::AgendaPlanningSheet* planningSheet READ planningSheet CONSTANT)
    /// Null while the late tasks are not shown.
    Q_PROPERTY(norvin::LateTaskList* lateTasks READ lateTasks NOTIFY showLateTasksChanged)
    /// Unfinished tasks, subtasks included, that are due or planned for a day that is over.
    Q_PROPERTY(int overdueCount READ overdueCount NOTIFY overdueCountChanged)
    /// Tasks on today's agenda, which are all open.
    Q_PROPERTY(int todayCount READ todayCount NOTIFY todayCountChanged)
    /// The task whose detail sheet is open; null for none.
    Q_PROPERTY(
        norvin::TaskItem* selectedTask READ selectedTask WRITE setSelectedTask NOTIFY selectedTaskChanged)
    Q_PROPERTY(bool showPlanningSheet READ showPlanningSheet WRITE setShowPlanningSheet NOTIFY
                   showPlanningSheetChanged)
    Q_PROPERTY(bool showCalendar READ showCalendar WRITE setShowCalendar NOTIFY showCalendarChanged)
    Q_PROPERTY(bool showLateTasks READ showLateTasks WRITE setShowLateTasks NOTIFY showLateTasksChanged)
    /// Whether somebody can see the page.
    Q_PROPERTY(bool isShown READ isShown WRITE setIsShown NOTIFY isShownChanged)
public:
    using PlanningTab = AgendaPlanningSheet::PlanningTab;

    /// Opens on today. All must outlive this.
    DailyAgendaView(ModelContext& context, PomodoroTimerService& timer, SoundService& sounds,
                    PlanningEdits& edits, PlanningNotifications& notifications, Clock& clock,
                    QObject* parent = nullptr);
    ~DailyAgendaView() override;

    [[nodiscard]] const QDateTime& selectedDate() const { return m_selectedDate; }
    /// An instant of the day to show. @param date valid
    void setSelectedDate(const QDateTime& date);
    [[nodiscard]] QString dateText() const;
    [[nodiscard]] bool isToday() const;
    [[nodiscard]] FilteredTaskList* list() const { return m_list.get(); }
    [[nodiscard]] HorizontalDatePicker* datePicker() { return &m_datePicker; }
    [[nodiscard]] AgendaCalendarPopover* calendar();
    [[nodiscard]] AgendaPlanningSheet* planningSheet();
    [[nodiscard]] LateTaskList* lateTasks() const { return m_lateTasks.get(); }
    /// Counted again at the end of each event-loop turn in which a task changed.
    [[nodiscard]] int overdueCount() const { return m_overdueCount; }
    /// Counted at the same time.
    [[nodiscard]] int todayCount() const { return static_cast<int>(m_onAgendaToday.size()); }

    [[nodiscard]] TaskItem* selectedTask() const { return m_selectedTask; }
    void setSelectedTask(TaskItem* task);
    [[nodiscard]] bool showPlanningSheet() const { return m_showPlanningSheet; }
    /// Opens the sheet for the chosen date, on planningTabToOpen.
    void setShowPlanningSheet(bool shows);
    [[nodiscard]] bool showCalendar() const { return m_showCalendar; }
    void setShowCalendar(bool shows);
    [[nodiscard]] bool showLateTasks() const { return m_lateTasks != nullptr; }
    void setShowLateTasks(bool shows);
    /// The tab that the planning sheet opens on: quickAdd at first, then the last one asked for.
    [[nodiscard]] PlanningTab planningTabToOpen() const { return m_planningTabToOpen; }
    void setPlanningTabToOpen(PlanningTab tab) { m_planningTabToOpen = tab; }
    [[nodiscard]] bool isShown() const { return m_isShown; }
    void setIsShown(bool shown);

    Q_INVOKABLE void goToToday();
    /// Asks for the planning sheet. @param tab "quickAdd" or "pickExisting"; empty for the last one
    Q_INVOKABLE void plan(const QString& tab);
    /// Looks at the clock again: to be called when it may have jumped, as after the machine has slept.
    Q_INVOKABLE void refresh();
    /// The texts in the language of now. @param locale how it writes dates
    void retranslate(const QLocale& locale);

Q_SIGNALS:
    void selectedDateChanged();
    void listChanged();
    void overdueCountChanged();
    void todayCountChanged();
    void selectedTaskChanged();
    void showPlanningSheetChanged();
    void showCalendarChanged();
    void showLateTasksChanged();
    void isShownChanged();

private:
    void handleNotification(const QString& name, TaskItem* task);
    void rebuildList();
    void scheduleCount();
    void followTasks();
    void countOverdue();
    void queueToday();
    void waitForMidnight();

    AgendaCollaborators m_with;
    QLocale m_locale;
    QDateTime m_selectedDate;
    QDate m_today;
    HorizontalDatePicker m_datePicker;
    std::unique_ptr<FilteredTaskList> m_list;
    std::unique_ptr<AgendaCalendarPopover> m_calendar;
    std::unique_ptr<AgendaPlanningSheet> m_planningSheet;
    std::unique_ptr<LateTaskList> m_lateTasks;
    std::unique_ptr<ClockTimer> m_midnight;
    QPointer<TaskItem> m_selectedTask;
    /// The task that the sheet is to be opened for.
    QPointer<TaskItem> m_taskToPlan;
    PlanningTab m_planningTabToOpen = PlanningTab::quickAdd;
    /// Those on today's agenda when it was last looked at.
    QSet<TaskId> m_onAgendaToday;
    int m_overdueCount = 0;
    bool m_isCountScheduled = false;
    bool m_showPlanningSheet = false;
    bool m_showCalendar = false;
    bool m_isShown = false;
};

} // namespace norvin
