#include "platform/linux/clock/SystemClock.h"
#include "platform/linux/webextension/ExtensionServer.h"
#include "support/MessageEnd.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <spawn.h>
#include <thread>

using namespace norvin;

namespace {

QByteArray page(const QString& domain, bool isFocused = true) {
    return encodeBrowserMessage(PageMessage{domain, isFocused});
}

/// The host program as a browser runs it, with the extension's end of its input and output.
class HostProcess final {
public:
    HostProcess(const QString& runtimeDirectory, const QString& errorFile)
        : m_errorFile(errorFile) {
        std::array<int, 2> toHost{};
        std::array<int, 2> fromHost{};
        if (::pipe2(toHost.data(), O_CLOEXEC) != 0 || ::pipe2(fromHost.data(), O_CLOEXEC) != 0)
            qFatal("no pipe");
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, toHost[0], STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&actions, fromHost[1], STDOUT_FILENO);
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, QFile::encodeName(errorFile).constData(),
                                         O_WRONLY | O_CREAT | O_TRUNC, 0600);
        QByteArray program(NATIVE_HOST);
        QByteArray runtime = "XDG_RUNTIME_DIR=" + QFile::encodeName(runtimeDirectory);
        std::array<char*, 2> arguments = {program.data(), nullptr};
        std::array<char*, 2> environment = {runtimeDirectory.isEmpty() ? nullptr : runtime.data(), nullptr};
        if (::posix_spawn(&m_processId, program.constData(), &actions, nullptr, arguments.data(),
                          environment.data()) != 0)
            qFatal("the host does not start");
        posix_spawn_file_actions_destroy(&actions);
        ::close(toHost[0]);
        ::close(fromHost[1]);
        m_extension = std::make_unique<MessageEnd>(fromHost[0], toHost[1]);
    }
    ~HostProcess() { (void)exitCode(); }
    HostProcess(const HostProcess&) = delete;
    HostProcess& operator=(const HostProcess&) = delete;

    [[nodiscard]] MessageEnd& extension() const { return *m_extension; }

    /// The exit code, once the host has ended; it does when its input is closed.
    int exitCode() {
        if (m_processId > 0) {
            m_extension->closeOutput();
            int status = 0;
            ::waitpid(std::exchange(m_processId, 0), &status, 0);
            m_exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        }
        return m_exitCode;
    }

    [[nodiscard]] QString errors() const {
        QFile file(m_errorFile);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private:
    QString m_errorFile;
    pid_t m_processId = 0;
    int m_exitCode = -1;
    std::unique_ptr<MessageEnd> m_extension;
};

} // namespace

// This process is the browser, with the extension in it, and the application.
class NativeMessageHostTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        m_directory = std::make_unique<QTemporaryDir>();
        m_socket = BrowserSocket{QFile::encodeName(m_directory->filePath(QStringLiteral("norvin-focus"))),
                                 "browser.socket"};
    }

    void carriesPagesAndCloses() {
        const auto server = startServer();
        const auto host = startHost();
        host->extension().write(page(QStringLiteral("example.org")));
        QTRY_COMPARE(domain(*server), QStringLiteral("example.org"));
        QCOMPARE(server->connectedBrowsers(), QList<qint64>{::getpid()});

        std::thread browser([&host] {
            const auto message = decodeBrowserMessage(host->extension().read().value_or(QByteArray()));
            const auto* request = message ? std::get_if<CloseRequest>(&*message) : nullptr;
            if (request && request->domain == QLatin1String("example.org"))
                host->extension().write(
                    encodeBrowserMessage(CloseAnswer{request->id, CloseAnswer::Outcome::closed}));
        });
        const auto result = server->closeFrontTab(::getpid(), QStringLiteral("example.org"));
        browser.join();
        QCOMPARE(result, ExtensionServer::CloseResult::closed);
        QCOMPARE(host->exitCode(), 0);
        QCOMPARE(host->errors(), QString());
        QTRY_VERIFY(!server->isConnected(::getpid()));
    }

    void passesNothingElse() {
        const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        QCOMPARE(prepareSocketDirectory(m_socket.directory), QString());
        const sockaddr_un address = socketAddress(m_socket.path());
        QCOMPARE(::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        QCOMPARE(::listen(listener, 1), 0);
        const auto host = startHost();
        const int accepted = ::accept(listener, nullptr, nullptr);
        MessageEnd application(accepted, accepted);
        ::close(listener);
        QCOMPARE(application.read(), encodeBrowserMessage(HostMessage{::getpid()}));

        MessageEnd& extension = host->extension();
        extension.write(R"({"type":"page","domain":"https:\/\/example.org/secret","focused":true})");
        extension.write("\xff\xfe{");
        extension.write(encodeBrowserMessage(CloseRequest{1, QStringLiteral("example.org"), 1}));
        extension.write(
            R"({"type":"page","domain":"example.org","focused":true,"url":"https:\/\/example.org/secret"})");
        QCOMPARE(application.read(), page(QStringLiteral("example.org")));

        application.write(R"({"type":"run","command":"rm"})");
        application.write(page(QStringLiteral("example.org")));
        const QByteArray request = encodeBrowserMessage(CloseRequest{1, QStringLiteral("example.org"), 1});
        application.write(request);
        QCOMPARE(extension.read(), request);

        QCOMPARE(host->exitCode(), 0);
        QVERIFY(application.isEnded());
        QCOMPARE(host->errors().count(QLatin1String("dropped a message of the browser")), 3);
        QCOMPARE(host->errors().count(QLatin1String("dropped a message of the application")), 2);
    }

    void endsAtAMessageThatIsTooLong() {
        const auto host = startHost();
        host->extension().writeRaw(QByteArray("\x01\x00\x01\x00", 4)); // 64 KiB and one byte
        QVERIFY(host->extension().isEnded());
        QCOMPARE(host->exitCode(), 1);
        QVERIFY2(host->errors().contains(QLatin1String("too long")), qPrintable(host->errors()));
    }

    void saysWhyItCannotWork() {
        HostProcess host({}, m_directory->filePath(QStringLiteral("errors")));
        QCOMPARE(host.exitCode(), 1);
        QVERIFY(host.errors().contains(QLatin1String("XDG_RUNTIME_DIR")));
    }

    void waitsForTheApplicationToComeAndToComeBack() {
        const auto host = startHost();
        host->extension().write(page(QStringLiteral("old.example")));
        host->extension().write(page(QStringLiteral("new.example"), false));
        for (int i = 0; i < 2; ++i) {
            const auto server = startServer();
            QTRY_COMPARE(domain(*server), QStringLiteral("new.example"));
        }
        // Killed, it leaves its socket behind, which the next one replaces.
        const int dead = ::socket(AF_UNIX, SOCK_STREAM, 0);
        const sockaddr_un address = socketAddress(m_socket.path());
        QCOMPARE(::bind(dead, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        ::close(dead);
        {
            const auto server = startServer();
            QTRY_COMPARE(domain(*server), QStringLiteral("new.example"));
        }
        // Somebody tidies up the session's directory.
        QVERIFY(QDir(QFile::decodeName(m_socket.directory)).removeRecursively());
        QTRY_VERIFY(QDir(QFile::decodeName(m_socket.directory)).exists());
        const auto server = startServer();
        QTRY_COMPARE(domain(*server), QStringLiteral("new.example"));
        QCOMPARE(host->exitCode(), 0);
        QCOMPARE(host->errors(), QString());
    }

private:
    [[nodiscard]] std::unique_ptr<ExtensionServer> startServer() {
        auto server = std::make_unique<ExtensionServer>(m_clock, m_socket);
        if (!server->listen().isAvailable())
            qFatal("the server does not listen");
        return server;
    }
    [[nodiscard]] std::unique_ptr<HostProcess> startHost() const {
        return std::make_unique<HostProcess>(m_directory->path(),
                                             m_directory->filePath(QStringLiteral("errors")));
    }
    [[nodiscard]] static QString domain(const ExtensionServer& server) {
        return server.frontPage(::getpid()).value_or(ExtensionServer::Page()).domain.value_or(QString());
    }

    SystemClock m_clock;
    std::unique_ptr<QTemporaryDir> m_directory;
    BrowserSocket m_socket;
};

QTEST_GUILESS_MAIN(NativeMessageHostTest)
#include "tst_NativeMessageHost.moc"
