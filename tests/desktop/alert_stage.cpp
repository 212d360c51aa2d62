// Raises the browser alert without a browser: reads "show DOMAIN" and "dismiss" from standard input, a line
// each, and answers each with "done". Ends with its input.

#include "distraction/BrowserAlertService.h"
#include "platform/linux/LinuxPlatform.h"
#include "ui/InterfaceEngine.h"
#include "ui/Localization.h"
#include "ui/MotionPreference.h"
#include "ui/alert/AlertWindows.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#include <unistd.h>

#include <cstdio>
#include <iostream>
#include <string>

using namespace norvin;

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    LinuxPlatform platform;
    Localization localization(platform.preferences());
    MotionPreference motion;
    AlertWindows windows(platform.overlays(), platform.clock());
    BrowserAlertService service(windows, platform.notifications());
    InterfaceEngine engine;
    engine.setSingletons(localization, motion);
    windows.setContent(&engine, &service.model());

    const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [&] {
        std::string line;
        if (!std::getline(std::cin, line)) {
            QCoreApplication::quit();
            return;
        }
        const QString command = QString::fromStdString(line);
        if (command.startsWith(QLatin1String("show ")))
            service.show(command.mid(5));
        else
            service.dismiss();
        std::puts("done");
        std::fflush(stdout);
    });
    const int result = QCoreApplication::exec();
    windows.setContent(nullptr, nullptr);
    return result;
}
