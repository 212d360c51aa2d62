#include "planning/exchange/TodoTxt.h"
#include "tests/planning/PlanningSample.h"

#include <QRandomGenerator>
#include <QTest>

using namespace norvin;
using namespace norvin::test;

class tst_TodoTxt final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void writesWhatOtherProgramsRead();
    void readsWhatOtherProgramsWrite();
    void anyTitleComesBack();
    void findsPlacesByName();
    void refusesWithLineAndReason_data();
    void refusesWithLineAndReason();
};

namespace {

PlanningFile read(const QByteArray& bytes, const PlanningSnapshot& known = {}) {
    return accepted(tasksFromTodoTxt(bytes, parisDays(), known));
}

QByteArray write(const PlanningSnapshot& content) {
    return todoTxt(content, parisDays());
}

} // namespace

void tst_TodoTxt::writesWhatOtherProgramsRead() {
    PlanningSnapshot content;
    content.projects = {projectNamed(QStringLiteral("My thesis"))};
    content.phases = {phaseOf(content.projects[0], QStringLiteral("First draft"), 0)};
    TaskValues open = taskTitled(QStringLiteral("Write the report"));
    open.priorityValue = 2;
    open.project = content.projects[0].id;
    open.phase = content.phases[0].id;
    // Late in the evening of the 14th for the user, the 14th for everybody else too, but not in UTC.
    open.dueDate = QDateTime(QDate(2025, 3, 14), QTime(0, 30), QTimeZone("Europe/Paris"));
    open.plannedDate = parisDays().startOf(QDate(2025, 3, 12));
    open.taskDescription = QStringLiteral("Two lines:\n100 % done");
    TaskValues done = taskTitled(QStringLiteral("Outline"));
    done.statusValue = QStringLiteral("Done");
    done.priorityValue = 0;
    done.parentTask = open.id;
    content.tasks = {open, done};
    const QString expected =
        QStringLiteral("(A) 2025-03-01 Write the report +My_thesis @First_draft due:2025-03-14 "
                       "t:2025-03-12 note:Two%20lines%3A%0A100%20%25%20done id:OPEN\n"
                       "x Outline created:2025-03-01 pri:C parent:OPEN id:DONE\n")
            .replace(QLatin1String("OPEN"), open.id.toString())
            .replace(QLatin1String("DONE"), done.id.toString());
    QCOMPARE(QString::fromUtf8(write(content)), expected);
}

void tst_TodoTxt::readsWhatOtherProgramsWrite() {
    const QByteArray bytes = "\xef\xbb\xbf(A) 2025-03-02 Call mum @phone +Family due:2025-03-11\r\n"
                             "\n"
                             "x 2025-03-09 2025-03-01 (D) File the taxes rec:1y  \n"
                             "(Z) Sleep\n"
                             "Just text, +1 of it id:7 http://example.org/a:b due:tomorrow";
    const PlanningFile file = read(bytes);
    const std::vector<TaskValues>& tasks = file.content.tasks;
    QCOMPARE(tasks.size(), size_t{4});
    QCOMPARE(tasks[0].title, QStringLiteral("Call mum"));
    QCOMPARE(tasks[0].priorityValue, 2);
    QCOMPARE(tasks[0].dueDate, parisDays().startOf(QDate(2025, 3, 11)));
    QCOMPARE(tasks[0].createdAt, parisDays().startOf(QDate(2025, 3, 2)));
    QCOMPARE(file.content.projects.front().name, QStringLiteral("Family"));
    QCOMPARE(file.content.phases.front().name, QStringLiteral("phone"));
    QCOMPARE(tasks[0].phase, std::optional(file.content.phases.front().id));

    QCOMPARE(tasks[1].statusValue, QStringLiteral("Done"));
    QCOMPARE(tasks[1].title, QStringLiteral("(D) File the taxes rec:1y"));
    QCOMPARE(tasks[1].createdAt, parisDays().startOf(QDate(2025, 3, 1)));
    QCOMPARE(tasks[2].priorityValue, 0);
    QCOMPARE(tasks[3].title, QStringLiteral("Just text, of it id:7 http://example.org/a:b due:tomorrow"));
    QCOMPARE(tasks[3].priorityValue, 1);
    QCOMPARE(tasks[3].createdAt, parisDays().now());
    QVERIFY(!tasks[3].id.isNull());
    // Whatever another program wrote, what comes of it is stable.
    QCOMPARE(write(read(write(file.content)).content), write(file.content));
}

void tst_TodoTxt::anyTitleComesBack() {
    const QStringList words{"x",
                            "X",
                            "(A)",
                            "(a)",
                            "2025-03-10",
                            "2025-99-99",
                            "+",
                            "+1",
                            "@",
                            "@home",
                            "due:",
                            "due:2025-03-01",
                            "due:9",
                            "t:x",
                            "note:n",
                            "pri:A",
                            "pri:7",
                            "status:s",
                            "id:7",
                            "",
                            "\\",
                            "\\+1",
                            "\\\\@h",
                            "\\x",
                            "\\due:1",
                            "http://a:b",
                            "é\t🎯",
                            "parent:1",
                            "id:00000000-0000-4000-8000-000000000001",
                            "created:2025-01-01"};
    const QStringList statuses{"To Do", "In Progress", "Done", "Waiting for it", "in-progress"};
    constexpr quint32 seed = 20250310;
    QRandomGenerator random(seed);
    const auto oneOf = [&random](const QStringList& list) { return list.at(random.bounded(list.size())); };
    PlanningSnapshot content;
    content.projects = {projectNamed(QStringLiteral("One place"))};
    content.phases = {phaseOf(content.projects[0], QStringLiteral("@2"), 0)};
    for (int i = 0; i < 3000; ++i) {
        QStringList title;
        for (int count = random.bounded(5); count >= 0; --count)
            title.append(oneOf(words));
        TaskValues task = taskTitled(title.join(u' '));
        task.statusValue = oneOf(statuses);
        task.priorityValue = random.bounded(-1, 4);
        task.taskDescription = oneOf(words);
        if (random.bounded(2) == 0)
            task.dueDate = parisDays().startOf(QDate(2025, 1, 1).addDays(random.bounded(400)));
        if (random.bounded(2) == 0)
            task.project = content.projects[0].id;
        if (task.project && random.bounded(2) == 0)
            task.phase = content.phases[0].id;
        content.tasks.push_back(task);
    }
    const PlanningFile file =
        read(write(content),
             {.projects = content.projects, .phases = content.phases, .tasks = {}, .resources = {}});
    QCOMPARE(file.content.tasks.size(), content.tasks.size());
    for (size_t at = 0; at < content.tasks.size(); ++at) {
        QCOMPARE(file.content.tasks[at].title, content.tasks[at].title);
        QVERIFY2(file.content.tasks[at] == content.tasks[at], qPrintable(content.tasks[at].title));
    }
    QVERIFY(file.content.projects.empty() && file.content.phases.empty());
}

void tst_TodoTxt::findsPlacesByName() {
    PlanningSnapshot known;
    known.projects = {projectNamed(QStringLiteral("My thesis")), projectNamed(QStringLiteral("my_thesis"))};
    known.phases = {phaseOf(known.projects[0], QStringLiteral("Draft"), 4)};
    known.tasks = {taskTitled(QStringLiteral("There already"))};
    const QByteArray bytes = "a +My_thesis @draft\nb +my_thesis @Draft\nc +MY_THESIS @phone\n"
                             "d +New_one @later\ne +New_one @soon\nf @nowhere +A +B\n"
                             "g +Elsewhere id:" +
                             known.tasks[0].id.toString().toUtf8();
    const PlanningFile file = read(bytes, known);
    const std::vector<TaskValues>& tasks = file.content.tasks;
    QCOMPARE(tasks[0].project, std::optional(known.projects[0].id));
    QCOMPARE(tasks[0].phase, std::optional(known.phases[0].id));
    // Exactly that name counts more than the same in other letters; of its phases there is none.
    QCOMPARE(tasks[1].project, std::optional(known.projects[1].id));
    QCOMPARE(tasks[1].title, QStringLiteral("b @Draft"));
    QCOMPARE(tasks[2].project, std::optional(known.projects[0].id));
    QCOMPARE(tasks[2].title, QStringLiteral("c @phone"));
    QCOMPARE(tasks[5].title, QStringLiteral("f +A"));

    // New ones, each made once, and none for a task that the store keeps as it is.
    QStringList names;
    for (const ProjectValues& project : file.content.projects)
        names.append(project.name);
    QCOMPARE(names, (QStringList{"New one", "B"}));
    QCOMPARE(tasks[3].project, tasks[4].project);
    QCOMPARE(file.content.phases.size(), size_t{3});
    QCOMPARE(file.content.phases[0].orderIndex, 0);
    QCOMPARE(file.content.phases[1].orderIndex, 1);
}

void tst_TodoTxt::refusesWithLineAndReason_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("line");
    const QByteArray id = "id:00000000-0000-4000-8000-000000000001";
    const auto row = [](const char* name, const QByteArray& bytes, const char* key, int line) {
        QTest::newRow(name) << bytes << QString::fromLatin1(key) << line;
    };
    row("a due day that is none", "a\n\nb due:2025-02-30", "planning_file_not_a_day", 3);
    row("a created day that is none", "2025-13-01 a", "planning_file_not_a_day", 1);
    row("a completion day that is none", "x 2025-13-01 a", "planning_file_not_a_day", 1);
    row("a key twice", "a due:2025-03-01 due:2025-03-02", "planning_file_repeated_member", 1);
    row("an id twice", "a " + id + "\nb " + id, "planning_file_repeated_id", 2);
    row("its own parent", "a parent:00000000-0000-4000-8000-000000000001 " + id, "planning_file_ring", 1);
    row("a parent that is nowhere", "a\nb parent:00000000-0000-4000-8000-000000000002",
        "planning_file_unknown_task", 2);
    row("no title", "a\n(A) +Project due:2025-03-01", "planning_file_no_title", 2);
    row("not UTF-8", "a\n\xe9t\xe9", "planning_file_not_utf8", 2);
}

void tst_TodoTxt::refusesWithLineAndReason() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, key);
    QFETCH(int, line);
    const PlanningError error = refused(tasksFromTodoTxt(bytes, parisDays()));
    QCOMPARE(error.key, key);
    QCOMPARE(error.line, line);
}

QTEST_APPLESS_MAIN(tst_TodoTxt)
#include "tst_TodoTxt.moc"
