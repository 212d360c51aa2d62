#pragma once

#include "planning/exchange/PlanningExchange.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <optional>
#include <variant>

namespace norvin {

class Clock;
class DeepWorkScreen;
class ModelContext;
class Project;
class TaskItem;

/// What the command line and the session bus do with projects and tasks. Main thread only.
class PlanningCommands final {
public:
    /// A task to make; of what is empty, nothing was said.
    struct NewTask {
        QString title;
        /// Name of a project, without regard to case and accents, or the beginning of its id.
        QString project;
        /// A day, as `day()` takes it.
        QString date;
        /// "low", "medium" or "high".
        QString priority;
    };

    template <class T>
    using Outcome = std::variant<T, PlanningError>;

    /// Everything must outlive this.
    PlanningCommands(DeepWorkScreen& screen, ModelContext& context, PlanningExchange& exchange, Clock& clock);

    /// Makes a task. One for today, and one without a day, is queued and so planned for today.
    [[nodiscard]] std::optional<PlanningError> add(const NewTask& wanted);
    /// Ticks a task off, as in the queue where it is part of that. @return its title
    /// @param id at least the first four digits of it, with or without hyphens
    [[nodiscard]] Outcome<QString> finish(const QString& id);
    /// What stands on the agenda of a day. @param date empty for today
    [[nodiscard]] Outcome<QJsonObject> agenda(const QString& date) const;
    [[nodiscard]] QJsonArray projects() const;
    /// @param path absolute
    [[nodiscard]] Outcome<SnapshotCounts> exportTo(const QString& path,
                                                   PlanningExchange::Overwrite overwrite) const;
    /// @param path absolute
    [[nodiscard]] Outcome<PlanningExchange::Imported> importFrom(const QString& path);

private:
    void queue(TaskItem* task);
    [[nodiscard]] Outcome<Project*> projectCalled(const QString& name) const;
    [[nodiscard]] Outcome<TaskItem*> taskWithId(const QString& id) const;
    [[nodiscard]] Outcome<QDateTime> startOf(const QString& date) const;

    DeepWorkScreen& m_screen;
    ModelContext& m_context;
    PlanningExchange& m_exchange;
    Clock& m_clock;
};

/// The digits of an id that can be looked for: hexadecimal ones in lower case, without hyphens.
/// @return none when there are fewer than four, or other characters
[[nodiscard]] std::optional<QString> idDigits(const QString& text);

/// The day that a text means: ISO 8601 ("2025-03-10"), "today" or "tomorrow"; none for any other text.
[[nodiscard]] std::optional<QDate> dayOfText(const QString& text, QDate today);

} // namespace norvin
