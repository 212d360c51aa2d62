#pragma once

#include "planning/exchange/PlanningFile.h"

#include <QByteArray>

namespace norvin {

/// All that the store holds of planning, as JSON; docs/planning-files.md lists the members. Equal content
/// gives equal bytes, one entity a line.
[[nodiscard]] QByteArray planningJson(const PlanningSnapshot& content);

/// Reads what planningJson() wrote, and nothing that could lose something: an unknown, missing or repeated
/// member is refused, like another version.
/// @param known what references may lead to besides the file itself
[[nodiscard]] PlanningReading planningFromJson(const QByteArray& bytes, const PlanningSnapshot& known = {});

} // namespace norvin
