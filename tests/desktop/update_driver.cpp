#include "platform/Log.h"
#include "platform/linux/SessionBus.h"
#include "platform/linux/clock/SystemClock.h"
#include "platform/linux/updates/UpdateSources.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSocketNotifier>

#include <unistd.h>

#include <iostream>
#include <string>

using namespace norvin;

namespace {

void print(const QJsonObject& line) {
    std::cout << QJsonDocument(line).toJson(QJsonDocument::Compact).constData() << std::endl;
}

QString nameOf(UpdateResult::Outcome outcome) {
    switch (outcome) {
    case UpdateResult::Outcome::upToDate:
        return QStringLiteral("upToDate");
    case UpdateResult::Outcome::noneAnnounced:
        return QStringLiteral("noneAnnounced");
    case UpdateResult::Outcome::available:
        return QStringLiteral("available");
    case UpdateResult::Outcome::installed:
        return QStringLiteral("installed");
    case UpdateResult::Outcome::failed:
        break;
    }
    return QStringLiteral("failed");
}

} // namespace

/// Looks for updates of a program that was installed as its arguments say (the file that marks a Flatpak, the
/// directory of dpkg's lists, the program), each time it reads a line, and prints what it hears as JSON. The
/// line "open" opens the software centre.
int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4)
        return 2;
    // Standard output is for the answers.
    setLogSink([](const QString& line) { std::cerr << qUtf8Printable(line) << std::endl; });
    SystemClock clock;
    const auto source =
        makeUpdateSource({.flatpakInfo = arguments[1], .dpkgInfo = arguments[2], .program = arguments[3]},
                         sessionBus(), QDBusConnection::systemBus(), clock);
    const auto tellState = [&source] {
        const Availability availability = source->availability();
        print({{QStringLiteral("canCheck"), source->canCheckForUpdates()},
               {QStringLiteral("canOpen"), source->canOpenSoftwareCentre()},
               {QStringLiteral("reason"),
                availability.isAvailable() ? QString() : availability.reason()->reasonKey}});
    };
    QObject::connect(source.get(), &UpdateSource::changed, tellState);
    QObject::connect(source.get(), &UpdateSource::checked, [](const UpdateResult& result) {
        print({{QStringLiteral("outcome"), nameOf(result.outcome)},
               {QStringLiteral("version"), result.version},
               {QStringLiteral("reason"), result.reasonKey},
               {QStringLiteral("detail"), result.detail}});
    });
    const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, [&source] {
        std::string line;
        if (!std::getline(std::cin, line))
            QCoreApplication::quit();
        else if (line == "open")
            source->openSoftwareCentre();
        else
            source->checkForUpdates();
    });
    tellState();
    return QCoreApplication::exec();
}
