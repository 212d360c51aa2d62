#include "platform/Log.h"
#include "platform/fake/FakeClock.h"
#include "platform/linux/browsers/BrowserCommand.h"
#include "platform/linux/browsers/BrowserRestarter.h"
#include "platform/linux/identity/DesktopEntry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

#include <csignal>

using namespace norvin;
using Outcome = BrowserRestarter::Outcome;

class tst_BrowserRestarter final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void commandLineIsReadWithoutPages_data();
    void commandLineIsReadWithoutPages();
    void isOpenedByItsCommandLine();
    void isOpenedByADesktopEntryThatSaysAll();
    void isLeftAloneWhereItDoesNotEnd();
};

namespace {

const QString firefox = QStringLiteral("org.mozilla.firefox");

class Entries final : public DesktopEntrySource {
public:
    [[nodiscard]] const std::vector<DesktopEntry>& entries() const override { return list; }
    [[nodiscard]] quint64 generation() const override { return 1; }

    std::vector<DesktopEntry> list;
};

// This program, as a browser: it tells the file how it was started, and ends when it is asked to.
int beBrowser(int argc, char** argv) {
    ::alarm(120); // whatever becomes of the test
    sigset_t termination;
    sigemptyset(&termination);
    sigaddset(&termination, SIGTERM);
    sigprocmask(SIG_BLOCK, &termination, nullptr);
    QStringList told{QString::number(::getpid()), QDir::currentPath(), qEnvironmentVariable("PROFILE_OF")};
    for (int i = 3; i < argc; ++i)
        told.append(QString::fromLocal8Bit(argv[i]));
    QFile report(QString::fromLocal8Bit(argv[2]).section(u'=', 1));
    if (report.open(QIODevice::Append))
        report.write((told.join(u'|') + u'\n').toUtf8());
    report.close();
    int number = 0;
    sigwait(&termination, &number);
    if (told.contains(QStringLiteral("--stubborn"))) {
        for (;;)
            sigwait(&termination, &number);
    }
    return 0;
}

struct Rig {
    Rig() {
        QObject::connect(&restarter, &BrowserRestarter::finished,
                         [this](const QString&, Outcome outcome) { outcomes.append(outcome); });
    }
    ~Rig() {
        const QList<QStringList> all = starts();
        for (qsizetype i = 1; i < all.size(); ++i)
            ::kill(all.at(i).constFirst().toInt(), SIGTERM);
        process.kill();
        process.waitForFinished();
    }
    void start(const QStringList& arguments) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("PROFILE_OF"), QStringLiteral("work"));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        process.start(QCoreApplication::applicationFilePath(), options() + arguments);
        QTRY_COMPARE(starts().size(), 1);
    }
    [[nodiscard]] QStringList options() const {
        return {QStringLiteral("--browser"), QStringLiteral("--report=") + report()};
    }
    [[nodiscard]] QString report() const { return folder.filePath(QStringLiteral("report")); }
    /// What each start told: process, folder, environment, arguments.
    [[nodiscard]] QList<QStringList> starts() const {
        QList<QStringList> result;
        QFile file(report());
        if (!file.open(QIODevice::ReadOnly))
            return result;
        const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
        for (const QString& line : lines)
            result.append(line.split(u'|'));
        return result;
    }
    [[nodiscard]] RunningApplication browser() const {
        RunningApplication application;
        application.bundleIdentifier = firefox;
        application.processId = process.processId();
        return application;
    }

    QTemporaryDir folder;
    QProcess process;
    FakeClock clock;
    Entries entries;
    QStringList launched;
    bool canLaunch = true;
    BrowserRestarter restarter{clock, entries, [this](const QString& desktopId) {
                                   launched.append(desktopId);
                                   return canLaunch;
                               }};
    QList<Outcome> outcomes;
};

} // namespace

void tst_BrowserRestarter::initTestCase() {
    setLogSink([](const QString&) {});
}

void tst_BrowserRestarter::commandLineIsReadWithoutPages_data() {
    QTest::addColumn<QByteArray>("commandLine"); // with | for the zero
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("pages") << QByteArray("/bin/sh|-P|work|--new-tab|http://a.example/|page.html|--safe-mode|")
                           << QStringList{"-P", "work", "--safe-mode"};
    QTest::newRow("profile in two words")
        << QByteArray("sh|--profile|/home/me/My profile|/home/me/page.html|")
        << QStringList{"--profile", "/home/me/My profile"};
    QTest::newRow("one word for all")
        << QByteArray("/bin/sh --a --user-data-dir=/home/me/My profile --a --b=c,d "
                      "http://a.example/|")
        << QStringList{"--a", "--user-data-dir=/home/me/My profile", "--b=c,d"};
    QTest::newRow("one word, page only") << QByteArray("/bin/sh https://a.example/x y|") << QStringList();
}

void tst_BrowserRestarter::commandLineIsReadWithoutPages() {
    QFETCH(QByteArray, commandLine);
    const QTemporaryDir processes;
    const QDir folder(processes.filePath("7"));
    QVERIFY(QDir().mkpath(folder.path()));
    const auto write = [&folder](const char* name, const QByteArray& content) {
        QFile file(folder.filePath(QLatin1String(name)));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    };
    QVERIFY(write("cmdline", commandLine.replace('|', '\0')));
    QVERIFY(
        write("environ", QByteArray("PATH=/usr/bin:/bin|LANG=C|DESKTOP_STARTUP_ID=4|").replace('|', '\0')));
    const BrowserCommand command = readBrowserCommand(7, processes.path());
    QTEST(command.arguments, "arguments");
    QVERIFY2(command.program.endsWith("/bin/sh"), qPrintable(command.program));
    QCOMPARE(command.environment.toStringList().size(), 2);
    QVERIFY(readBrowserCommand(8, processes.path()).program.isEmpty());
}

void tst_BrowserRestarter::isOpenedByItsCommandLine() {
    Rig rig;
    DesktopEntry entry;
    entry.id = QStringLiteral("firefox-esr");
    entry.command = {QCoreApplication::applicationFilePath()}; // would not open that profile
    rig.entries.list = {entry};
    rig.start({"--profile", rig.folder.path(), "http://a.example/"});
    rig.restarter.restart(rig.browser(), {"--again"});
    rig.restarter.restart(rig.browser(), {"--again"});
    QTRY_COMPARE(rig.starts().size(), 2);
    QCOMPARE(rig.outcomes, QList<Outcome>{Outcome::opened});
    QCOMPARE(rig.process.exitStatus(), QProcess::NormalExit);
    const QStringList told = rig.starts().constLast();
    QVERIFY(told.at(0).toLongLong() != rig.starts().constFirst().at(0).toLongLong());
    QCOMPARE(told.mid(1),
             (QStringList{rig.folder.path(), "work", "--profile", rig.folder.path(), "--again"}));
    QVERIFY(rig.launched.isEmpty());
    // It outlives the program: it leads a session of its own.
    QCOMPARE(::getsid(told.at(0).toInt()) == ::getsid(0), false);
}

void tst_BrowserRestarter::isOpenedByADesktopEntryThatSaysAll() {
    Rig rig;
    DesktopEntry other;
    other.id = QStringLiteral("chromium");
    other.command = {QCoreApplication::applicationFilePath()};
    DesktopEntry entry = other;
    entry.id = QStringLiteral("firefox-esr");
    entry.command += rig.options() + QStringList{"%u"};
    rig.entries.list = {other, entry};
    rig.canLaunch = false;
    rig.start({"http://a.example/"});
    rig.restarter.restart(rig.browser(), {});
    QTRY_COMPARE(rig.outcomes, QList<Outcome>{Outcome::notOpened});
    QCOMPARE(rig.launched, QStringList{"firefox-esr"});
    QCOMPARE(rig.starts().size(), 1);
}

void tst_BrowserRestarter::isLeftAloneWhereItDoesNotEnd() {
    Rig rig;
    rig.restarter.restart(rig.browser(), {}); // no process yet
    QTRY_COMPARE(rig.outcomes, QList<Outcome>{Outcome::notClosed});
    rig.start({"--stubborn"});
    rig.restarter.restart(rig.browser(), {});
    rig.clock.advance(std::chrono::seconds(19));
    QCOMPARE(rig.outcomes.size(), 1);
    rig.clock.advance(std::chrono::seconds(1));
    QCOMPARE(rig.outcomes.size(), 2);
    QCOMPARE(rig.outcomes.constLast(), Outcome::notClosed);
    QCOMPARE(rig.process.state(), QProcess::Running);
    // Nobody waits for it any more, so that an end by the user's hand stays one.
    rig.process.kill();
    QVERIFY(rig.process.waitForFinished());
    QCoreApplication::processEvents();
    QCOMPARE(rig.outcomes.size(), 2);
}

int main(int argc, char** argv) {
    if (argc > 2 && qstrcmp(argv[1], "--browser") == 0)
        return beBrowser(argc, argv);
    const QCoreApplication application(argc, argv);
    tst_BrowserRestarter test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_BrowserRestarter.moc"
