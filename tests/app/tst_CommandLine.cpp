#include "app/CommandLine.h"

#include <QTest>

using namespace norvin;

class tst_CommandLine final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void understandsStart();
    void understandsTheOthers();
    void refusesWithAClearLine_data();
    void refusesWithAClearLine();
    void helpNamesEveryCommand();
};

namespace {

template <class Wanted>
std::optional<Wanted> parsedAs(const QStringList& arguments) {
    const auto parsed = parseCommandLine(arguments);
    if (const auto* command = std::get_if<Command>(&parsed)) {
        if (const auto* wanted = std::get_if<Wanted>(command))
            return *wanted;
    }
    return std::nullopt;
}

} // namespace

void tst_CommandLine::understandsStart() {
    const auto plain = parsedAs<command::Start>({"start"});
    QVERIFY(plain && !plain->minutes && plain->task.isEmpty() && plain->phase == PomodoroPhase::work);
    const auto full = parsedAs<command::Start>(
        {"start", "--minutes", "45", "--task=Write  the report", "--phase", "break"});
    QVERIFY(full);
    QCOMPARE(full->minutes, std::optional(45));
    QCOMPARE(full->task, QStringLiteral("Write the report"));
    QCOMPARE(full->phase, PomodoroPhase::breakTime);
    QCOMPARE(parsedAs<command::Start>({"start", "--task", "--minutes"})->task, QStringLiteral("--minutes"));
}

void tst_CommandLine::understandsTheOthers() {
    QVERIFY(parsedAs<command::OpenWindow>({}));
    QVERIFY(parsedAs<command::OpenWindow>({"--hidden"})->hidden);
    QVERIFY(parsedAs<command::Help>({"--help"}));
    QVERIFY(parsedAs<command::Help>({"start", "--help"}));
    QVERIFY(parsedAs<command::Version>({"--version"}));
    QVERIFY(parsedAs<command::Pause>({"pause"}));
    QVERIFY(parsedAs<command::Resume>({"resume"}));
    QVERIFY(parsedAs<command::Stop>({"stop"}));
    QVERIFY(parsedAs<command::Doctor>({"doctor"}));
    const auto status = parsedAs<command::Status>({"status", "--follow", "--json"});
    QVERIFY(status && status->follow && status->json);
    QVERIFY(!parsedAs<command::Tasks>({"tasks"})->json);
    QCOMPARE(parsedAs<command::Add>({"add", "Read", "the", "paper"})->title,
             QStringLiteral("Read the paper"));
    QCOMPARE(parsedAs<command::Add>({"add", "--", "--dashes"})->title, QStringLiteral("--dashes"));
    const auto add = parsedAs<command::Add>(
        {"add", "Read", "--project", "My thesis", "it", "--date=tomorrow", "--priority", "high"});
    QVERIFY(add);
    QCOMPARE(add->title, QStringLiteral("Read it"));
    QCOMPARE(QStringList({add->project, add->date, add->priority}),
             QStringList({"My thesis", "tomorrow", "high"}));
    const auto agenda = parsedAs<command::Agenda>({"agenda", "--date", "2025-03-10", "--json"});
    QVERIFY(agenda && agenda->json);
    QCOMPARE(agenda->date, QStringLiteral("2025-03-10"));
    QVERIFY(parsedAs<command::Projects>({"projects"}));
    const auto stats = parsedAs<command::Stats>({"stats", "--period=year", "--csv"});
    QVERIFY(stats && stats->period == StatsPeriod::year && stats->csv && !stats->json);
    QVERIFY(!parsedAs<command::Stats>({"stats"})->period);
    QCOMPARE(parsedAs<command::Done>({"done", "1a2B"})->id, QStringLiteral("1a2B"));
    const auto exported = parsedAs<command::Export>({"export", "--force", "plan.json"});
    QVERIFY(exported && exported->force && exported->path == QLatin1String("plan.json"));
    QCOMPARE(parsedAs<command::Import>({"import", "my plan.ics"})->path, QStringLiteral("my plan.ics"));
    const auto block = parsedAs<command::ChangeList>({"block", "--app", "org.example.Game", "--remove"});
    QVERIFY(block && block->blocked && block->remove);
    QCOMPARE(block->app, QStringLiteral("org.example.Game"));
    const auto allow =
        parsedAs<command::ChangeList>({"allow", "--site", "example.org", "--browser", "org.mozilla.firefox"});
    QVERIFY(allow && !allow->blocked && !allow->remove);
    QCOMPARE(allow->browser, QStringLiteral("org.mozilla.firefox"));
}

void tst_CommandLine::refusesWithAClearLine_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named"); // what the line must name
    const auto row = [](const QStringList& arguments, const char* named) {
        QTest::newRow(qPrintable(arguments.join(u' '))) << arguments << QString::fromLatin1(named);
    };
    row({"dance"}, "dance");
    row({"--dance"}, "--dance");
    row({"start", "--minutes"}, "--minutes");
    row({"start", "--minutes", "0"}, "'0'");
    row({"start", "--minutes", "1441"}, "1441");
    row({"start", "--minutes", "2.5"}, "2.5");
    row({"start", "--minutes", "1", "--minutes", "2"}, "twice");
    row({"start", "--phase", "nap"}, "nap");
    row({"start", "--task", "  "}, "--task");
    row({"start", "now"}, "now");
    row({"pause", "--json"}, "--json");
    row({"status", "--json=yes"}, "--json=yes");
    row({"add"}, "title");
    row({"add", "  "}, "title");
    row({"add", "a", "--date", "2025-02-30"}, "2025-02-30");
    row({"add", "a", "--priority", "urgent"}, "urgent");
    row({"add", "a", "--project", " "}, "--project");
    row({"agenda", "--date", "yesterday"}, "yesterday");
    row({"stats", "--period", "fortnight"}, "'fortnight'");
    row({"stats", "--json", "--csv"}, "not both");
    row({"done"}, "one task");
    row({"done", "1a2"}, "1a2");
    row({"done", "wxyz"}, "wxyz");
    row({"done", "1a2b", "3c4d"}, "one task");
    row({"export", "a.json", "b.json"}, "one file");
    row({"import"}, "one file");
    row({"block"}, "--app ID");
    row({"block", "--app", ""}, "--app ID");
    row({"block", "--site", "example.org"}, "--browser ID");
    row({"allow", "--app", "a", "--site", "b", "--browser", "c"}, "either");
}

void tst_CommandLine::refusesWithAClearLine() {
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    const auto parsed = parseCommandLine(arguments);
    const auto* error = std::get_if<CommandLineError>(&parsed);
    QVERIFY(error);
    QVERIFY2(error->message.contains(named), qPrintable(error->message));
    QVERIFY(!error->message.contains(u'\n'));
}

void tst_CommandLine::helpNamesEveryCommand() {
    const QString help = commandLineHelp();
    for (const char* name :
         {"start", "pause", "resume", "stop", "status", "tasks", "add", "agenda", "projects", "done", "stats",
          "export", "import", "block", "allow", "lists", "doctor", "--help", "--version"})
        QVERIFY2(help.contains(QLatin1String(name)), name);
}

QTEST_APPLESS_MAIN(tst_CommandLine)
#include "tst_CommandLine.moc"
