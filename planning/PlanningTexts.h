#pragma once

#include <QString>

#include <optional>

namespace norvin {

/// What TaskItem::formattedDueDate() and formattedPlannedDate() give, in the language of the window; empty
/// for none.
[[nodiscard]] QString textOfDay(const std::optional<QString>& formatted);

} // namespace norvin
