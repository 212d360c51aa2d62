#pragma once

#include "planning/AllProjectsView.h"
#include "planning/DailyAgendaView.h"
#include "planning/KanbanBoardView.h"
#include "planning/PlanningEdits.h"
#include "planning/PlanningNotifications.h"
#include "planning/ProjectSheet.h"
#include "planning/TaskSheet.h"
#include "planning/exchange/PlanningExchange.h"

#include <QObject>

namespace norvin {

/// The screens of planning, put together: what one of them asks for, another opens. Main thread only.
class PlanningScreens final : public QObject {
    Q_OBJECT
    Q_PROPERTY(norvin::DailyAgendaView* agenda READ agenda CONSTANT)
    Q_PROPERTY(norvin::AllProjectsView* projects READ projects CONSTANT)
    Q_PROPERTY(norvin::KanbanBoardView* board READ board CONSTANT)
    Q_PROPERTY(norvin::ProjectSheet* projectSheet READ projectSheet CONSTANT)
    Q_PROPERTY(norvin::TaskSheet* taskSheet READ taskSheet CONSTANT)
    Q_PROPERTY(norvin::PlanningEdits* edits READ edits CONSTANT)
    Q_PROPERTY(norvin::PlanningExchange* exchange READ exchange CONSTANT)
    /// Where to look for files first.
    Q_PROPERTY(QUrl fileFolder READ fileFolder CONSTANT)
public:
    /// Everything must outlive this.
    PlanningScreens(ModelContext& context, PomodoroTimerService& timer, SoundService& sounds, Clock& clock,
                    QObject* parent = nullptr);
    ~PlanningScreens() override;

    [[nodiscard]] DailyAgendaView* agenda() { return &m_agenda; }
    [[nodiscard]] AllProjectsView* projects() { return &m_projects; }
    [[nodiscard]] KanbanBoardView* board() { return &m_board; }
    [[nodiscard]] ProjectSheet* projectSheet() { return &m_projectSheet; }
    [[nodiscard]] TaskSheet* taskSheet() { return &m_taskSheet; }
    [[nodiscard]] PlanningEdits* edits() { return &m_edits; }
    [[nodiscard]] PlanningExchange* exchange() { return &m_exchange; }
    [[nodiscard]] QUrl fileFolder() const { return m_taskSheet.fileFolder(); }
    [[nodiscard]] PlanningNotifications& notifications() { return m_notifications; }

    /// Looks at the clock again, which may have jumped.
    void refresh();
    /// The texts in the language of now. @param locale how it writes dates and sorts names
    void retranslate(const QLocale& locale);
    /// Opens the detail of the task with this id; another text does nothing.
    Q_INVOKABLE void showTask(const QString& taskId);

private:
    ModelContext& m_context;
    PlanningNotifications m_notifications;
    PlanningEdits m_edits;
    DailyAgendaView m_agenda;
    ProjectSheet m_projectSheet;
    AllProjectsView m_projects;
    KanbanBoardView m_board;
    TaskSheet m_taskSheet;
    PlanningExchange m_exchange;
};

} // namespace norvin
