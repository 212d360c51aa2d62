#include "planning/AgendaPlanningSheet.h"

#include "focus/PomodoroTimerService.h"
#include "model/ModelContext.h"
#include "planning/CalendarDays.h"
#include "planning/PlanningEdits.h"
#include "platform/Clock.h"

#include <QtGlobal>

#include <utility>

namespace norvin {

QString rawValue(AgendaPlanningSheet::PlanningTab tab) {
    return tab == AgendaPlanningSheet::PlanningTab::quickAdd ? QStringLiteral("quickAdd")
                                                             : QStringLiteral("pickExisting");
}

std::optional<AgendaPlanningSheet::PlanningTab> planningTabFromRawValue(const QString& raw) {
    for (const auto tab :
         {AgendaPlanningSheet::PlanningTab::quickAdd, AgendaPlanningSheet::PlanningTab::pickExisting}) {
        if (rawValue(tab) == raw)
            return tab;
    }
    return std::nullopt;
}

AgendaPlanningSheet::AgendaPlanningSheet(const AgendaCollaborators& collaborators, const QLocale& locale,
                                         QObject* parent)
    : QObject(parent)
    , m_with(collaborators)
    , m_locale(locale)
    , m_date(collaborators.clock.now())
    , m_quickAdd(collaborators, locale)
    , m_pickList(collaborators.context, collaborators.clock, locale) {}

AgendaPlanningSheet::~AgendaPlanningSheet() = default;

void AgendaPlanningSheet::open(const QDateTime& date, PlanningTab tab, TaskItem* task) {
    close();
    m_isOpen = true;
    m_date = date;
    m_quickAdd.open(date);
    if (task != nullptr) {
        m_pickList.open(task);
        m_isPickListOpen = true;
    }
    setTab(tab);
    Q_EMIT dateChanged();
}

void AgendaPlanningSheet::close() {
    m_isOpen = false;
    if (std::exchange(m_isPickListOpen, false))
        m_pickList.close();
}

void AgendaPlanningSheet::setTab(PlanningTab tab) {
    if (m_isOpen && tab == PlanningTab::pickExisting && !std::exchange(m_isPickListOpen, true))
        m_pickList.open(nullptr);
    if (std::exchange(m_tab, tab) != tab)
        Q_EMIT tabChanged();
}

QString AgendaPlanningSheet::tabName() const {
    return rawValue(m_tab);
}

void AgendaPlanningSheet::setTabName(const QString& name) {
    if (const auto tab = planningTabFromRawValue(name))
        setTab(*tab);
}

QString AgendaPlanningSheet::dateText() const {
    const QDateTime now = m_with.clock.now();
    return dayInWords(dateOf(Instant(m_date), now), now.date(), m_locale);
}

bool AgendaPlanningSheet::planTicked() {
    const QList<TaskItem*> tasks = m_pickList.tickedTasks();
    if (tasks.isEmpty())
        return false;
    struct Before {
        TaskId id;
        QDateTime planned;
        bool wasQueued;
    };
    QList<Before> before;
    for (TaskItem* task : tasks) {
        before.append({task->id(), task->plannedDate(), m_with.timer.taskQueue().contains(task)});
        task->setPlannedDate(m_date);
    }
    // What cannot be saved stays in memory and is tried again.
    static_cast<void>(m_with.context.save());
    m_with.edits.offerUndo(qtTrId("undo_planned_format", static_cast<int>(tasks.size())).arg(dateText()),
                           [&context = m_with.context, &timer = m_with.timer, before] {
                               for (const Before& each : before) {
                                   TaskItem* const task = context.task(each.id);
                                   if (task == nullptr)
                                       continue;
                                   if (!each.wasQueued)
                                       timer.removeTaskFromQueue(task);
                                   task->setPlannedDate(each.planned);
                               }
                           });
    return true;
}

void AgendaPlanningSheet::refresh() {
    if (m_isOpen)
        retranslate(m_locale);
}

void AgendaPlanningSheet::retranslate(const QLocale& locale) {
    m_locale = locale;
    m_quickAdd.retranslate(locale);
    m_pickList.retranslate(locale);
    Q_EMIT dateChanged();
}

} // namespace norvin
