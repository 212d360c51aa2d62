#include "planning/LateTaskList.h"

#include "model/ModelContext.h"
#include "planning/CalendarDays.h"
#include "platform/Clock.h"

#include <algorithm>

namespace norvin {

namespace {

bool isBefore(Instant date, Instant limit) {
    return !date.isNone() && date < limit;
}

// A day is over exactly when what it holds lies before today.
bool isLate(const TaskItem& task, Instant startOfToday) {
    return (isBefore(task.dueInstant(), startOfToday) || isBefore(task.plannedInstant(), startOfToday)) &&
           !task.isDone();
}

// The earlier of the dates that are set.
Instant lateSince(const TaskItem& task) {
    if (task.dueInstant().isNone() || task.plannedInstant().isNone())
        return std::max(task.dueInstant(), task.plannedInstant());
    return std::min(task.dueInstant(), task.plannedInstant());
}

LiveTaskList::Predicate isLateNow(const Clock& clock) {
    return [today = Instant(startOfDay(clock.now()))](const TaskItem& task) { return isLate(task, today); };
}

bool isLateForLonger(const TaskItem& a, const TaskItem& b) {
    return lateSince(a) < lateSince(b);
}

} // namespace

LateTaskList::LateTaskList(ModelContext& context, Clock& clock, PlanningNotifications& notifications,
                           const QLocale& locale, QObject* parent)
    : AgendaRowsModel(context, clock, notifications, locale, isLateNow(clock), isLateForLonger, parent)
    , m_calendar(context, clock, locale) {
    connect(&m_calendar, &AgendaCalendarPopover::chosen, this, [this](QDate day) {
        TaskItem* const task = m_taskToPlan;
        cancelDay();
        if (task != nullptr)
            plan(*task, day);
    });
    connect(&context, &ModelContext::taskAboutToBeRemoved, this, [this](const TaskItem* task) {
        if (task == m_taskToPlan)
            cancelDay();
    });
}

LateTaskList::~LateTaskList() = default;

void LateTaskList::planForTodayAt(int row) {
    planAt(row, clock().now().date());
}

void LateTaskList::planAt(int row, QDate day) {
    if (TaskItem* task = taskAt(row))
        plan(*task, day);
}

void LateTaskList::plan(TaskItem& task, QDate day) {
    task.setPlannedDate(startOfDate(day, clock().now()));
}

void LateTaskList::askForDayAt(int row) {
    if (TaskItem* task = taskAt(row))
        setTaskToPlan(task);
}

QString LateTaskList::titleToPlan() const {
    return m_taskToPlan ? m_taskToPlan->title() : QString();
}

void LateTaskList::setTaskToPlan(TaskItem* task) {
    if (task == m_taskToPlan)
        return;
    m_taskToPlan = task;
    if (task != nullptr)
        m_calendar.open(clock().now().date());
    else
        m_calendar.close();
    Q_EMIT asksForDayChanged();
}

void LateTaskList::refresh(const QLocale& locale) {
    tasks().setQuery(isLateNow(clock()), isLateForLonger);
    refreshRows(locale);
    m_calendar.setLocale(locale);
}

int countLateTasks(const ModelContext& context, Instant startOfToday) {
    return static_cast<int>(
        std::count_if(context.tasks().cbegin(), context.tasks().cend(),
                      [startOfToday](const TaskItem* task) { return isLate(*task, startOfToday); }));
}

} // namespace norvin
