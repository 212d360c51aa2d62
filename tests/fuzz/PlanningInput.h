#pragma once

#include "planning/exchange/PlanningFile.h"
#include "planning/exchange/UserDays.h"

#include <QByteArray>
#include <QTimeZone>

#include <cstdint>
#include <cstdlib>

namespace norvin {

inline void require(bool condition) {
    if (!condition)
        std::abort();
}

inline UserDays fuzzDays() {
    static const UserDays days(QDateTime(QDate(2025, 3, 10), QTime(9, 0), QTimeZone("Europe/Paris")));
    return days;
}

/// What a reader takes has to be whole, and has to be read again as the same when it was written.
/// @param read bytes to a PlanningReading @param write content to bytes
template <class Read, class Write>
void checkPlanningReader(const uint8_t* data, size_t size, const Read& read, const Write& write) {
    const PlanningReading reading =
        read(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (const auto* error = std::get_if<PlanningError>(&reading)) {
        require(error->key.startsWith(QLatin1String("planning_file_")) && error->line >= 0);
        return;
    }
    const PlanningSnapshot& content = std::get<PlanningFile>(reading).content;
    const auto linesOf = [](const auto& list) { return std::vector<int>(list.size(), 1); };
    require(!planningFault(content,
                           {linesOf(content.projects), linesOf(content.phases), linesOf(content.tasks),
                            linesOf(content.resources)},
                           {}));
    const QByteArray bytes = write(content);
    const PlanningReading again = read(bytes);
    require(std::holds_alternative<PlanningFile>(again));
    require(std::get<PlanningFile>(again).content.tasks.size() == content.tasks.size());
    require(write(std::get<PlanningFile>(again).content) == bytes);
}

} // namespace norvin
