#pragma once

#include <QString>

#include <optional>

namespace norvin {

/// How far a task has come.
enum class TaskStatus { todo, inProgress, done };

/// How much a task matters; the values are those of the store.
enum class TaskPriority : int { low = 0, medium = 1, high = 2 };

/// Stored text of a status: "To Do", "In Progress", "Done".
[[nodiscard]] QString rawValue(TaskStatus status);
/// The status of a stored text; none for any other text.
[[nodiscard]] std::optional<TaskStatus> taskStatusFromRawValue(const QString& raw);
/// The priority of a stored number; none for any other number.
[[nodiscard]] std::optional<TaskPriority> taskPriorityFromRawValue(int raw);

} // namespace norvin
