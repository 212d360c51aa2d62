#include "model/ModelContainer.h"
#include "model/ModelContext.h"
#include "planning/PlanningEdits.h"
#include "planning/exchange/PlanningExchange.h"
#include "planning/exchange/PlanningJson.h"
#include "tests/planning/PlanningSample.h"
#include "tests/support/FocusRig.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

using namespace norvin;
using namespace norvin::test;

class tst_PlanningJson final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everythingComesBackAsItWas();
    void refusesWithLineAndReason_data();
    void refusesWithLineAndReason();
    void exchangesWithTheStore();
    void anImportCanBeTakenBack();
    void filesThatCannotBe();
};

namespace {

PlanningSnapshot sample() {
    PlanningSnapshot content;
    content.projects = {projectNamed(QStringLiteral("Thèse")), projectNamed({})};
    content.phases = {phaseOf(content.projects[0], QStringLiteral("Draft"), 0),
                      phaseOf(content.projects[0], QStringLiteral("Print"), std::numeric_limits<int>::max())};
    content.phases[1].project.reset();
    TaskValues task = taskTitled(QStringLiteral("Write \u0001\t\r\n\"\\/ 🎯"));
    task.taskDescription = QStringLiteral("{\"not\": [\"structure\"]}");
    task.statusValue = QStringLiteral("Waiting");
    task.priorityValue = std::numeric_limits<int>::min();
    task.dueDate = QDateTime(QDate(12025, 12, 31), QTime(23, 59, 59, 999), Qt::UTC);
    task.plannedDate = QDateTime(QDate(-44, 3, 15), QTime(12, 0), Qt::UTC);
    task.project = content.projects[0].id;
    task.phase = content.phases[0].id;
    TaskValues subtask = taskTitled({});
    subtask.statusValue.clear();
    subtask.parentTask = task.id;
    // A subtask may stand before its parent.
    content.tasks = {subtask, task};
    content.resources = {{.id = TaskResourceId::create(),
                          .name = QStringLiteral("plan.png"),
                          .fileType = QStringLiteral("image/png"),
                          .fileURLData = QByteArray("\0\xff\x10 bytes", 9),
                          .createdAt = task.createdAt,
                          .task = task.id}};
    return content;
}

QByteArray text(const QByteArray& tasks, const QByteArray& projects = {}) {
    return "{\n\"format\": \"norvin-focus-planning\",\n\"version\": 1,\n\"projects\": [" + projects +
           "],\n\"phases\": [],\n\"resources\": [],\n\"tasks\": [\n" + tasks + "]}\n";
}

// A task whose members can be replaced; it stands on one line.
QByteArray task(const QByteArray& id, const QByteArray& parent = "null", const QByteArray& more = {},
                const QByteArray& priority = "1", const QByteArray& due = "null") {
    return "{\"id\": \"00000000-0000-4000-8000-00000000000" + id +
           "\", \"title\": \"T\", \"taskDescription\": \"\", \"statusValue\": \"Done\", \"priorityValue\": " +
           priority + ", \"dueDate\": " + due +
           ", \"plannedDate\": null, \"createdAt\": \"2025-03-10T09:00:00Z\", \"project\": null, " +
           "\"phase\": null, \"parentTask\": " + parent + more + "}";
}

QByteArray reference(const QByteArray& id) {
    return "\"00000000-0000-4000-8000-00000000000" + id + '"';
}

struct ExchangeRig : FocusRig {
    PlanningEdits edits{context(), timer, clock};
    PlanningExchange exchange{context(), edits, clock};
    QTemporaryDir folder;

    [[nodiscard]] QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }
    void write(const QString& file, const QByteArray& bytes) const {
        QFile target(file);
        QVERIFY(target.open(QIODevice::WriteOnly) && target.write(bytes) == bytes.size());
    }
};

} // namespace

void tst_PlanningJson::everythingComesBackAsItWas() {
    const PlanningSnapshot content = sample();
    const QByteArray bytes = planningJson(content);
    const PlanningFile file = accepted(planningFromJson(bytes));
    QVERIFY(file.content == content);
    QCOMPARE(planningJson(file.content), bytes);
    // One entity a line, so that a difference shows which one is another.
    QCOMPARE(bytes.count('\n'), 7 + 8 + 4);
    QVERIFY(accepted(planningFromJson(planningJson({}))).content == PlanningSnapshot{});
}

void tst_PlanningJson::refusesWithLineAndReason_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("line");
    const auto row = [](const char* name, const QByteArray& bytes, const char* key, int line) {
        QTest::newRow(name) << bytes << QString::fromLatin1(key) << line;
    };
    row("nothing", "", "planning_file_not_json", 1);
    row("cut off", text(task("1")).chopped(5), "planning_file_not_json", 8);
    row("another document", "\n[1]", "planning_file_no_plan", 2);
    row("another format", "{\"format\": \"x\", \"version\": 1}", "planning_file_no_plan", 1);
    row("a newer version", "{\"format\": \"norvin-focus-planning\",\n\"version\": 2, \"new\": {}}",
        "planning_file_wrong_version", 2);
    row("a member too many", text(task("1", "null", ",\n\"colour\": 1")), "planning_file_unknown_member", 9);
    row("a member twice", text(task("1", "null", ",\n\"title\": \"U\"")), "planning_file_repeated_member", 9);
    row("a list missing", QByteArray(text("")).replace("\"phases\": [],", ""), "planning_file_missing_member",
        1);
    row("no list", QByteArray(text("")).replace("\"phases\": []", "\"phases\": {}"),
        "planning_file_not_a_list", 5);
    row("no object", text(task("1") + ",\n7"), "planning_file_not_an_object", 9);
    row("no text", text(QByteArray(task("1")).replace("\"T\"", "7")), "planning_file_not_a_text", 8);
    row("a fraction", text(task("1", "null", "", "1.5")), "planning_file_not_a_number", 8);
    row("beyond 32 bits", text(task("1", "null", "", "4294967297")), "planning_file_not_a_number", 8);
    row("no such day", text(task("1", "null", "", "1", "\"2025-02-29T09:00:00.000Z\"")),
        "planning_file_not_an_instant", 8);
    row("an instant beyond 64 bits", text(task("1", "null", "", "1", "\"+999999999-01-01T00:00:00.000Z\"")),
        "planning_file_not_an_instant", 8);
    row("no id", text(task("")), "planning_file_not_an_id", 8);
    row("an id twice", text(task("1") + ",\n\n" + task("1")), "planning_file_repeated_id", 10);
    row("a parent that is nowhere", text(task("1", reference("2"))), "planning_file_unknown_task", 8);
    row("a ring of parents",
        text(task("1") + ",\n" + task("2", reference("3")) + ",\n" + task("3", reference("2"))),
        "planning_file_ring", 9);
    row("its own parent", text(task("1", reference("1"))), "planning_file_ring", 8);
    row("not UTF-8", text(QByteArray(task("1")).replace("\"T\"", "\"\xe9\"")), "planning_file_not_json", 8);
}

void tst_PlanningJson::refusesWithLineAndReason() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, key);
    QFETCH(int, line);
    const PlanningError error = refused(planningFromJson(bytes));
    QCOMPARE(error.key, key);
    QCOMPARE(error.line, line);
}

void tst_PlanningJson::exchangesWithTheStore() {
    ExchangeRig source;
    insert(sample(), source.context());
    const QString file = source.path("plan.json");
    QVERIFY(std::holds_alternative<SnapshotCounts>(
        source.exchange.exportTo(file, PlanningExchange::Overwrite::no)));

    ExchangeRig target;
    TaskItem* const own = target.addTask(QStringLiteral("Own"));
    const auto outcome = target.exchange.importFrom(file);
    QVERIFY(std::holds_alternative<PlanningExchange::Imported>(outcome));
    const auto& imported = std::get<PlanningExchange::Imported>(outcome);
    QCOMPARE(imported.added, (SnapshotCounts{.projects = 2, .phases = 2, .tasks = 2, .resources = 1}));
    QVERIFY(!target.context().hasChanges());
    QCOMPARE(target.context().tasks().front(), own);

    // What is there already stays, whatever the file says of it.
    TaskItem* const changed = target.context().tasks().back();
    changed->setTitle(QStringLiteral("Changed meanwhile"));
    target.context().remove(*target.context().tasks().at(1));
    const auto again = std::get<PlanningExchange::Imported>(target.exchange.importFrom(file));
    QCOMPARE(again.added, SnapshotCounts{.tasks = 1});
    QCOMPARE(again.alreadyThere, (SnapshotCounts{.projects = 2, .phases = 2, .tasks = 1, .resources = 1}));
    QCOMPARE(changed->title(), QStringLiteral("Changed meanwhile"));
    // A reference from the file is followed to what was there.
    QCOMPARE(target.context().tasks().back()->parentTask(), changed);
}

void tst_PlanningJson::anImportCanBeTakenBack() {
    ExchangeRig rig;
    const PlanningSnapshot content = sample();
    insert({.projects = {content.projects[1]}, .phases = {}, .tasks = {}, .resources = {}}, rig.context());
    const QString file = rig.path("plan.json");
    rig.write(file, planningJson(content));
    QVERIFY(std::holds_alternative<PlanningExchange::Imported>(rig.exchange.importFrom(file)));
    QVERIFY(!rig.edits.undoText().isEmpty());

    // Put in by the user before the import is taken back: that is not lost with it.
    TaskItem* const inProject = rig.addTask(QStringLiteral("Into the project"));
    inProject->setProject(rig.context().project(content.projects[0].id));
    TaskItem* const below = rig.addTask(QStringLiteral("Below a task"));
    below->setParentTask(rig.context().task(content.tasks[1].id));
    rig.edits.undo();
    QCOMPARE(rig.context().tasks(), (std::vector<TaskItem*>{inProject, below}));
    QVERIFY(inProject->project() == nullptr && below->parentTask() == nullptr);
    QCOMPARE(rig.context().projects().size(), size_t{1});
    QVERIFY(rig.context().phases().empty() && rig.context().resources().empty());
    QVERIFY(!rig.context().hasChanges());
}

void tst_PlanningJson::filesThatCannotBe() {
    ExchangeRig rig;
    rig.addTask(QStringLiteral("Own"));
    const auto exportError = [&rig](const QString& path) {
        const auto outcome = rig.exchange.exportTo(path, PlanningExchange::Overwrite::no);
        return std::holds_alternative<PlanningError>(outcome) ? std::get<PlanningError>(outcome).key
                                                              : QString();
    };
    const auto importError = [&rig](const QString& path) {
        const auto outcome = rig.exchange.importFrom(path);
        return std::holds_alternative<PlanningError>(outcome) ? std::get<PlanningError>(outcome).key
                                                              : QString();
    };
    QCOMPARE(exportError(rig.path("plan.doc")), QStringLiteral("planning_file_unknown_format"));
    QCOMPARE(exportError(rig.path("missing/plan.json")), QStringLiteral("planning_file_unwritable"));
    QCOMPARE(importError(rig.path("plan.json")), QStringLiteral("planning_file_unreadable"));
    QVERIFY(QDir(rig.folder.path()).mkdir(QStringLiteral("folder.json")));
    QCOMPARE(importError(rig.path("folder.json")), QStringLiteral("planning_file_unreadable"));

    // A file that somebody has is not replaced unless that is wanted.
    const QString notes = rig.path("notes.txt");
    rig.write(notes, "mine");
    QCOMPARE(exportError(notes), QStringLiteral("planning_file_exists"));
    QFile file(notes);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("mine"));
    rig.exchange.exportFile(QUrl::fromLocalFile(notes));
    QVERIFY(!rig.exchange.isNoticeProblem() && !rig.exchange.noticeText().isEmpty());

    // A refused file leaves everything as it was.
    const PlanningSnapshot before = snapshotOf(rig.context());
    rig.write(rig.path("bad.json"), text(task("1") + ",\n" + task("1")));
    QCOMPARE(importError(rig.path("bad.json")), QStringLiteral("planning_file_repeated_id"));
    QVERIFY(snapshotOf(rig.context()) == before);
    rig.exchange.importFile(QUrl::fromLocalFile(rig.path("bad.json")));
    QVERIFY(rig.exchange.isNoticeProblem());
}

QTEST_GUILESS_MAIN(tst_PlanningJson)
#include "tst_PlanningJson.moc"
