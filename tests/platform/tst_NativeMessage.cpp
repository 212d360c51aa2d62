#include "platform/linux/webextension/BrowserMessage.h"
#include "platform/linux/webextension/MessageStream.h"
#include "platform/linux/webextension/ProcessAncestors.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstring>

using namespace norvin;

namespace {

QByteArray framed(const QByteArray& message) {
    const auto length = static_cast<quint32>(message.size());
    QByteArray bytes(reinterpret_cast<const char*>(&length), sizeof length);
    return bytes + message;
}

struct Pipe {
    Pipe() {
        if (::pipe2(ends.data(), O_NONBLOCK | O_CLOEXEC) != 0)
            qFatal("no pipe");
    }
    ~Pipe() {
        ::close(ends[0]);
        ::close(ends[1]);
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    void write(const QByteArray& bytes) const {
        QCOMPARE(::write(ends[1], bytes.constData(), static_cast<size_t>(bytes.size())), bytes.size());
    }

    std::array<int, 2> ends{};
};

} // namespace

class NativeMessageTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void understandsWhatItSays() {
        using Outcome = CloseAnswer::Outcome;
        const QList<BrowserMessage> messages = {
            PageMessage{QStringLiteral("www.example.org"), true},
            PageMessage{std::nullopt, false},
            CloseRequest{7, QStringLiteral("xn--bcher-kva.example"), 1'800'000'000'123},
            CloseAnswer{7, Outcome::closed},
            CloseAnswer{7, Outcome::otherPage},
            CloseAnswer{7, Outcome::pinned},
            CloseAnswer{7, Outcome::late},
            CloseAnswer{2'147'483'647, Outcome::failed},
            HostMessage{4711},
        };
        for (const BrowserMessage& message : messages) {
            const QByteArray text = encodeBrowserMessage(message);
            QVERIFY2(decodeBrowserMessage(text) == message, text.constData());
        }
    }

    void losesWhatItDoesNotKnow() {
        const auto page = decodeBrowserMessage(
            R"({"type":"page","domain":"example.org","focused":true,"url":"https:\/\/example.org/?token=1"})");
        QVERIFY(page);
        QCOMPARE(encodeBrowserMessage(*page),
                 QByteArray(R"({"domain":"example.org","focused":true,"type":"page"})"));
    }

    void refusesWhatIsNoMessage_data() {
        QTest::addColumn<QByteArray>("text");
        const auto page = [](const QByteArray& domain) {
            return R"({"type":"page","focused":true,"domain":)" + domain + "}";
        };
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("no JSON") << QByteArray("{\"type\":\"page\"");
        QTest::newRow("no object") << QByteArray("[1]");
        QTest::newRow("deep") << QByteArray(5000, '[');
        QTest::newRow("no UTF-8") << QByteArray(
            "{\"type\":\"page\",\"domain\":\"\xff\xfe\",\"focused\":true}");
        QTest::newRow("unknown type") << QByteArray(R"({"type":"run","focused":true})");
        QTest::newRow("domain left out") << QByteArray(R"({"type":"page","focused":true})");
        QTest::newRow("address for a domain") << page(R"("https:\/\/example.org/")");
        QTest::newRow("upper case") << page(R"("Example.org")");
        QTest::newRow("not ASCII") << page(R"("exämple.org")");
        QTest::newRow("empty domain") << page(R"("")");
        QTest::newRow("number for a domain") << page("5");
        QTest::newRow("domain too long") << page('"' + QByteArray(254, 'a') + '"');
        QTest::newRow("focused no boolean") << QByteArray(R"({"type":"page","domain":null,"focused":1})");
        QTest::newRow("id 0") << QByteArray(R"({"type":"closeAnswer","id":0,"closed":true})");
        QTest::newRow("id broken") << QByteArray(R"({"type":"closeAnswer","id":1.5,"closed":true})");
        QTest::newRow("id too large")
            << QByteArray(R"({"type":"closeAnswer","id":2147483648,"closed":true})");
        QTest::newRow("id huge") << QByteArray(R"({"type":"closeAnswer","id":1e300,"closed":true})");
        QTest::newRow("no reason") << QByteArray(R"({"type":"closeAnswer","id":1,"closed":false})");
        QTest::newRow("request without end")
            << QByteArray(R"({"type":"close","id":1,"domain":"example.org"})");
    }
    void refusesWhatIsNoMessage() {
        QFETCH(QByteArray, text);
        QVERIFY(!decodeBrowserMessage(text));
    }

    void comparesSites() {
        QVERIFY(isSameSite(u"www.example.org", u"example.org"));
        QVERIFY(!isSameSite(u"www.www.example.org", u"example.org"));
        QVERIFY(!isSameSite(u"m.example.org", u"example.org"));
    }

    void putsFragmentsTogether() {
        const Pipe pipe;
        MessageStream stream(100);
        const QByteArray bytes = framed("one") + framed("") + framed("three");
        QList<QByteArray> messages;
        for (const char byte : bytes) {
            pipe.write(QByteArray(1, byte));
            QCOMPARE(stream.readFrom(pipe.ends[0]), MessageStream::State::open);
            while (const auto message = stream.next())
                messages.append(*message);
        }
        QCOMPARE(messages, (QList<QByteArray>{"one", "", "three"}));
    }

    void endsWithWhatWasWhole() {
        Pipe pipe;
        MessageStream stream(100);
        pipe.write(framed("whole") + framed("cut off").first(7));
        ::close(std::exchange(pipe.ends[1], -1));
        QCOMPARE(stream.readFrom(pipe.ends[0]), MessageStream::State::open);
        QCOMPARE(stream.readFrom(pipe.ends[0]), MessageStream::State::ended);
        QCOMPARE(stream.next(), QByteArray("whole"));
        QVERIFY(!stream.next());
    }

    void endsAtAMessageThatIsTooLong() {
        const Pipe pipe;
        MessageStream stream(4);
        pipe.write(framed("fits") + framed("large") + framed("next"));
        QCOMPARE(stream.readFrom(pipe.ends[0]), MessageStream::State::open);
        QCOMPARE(stream.next(), QByteArray("fits"));
        QVERIFY(!stream.next());
        QCOMPARE(stream.state(), MessageStream::State::tooLong);
        QVERIFY(!stream.next());
    }

    void keepsALimitOfWhatIsNotTaken() {
        const Pipe pipe;
        MessageStream writer(1);
        const QByteArray message(1000, 'm');
        int queued = 0;
        while (queued < 1000 && writer.queue(message))
            ++queued;
        QCOMPARE(queued, 64 * 1024 / 1004);

        ::fcntl(pipe.ends[1], F_SETPIPE_SZ, 4096);
        MessageStream reader(1000);
        int received = 0;
        while (writer.hasToWrite()) {
            QCOMPARE(writer.writeTo(pipe.ends[1]), MessageStream::State::open);
            QCOMPARE(reader.readFrom(pipe.ends[0]), MessageStream::State::open);
            while (const auto taken = reader.next()) {
                QCOMPARE(*taken, message);
                ++received;
            }
        }
        QCOMPARE(received, queued);
    }

    void findsTheBrowserAmongTheAncestors() {
        const QTemporaryDir root;
        const auto addProcess = [&root](int id, int parent, int session, const char* program) {
            const QString folder = QStringLiteral("%1/%2").arg(root.path()).arg(id);
            QVERIFY(QDir().mkpath(folder));
            QVERIFY(QFile::link(QLatin1String(program), folder + QStringLiteral("/exe")));
            QFile stat(folder + QStringLiteral("/stat"));
            QVERIFY(stat.open(QIODevice::WriteOnly));
            stat.write(
                QStringLiteral("%1 (a b) c) S %2 %1 %3 0 -1").arg(id).arg(parent).arg(session).toLatin1());
        };
        addProcess(10, 1, 10, "/usr/lib/systemd/systemd");
        addProcess(20, 10, 20, "/usr/lib/browser/browser");
        addProcess(30, 20, 20, "/usr/bin/dash");
        addProcess(40, 30, 20, "/usr/libexec/host");
        addProcess(50, 40, 20, "/usr/bin/dash");
        addProcess(60, 50, 20, "/usr/bin/dash");
        addProcess(70, 60, 20, "/usr/bin/bash");

        // The browser leads its session; who started that has nothing to do with it.
        QCOMPARE(processAncestors(40, root.path()), (QList<qint64>{30, 20}));
        QCOMPARE(firstProgram({30, 20}, root.path()), 20);
        QCOMPARE(processAncestors(70, root.path()), (QList<qint64>{60, 50, 40, 30}));
        QCOMPARE(processAncestors(20, root.path()), (QList<qint64>{10}));
        QCOMPARE(processAncestors(10, root.path()), QList<qint64>());
        QCOMPARE(processAncestors(80, root.path()), QList<qint64>());
        QCOMPARE(firstProgram({}, root.path()), 0);
    }
};

QTEST_GUILESS_MAIN(NativeMessageTest)
#include "tst_NativeMessage.moc"
