#pragma once

#include "planning/DailyAgendaView.h"
#include "tests/planning/ProjectRig.h"

namespace norvin::test {

/// The daily agenda over a store in memory, on 10 March 2025, nine o'clock, UTC unless the zone is another.
struct AgendaRig : ProjectRig {
    explicit AgendaRig(const QByteArray& zone = "UTC", const QDateTime& now = {}) {
        focus.clock.setNow(now.isValid() ? now : QDateTime(QDate(2025, 3, 10), QTime(9, 0), QTimeZone(zone)));
        agenda = std::make_unique<DailyAgendaView>(context(), focus.timer, focus.soundService, edits,
                                                   notifications, focus.clock);
        agenda->retranslate(QLocale(QStringLiteral("en")));
    }

    [[nodiscard]] QDateTime at(QDate day, QTime time = QTime(9, 0)) const {
        return QDateTime(day, time, focus.clock.now().timeZone());
    }
    [[nodiscard]] QDate today() const { return focus.clock.now().date(); }
    TaskItem* add(const QString& title, const QDateTime& planned, const QDateTime& due = {},
                  TaskPriority priority = TaskPriority::medium, Project* project = nullptr) const {
        return context().insert(std::make_unique<TaskItem>(TaskItem::Init{.title = title,
                                                                          .priority = priority,
                                                                          .dueDate = due,
                                                                          .plannedDate = planned,
                                                                          .project = project}));
    }
    [[nodiscard]] QStringList titles() const { return column(*agenda->list()); }
    [[nodiscard]] QStringList queue() const {
        QStringList titles;
        for (const TaskItem* task : focus.timer.taskQueue())
            titles.append(task->title());
        return titles;
    }
    void settle() const { FocusRig::settle(); }

    std::unique_ptr<DailyAgendaView> agenda;
};

} // namespace norvin::test
