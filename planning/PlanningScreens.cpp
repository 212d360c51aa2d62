#include "planning/PlanningScreens.h"

#include "model/ModelContext.h"

namespace norvin {

PlanningScreens::PlanningScreens(ModelContext& context, PomodoroTimerService& timer, SoundService& sounds,
                                 Clock& clock, QObject* parent)
    : QObject(parent)
    , m_context(context)
    , m_edits(context, timer, clock)
    , m_agenda(context, timer, sounds, m_edits, m_notifications, clock)
    , m_projectSheet(context, m_edits, clock)
    , m_projects(context, m_edits, m_projectSheet)
    , m_board(context, m_edits, m_notifications, m_projectSheet, clock)
    , m_taskSheet(context, m_edits, m_notifications, clock)
    , m_exchange(context, m_edits, clock) {
    connect(&m_projects, &AllProjectsView::projectOpened, &m_board, &KanbanBoardView::setProject);
    connect(&m_board, &KanbanBoardView::showAddTaskChanged, this, [this] {
        if (!m_board.showAddTask())
            return;
        m_taskSheet.presentNew(m_board.project(), m_board.selectedPhase(), m_board.newTaskStatus());
        m_board.setShowAddTask(false);
    });
    connect(&m_taskSheet, &TaskSheet::presentedChanged, this, [this] {
        if (!m_taskSheet.isPresented())
            m_agenda.setSelectedTask(nullptr);
    });
}

PlanningScreens::~PlanningScreens() = default;

void PlanningScreens::refresh() {
    m_agenda.refresh();
    m_board.refresh();
    m_taskSheet.retranslate();
}

void PlanningScreens::retranslate(const QLocale& locale) {
    m_agenda.retranslate(locale);
    m_projects.setLocale(locale);
    m_board.setLocale(locale);
    m_board.retranslate();
    m_taskSheet.setLocale(locale);
    m_exchange.retranslate();
}

void PlanningScreens::showTask(const QString& taskId) {
    if (TaskItem* const task = m_context.task(TaskId(QUuid::fromString(taskId))))
        m_notifications.post(PlanningNotifications::showTaskDetail, task);
}

} // namespace norvin
