#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>
#include <vector>

class QProcess;

/// Servers and programs of a test's own: an X server, a window manager, message buses. Everything started
/// here ends with the rig, and with the test's process should that crash. Works before there is a
/// QCoreApplication, because Qt looks for its display when the application is made.
class DesktopRig final {
public:
    DesktopRig();
    ~DesktopRig();
    DesktopRig(const DesktopRig&) = delete;
    DesktopRig& operator=(const DesktopRig&) = delete;

    /// Starts Xvfb on a free display.
    /// @param options more options for Xvfb, such as {"-extension", "MIT-SCREEN-SAVER"}
    /// @return the display's name (":7"); empty when it could not be started
    [[nodiscard]] QByteArray startDisplay(const QStringList& options = {});

    /// Starts a message bus.
    /// @param services directory of the services that it can start by itself; empty for none
    /// @return its address; empty when it could not be started
    [[nodiscard]] QByteArray startBus(const QString& services = {});

    /// Starts a program; what it prints is discarded, its input and output are the caller's to use.
    /// @return null when it could not be started; owned by the rig
    QProcess* start(const QString& program, const QStringList& arguments = {},
                    const QStringList& environment = {});

    /// Ends a program with SIGKILL and waits for its end.
    void kill(QProcess* process);

    /// Runs a program to its end and answers what it printed; waits 10 seconds at most.
    static QByteArray run(const QString& program, const QStringList& arguments);

    /// A path below a directory that goes away with the rig.
    [[nodiscard]] QString filePath(const QString& name) const { return m_directory.filePath(name); }
    /// Empty when there is no such file.
    [[nodiscard]] QByteArray readFile(const QString& name) const;
    void writeFile(const QString& name, const QByteArray& content) const;

private:
    [[nodiscard]] QByteArray firstLine(QProcess* process) const;

    QTemporaryDir m_directory;
    std::vector<std::unique_ptr<QProcess>> m_processes;
};
