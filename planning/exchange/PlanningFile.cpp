#include "planning/exchange/PlanningFile.h"

#include <QHash>
#include <QSet>

#include <functional>
#include <iterator>

namespace norvin {

namespace {

using Problem = std::optional<PlanningError>;

// In one go, so that a "%1" within an argument stays what it is.
QString filledIn(const QString& sentence, const QStringList& arguments) {
    QString text;
    for (qsizetype at = 0; at < sentence.size(); ++at) {
        const int number =
            sentence[at] == u'%' && at + 1 < sentence.size() ? sentence[at + 1].digitValue() : 0;
        if (number < 1 || number > arguments.size()) {
            text += sentence[at];
        } else {
            text += arguments[number - 1];
            ++at;
        }
    }
    return text;
}

template <class Values>
Problem repeatedId(const std::vector<Values>& list, const std::vector<int>& lines) {
    QSet<decltype(Values::id)> seen;
    for (size_t at = 0; at < list.size(); ++at) {
        if (seen.contains(list[at].id))
            return PlanningError{"planning_file_repeated_id", {list[at].id.toString()}, lines[at]};
        seen.insert(list[at].id);
    }
    return std::nullopt;
}

template <class Values>
QSet<decltype(Values::id)> idsOf(const std::vector<Values>& content, const std::vector<Values>& known) {
    QSet<decltype(Values::id)> ids;
    ids.reserve(std::ssize(content) + std::ssize(known));
    for (const auto* list : {&content, &known}) {
        for (const Values& values : *list)
            ids.insert(values.id);
    }
    return ids;
}

/// References of one kind: each has to lead to one of the ids.
template <class Values, class Id>
Problem looseReference(const std::vector<Values>& list, const std::vector<int>& lines, const QSet<Id>& ids,
                       std::optional<Id> Values::*reference, const char* key) {
    for (size_t at = 0; at < list.size(); ++at) {
        const std::optional<Id>& wanted = list[at].*reference;
        if (wanted && !ids.contains(*wanted))
            return PlanningError{QString::fromLatin1(key), {wanted->toString()}, lines[at]};
    }
    return std::nullopt;
}

Problem taskBelowItself(const std::vector<TaskValues>& tasks, const std::vector<int>& lines) {
    QHash<TaskId, size_t> placeOf;
    for (size_t at = 0; at < tasks.size(); ++at)
        placeOf.insert(tasks[at].id, at);
    // Which climb came by first: one that meets itself goes round in a ring.
    std::vector<size_t> climb(tasks.size(), 0);
    for (size_t start = 0; start < tasks.size(); ++start) {
        for (size_t at = start; climb[at] == 0;) {
            climb[at] = start + 1;
            const std::optional<TaskId>& parent = tasks[at].parentTask;
            const auto above = parent ? placeOf.constFind(*parent) : placeOf.cend();
            if (above == placeOf.cend())
                break;
            at = *above;
            if (climb[at] == start + 1)
                return PlanningError{"planning_file_ring", {tasks[at].title}, lines[at]};
        }
    }
    return std::nullopt;
}

} // namespace

QString planningErrorText(const PlanningError& error) {
    const QString sentence = filledIn(qtTrId(error.key.toUtf8().constData()), error.arguments);
    return error.line == 0 ? sentence
                           : filledIn(qtTrId("planning_file_line"), {QString::number(error.line), sentence});
}

Problem planningFault(const PlanningSnapshot& content, const PlanningLines& lines,
                      const PlanningSnapshot& known) {
    const auto projects = idsOf(content.projects, known.projects);
    const auto phases = idsOf(content.phases, known.phases);
    const auto tasks = idsOf(content.tasks, known.tasks);
    Problem problem;
    const auto check = [&problem](const auto& find, const auto&... arguments) {
        if (!problem)
            problem = find(arguments...);
    };
    check(repeatedId<ProjectValues>, content.projects, lines.projects);
    check(repeatedId<PhaseValues>, content.phases, lines.phases);
    check(repeatedId<TaskValues>, content.tasks, lines.tasks);
    check(repeatedId<ResourceValues>, content.resources, lines.resources);
    check(looseReference<PhaseValues, ProjectId>, content.phases, lines.phases, projects,
          &PhaseValues::project, "planning_file_unknown_project");
    check(looseReference<TaskValues, ProjectId>, content.tasks, lines.tasks, projects, &TaskValues::project,
          "planning_file_unknown_project");
    check(looseReference<TaskValues, ProjectPhaseId>, content.tasks, lines.tasks, phases, &TaskValues::phase,
          "planning_file_unknown_phase");
    check(looseReference<TaskValues, TaskId>, content.tasks, lines.tasks, tasks, &TaskValues::parentTask,
          "planning_file_unknown_task");
    check(looseReference<ResourceValues, TaskId>, content.resources, lines.resources, tasks,
          &ResourceValues::task, "planning_file_unknown_task");
    check(taskBelowItself, content.tasks, lines.tasks);
    return problem;
}

} // namespace norvin
