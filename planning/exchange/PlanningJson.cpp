#include "planning/exchange/PlanningJson.h"

#include "distraction/JsonOutline.h"
#include "planning/exchange/UserDays.h"

#include <QJsonDocument>
#include <QUuid>

#include <utility>

namespace norvin {

namespace {

using Problem = std::optional<PlanningError>;

constexpr auto formatName = QLatin1String("norvin-focus-planning");
constexpr int versionNumber = 1;

// Writing. By hand, because people read and compare these files: one entity a line, members in this order.

QByteArray quoted(const QString& text) {
    QByteArray result = "\"";
    for (const char c : text.toUtf8()) {
        switch (c) {
        case '"':
            result += "\\\"";
            break;
        case '\\':
            result += "\\\\";
            break;
        case '\n':
            result += "\\n";
            break;
        default:
            // The bytes of UTF-8 beyond ASCII are negative.
            if (c >= 0 && c < 0x20)
                result += "\\u00" + QByteArray::number(c, 16).rightJustified(2, '0');
            else
                result += c;
        }
    }
    return result + '"';
}

template <class T>
QByteArray reference(const std::optional<EntityId<T>>& id) {
    return id ? quoted(id->toString()) : QByteArray("null");
}

QByteArray required(const QDateTime& instant) {
    return quoted(instantText(instant));
}

QByteArray optional(const QDateTime& instant) {
    return instant.isValid() ? required(instant) : QByteArray("null");
}

using Members = QList<std::pair<const char*, QByteArray>>;

Members membersOf(const ProjectValues& project) {
    return {{"id", quoted(project.id.toString())},
            {"name", quoted(project.name)},
            {"projectDescription", quoted(project.projectDescription)},
            {"colorHex", quoted(project.colorHex)},
            {"emoji", quoted(project.emoji)},
            {"createdAt", required(project.createdAt)}};
}

Members membersOf(const PhaseValues& phase) {
    return {{"id", quoted(phase.id.toString())},
            {"project", reference(phase.project)},
            {"name", quoted(phase.name)},
            {"orderIndex", QByteArray::number(phase.orderIndex)},
            {"createdAt", required(phase.createdAt)}};
}

Members membersOf(const TaskValues& task) {
    return {{"id", quoted(task.id.toString())},
            {"title", quoted(task.title)},
            {"taskDescription", quoted(task.taskDescription)},
            {"statusValue", quoted(task.statusValue)},
            {"priorityValue", QByteArray::number(task.priorityValue)},
            {"dueDate", optional(task.dueDate)},
            {"plannedDate", optional(task.plannedDate)},
            {"createdAt", required(task.createdAt)},
            {"project", reference(task.project)},
            {"phase", reference(task.phase)},
            {"parentTask", reference(task.parentTask)}};
}

Members membersOf(const ResourceValues& resource) {
    return {{"id", quoted(resource.id.toString())},
            {"task", reference(resource.task)},
            {"name", quoted(resource.name)},
            {"fileType", quoted(resource.fileType)},
            {"fileURLData", '"' + resource.fileURLData.toBase64() + '"'},
            {"createdAt", required(resource.createdAt)}};
}

template <class Values>
void appendList(QByteArray& text, const char* name, const std::vector<Values>& list) {
    text += QByteArray(",\n    \"") + name + "\": [";
    const char* separator = "\n";
    for (const Values& values : list) {
        text += std::exchange(separator, ",\n");
        text += "        {";
        const char* comma = "";
        for (const auto& [key, value] : membersOf(values)) {
            text += std::exchange(comma, ", ");
            text += QByteArray("\"") + key + "\": " + value;
        }
        text += '}';
    }
    text += list.empty() ? "]" : "\n    ]";
}

// Reading.

/// The members of one object, each to be taken once. The first problem stays; after it, all are empty.
class ObjectReader final {
public:
    ObjectReader(const JsonNode& node, Problem& problem)
        : m_node(node)
        , m_problem(problem)
        , m_taken(node.members.size(), false) {}

    const JsonNode* member(const char* key) {
        if (m_problem)
            return nullptr;
        const JsonNode* found = nullptr;
        for (size_t at = 0; at < m_node.members.size(); ++at) {
            const JsonNode::Member& member = m_node.members[at];
            if (member.key != QLatin1String(key))
                continue;
            if (found != nullptr)
                return fail("planning_file_repeated_member", {member.key}, member.line);
            found = &member.value;
            m_taken[at] = true;
        }
        if (found == nullptr)
            return fail("planning_file_missing_member", {QLatin1String(key)}, m_node.line);
        return found;
    }

    QString text(const char* key) {
        const JsonNode* const node = member(key);
        if (node != nullptr && node->kind != JsonNode::Kind::string)
            fail("planning_file_not_a_text", {QLatin1String(key)}, node->line);
        return m_problem ? QString() : node->text;
    }
    int number(const char* key) {
        const JsonNode* const node = member(key);
        bool isNumber = node != nullptr && node->kind == JsonNode::Kind::other;
        const int value = isNumber ? node->text.toInt(&isNumber) : 0;
        if (node != nullptr && !isNumber)
            fail("planning_file_not_a_number", {QLatin1String(key)}, node->line);
        return value;
    }
    QDateTime instant(const char* key) {
        return value<QDateTime>(key, "planning_file_not_an_instant", instantFromText);
    }
    QDateTime optionalInstant(const char* key) { return isNull(key) ? QDateTime() : instant(key); }
    template <class Id>
    Id id(const char* key) {
        return value<Id>(key, "planning_file_not_an_id", [](const QString& text) {
            // Only as it is written: a shorter or bracketed one would come back as another text.
            const Id id{QUuid::fromString(text)};
            return id.isNull() || id.toString() != text.toLower() ? std::nullopt : std::optional(id);
        });
    }
    template <class Id>
    std::optional<Id> optionalId(const char* key) {
        return isNull(key) ? std::nullopt : std::optional(id<Id>(key));
    }
    QByteArray bytes(const char* key) {
        return value<QByteArray>(key, "planning_file_not_base64", [](const QString& text) {
            const auto decoded =
                QByteArray::fromBase64Encoding(text.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
            return decoded ? std::optional(*decoded) : std::nullopt;
        });
    }

    /// Refuses what nobody has asked for.
    void finish() {
        for (size_t at = 0; at < m_taken.size(); ++at) {
            if (!m_taken[at])
                fail("planning_file_unknown_member", {m_node.members[at].key}, m_node.members[at].line);
        }
    }

    const JsonNode* fail(const char* key, const QStringList& arguments, int line) {
        if (!m_problem)
            m_problem = PlanningError{QString::fromLatin1(key), arguments, line};
        return nullptr;
    }

private:
    bool isNull(const char* key) {
        const JsonNode* const node = member(key);
        return node == nullptr ||
               (node->kind == JsonNode::Kind::other && node->text == QLatin1String("null"));
    }
    template <class T, class FromText>
    T value(const char* key, const char* refusal, const FromText& fromText) {
        const QString given = text(key);
        if (m_problem)
            return {};
        std::optional<T> found = fromText(given);
        if (!found) {
            fail(refusal, {QLatin1String(key), given}, member(key)->line);
            return {};
        }
        return std::move(*found);
    }

    const JsonNode& m_node;
    Problem& m_problem;
    std::vector<bool> m_taken;
};

void read(ObjectReader& object, ProjectValues& project) {
    project.id = object.id<ProjectId>("id");
    project.name = object.text("name");
    project.projectDescription = object.text("projectDescription");
    project.colorHex = object.text("colorHex");
    project.emoji = object.text("emoji");
    project.createdAt = object.instant("createdAt");
}

void read(ObjectReader& object, PhaseValues& phase) {
    phase.id = object.id<ProjectPhaseId>("id");
    phase.project = object.optionalId<ProjectId>("project");
    phase.name = object.text("name");
    phase.orderIndex = object.number("orderIndex");
    phase.createdAt = object.instant("createdAt");
}

void read(ObjectReader& object, TaskValues& task) {
    task.id = object.id<TaskId>("id");
    task.title = object.text("title");
    task.taskDescription = object.text("taskDescription");
    task.statusValue = object.text("statusValue");
    task.priorityValue = object.number("priorityValue");
    task.dueDate = object.optionalInstant("dueDate");
    task.plannedDate = object.optionalInstant("plannedDate");
    task.createdAt = object.instant("createdAt");
    task.project = object.optionalId<ProjectId>("project");
    task.phase = object.optionalId<ProjectPhaseId>("phase");
    task.parentTask = object.optionalId<TaskId>("parentTask");
}

void read(ObjectReader& object, ResourceValues& resource) {
    resource.id = object.id<TaskResourceId>("id");
    resource.task = object.optionalId<TaskId>("task");
    resource.name = object.text("name");
    resource.fileType = object.text("fileType");
    resource.fileURLData = object.bytes("fileURLData");
    resource.createdAt = object.instant("createdAt");
}

template <class Values>
void readList(ObjectReader& root, const char* key, std::vector<Values>& list, std::vector<int>& lines,
              Problem& problem) {
    const JsonNode* const node = root.member(key);
    if (node == nullptr)
        return;
    if (node->kind != JsonNode::Kind::array) {
        root.fail("planning_file_not_a_list", {QLatin1String(key)}, node->line);
        return;
    }
    list.reserve(node->items.size());
    lines.reserve(node->items.size());
    for (const JsonNode& item : node->items) {
        if (item.kind != JsonNode::Kind::object)
            root.fail("planning_file_not_an_object", {QLatin1String(key)}, item.line);
        ObjectReader object(item, problem);
        read(object, list.emplace_back());
        object.finish();
        lines.push_back(item.line);
        if (problem)
            return;
    }
}

Problem headerProblem(ObjectReader& root, const JsonNode& node) {
    const PlanningError noPlan{"planning_file_no_plan", {}, node.line};
    if (node.kind != JsonNode::Kind::object)
        return noPlan;
    Problem problem;
    ObjectReader header(node, problem);
    if (header.text("format") != formatName || problem)
        return noPlan;
    const int version = header.number("version");
    if (!problem && version != versionNumber)
        return PlanningError{
            "planning_file_wrong_version", {QString::number(version)}, header.member("version")->line};
    root.member("format");
    root.member("version");
    return problem;
}

} // namespace

QByteArray planningJson(const PlanningSnapshot& content) {
    QByteArray text = "{\n    \"format\": " + quoted(formatName) +
                      ",\n    \"version\": " + QByteArray::number(versionNumber);
    appendList(text, "projects", content.projects);
    appendList(text, "phases", content.phases);
    appendList(text, "tasks", content.tasks);
    appendList(text, "resources", content.resources);
    return text + "\n}\n";
}

PlanningReading planningFromJson(const QByteArray& bytes, const PlanningSnapshot& known) {
    if (bytes.size() > largestPlanningFile)
        return PlanningError{"planning_file_too_large"};
    QJsonParseError parseError;
    static_cast<void>(QJsonDocument::fromJson(bytes, &parseError));
    if (parseError.error != QJsonParseError::NoError)
        return PlanningError{
            "planning_file_not_json", {parseError.errorString()}, lineAt(bytes, parseError.offset)};

    const JsonNode node = jsonOutline(bytes);
    PlanningFile file;
    PlanningLines lines;
    Problem problem;
    ObjectReader root(node, problem);
    problem = headerProblem(root, node);
    readList(root, "projects", file.content.projects, lines.projects, problem);
    readList(root, "phases", file.content.phases, lines.phases, problem);
    readList(root, "tasks", file.content.tasks, lines.tasks, problem);
    readList(root, "resources", file.content.resources, lines.resources, problem);
    root.finish();
    if (!problem)
        problem = planningFault(file.content, lines, known);
    if (problem)
        return *problem;
    return file;
}

} // namespace norvin
