#include "platform/Log.h"
#include "platform/fake/FakeClock.h"
#include "platform/linux/clock/SystemClock.h"
#include "platform/linux/webextension/ExtensionServer.h"
#include "platform/linux/webextension/ProcessAncestors.h"
#include "support/MessageEnd.h"

#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <thread>

using namespace norvin;
using namespace std::chrono_literals;

namespace {

using CloseResult = ExtensionServer::CloseResult;
using Outcome = CloseAnswer::Outcome;

const QString site = QStringLiteral("example.org");

QByteArray page(const char* domain, bool isFocused = true) {
    return encodeBrowserMessage(
        PageMessage{domain ? std::optional(QString::fromLatin1(domain)) : std::nullopt, isFocused});
}

} // namespace

// The hosts here are this very process, so that the browser they serve is the program that started it.
class ExtensionServerTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        m_directory = std::make_unique<QTemporaryDir>();
        m_socket = BrowserSocket{QFile::encodeName(m_directory->filePath(QStringLiteral("norvin-focus"))),
                                 "browser.socket"};
        m_log.clear();
        m_pages = 0;
        setLogSink([this](const QString& line) { m_log.append(line); });
        m_server = std::make_unique<ExtensionServer>(m_clock, m_socket);
        connect(m_server.get(), &ExtensionServer::frontPageChanged, this, [this] { ++m_pages; });
        QVERIFY(m_server->listen().isAvailable());
    }

    void cleanup() {
        m_server.reset();
        setLogSink({});
    }

    void tellsTheFrontPage() {
        QSignalSpy connections(m_server.get(), &ExtensionServer::connectionsChanged);
        QSignalSpy pages(m_server.get(), &ExtensionServer::frontPageChanged);
        QVERIFY(!m_server->isConnected(browser));
        {
            MessageEnd host(m_socket.path());
            QVERIFY(connections.wait());
            QVERIFY(m_server->isConnected(browser));
            QCOMPARE(m_server->connectedBrowsers(), QList<qint64>{browser});
            QVERIFY(!m_server->isConnected(::getpid()));
            QVERIFY(!m_server->frontPage(browser));

            host.write(page("www.example.org"));
            QVERIFY(pages.wait());
            QCOMPARE(pages.last().first().toLongLong(), browser);
            QVERIFY(m_server->frontPage(browser) ==
                    (ExtensionServer::Page{QStringLiteral("www.example.org"), true}));
            host.write(page(nullptr, false));
            QVERIFY(pages.wait());
            QVERIFY(m_server->frontPage(browser) == ExtensionServer::Page());
            connections.clear();
        }
        QVERIFY(connections.wait());
        QVERIFY(!m_server->isConnected(browser));
        QVERIFY(m_server->connectedBrowsers().isEmpty());
        QCOMPARE(m_log, QStringList());
    }

    void theProfileWithTheKeyboardCounts() {
        MessageEnd first(m_socket.path());
        MessageEnd second(m_socket.path());
        const auto domain = [this] { return m_server->frontPage(browser)->domain.value_or(QString()); };
        first.write(page("first.example"));
        QTRY_COMPARE(m_pages, 1);
        second.write(page("second.example", false));
        QTRY_COMPARE(m_pages, 2);
        QCOMPARE(domain(), QStringLiteral("first.example"));
        QCOMPARE(m_server->connectedBrowsers().size(), 1);
        first.write(page("first.example", false));
        second.write(page("second.example"));
        QTRY_COMPARE(domain(), QStringLiteral("second.example"));
        second.close();
        QTRY_COMPARE(domain(), QStringLiteral("first.example"));
    }

    void dropsWhoBreaksTheRules_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("no JSON") << QByteArray("\x05\0\0\0hello", 9);
        QTest::newRow("a request") << QByteArray(
            "\x3d\0\0\0"
            R"({"type":"close","id":1,"domain":"example.org","until":99999999999})",
            4 + 61);
        QTest::newRow("too long") << QByteArray("\xff\xff\xff\xff", 4);
    }
    void dropsWhoBreaksTheRules() {
        QFETCH(QByteArray, bytes);
        MessageEnd good(m_socket.path());
        MessageEnd bad(m_socket.path());
        good.write(page("good.example", false));
        bad.write(page("bad.example"));
        QTRY_VERIFY(m_server->frontPage(browser));
        QTRY_COMPARE(m_server->frontPage(browser)->domain, QStringLiteral("bad.example"));
        bad.writeRaw(bytes);
        QTRY_COMPARE(m_log.size(), 1);
        QVERIFY2(
            m_log.first().startsWith(QLatin1String("ExtensionServer: dropped the connection of process ")),
            qPrintable(m_log.first()));
        QTRY_COMPARE(m_server->frontPage(browser)->domain, QStringLiteral("good.example"));
        QVERIFY(bad.isEnded());
    }

    void acceptsSoManyAndNoMore() {
        std::vector<std::unique_ptr<MessageEnd>> hosts;
        for (int i = 0; i < 33; ++i) {
            hosts.push_back(std::make_unique<MessageEnd>(m_socket.path()));
            QCoreApplication::processEvents(); // the queue of those to be accepted is short
        }
        QTRY_COMPARE(m_log, QStringList{QStringLiteral("ExtensionServer: refused a connection beyond 32")});
        QVERIFY(hosts.back()->isEnded());
    }

    void servesItsUserAlone() {
        if (::geteuid() != 0)
            QSKIP("only root can become another user");
        struct stat facts {};
        QCOMPARE(::stat(m_socket.directory.constData(), &facts), 0);
        QCOMPARE(facts.st_mode & 0777, mode_t{0700});
        QCOMPARE(::stat(m_socket.path().constData(), &facts), 0);
        QCOMPARE(facts.st_mode & 0777, mode_t{0600});

        // Somebody has opened all doors.
        ::chmod(QFile::encodeName(m_directory->path()).constData(), 0755);
        ::chmod(m_socket.directory.constData(), 0755);
        ::chmod(m_socket.path().constData(), 0777);
        constexpr uid_t nobody = 65534;
        const pid_t child = ::fork();
        if (child == 0) {
            const bool isConnected = ::setuid(nobody) == 0 && MessageEnd(m_socket.path()).isOpen();
            ::_exit(isConnected ? 0 : 1);
        }
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QCOMPARE(status, 0);
        QTRY_COMPARE(m_log,
                     QStringList{QStringLiteral("ExtensionServer: refused a connection of user 65534")});
        QVERIFY(m_server->connectedBrowsers().isEmpty());
    }

    void closesTheFrontTab_data() {
        QTest::addColumn<Outcome>("outcome");
        QTest::addColumn<CloseResult>("result");
        QTest::newRow("closed") << Outcome::closed << CloseResult::closed;
        QTest::newRow("other page") << Outcome::otherPage << CloseResult::otherPage;
        QTest::newRow("pinned") << Outcome::pinned << CloseResult::notClosable;
        QTest::newRow("failed") << Outcome::failed << CloseResult::failed;
        QTest::newRow("late") << Outcome::late << CloseResult::notAnswering;
    }
    void closesTheFrontTab() {
        QFETCH(Outcome, outcome);
        MessageEnd host(m_socket.path());
        host.write(page("www.example.org"));
        QTRY_COMPARE(m_pages, 1);
        std::optional<BrowserMessage> received;
        std::thread browserThread([&] {
            received = decodeBrowserMessage(host.read().value_or(QByteArray()));
            const auto* request = received ? std::get_if<CloseRequest>(&*received) : nullptr;
            if (!request)
                return;
            // A late answer to another request, and news, come before.
            host.write(encodeBrowserMessage(CloseAnswer{request->id + 1, Outcome::failed}));
            host.write(page("next.example"));
            host.write(encodeBrowserMessage(CloseAnswer{request->id, outcome}));
        });
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        const CloseResult result = m_server->closeFrontTab(browser, site);
        browserThread.join();
        QVERIFY(received && std::holds_alternative<CloseRequest>(*received));
        const auto request = std::get<CloseRequest>(*received);
        QCOMPARE(request.domain, site);
        QVERIFY(request.until >= before && request.until <= QDateTime::currentMSecsSinceEpoch() + 300);
        QTEST(result, "result");
        QCOMPARE(m_server->frontPage(browser)->domain, QStringLiteral("next.example"));
        QCOMPARE(m_pages, 1); // told later, not from within the call
        QTRY_COMPARE(m_pages, 2);
    }

    void asksOnlyAboutThePageInFront() {
        FakeClock clock;
        ExtensionServer server(clock, BrowserSocket{m_socket.directory, "other.socket"});
        QVERIFY(server.listen().isAvailable());
        QCOMPARE(server.closeFrontTab(browser, site), CloseResult::notAnswering);
        MessageEnd host(m_socket.directory + "/other.socket");
        QTRY_VERIFY(server.isConnected(browser));
        QCOMPARE(server.closeFrontTab(browser, site), CloseResult::otherPage);

        host.write(page("example.org"));
        QTRY_VERIFY(server.frontPage(browser));
        // What has arrived counts, also what the event loop has not seen.
        host.write(page("news.example"));
        QCOMPARE(server.closeFrontTab(browser, site), CloseResult::otherPage);

        // Another window of the browser, or none, has the keyboard, and not only since just now.
        host.write(page("example.org"));
        host.write(page("example.org", false));
        QTRY_VERIFY(!server.frontPage(browser)->isFocused);
        clock.advance(2001ms);
        QCOMPARE(server.closeFrontTab(browser, site), CloseResult::failed);
        QVERIFY(!host.readAtOnce());
    }

    void waitsForNoAnswerTwice() {
        FakeClock clock;
        ExtensionServer server(clock, BrowserSocket{m_socket.directory, "other.socket"});
        QVERIFY(server.listen().isAvailable());
        MessageEnd host(m_socket.directory + "/other.socket");
        host.write(page("example.org"));
        QTRY_VERIFY(server.frontPage(browser));

        QCOMPARE(server.closeFrontTab(browser, site), CloseResult::notAnswering);
        QVERIFY(host.readAtOnce());
        clock.advance(9s);
        QCOMPARE(server.closeFrontTab(browser, site), CloseResult::notAnswering);
        QVERIFY(!host.readAtOnce());
        clock.advance(1s);
        QCOMPARE(server.closeFrontTab(browser, site), CloseResult::notAnswering);
        QVERIFY(host.readAtOnce());
        host.write(page("example.org"));
        QCOMPARE(server.closeFrontTab(browser, site), CloseResult::notAnswering);
        QVERIFY(host.readAtOnce());
        QCOMPARE(m_log, QStringList());
    }

    void takesThePlaceOfADeadInstance() {
        ExtensionServer second(m_clock, m_socket);
        const Availability refused = second.listen();
        QVERIFY(!refused.isAvailable());
        QCOMPARE(refused.reason()->reasonKey, QStringLiteral("health_extension_socket"));
        QCOMPARE(m_log.size(), 1);

        // A socket file without anybody behind it is what a killed instance leaves.
        m_server.reset();
        QVERIFY(!QFileInfo::exists(QFile::decodeName(m_socket.path())));
        const int dead = ::socket(AF_UNIX, SOCK_STREAM, 0);
        const sockaddr_un address = socketAddress(m_socket.path());
        QCOMPARE(::bind(dead, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        ::close(dead);
        QVERIFY(second.listen().isAvailable());
        MessageEnd host(m_socket.path());
        QTRY_VERIFY(second.isConnected(browser));
    }

    void saysWhyItCannotListen() {
        ExtensionServer nowhere(m_clock, std::nullopt);
        QVERIFY(!nowhere.listen().isAvailable());
        QFile inTheWay(m_directory->filePath(QStringLiteral("file")));
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        ExtensionServer blocked(m_clock,
                                BrowserSocket{QFile::encodeName(inTheWay.fileName()), "browser.socket"});
        const Availability refused = blocked.listen();
        QVERIFY(!refused.isAvailable());
        QVERIFY(refused.reason()->detail.contains(inTheWay.fileName()));
        QCOMPARE(m_log.size(), 2);
    }

private:
    const qint64 browser = firstProgram(processAncestors(::getpid()));
    SystemClock m_clock;
    std::unique_ptr<QTemporaryDir> m_directory;
    BrowserSocket m_socket;
    QStringList m_log;
    std::unique_ptr<ExtensionServer> m_server;
    int m_pages = 0;
};

QTEST_GUILESS_MAIN(ExtensionServerTest)
#include "tst_ExtensionServer.moc"
