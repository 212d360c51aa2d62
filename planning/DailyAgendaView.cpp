#include "planning/DailyAgendaView.h"

#include "focus/PomodoroTimerService.h"
#include "model/ModelContext.h"
#include "planning/CalendarDays.h"
#include "planning/PlanningNotifications.h"
#include "platform/Clock.h"

#include <QtGlobal>

#include <algorithm>
#include <chrono>
#include <utility>

namespace norvin {

DailyAgendaView::DailyAgendaView(ModelContext& context, PomodoroTimerService& timer, SoundService& sounds,
                                 PlanningEdits& edits, PlanningNotifications& notifications, Clock& clock,
                                 QObject* parent)
    : QObject(parent)
    , m_with{context, timer, sounds, edits, notifications, clock}
    , m_selectedDate(clock.now())
    , m_today(m_selectedDate.date())
    , m_datePicker(m_selectedDate, clock, m_locale) {
    connect(&m_datePicker, &HorizontalDatePicker::selectedDateChanged, this,
            [this] { setSelectedDate(m_datePicker.selectedDate()); });
    connect(&notifications, &PlanningNotifications::posted, this, &DailyAgendaView::handleNotification);
    connect(&context, &ModelContext::taskInserted, this, &DailyAgendaView::scheduleCount);
    connect(&context, &ModelContext::taskChanged, this, &DailyAgendaView::scheduleCount);
    connect(&context, &ModelContext::taskAboutToBeRemoved, this, [this](const TaskItem* task) {
        scheduleCount();
        if (task == m_selectedTask)
            setSelectedTask(nullptr);
    });
    rebuildList();
    scheduleCount();
    waitForMidnight();
}

DailyAgendaView::~DailyAgendaView() = default;

void DailyAgendaView::setSelectedDate(const QDateTime& date) {
    if (date == m_selectedDate)
        return;
    const QDateTime now = m_with.clock.now();
    const QDate before = dateOf(Instant(m_selectedDate), now);
    m_selectedDate = date;
    // What is being typed for a day must not be lost when the same day is chosen again.
    if (dateOf(Instant(date), now) != before)
        rebuildList();
    m_datePicker.setSelectedDate(date);
    Q_EMIT selectedDateChanged();
}

void DailyAgendaView::rebuildList() {
    // Rows of the former list may be what is being called from.
    if (m_list) {
        m_list->retire();
        m_list.release()->deleteLater();
    }
    m_list = std::make_unique<FilteredTaskList>(m_selectedDate, m_with, m_locale);
    m_list->setIsShown(m_isShown);
    Q_EMIT listChanged();
}

QString DailyAgendaView::dateText() const {
    const QDate day = dateOf(Instant(m_selectedDate), m_with.clock.now());
    QString text = dateInWords(day, m_today, m_locale);
    // It stands alone, like a sentence.
    text[0] = text[0].toUpper();
    return text;
}

bool DailyAgendaView::isToday() const {
    return dateOf(Instant(m_selectedDate), m_with.clock.now()) == m_today;
}

AgendaCalendarPopover* DailyAgendaView::calendar() {
    if (!m_calendar) {
        m_calendar = std::make_unique<AgendaCalendarPopover>(m_with.context, m_with.clock, m_locale);
        connect(m_calendar.get(), &AgendaCalendarPopover::chosen, this, [this](QDate day) {
            const QDateTime now = m_with.clock.now();
            setSelectedDate(day == now.date() ? now : agendaDayOf(day, now).start.dateTime());
            setShowCalendar(false);
        });
    }
    return m_calendar.get();
}

AgendaPlanningSheet* DailyAgendaView::planningSheet() {
    if (!m_planningSheet)
        m_planningSheet = std::make_unique<AgendaPlanningSheet>(m_with, m_locale);
    return m_planningSheet.get();
}

void DailyAgendaView::setSelectedTask(TaskItem* task) {
    if (task == m_selectedTask)
        return;
    m_selectedTask = task;
    Q_EMIT selectedTaskChanged();
}

void DailyAgendaView::setShowPlanningSheet(bool shows) {
    if (shows == m_showPlanningSheet)
        return;
    m_showPlanningSheet = shows;
    if (shows)
        planningSheet()->open(m_selectedDate, m_planningTabToOpen, m_taskToPlan);
    else
        planningSheet()->close();
    m_taskToPlan = nullptr;
    Q_EMIT showPlanningSheetChanged();
}

void DailyAgendaView::setShowCalendar(bool shows) {
    if (shows == m_showCalendar)
        return;
    m_showCalendar = shows;
    if (shows)
        calendar()->open(dateOf(Instant(m_selectedDate), m_with.clock.now()));
    else
        calendar()->close();
    Q_EMIT showCalendarChanged();
}

void DailyAgendaView::setShowLateTasks(bool shows) {
    if (shows == showLateTasks())
        return;
    if (shows)
        m_lateTasks =
            std::make_unique<LateTaskList>(m_with.context, m_with.clock, m_with.notifications, m_locale);
    else
        m_lateTasks.release()->deleteLater();
    Q_EMIT showLateTasksChanged();
}

void DailyAgendaView::setIsShown(bool shown) {
    if (shown == m_isShown)
        return;
    if (shown)
        refresh();
    m_isShown = shown;
    m_list->setIsShown(shown);
    Q_EMIT isShownChanged();
}

void DailyAgendaView::handleNotification(const QString& name, TaskItem* task) {
    if (name == PlanningNotifications::showTaskDetail) {
        setSelectedTask(task);
    } else if (name == PlanningNotifications::showPlanningSheet) {
        m_taskToPlan = task;
        if (task != nullptr)
            setPlanningTabToOpen(PlanningTab::pickExisting);
        setShowPlanningSheet(true);
    }
}

void DailyAgendaView::goToToday() {
    setSelectedDate(m_with.clock.now());
}

void DailyAgendaView::plan(const QString& tab) {
    if (const auto asked = planningTabFromRawValue(tab))
        setPlanningTabToOpen(*asked);
    m_with.notifications.post(PlanningNotifications::showPlanningSheet);
}

void DailyAgendaView::scheduleCount() {
    if (std::exchange(m_isCountScheduled, true))
        return;
    QMetaObject::invokeMethod(this, &DailyAgendaView::followTasks, Qt::QueuedConnection);
}

void DailyAgendaView::followTasks() {
    m_isCountScheduled = false;
    countOverdue();
    queueToday();
}

void DailyAgendaView::queueToday() {
    const AgendaDay day = dayOf(m_with.clock.now());
    std::vector<TaskItem*> standing = m_with.context.fetchTasks(
        [&day](const TaskItem& task) { return isOnAgendaDay(task, day.start, day.end); },
        [](const TaskItem& a, const TaskItem& b) { return a.priorityValue() > b.priorityValue(); });
    const QSet<TaskId> before = std::exchange(m_onAgendaToday, {});
    for (const TaskItem* task : standing)
        m_onAgendaToday.insert(task->id());
    for (TaskItem* task : standing) {
        if (!before.contains(task->id()))
            m_with.timer.addTaskToQueue(task);
    }
    if (m_onAgendaToday.size() != before.size())
        Q_EMIT todayCountChanged();
}

void DailyAgendaView::countOverdue() {
    const int count = countLateTasks(m_with.context, Instant(startOfDay(m_with.clock.now())));
    if (count == m_overdueCount)
        return;
    m_overdueCount = count;
    Q_EMIT overdueCountChanged();
}

void DailyAgendaView::waitForMidnight() {
    const QDateTime now = m_with.clock.now();
    const qint64 remaining = agendaDayOf(now.date(), now).end.milliseconds() - now.toMSecsSinceEpoch();
    m_midnight =
        m_with.clock.after(std::chrono::milliseconds(std::max<qint64>(remaining, 1)), [this] { refresh(); });
}

void DailyAgendaView::refresh() {
    waitForMidnight();
    const QDateTime now = m_with.clock.now();
    const bool wasToday = isToday();
    m_datePicker.refresh();
    if (now.date() == m_today)
        return;
    m_today = now.date();
    if (wasToday && !m_isShown)
        setSelectedDate(now);
    else
        m_list->refreshRows(m_locale);
    if (m_lateTasks)
        m_lateTasks->refresh(m_locale);
    if (m_calendar)
        m_calendar->refresh();
    if (m_planningSheet)
        m_planningSheet->refresh();
    followTasks();
    Q_EMIT selectedDateChanged();
}

void DailyAgendaView::retranslate(const QLocale& locale) {
    m_locale = locale;
    m_datePicker.setLocale(locale);
    m_list->refreshRows(locale);
    if (m_lateTasks)
        m_lateTasks->refresh(locale);
    if (m_calendar)
        m_calendar->setLocale(locale);
    if (m_planningSheet)
        m_planningSheet->retranslate(locale);
    Q_EMIT selectedDateChanged();
}

} // namespace norvin
