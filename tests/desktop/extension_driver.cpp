// The application's end towards the browser extension, as its standard input says; each line is answered with
// one of JSON:
//   page PID | close PID DOMAIN | install BROWSER | remove BROWSER
// A line for each change of a page, with the monotonic time in milliseconds, goes to standard error.

#include "platform/linux/clock/SystemClock.h"
#include "platform/linux/webextension/ExtensionInstaller.h"
#include "platform/linux/webextension/ExtensionServer.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSocketNotifier>

#include <unistd.h>

#include <cstdio>

using namespace norvin;

namespace {

QString nameOf(ExtensionServer::CloseResult result) {
    static const char* const names[] = {"closed", "otherPage", "notClosable", "failed", "notAnswering"};
    return QString::fromLatin1(names[static_cast<int>(result)]);
}

QString nameOf(ExtensionInstaller::State state) {
    static const char* const names[] = {"activeAfterRestart", "needsStep", "removed", "failed"};
    return QString::fromLatin1(names[static_cast<int>(state)]);
}

std::optional<ExtensionBrowser> browserNamed(const QString& name) {
    static const QStringList names = {
        QStringLiteral("firefox"), QStringLiteral("chromium"), QStringLiteral("chrome"),
        QStringLiteral("edge"),    QStringLiteral("brave"),    QStringLiteral("vivaldi"),
        QStringLiteral("opera"),
    };
    const qsizetype index = names.indexOf(name);
    return index < 0 ? std::nullopt : std::optional(extensionBrowsers().at(index));
}

class Driver final : public QObject {
public:
    Driver() {
        connect(&m_input, &QSocketNotifier::activated, this, &Driver::readInput);
        connect(&m_server, &ExtensionServer::frontPageChanged, this, [this](qint64 processId) {
            QJsonObject change = page(processId);
            change[QStringLiteral("pid")] = processId;
            change[QStringLiteral("at")] = static_cast<double>(m_clock.monotonic().count());
            print(stderr, change);
        });
        if (!m_server.listen().isAvailable())
            qFatal("the server does not listen");
    }

private:
    static void print(std::FILE* file, const QJsonObject& object) {
        std::fprintf(file, "%s\n", QJsonDocument(object).toJson(QJsonDocument::Compact).constData());
        std::fflush(file);
    }

    void readInput() {
        char buffer[4096];
        const auto size = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (size <= 0) {
            QCoreApplication::quit();
            return;
        }
        m_pending.append(buffer, static_cast<qsizetype>(size));
        for (qsizetype end = m_pending.indexOf('\n'); end >= 0; end = m_pending.indexOf('\n')) {
            const QStringList words = QString::fromUtf8(m_pending.left(end)).split(u' ');
            m_pending.remove(0, end + 1);
            QElapsedTimer timer;
            timer.start();
            QJsonObject answer = run(words);
            answer[QStringLiteral("ms")] = static_cast<double>(timer.nsecsElapsed()) / 1e6;
            print(stdout, answer);
        }
    }

    QJsonObject run(const QStringList& words) {
        const QString& command = words.first();
        const qint64 processId = words.value(1).toLongLong();
        if (command == QLatin1String("page"))
            return page(processId);
        if (command == QLatin1String("close"))
            return {{QStringLiteral("result"), nameOf(m_server.closeFrontTab(processId, words.value(2)))}};
        const std::optional<ExtensionBrowser> browser = browserNamed(words.value(1));
        if (!browser)
            return {};
        const bool isInstall = command == QLatin1String("install");
        const auto result = isInstall ? m_installer.install(*browser) : m_installer.remove(*browser);
        return {{QStringLiteral("state"), nameOf(result.state)},
                {QStringLiteral("sentence"), result.sentenceKey},
                {QStringLiteral("detail"), result.detail}};
    }

    [[nodiscard]] QJsonObject page(qint64 processId) const {
        QJsonObject object{{QStringLiteral("connected"), m_server.isConnected(processId)}};
        if (const auto page = m_server.frontPage(processId)) {
            object[QStringLiteral("domain")] = page->domain ? QJsonValue(*page->domain) : QJsonValue();
            object[QStringLiteral("focused")] = page->isFocused;
        }
        return object;
    }

    SystemClock m_clock;
    ExtensionServer m_server{m_clock};
    ExtensionInstaller m_installer;
    QSocketNotifier m_input{STDIN_FILENO, QSocketNotifier::Read};
    QByteArray m_pending;
};

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const Driver driver;
    return QCoreApplication::exec();
}
