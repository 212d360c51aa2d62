#include "app/CommandLine.h"
#include "app/InstanceLock.h"
#include "app/NorvinFocusApp.h"
#include "app/RemoteControl.h"
#include "app/StatusReport.h"
#include "app/UnixSignals.h"
#include "distraction/AppBlockerService.h"
#include "distraction/BrowserHealth.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/SessionBus.h"
#include "platform/linux/display/DisplayProbe.h"
#include "ui/InterfaceEngine.h"

#include <QGuiApplication>
#include <QThread>
#include <QTimer>
#include <QTranslator>

#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <future>
#include <thread>

using namespace norvin;

namespace {

void print(FILE* stream, const QString& text) {
    std::fputs(text.toUtf8().constData(), stream);
    std::fflush(stream);
}

int toInt(ExitCode code) {
    return static_cast<int>(code);
}

// The store could not be opened, not even after it was made anew: there is nothing that could go on safely.
int stopFatally(const StoreError& error) {
    print(stderr,
          QStringLiteral("NorvinFocus/NorvinPlannerApp:68: Fatal error: SwiftData: Critical failure after "
                         "reset — %1\n")
              .arg(error.description));
    return toInt(ExitCode::storeFailure);
}

using OpenedStore = std::variant<std::unique_ptr<ModelContainer>, StoreError>;

// Reads the store on another core while the window is compiled; what it gives belongs to the calling thread.
std::future<OpenedStore> openStoreMeanwhile(const QString& storeFile) {
    return std::async(std::launch::async, [storeFile, owner = QThread::currentThread()] {
        OpenedStore opened = ModelContainer::openOrRecreate(storeFile);
        if (const auto* container = std::get_if<std::unique_ptr<ModelContainer>>(&opened))
            (*container)->moveToThread(owner);
        return opened;
    });
}

// The terminal speaks English whatever the window speaks, so that scripts and manuals can rely on it.
void loadTerminalTexts(QTranslator& translator) {
    if (translator.load(QStringLiteral(":/i18n/norvin-focus_en.qm")))
        QCoreApplication::installTranslator(&translator);
}

int runRemote(const Command& command, int& argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QTranslator texts;
    loadTerminalTexts(texts);
    return toInt(RemoteControl(sessionBus()).run(command));
}

int showRunningInstance(int& argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return toInt(RemoteControl(sessionBus()).showWindow());
}

// With no instance to ask, the platform is looked at from here. Some of it answers after a moment.
int runOwnDoctor() {
    constexpr std::chrono::milliseconds patience{700};
    LinuxPlatform platform;
    QTimer::singleShot(patience, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();

    AppBlockerService blocker(platform.preferences(), platform.workspace(), platform.sounds());
    BrowserHealth browsers(platform.browserAccess(), blocker, platform.preferences());
    QList<TrackingHealthModel::Check> checks = platformHealthChecks(platform, browsers);
    const bool hasBus = sessionBus().isConnected();
    checks.append({QStringLiteral("health_session_bus"), [hasBus] {
                       return hasBus ? Availability::available()
                                     : Availability::unavailable(QStringLiteral("health_no_session_bus"));
                   }});
    TrackingHealthModel health(checks);
    health.setPassingChecks(browserHealthRow, [&browsers] { return browsers.browserChecks(); });
    health.refresh();
    print(stdout, QStringLiteral("Norvin Focus is not running; this is what it would find.\n") +
                      healthText(healthReport(health), &textForKey));
    return toInt(health.problemCount() == 0 ? ExitCode::done : ExitCode::refused);
}

int runDoctor(int& argc, char** argv) {
    if (!isDisplayReachable())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QTranslator texts;
    loadTerminalTexts(texts);
    RemoteControl remote(sessionBus());
    return remote.isInstanceRunning() ? toInt(remote.run(command::Doctor{})) : runOwnDoctor();
}

// Begins anew in the place of this process, with a window whatever this one was started with.
[[noreturn]] void restart(char* name) {
    std::array<char*, 2> arguments{name, nullptr};
    ::execv("/proc/self/exe", arguments.data());
    print(stderr, QStringLiteral("norvin-focus: the program cannot be started again; start it by hand\n"));
    std::exit(toInt(ExitCode::unreachable));
}

int runWindow(const command::OpenWindow& options, int& argc, char** argv, bool& isRestartWanted) {
    const QString storeFile = ModelContainer::defaultStoreFile();
    InstanceLock lock(storeFile);
    const InstanceLock::Outcome locked = lock.tryAcquire();
    if (locked == InstanceLock::Outcome::heldByAnother)
        return showRunningInstance(argc, argv);
    if (!isDisplayReachable()) {
        print(stderr,
              QStringLiteral("norvin-focus: no display can be reached; set DISPLAY or WAYLAND_DISPLAY\n"));
        return toInt(ExitCode::unreachable);
    }

    // A calm window that changes once a second is drawn cheaper without a graphics pipeline.
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");
    // Such a window gains nothing from waiting for more changes before it draws one, but a wake-up every
    // second.
    if (!qEnvironmentVariableIsSet("QT_QPA_UPDATE_IDLE_TIME"))
        qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    const std::jthread reading = InterfaceEngine::readLibrariesAhead();
    QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);

    if (locked == InstanceLock::Outcome::unsupported) {
        if (RemoteControl remote(sessionBus()); remote.isInstanceRunning())
            return toInt(remote.showWindow());
    }
    std::future<OpenedStore> opening = openStoreMeanwhile(storeFile);
    auto interface = std::make_unique<InterfaceEngine>();
    LinuxPlatform platform;
    interface->prepareFirstPicture();
    interface->finishCompiling();

    OpenedStore opened = opening.get();
    if (const auto* error = std::get_if<StoreError>(&opened))
        return stopFatally(*error);
    UnixSignals unixSignals;
    QObject::connect(&unixSignals, &UnixSignals::terminationRequested, &application, &QCoreApplication::quit);
    NorvinFocusApp app(platform, std::move(std::get<std::unique_ptr<ModelContainer>>(opened)),
                       std::move(interface));
    if (!app.launch())
        return toInt(ExitCode::unreachable);
    if (options.measureFirstFrame) {
        QObject::connect(&app.userInterface(), &UserInterface::firstFrameShown, &application, [] {
            print(stdout, QStringLiteral("first frame\n"));
            QCoreApplication::quit();
        });
    }
    if (!options.hidden)
        app.showWindow();
    const int code = QCoreApplication::exec();
    isRestartWanted = app.isRestartWanted();
    return code;
}

} // namespace

int main(int argc, char* argv[]) {
    QCoreApplication::setApplicationName(QStringLiteral("norvin-focus"));
    QCoreApplication::setApplicationVersion(QStringLiteral(NORVIN_VERSION));

    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const auto parsed = parseCommandLine(arguments);
    if (const auto* error = std::get_if<CommandLineError>(&parsed)) {
        print(stderr, QStringLiteral("norvin-focus: %1\nTry 'norvin-focus --help'.\n").arg(error->message));
        return toInt(ExitCode::badArguments);
    }
    const Command& command = std::get<Command>(parsed);
    if (std::holds_alternative<command::Help>(command)) {
        print(stdout, commandLineHelp());
        return toInt(ExitCode::done);
    }
    if (std::holds_alternative<command::Version>(command)) {
        print(stdout, QStringLiteral("norvin-focus %1\n").arg(QCoreApplication::applicationVersion()));
        return toInt(ExitCode::done);
    }
    if (const auto* open = std::get_if<command::OpenWindow>(&command)) {
        bool isRestartWanted = false;
        const int code = runWindow(*open, argc, argv, isRestartWanted);
        // Only here has the store been closed and its lock been given back.
        if (isRestartWanted)
            restart(argv[0]);
        return code;
    }
    if (std::holds_alternative<command::Doctor>(command))
        return runDoctor(argc, argv);
    return runRemote(command, argc, argv);
}
