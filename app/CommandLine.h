#pragma once

#include "focus/PomodoroTimerService.h"
#include "stats/StatsPeriod.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace norvin {

/// What the program answers to its caller.
enum class ExitCode : int {
    done = 0,
    refused = 1, ///< the action makes no sense now, or the doctor found something missing
    badArguments = 2,
    notRunning = 3,    ///< no running instance to talk to
    unreachable = 4,   ///< no session bus, no display, or the instance does not answer
    storeFailure = 70, ///< the store could not be opened even after it was made anew
};

namespace command {

/// Open the window.
struct OpenWindow {
    /// Print the time from process start to the first frame, and end.
    bool measureFirstFrame = false;
    /// Do not show the window until asked for.
    bool hidden = false;
};
struct Start {
    std::optional<int> minutes;
    QString task;
    PomodoroPhase phase = PomodoroPhase::work;
};
struct Pause {};
struct Resume {};
struct Stop {};
struct Status {
    bool json = false;
    bool follow = false;
};
struct Tasks {
    bool json = false;
};
/// Make a task; what is empty was not said.
struct Add {
    QString title;
    QString project;
    /// "2025-03-10", "today" or "tomorrow".
    QString date;
    /// "low", "medium" or "high".
    QString priority;
};
struct Agenda {
    /// As that of Add.
    QString date;
    bool json = false;
};
struct Projects {
    bool json = false;
};
/// Tick a task off.
struct Done {
    /// The beginning of its id, four digits at least.
    QString id;
};
struct Export {
    QString path;
    /// Whether a file that exists may be replaced.
    bool force = false;
};
struct Import {
    QString path;
};
/// Change a list: an application, or a site of a browser.
struct ChangeList {
    bool blocked = true; ///< false for the whitelists
    bool remove = false;
    QString app;
    QString site;
    QString browser;
};
struct Lists {
    bool json = false;
};
/// The figures of the statistics page.
struct Stats {
    /// That of the page of the past; none for the page of today.
    std::optional<StatsPeriod> period = {};
    bool json = false;
    bool csv = false;
};
struct Doctor {};
struct Help {};
struct Version {};

} // namespace command

using Command =
    std::variant<command::OpenWindow, command::Start, command::Pause, command::Resume, command::Stop,
                 command::Status, command::Tasks, command::Add, command::Agenda, command::Projects,
                 command::Done, command::Export, command::Import, command::ChangeList, command::Lists,
                 command::Stats, command::Doctor, command::Help, command::Version>;

/// Why the arguments cannot be understood, as one line in English.
struct CommandLineError {
    QString message;
};

/// @param arguments those after the program's name
[[nodiscard]] std::variant<Command, CommandLineError> parseCommandLine(const QStringList& arguments);

/// The text of --help.
[[nodiscard]] QString commandLineHelp();

} // namespace norvin
