#include "planning/TaskEntryParser.h"
#include "tests/planning/ProjectRig.h"

#include <QtTest>

using namespace norvin;

/// A Wednesday.
const QDate today(2026, 11, 18);

class TaskEntryParserTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        thesis = rig.addProject(QStringLiteral("Thesis"));
        rig.addPhase(thesis, QStringLiteral("Draft"), 0);
        rig.addPhase(thesis, QStringLiteral("In review"), 1);
        for (const char* name : {"Deep", "Deep Work", "Été à Paris", "Garden", "Garage"})
            rig.addProject(QString::fromUtf8(name));
    }

    void daysAreUnderstood_data();
    void daysAreUnderstood();
    void wordsThatAreNoDaysStayInTheTitle_data();
    void wordsThatAreNoDaysStayInTheTitle();
    void prioritiesProjectsAndPhasesAreTakenOutOfTheTitle();
    void namesThatFitNothingOrSeveralStayAndAreTold();
    void quotesAndBackslashesProtectWords();
    void aFieldCanBePutBackIntoTheTitleOrTakenOut();

private:
    [[nodiscard]] TaskEntry parse(const QString& line, const QString& language = QStringLiteral("en"),
                                  const Project* project = nullptr) const {
        return parser(language).parse(line, project);
    }
    [[nodiscard]] TaskEntryParser parser(const QString& language = QStringLiteral("en")) const {
        return {rig.context().projects(), today, QLocale(language)};
    }

    test::ProjectRig rig;
    Project* thesis = nullptr;
};

void TaskEntryParserTest::daysAreUnderstood_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QDate>("planned");
    QTest::addColumn<QDate>("due");
    const auto row = [](const char* line, const char* title, QDate planned, QDate due = {},
                        const char* language = "en") {
        QTest::newRow(line) << QString::fromLatin1(language) << QString::fromUtf8(title) << planned << due;
    };
    const QDate none;
    row("Write report tomorrow", "Write report", today.addDays(1));
    row("Call Bob today about the lease", "Call Bob about the lease", today);
    row("Appeler demain Zoé", "Appeler Zoé", today.addDays(1));
    row("Courses aujourd’hui", "Courses", today);
    row("Relire après-demain", "Relire", today.addDays(2));
    row("Plan the day after tomorrow", "Plan", today.addDays(2));
    row("Water plants in 3 days", "Water plants", today.addDays(3));
    row("Dans 2 semaines relancer Luc", "relancer Luc", today.addDays(14));
    row("Ship 2026-12-01 release", "Ship release", QDate(2026, 12, 1));
    row("Meet Ann friday", "Meet Ann", today.addDays(2));
    row("Réunion mercredi", "Réunion", today.addDays(7));
    row("Réunion ce mercredi", "Réunion", today);
    row("Meet Ann next friday", "Meet Ann", QDate(2026, 11, 27));
    row("Réunion lundi prochain", "Réunion", QDate(2026, 11, 23));
    row("Bilan la semaine prochaine", "Bilan", QDate(2026, 11, 23));
    row("Call Bob on monday about the lease", "Call Bob about the lease", QDate(2026, 11, 23));
    row("Dentist 1 dec", "Dentist", QDate(2026, 12, 1));
    row("Dentiste le 1er déc.", "Dentiste", QDate(2026, 12, 1));
    row("Dentiste jeudi 3 décembre", "Dentiste", QDate(2026, 12, 3));
    row("Dentist March 5th", "Dentist", QDate(2027, 3, 5));
    row("Leap 29 feb", "Leap", QDate(2028, 2, 29));
    row("Pay 12/01", "Pay", QDate(2026, 12, 1));
    row("Payer 12/01", "Payer", QDate(2027, 1, 12), none, "fr");
    row("Pay 25/12", "Pay", QDate(2026, 12, 25));
    row("Pay 12/01/2028", "Pay", QDate(2028, 12, 1));
    row("Send it by friday", "Send it", none, today.addDays(2));
    row("Rendre avant le 12 décembre", "Rendre", none, QDate(2026, 12, 12), "fr");
    row("Slides due:tomorrow for Ann", "Slides for Ann", none, today.addDays(1));
    row("Slides due: 2026-12-01", "Slides", none, QDate(2026, 12, 1));
    row("Rapport pour : lundi", "Rapport", none, QDate(2026, 11, 23), "fr");
    row("Write !high tomorrow by 12 December #Thesis", "Write", today.addDays(1), QDate(2026, 12, 12));
    row("Prepare Monday meeting tomorrow", "Prepare Monday meeting", today.addDays(1));
}

void TaskEntryParserTest::daysAreUnderstood() {
    QFETCH(QString, language);
    QFETCH(QString, title);
    QFETCH(QDate, planned);
    QFETCH(QDate, due);
    const TaskEntry entry = parse(QString::fromUtf8(QTest::currentDataTag()), language);
    QCOMPARE(entry.title, title);
    QCOMPARE(entry.plannedDay, planned);
    QCOMPARE(entry.dueDay, due);
}

void TaskEntryParserTest::wordsThatAreNoDaysStayInTheTitle_data() {
    QTest::addColumn<int>("unused");
    for (const char* line :
         {"Prepare Monday meeting", "Notes of Monday", "Backup every monday", "Review 1/2 of the draft",
          "Le lundi au soleil", "Yoga le lundi", "Open since 2 May", "Read 30 feb", "Ship 2026-13-01",
          "99/99", "Lire Dune", "Plan for everyone", "Stand by me", "Wait in line", "Version 2026",
          "Today's news", "Rappel du lundi", "Mon projet en mars"})
        QTest::newRow(line) << 0;
}

void TaskEntryParserTest::wordsThatAreNoDaysStayInTheTitle() {
    const QString line = QString::fromUtf8(QTest::currentDataTag());
    for (const QString& language : {QStringLiteral("en"), QStringLiteral("fr")}) {
        const TaskEntry entry = parse(line, language);
        QCOMPARE(entry.title, line);
        QVERIFY(!entry.plannedDay.isValid() && !entry.dueDay.isValid());
    }
}

void TaskEntryParserTest::prioritiesProjectsAndPhasesAreTakenOutOfTheTitle() {
    const TaskEntry entry = parse(QStringLiteral("  Write   report !HIGH, @\"in review\" #thesis tomorrow "));
    QCOMPARE(entry.title, QStringLiteral("Write report"));
    QCOMPARE(entry.priority, TaskPriority::high);
    QCOMPARE(entry.project, thesis);
    QCOMPARE(entry.phase, thesis->sortedPhases().last());
    QCOMPARE(entry.plannedDay, today.addDays(1));
    QVERIFY(entry.unknown.isEmpty());

    QCOMPARE(parse(QStringLiteral("a !basse")).priority, TaskPriority::low);
    QCOMPARE(parse(QStringLiteral("a !2")).priority, TaskPriority::medium);
    // The last one counts; what it is not belongs to the title.
    const TaskEntry twice = parse(QStringLiteral("a !1 b !3"));
    QCOMPARE(twice.priority, TaskPriority::low);
    QCOMPARE(twice.title, QStringLiteral("a !1 b"));
    QVERIFY(!parse(QStringLiteral("Hurry!high !4 !")).priority);

    // The longest name, the only beginning, the name in quotes; without case and accents.
    QCOMPARE(parse(QStringLiteral("a #Deep Work b")).project->name(), QStringLiteral("Deep Work"));
    QCOMPARE(parse(QStringLiteral("a #Deep b")).project->name(), QStringLiteral("Deep"));
    QCOMPARE(parse(QStringLiteral("#ete a paris, x")).project->name(), QStringLiteral("Été à Paris"));
    QCOMPARE(parse(QStringLiteral("a #«Deep work» b")).title, QStringLiteral("a b"));
    QCOMPARE(parse(QStringLiteral("a #th @dr")).phase, thesis->sortedPhases().first());
    QCOMPARE(parse(QStringLiteral("a @draft"), QStringLiteral("en"), thesis).phase,
             thesis->sortedPhases().first());
}

void TaskEntryParserTest::namesThatFitNothingOrSeveralStayAndAreTold() {
    const TaskEntry entry = parse(QStringLiteral("Fix #42 and #Gar @Draft"));
    QCOMPARE(entry.title, QStringLiteral("Fix #42 and #Gar @Draft"));
    QVERIFY(entry.project == nullptr && entry.phase == nullptr);
    const QList<TaskEntry::Unknown> unknown = {{TaskEntryField::phase, QStringLiteral("Draft"), false},
                                               {TaskEntryField::project, QStringLiteral("42"), false},
                                               {TaskEntryField::project, QStringLiteral("Gar"), true}};
    QCOMPARE(entry.unknown, unknown);
    // Neither a mark within a word nor one that stands alone is a name.
    const TaskEntry plain = parse(QStringLiteral("Mail bob@x.org # C#"));
    QVERIFY(plain.unknown.isEmpty());
    QCOMPARE(plain.title, QStringLiteral("Mail bob@x.org # C#"));
}

void TaskEntryParserTest::quotesAndBackslashesProtectWords() {
    const TaskEntry quoted = parse(QStringLiteral("Read \"Tomorrow !high\" and «#Thesis demain»"));
    QCOMPARE(quoted.title, QStringLiteral("Read \"Tomorrow !high\" and «#Thesis demain»"));
    QVERIFY(!quoted.priority && quoted.project == nullptr && !quoted.plannedDay.isValid());
    QCOMPARE(parse(QStringLiteral("Say \\!high \\tomorrow \\ \\\\x")).title,
             QStringLiteral("Say !high tomorrow \\ \\x"));
    // A quote that is never closed protects nothing.
    QCOMPARE(parse(QStringLiteral("5\" pipe tomorrow")).plannedDay, today.addDays(1));
    QCOMPARE(parse(QStringLiteral("\"pipe tomorrow")).plannedDay, today.addDays(1));
}

void TaskEntryParserTest::aFieldCanBePutBackIntoTheTitleOrTakenOut() {
    const QString line = QStringLiteral("Read next friday !low #Deep Work @x");
    const QString asTitle = parser().withFieldAsTitle(line, TaskEntryField::plannedDay);
    QCOMPARE(parse(asTitle).title, QStringLiteral("Read next friday @x"));
    QVERIFY(!parse(asTitle).plannedDay.isValid());
    QCOMPARE(parse(parser().withFieldAsTitle(line, TaskEntryField::project)).title,
             QStringLiteral("Read #Deep Work @x"));
    // The day is named at the end all the same.
    QCOMPARE(parse(parser().withFieldAsTitle(line, TaskEntryField::project)).plannedDay, QDate(2026, 11, 27));
    QCOMPARE(parser().withoutField(line, TaskEntryField::project),
             QStringLiteral("Read next friday !low @x"));
    QCOMPARE(parser().withoutField(line, TaskEntryField::dueDay), line);
}

QTEST_GUILESS_MAIN(TaskEntryParserTest)
#include "tst_TaskEntryParser.moc"
