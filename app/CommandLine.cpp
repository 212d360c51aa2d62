#include "app/CommandLine.h"

#include "app/PlanningCommands.h"

#include <QHash>
#include <QSet>

namespace norvin {

namespace {

constexpr int longestMinutes = 24 * 60;

/// The arguments of one command, taken apart: options with a value, flags, and the rest.
struct Arguments {
    QHash<QString, QString> values;
    QSet<QString> flags;
    QStringList positional;
};

using Parsed = std::variant<Command, CommandLineError>;

Parsed fail(const QString& message) {
    return CommandLineError{message};
}

std::variant<Arguments, CommandLineError> takeApart(const QString& command, const QStringList& arguments,
                                                    const QSet<QString>& withValue,
                                                    const QSet<QString>& flags) {
    Arguments result;
    bool onlyPositional = false;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (onlyPositional || !argument.startsWith(QLatin1String("--"))) {
            result.positional.append(argument);
            continue;
        }
        if (argument == QLatin1String("--")) {
            onlyPositional = true;
            continue;
        }
        const qsizetype equals = argument.indexOf(u'=');
        const QString name = equals < 0 ? argument : argument.left(equals);
        if (flags.contains(name) && equals < 0) {
            result.flags.insert(name);
        } else if (withValue.contains(name)) {
            if (result.values.contains(name))
                return CommandLineError{QStringLiteral("%1: %2 is given twice").arg(command, name)};
            if (equals < 0 && i + 1 == arguments.size())
                return CommandLineError{QStringLiteral("%1: %2 needs a value").arg(command, name)};
            result.values.insert(name, equals < 0 ? arguments.at(++i) : argument.mid(equals + 1));
        } else {
            return CommandLineError{QStringLiteral("%1: unknown option '%2'").arg(command, argument)};
        }
    }
    return result;
}

Parsed parseStart(const Arguments& arguments) {
    command::Start start;
    const auto& values = arguments.values;
    if (const auto phase = values.constFind(QStringLiteral("--phase")); phase != values.cend()) {
        const QString wanted = *phase == QLatin1String("break") ? QStringLiteral("break_time") : *phase;
        const std::optional<PomodoroPhase> parsed = pomodoroPhaseFromRawValue(wanted);
        if (!parsed)
            return fail(QStringLiteral("start: the phase is work, break or rearming, not '%1'").arg(*phase));
        start.phase = *parsed;
    }
    if (const auto minutes = values.constFind(QStringLiteral("--minutes")); minutes != values.cend()) {
        bool isNumber = false;
        const int number = minutes->toInt(&isNumber);
        if (!isNumber || number < 1 || number > longestMinutes) {
            return fail(QStringLiteral("start: --minutes takes a whole number from 1 to 1440, not '%1'")
                            .arg(*minutes));
        }
        start.minutes = number;
    }
    if (const auto task = values.constFind(QStringLiteral("--task")); task != values.cend()) {
        start.task = task->simplified();
        if (start.task.isEmpty())
            return fail(QStringLiteral("start: --task needs a title"));
    }
    return Command(start);
}

Parsed parseChangeList(const QString& name, const Arguments& arguments) {
    command::ChangeList change;
    change.blocked = name == QLatin1String("block");
    change.remove = arguments.flags.contains(QStringLiteral("--remove"));
    change.app = arguments.values.value(QStringLiteral("--app")).trimmed();
    change.site = arguments.values.value(QStringLiteral("--site")).trimmed();
    change.browser = arguments.values.value(QStringLiteral("--browser")).trimmed();
    const bool isApp = !change.app.isEmpty() && change.site.isEmpty() && change.browser.isEmpty();
    const bool isSite = change.app.isEmpty() && !change.site.isEmpty() && !change.browser.isEmpty();
    if (!isApp && !isSite)
        return fail(QStringLiteral("%1: give either --app ID, or --site SITE and --browser ID").arg(name));
    return Command(change);
}

std::optional<CommandLineError> dateProblem(const QString& command, const Arguments& arguments) {
    const auto date = arguments.values.constFind(QStringLiteral("--date"));
    // Which day is today does not matter here.
    if (date == arguments.values.cend() || dayOfText(*date, QDate(2000, 1, 1)))
        return std::nullopt;
    return CommandLineError{
        QStringLiteral("%1: --date takes a day such as 2025-03-10, today or tomorrow, not '%2'")
            .arg(command, *date)};
}

Parsed parseAdd(const Arguments& arguments) {
    command::Add add;
    add.title = arguments.positional.join(u' ').simplified();
    add.project = arguments.values.value(QStringLiteral("--project")).simplified();
    add.date = arguments.values.value(QStringLiteral("--date"));
    add.priority = arguments.values.value(QStringLiteral("--priority"));
    if (add.title.isEmpty())
        return fail(QStringLiteral("add: give the task a title"));
    if (arguments.values.contains(QStringLiteral("--project")) && add.project.isEmpty())
        return fail(QStringLiteral("add: --project needs a name"));
    static const QSet<QString> priorities{QStringLiteral("low"), QStringLiteral("medium"),
                                          QStringLiteral("high")};
    if (arguments.values.contains(QStringLiteral("--priority")) && !priorities.contains(add.priority)) {
        return fail(QStringLiteral("add: the priority is low, medium or high, not '%1'").arg(add.priority));
    }
    if (const auto problem = dateProblem(QStringLiteral("add"), arguments))
        return *problem;
    return Command(add);
}

Parsed parseAgenda(const Arguments& arguments) {
    if (const auto problem = dateProblem(QStringLiteral("agenda"), arguments))
        return *problem;
    return Command(command::Agenda{arguments.values.value(QStringLiteral("--date")),
                                   arguments.flags.contains(QStringLiteral("--json"))});
}

// The commands that take one word: an id, or the name of a file.
Parsed parseOneWord(const QString& name, const Arguments& arguments) {
    const bool isDone = name == QLatin1String("done");
    if (arguments.positional.size() != 1 || arguments.positional.first().isEmpty()) {
        return fail(isDone ? QStringLiteral("done: give the id of one task")
                           : QStringLiteral("%1: name one file").arg(name));
    }
    const QString& word = arguments.positional.first();
    if (name == QLatin1String("export"))
        return Command(command::Export{word, arguments.flags.contains(QStringLiteral("--force"))});
    if (name == QLatin1String("import"))
        return Command(command::Import{word});
    if (!idDigits(word)) {
        return fail(QStringLiteral("done: an id is four or more hexadecimal digits, not '%1'").arg(word));
    }
    return Command(command::Done{word});
}

Parsed parseStats(const Arguments& arguments) {
    command::Stats stats;
    stats.json = arguments.flags.contains(QStringLiteral("--json"));
    stats.csv = arguments.flags.contains(QStringLiteral("--csv"));
    if (stats.json && stats.csv)
        return fail(QStringLiteral("stats: give --json or --csv, not both"));
    const auto period = arguments.values.constFind(QStringLiteral("--period"));
    if (period == arguments.values.cend())
        return Command(stats);
    stats.period = statsPeriodFromRawValue(*period);
    if (!stats.period) {
        return fail(
            QStringLiteral("stats: the period is today, week, month, year or all, not '%1'").arg(*period));
    }
    return Command(stats);
}

struct Rule {
    QSet<QString> withValue;
    QSet<QString> flags;
    bool takesText = false;
};

const QHash<QString, Rule>& rules() {
    const QString json = QStringLiteral("--json");
    const Rule list{{QStringLiteral("--app"), QStringLiteral("--site"), QStringLiteral("--browser")},
                    {QStringLiteral("--remove")},
                    false};
    static const QHash<QString, Rule> table{
        {QStringLiteral("start"),
         {{QStringLiteral("--minutes"), QStringLiteral("--task"), QStringLiteral("--phase")}, {}, false}},
        {QStringLiteral("pause"), {}},
        {QStringLiteral("resume"), {}},
        {QStringLiteral("stop"), {}},
        {QStringLiteral("status"), {{}, {json, QStringLiteral("--follow")}, false}},
        {QStringLiteral("tasks"), {{}, {json}, false}},
        {QStringLiteral("add"),
         {{QStringLiteral("--project"), QStringLiteral("--date"), QStringLiteral("--priority")}, {}, true}},
        {QStringLiteral("agenda"), {{QStringLiteral("--date")}, {json}, false}},
        {QStringLiteral("projects"), {{}, {json}, false}},
        {QStringLiteral("done"), {{}, {}, true}},
        {QStringLiteral("export"), {{}, {QStringLiteral("--force")}, true}},
        {QStringLiteral("import"), {{}, {}, true}},
        {QStringLiteral("block"), list},
        {QStringLiteral("allow"), list},
        {QStringLiteral("lists"), {{}, {json}, false}},
        {QStringLiteral("stats"), {{QStringLiteral("--period")}, {json, QStringLiteral("--csv")}, false}},
        {QStringLiteral("doctor"), {}},
        {QStringLiteral("help"), {}},
    };
    return table;
}

Parsed parseOptionsOnly(const QStringList& arguments) {
    command::OpenWindow open;
    for (const QString& argument : arguments) {
        if (argument == QLatin1String("--help") || argument == QLatin1String("-h"))
            return Command(command::Help{});
        if (argument == QLatin1String("--version"))
            return Command(command::Version{});
        if (argument == QLatin1String("--measure-first-frame"))
            open.measureFirstFrame = true;
        else if (argument == QLatin1String("--hidden"))
            open.hidden = true;
        else
            return fail(QStringLiteral("unknown option '%1'").arg(argument));
    }
    return Command(open);
}

} // namespace

Parsed parseCommandLine(const QStringList& arguments) {
    if (arguments.isEmpty() || arguments.first().startsWith(u'-'))
        return parseOptionsOnly(arguments);
    const QString& name = arguments.first();
    const auto rule = rules().constFind(name);
    if (rule == rules().cend())
        return fail(QStringLiteral("unknown command '%1'").arg(name));
    if (arguments.contains(QStringLiteral("--help")) || arguments.contains(QStringLiteral("-h")))
        return Command(command::Help{});

    const auto parts = takeApart(name, arguments.mid(1), rule->withValue, rule->flags);
    if (const auto* error = std::get_if<CommandLineError>(&parts))
        return *error;
    const Arguments& given = std::get<Arguments>(parts);
    if (!rule->takesText && !given.positional.isEmpty())
        return fail(QStringLiteral("%1: unexpected argument '%2'").arg(name, given.positional.first()));

    const bool json = given.flags.contains(QStringLiteral("--json"));
    if (name == QLatin1String("start"))
        return parseStart(given);
    if (name == QLatin1String("pause"))
        return Command(command::Pause{});
    if (name == QLatin1String("resume"))
        return Command(command::Resume{});
    if (name == QLatin1String("stop"))
        return Command(command::Stop{});
    if (name == QLatin1String("status"))
        return Command(command::Status{json, given.flags.contains(QStringLiteral("--follow"))});
    if (name == QLatin1String("tasks"))
        return Command(command::Tasks{json});
    if (name == QLatin1String("lists"))
        return Command(command::Lists{json});
    if (name == QLatin1String("doctor"))
        return Command(command::Doctor{});
    if (name == QLatin1String("help"))
        return Command(command::Help{});
    if (name == QLatin1String("stats"))
        return parseStats(given);
    if (name == QLatin1String("add"))
        return parseAdd(given);
    if (name == QLatin1String("agenda"))
        return parseAgenda(given);
    if (name == QLatin1String("projects"))
        return Command(command::Projects{json});
    if (rule->takesText)
        return parseOneWord(name, given);
    return parseChangeList(name, given);
}

QString commandLineHelp() {
    return QStringLiteral(
        R"(Norvin Focus: timed focus sessions over your tasks, with measured focus and blocking.

Usage: norvin-focus [COMMAND] [OPTIONS]

Without a command the window opens; where Norvin Focus runs already, its window comes to the front.

Commands
  start [--minutes N] [--task TITLE] [--phase work|break|rearming]
                      begin a phase; Norvin Focus is launched if it does not run
  pause, resume       pause the running phase, or go on with it
  stop                end the session without recording it
  status [--json] [--follow]
                      what runs now; --follow prints one JSON line per change until the program ends
  tasks [--json]      the tasks queued for the session
  add TITLE [--project P] [--date D] [--priority low|medium|high]
                      make a task; for today, or without a date, it is queued
  agenda [--date D] [--json]
                      what is planned for a day; D is 2025-03-10, today or tomorrow
  projects [--json]   the projects
  done ID             tick a task off; the first four digits of its id do
  export [--force] FILE
                      write projects and tasks to FILE.json, or the tasks to FILE.txt or FILE.ics
  import FILE         take in the projects and tasks of such a file
  block, allow (--app ID | --site SITE --browser ID) [--remove]
                      put an application or a site on the blocked or on the allowed list, or take it off
  lists [--json]      the four lists
  stats [--period today|week|month|year|all] [--json|--csv]
                      the figures of today, or with a period those of the past
  doctor              what of this desktop can be used, and what to do about the rest

Options
  --hidden            open without showing the window
  --measure-first-frame
                      print the milliseconds from process start to the first frame, and end
  --help, --version

Exit codes
  0  done              1  refused, or the doctor found something missing
  2  bad arguments     3  Norvin Focus is not running
  4  session bus, display or program not reachable
  70 the store cannot be opened
)");
}

} // namespace norvin
