#include "model/TaskStatus.h"

#include <array>
#include <utility>

namespace norvin {

namespace {

const std::array<std::pair<TaskStatus, QString>, 3>& statusTexts() {
    static const std::array<std::pair<TaskStatus, QString>, 3> texts{{
        {TaskStatus::todo, QStringLiteral("To Do")},
        {TaskStatus::inProgress, QStringLiteral("In Progress")},
        {TaskStatus::done, QStringLiteral("Done")},
    }};
    return texts;
}

} // namespace

QString rawValue(TaskStatus status) {
    for (const auto& [value, text] : statusTexts()) {
        if (value == status)
            return text;
    }
    Q_UNREACHABLE();
}

std::optional<TaskStatus> taskStatusFromRawValue(const QString& raw) {
    for (const auto& [value, text] : statusTexts()) {
        if (text == raw)
            return value;
    }
    return std::nullopt;
}

std::optional<TaskPriority> taskPriorityFromRawValue(int raw) {
    switch (raw) {
    case static_cast<int>(TaskPriority::low):
    case static_cast<int>(TaskPriority::medium):
    case static_cast<int>(TaskPriority::high):
        return static_cast<TaskPriority>(raw);
    default:
        return std::nullopt;
    }
}

} // namespace norvin
