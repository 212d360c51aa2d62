#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace norvin {

/// What TaskItem::formattedDueDate() and formattedPlannedDate() give, in the language of the window; empty
/// for none.
[[nodiscard]] QString textOfDay(const std::optional<QString>& formatted);

/// "A", "A and B", "A, B and C" in the language of the window; empty for nothing.
[[nodiscard]] QString enumerated(QStringList parts);

} // namespace norvin
