#pragma once

#include <QString>
#include <QStringList>

namespace norvin {

/// What the kernel says about a process that helps to name its application. Every field is empty where it
/// cannot be read (another user's process, one that has just ended).
struct ProcessFacts {
    /// Identifier of the Flatpak or Snap ("firefox_firefox") the process runs in.
    QString sandboxId;
    /// Systemd unit of an application that the desktop started ("app-gnome-org.gnome.Maps-4711.scope").
    QString applicationUnit;
    /// Program file's name without directory; for a script, the script's name.
    QString programName;
    /// Whether the process was started from a terminal; its unit is then the terminal's.
    bool hasTerminal = false;
};

/// @param processRoot "/proc", or a directory made like it
[[nodiscard]] ProcessFacts readProcessFacts(qint64 processId,
                                            const QString& processRoot = QStringLiteral("/proc"));

/// The name of the program that a command line runs: the script where its first word is an interpreter,
/// without directories and without "env" and its assignments; empty where there is none.
[[nodiscard]] QString programNameOfCommand(const QStringList& command);

/// Whether a program of this name only runs other programs ("python3.11", "bash", "java").
[[nodiscard]] bool isInterpreter(const QString& programName);

/// The application ids that the name of a systemd unit may stand for, the likeliest first; empty where it is
/// not the unit of an application.
[[nodiscard]] QStringList applicationIdsOfUnit(const QString& unit);

} // namespace norvin
