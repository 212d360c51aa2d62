#pragma once

#include "model/PlanningSnapshot.h"

#include <QString>
#include <QStringList>

#include <variant>
#include <vector>

namespace norvin {

/// Why something was refused, in a form that can be said in either language.
struct PlanningError {
    /// Localisation key of a sentence.
    QString key;
    /// What stands for %1, %2 … in the sentence.
    QStringList arguments = {};
    /// Line of the file, counted from 1; 0 where it is about no line.
    int line = 0;
    bool operator==(const PlanningError&) const = default;
};

/// The sentence in the language that is loaded, with the line before it.
[[nodiscard]] QString planningErrorText(const PlanningError& error);

/// What a file says.
struct PlanningFile {
    /// Every place is 0: entities come in the order of the file, after what is there.
    PlanningSnapshot content;
    /// Parts of the file that are well-formed but hold no tasks, such as the appointments of a calendar.
    int ignored = 0;
};

using PlanningReading = std::variant<PlanningFile, PlanningError>;

/// Larger files are refused, in bytes.
inline constexpr qint64 largestPlanningFile = 64 * 1024 * 1024;

/// The line that each entity of a snapshot begins on, in the same order.
struct PlanningLines {
    std::vector<int> projects;
    std::vector<int> phases;
    std::vector<int> tasks;
    std::vector<int> resources;
};

/// The first thing that keeps a snapshot from being one whole: an id that is there twice, a reference to
/// nothing in it or in `known`, a task below itself.
[[nodiscard]] std::optional<PlanningError>
planningFault(const PlanningSnapshot& content, const PlanningLines& lines, const PlanningSnapshot& known);

} // namespace norvin
