#include "planning/exchange/CalendarFile.h"
#include "tests/planning/PlanningSample.h"

#include <QRandomGenerator>
#include <QTest>

using namespace norvin;
using namespace norvin::test;

class tst_CalendarFile final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void writesByTheRulesOfTheFormat();
    void readsWhatOtherProgramsWrite();
    void readsEveryKindOfTime_data();
    void readsEveryKindOfTime();
    void anyTaskComesBack();
    void refusesWithLineAndReason_data();
    void refusesWithLineAndReason();
};

namespace {

PlanningFile read(const QByteArray& bytes, const PlanningSnapshot& known = {}) {
    return accepted(tasksFromCalendar(bytes, parisDays(), known));
}

QByteArray calendar(const QByteArray& body) {
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n" + body + "END:VCALENDAR\r\n";
}

QByteArray todo(const QByteArray& lines) {
    return calendar("BEGIN:VTODO\r\n" + lines + "END:VTODO\r\n");
}

} // namespace

void tst_CalendarFile::writesByTheRulesOfTheFormat() {
    PlanningSnapshot content;
    content.projects = {projectNamed(QStringLiteral("Thèse, 2e partie"))};
    content.phases = {phaseOf(content.projects[0], QStringLiteral("Draft; one"), 0)};
    TaskValues task = taskTitled(QString(60, u'é') + QStringLiteral(", end"));
    task.taskDescription = QStringLiteral("One\nTwo\\");
    task.statusValue = QStringLiteral("In Progress");
    task.priorityValue = 2;
    task.project = content.projects[0].id;
    task.phase = content.phases[0].id;
    task.plannedDate = parisDays().startOf(QDate(2025, 3, 12));
    task.dueDate = parisDays().startOf(QDate(2025, 3, 14));
    TaskValues subtask = taskTitled(QStringLiteral("Outline"));
    subtask.parentTask = task.id;
    // A time of day makes both of them times; one that starts when it is due would break the rules.
    subtask.dueDate = QDateTime(QDate(2025, 3, 14), QTime(18, 0), QTimeZone("Europe/Paris"));
    subtask.plannedDate = parisDays().startOf(QDate(2025, 3, 15));
    content.tasks = {task, subtask};

    const QByteArray bytes = calendarOf(content, parisDays());
    for (const QByteArray& line : bytes.split('\n')) {
        QVERIFY2(line.size() <= 76, line.constData()); // 75 and the carriage return
        QVERIFY(!QString::fromUtf8(line).contains(QChar::ReplacementCharacter));
        QVERIFY(line.isEmpty() || line.endsWith('\r'));
    }
    QByteArray unfolded = bytes;
    unfolded.replace("\r\n ", "");
    const auto id = [](const TaskValues& values) { return values.id.toString().toUtf8(); };
    QCOMPARE(unfolded,
             calendar("PRODID:-//Norvin//Norvin Focus//EN\r\n"
                      "BEGIN:VTODO\r\nUID:" +
                      id(task) +
                      "\r\nDTSTAMP:20250228T230000Z\r\n"
                      "CREATED:20250228T230000Z\r\nSUMMARY:" +
                      QString(60, u'é').toUtf8() +
                      "\\, end\r\n"
                      "DESCRIPTION:One\\nTwo\\\\\r\nSTATUS:IN-PROCESS\r\nPRIORITY:1\r\n"
                      "DUE;VALUE=DATE:20250314\r\nDTSTART;VALUE=DATE:20250312\r\n"
                      "CATEGORIES:Thèse\\, 2e partie\r\nX-NORVIN-PHASE:Draft\\; one\r\nEND:VTODO\r\n"
                      "BEGIN:VTODO\r\nUID:" +
                      id(subtask) +
                      "\r\nDTSTAMP:20250228T230000Z\r\n"
                      "CREATED:20250228T230000Z\r\nSUMMARY:Outline\r\nSTATUS:NEEDS-ACTION\r\nPRIORITY:5\r\n"
                      "DUE:20250314T170000Z\r\nX-NORVIN-PLANNED:20250314T230000Z\r\n"
                      "RELATED-TO;RELTYPE=PARENT:" +
                      id(task) + "\r\nEND:VTODO\r\n"));
}

void tst_CalendarFile::readsWhatOtherProgramsWrite() {
    const QByteArray bytes = "begin:vcalendar\nVERSION:2.0\nMETHOD:PUBLISH\n"
                             "BEGIN:VEVENT\nUID:e\nSUMMARY:Party\nDTSTART:nonsense\nEND:VEVENT\n"
                             "BEGIN:VTODO\nUID:parent@example.org\nSUMMARY;LANGUAGE=en:Move\n  house, soon\n"
                             "STATUS:CANCELLED\nPRIORITY:3\nCATEGORIES:HOME,LATER\nX-OTHER;A=\"b:c;d\":e\n"
                             "BEGIN:VALARM\nTRIGGER:-PT15M\nSUMMARY:not this\nEND:VALARM\nEND:VTODO\n\n"
                             "BEGIN:VTODO\nUID:child\nSUMMARY:Pack\nRELATED-TO:parent@example.org\n"
                             "RELATED-TO;RELTYPE=SIBLING:nobody\nCOMPLETED:20250309T120000Z\nPRIORITY:0\n"
                             "END:VTODO\n"
                             "BEGIN:VTODO\nSUMMARY:Alone\nRELATED-TO:elsewhere\nPRIORITY:9\nEND:VTODO\n"
                             "BEGIN:VTODO\nUID:child\nRECURRENCE-ID:20250310\nSUMMARY:One turn\nEND:VTODO\n"
                             "END:VCALENDAR";
    PlanningSnapshot known;
    known.projects = {projectNamed(QStringLiteral("Home"))};
    const PlanningFile file = read(bytes, known);
    QCOMPARE(file.ignored, 2);
    const std::vector<TaskValues>& tasks = file.content.tasks;
    QCOMPARE(tasks.size(), size_t{3});
    QCOMPARE(tasks[0].title, QStringLiteral("Move house, soon"));
    QCOMPARE(tasks[0].statusValue, QStringLiteral("Done"));
    QCOMPARE(tasks[0].priorityValue, 2);
    QCOMPARE(tasks[0].project, std::optional(known.projects[0].id));
    QCOMPARE(tasks[1].parentTask, std::optional(tasks[0].id));
    QCOMPARE(tasks[1].statusValue, QStringLiteral("Done"));
    QCOMPARE(tasks[1].priorityValue, 1);
    QVERIFY(!tasks[2].parentTask);
    QCOMPARE(tasks[2].priorityValue, 0);
    // The same file again is the same tasks again.
    QCOMPARE(read(bytes).content.tasks[1].id, tasks[1].id);
}

void tst_CalendarFile::readsEveryKindOfTime_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QDateTime>("expected");
    const auto utc = [](int day, int hour, int minute = 0) {
        return QDateTime(QDate(2025, 3, day), QTime(hour, minute), Qt::UTC);
    };
    const auto row = [](const char* name, const QByteArray& line, const QDateTime& expected) {
        QTest::newRow(name) << line << expected;
    };
    row("UTC", "DUE:20250314T170000Z", utc(14, 17));
    row("floating", "DUE:20250314T180000", utc(14, 17));
    row("a day", "DUE;VALUE=DATE:20250314", utc(13, 23));
    row("after the clocks changed", "DUE:20250331T180000", utc(31, 16));
    row("a zone by name", "DUE;TZID=America/New_York:20250314T130000", utc(14, 17));
    row("a quoted zone behind a path", "DUE;TZID=\"/vendor.example/1/Europe/Paris\":20250314T180000",
        utc(14, 17));
    row("another system's name", "DUE;TZID=W. Europe Standard Time:20250314T180000", utc(14, 17));
    row("a zone of its own, by place", "DUE;TZID=By place:20250314T180000", utc(14, 17));
    row("a zone of its own, fixed", "DUE;TZID=Fixed:20250314T223000", utc(14, 17));
    row("a leap second", "DUE:20250314T165960Z", utc(14, 16, 59).addSecs(59));
}

void tst_CalendarFile::readsEveryKindOfTime() {
    QFETCH(QByteArray, line);
    QFETCH(QDateTime, expected);
    // Zones may stand behind the tasks.
    const QByteArray zones = "BEGIN:VTIMEZONE\r\nTZID:By place\r\nX-LIC-LOCATION:Europe/Paris\r\n"
                             "BEGIN:STANDARD\r\nTZOFFSETTO:+0900\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n"
                             "BEGIN:VTIMEZONE\r\nTZID:Fixed\r\nBEGIN:STANDARD\r\nTZOFFSETFROM:+0600\r\n"
                             "TZOFFSETTO:+0530\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n";
    const PlanningFile file =
        read(calendar("BEGIN:VTODO\r\nSUMMARY:T\r\n" + line + "\r\nEND:VTODO\r\n" + zones));
    QCOMPARE(file.content.tasks.size(), size_t{1});
    QCOMPARE(file.content.tasks[0].dueDate, expected);
}

void tst_CalendarFile::anyTaskComesBack() {
    const QStringList parts{
        "a", ",", ";", "\\", "\n", "\\n", "é", "🎯", " ", "\t", ":", "\"", QString(80, u'x')};
    const QStringList statuses{"To Do", "In Progress", "Done", "Waiting, long", ""};
    constexpr quint32 seed = 20250311;
    QRandomGenerator random(seed);
    const auto oneOf = [&random](const QStringList& list) { return list.at(random.bounded(list.size())); };
    const auto textOf = [&](int most) {
        QString text;
        for (int count = random.bounded(most); count > 0; --count)
            text += oneOf(parts);
        return text;
    };
    PlanningSnapshot content;
    content.projects = {projectNamed(QStringLiteral("A, B; \\ \"C\""))};
    content.phases = {phaseOf(content.projects[0], QStringLiteral("1, 2"), 0)};
    for (int i = 0; i < 1000; ++i) {
        TaskValues task = taskTitled(textOf(12));
        task.taskDescription = textOf(40);
        task.statusValue = oneOf(statuses);
        task.priorityValue = random.bounded(-1, 4);
        task.createdAt = QDateTime::fromSecsSinceEpoch(random.bounded(2'000'000'000), Qt::UTC);
        const auto someDate = [&random](QDateTime& date) {
            const QDate day = QDate(2025, 1, 1).addDays(random.bounded(400));
            if (random.bounded(3) > 0)
                date = random.bounded(2) == 0 ? parisDays().startOf(day)
                                              : QDateTime(day, QTime(random.bounded(24), 7), Qt::UTC);
        };
        someDate(task.dueDate);
        someDate(task.plannedDate);
        if (random.bounded(2) == 0)
            task.project = content.projects[0].id;
        if (task.project && random.bounded(2) == 0)
            task.phase = content.phases[0].id;
        if (!content.tasks.empty() && random.bounded(3) == 0)
            task.parentTask = content.tasks.back().id;
        content.tasks.push_back(task);
    }
    const PlanningFile file =
        read(calendarOf(content, parisDays()),
             {.projects = content.projects, .phases = content.phases, .tasks = {}, .resources = {}});
    QCOMPARE(file.content.tasks.size(), content.tasks.size());
    for (size_t at = 0; at < content.tasks.size(); ++at)
        QVERIFY2(file.content.tasks[at] == content.tasks[at], qPrintable(content.tasks[at].title));
    QVERIFY(file.content.projects.empty() && file.content.phases.empty());
}

void tst_CalendarFile::refusesWithLineAndReason_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("line");
    const auto row = [](const char* name, const QByteArray& bytes, const char* key, int line) {
        QTest::newRow(name) << bytes << QString::fromLatin1(key) << line;
    };
    row("nothing", "", "planning_file_no_calendar", 0);
    row("something else", "SUMMARY:a\r\n", "planning_file_no_calendar", 1);
    row("no line of a calendar", calendar("hello\r\n"), "planning_file_broken_line", 3);
    row("an open quotation", calendar("A;B=\"c:d\r\n"), "planning_file_broken_line", 3);
    row("an old version", "BEGIN:VCALENDAR\r\nVERSION:1.0\r\nEND:VCALENDAR", "planning_file_wrong_version",
        2);
    row("cut off", todo("SUMMARY:a\r\n").chopped(28), "planning_file_unclosed", 3);
    row("ends that do not fit", calendar("BEGIN:VTODO\r\nEND:VEVENT\r\n"), "planning_file_wrong_value", 4);
    // The line of the file, which is not that of the property when others are folded.
    row("a day that is none", todo("SUMMARY:a\r\n b\r\n c\r\nDUE;VALUE=DATE:20250230\r\n"),
        "planning_file_wrong_value", 7);
    row("an hour that is none", todo("SUMMARY:a\r\nDUE:20250314T250000Z\r\n"), "planning_file_wrong_value",
        5);
    row("a status that is none", todo("SUMMARY:a\r\nSTATUS:SOON\r\n"), "planning_file_wrong_value", 5);
    row("a priority that is none", todo("SUMMARY:a\r\nPRIORITY:high\r\n"), "planning_file_wrong_value", 5);
    row("an unknown zone", todo("SUMMARY:a\r\nDUE;TZID=Nowhere:20250314T180000\r\n"),
        "planning_file_unknown_zone", 5);
    row("a property twice", todo("SUMMARY:a\r\nSUMMARY:b\r\n"), "planning_file_repeated_member", 5);
    row("no summary", todo("UID:a\r\n"), "planning_file_no_title", 3);
    row("a uid twice",
        calendar("BEGIN:VTODO\r\nUID:a\r\nSUMMARY:a\r\nEND:VTODO\r\n"
                 "BEGIN:VTODO\r\nUID:a\r\nSUMMARY:b\r\nEND:VTODO\r\n"),
        "planning_file_repeated_id", 7);
    row("its own parent", todo("UID:a\r\nSUMMARY:a\r\nRELATED-TO:a\r\n"), "planning_file_ring", 3);
    row("not UTF-8", todo("SUMMARY:\xe9\r\n"), "planning_file_not_utf8", 4);
}

void tst_CalendarFile::refusesWithLineAndReason() {
    QFETCH(QByteArray, bytes);
    QFETCH(QString, key);
    QFETCH(int, line);
    const PlanningError error = refused(tasksFromCalendar(bytes, parisDays()));
    QCOMPARE(error.key, key);
    QCOMPARE(error.line, line);
}

QTEST_APPLESS_MAIN(tst_CalendarFile)
#include "tst_CalendarFile.moc"
