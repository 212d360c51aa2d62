#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

namespace norvin {

/// What TaskItem::formattedDueDate() and formattedPlannedDate() give, in the language of the window; empty
/// for none.
[[nodiscard]] QString textOfDay(const std::optional<QString>& formatted);

/// "A", "A and B", "A, B and C" in the language of the window; empty for nothing.
[[nodiscard]] QString enumerated(QStringList parts);

/// What a box of choices takes: a map with "id", "name" and "color".
[[nodiscard]] QVariant choice(const QString& id, const QString& name, const QString& color = {});

} // namespace norvin
