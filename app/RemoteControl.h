#pragma once

#include "app/CommandLine.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace norvin {

/// Carries the commands of the command line to the running instance, prints what comes back, and launches an
/// instance where start finds none. Needs a QCoreApplication. Main thread only.
class RemoteControl final {
public:
    explicit RemoteControl(QDBusConnection bus);

    /// Whether an instance answers on the bus.
    [[nodiscard]] bool isInstanceRunning() const;

    [[nodiscard]] ExitCode run(const Command& command);

    /// Brings the window of the running instance to the front; waits a moment for one that is still starting.
    [[nodiscard]] ExitCode showWindow();

private:
    [[nodiscard]] ExitCode start(const command::Start& wanted);
    [[nodiscard]] ExitCode status(const command::Status& wanted);
    [[nodiscard]] ExitCode follow();
    [[nodiscard]] ExitCode doctor();
    [[nodiscard]] ExitCode changeList(const command::ChangeList& change);
    [[nodiscard]] std::optional<ExitCode> runPlanning(const Command& command);
    [[nodiscard]] ExitCode stats(const command::Stats& wanted);
    [[nodiscard]] ExitCode launch();
    [[nodiscard]] bool waitForInstance(qint64 launchedProcess) const;

    /// Calls a method; prints why where it fails. @param reply takes the answer's first argument, if any
    [[nodiscard]] ExitCode call(const QString& method, const QVariantList& arguments = {},
                                QString* reply = nullptr);
    /// The same with the interface for projects and tasks.
    [[nodiscard]] ExitCode callPlanning(const QString& method, const QVariantList& arguments,
                                        QString* reply = nullptr);
    /// The same with any interface of the object.
    [[nodiscard]] ExitCode callOn(const char* interface, const QString& method, const QVariantList& arguments,
                                  QString* reply);

    QDBusConnection m_bus;
};

/// Text of a localisation key in the language that is loaded.
[[nodiscard]] QString textForKey(const QString& key);

} // namespace norvin
