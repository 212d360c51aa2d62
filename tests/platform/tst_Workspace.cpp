#include "platform/ApplicationCatalog.h"
#include "platform/fake/FakeSleepMonitor.h"
#include "platform/fake/FakeWorkspace.h"
#include "platform/linux/NullWorkspace.h"
#include "platform/linux/clock/SystemClock.h"
#include "platform/linux/gio/GioDesktopEntries.h"
#include "platform/linux/identity/ApplicationIdentity.h"
#include "platform/linux/x11/X11Workspace.h"
#include "support/DesktopRig.h"
#include "support/RawClient.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QProcess>
#include <QRasterWindow>
#include <QSignalSpy>
#include <QTest>

#include <csignal>

using namespace norvin;
using norvin::test::RawClient;

namespace {

const QString terminal = QStringLiteral("org.example.Terminal");
const QString calculator = QStringLiteral("xcalc");

class EventCounter final : public QAbstractNativeEventFilter {
public:
    bool nativeEventFilter(const QByteArray&, void*, qintptr*) override {
        ++count;
        return false;
    }
    int count = 0;
};

QStringList identifiers(const std::vector<RunningApplication>& applications) {
    QStringList result;
    for (const RunningApplication& application : applications)
        result.append(application.bundleIdentifier);
    result.sort();
    return result;
}

QString frontmost(const Workspace& workspace) {
    const auto application = workspace.frontmostApplication();
    return application ? application->bundleIdentifier : QString();
}

QString lastActivated(const QSignalSpy& spy) {
    return spy.isEmpty() ? QString() : spy.last().at(0).value<RunningApplication>().bundleIdentifier;
}

} // namespace

/// What every Workspace does, on a desktop with two programs.
class WorkspaceTest : public QObject {
    Q_OBJECT
public:
    explicit WorkspaceTest(DesktopRig& rig)
        : m_rig(rig)
        , m_identity(m_entries) {}

private Q_SLOTS:
    void init() {
        qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& message) { s_messages.append(message); });
        s_messages.clear();
        if (!m_windowManager)
            startWindowManager();
        QVERIFY(m_windowManager);
        m_workspace = std::make_unique<X11Workspace>(connection(), m_clock, m_sleep, m_identity);
        QTRY_VERIFY(m_workspace->availability().isAvailable());
    }

    void cleanup() {
        m_workspace.reset();
        for (QProcess* program : std::exchange(m_programs, {}))
            m_rig.kill(program);
        qInstallMessageHandler(nullptr);
        // Windows that vanish must not show in the log either.
        QCOMPARE(s_messages.filter(QStringLiteral("XCB error")), QStringList());
    }

    void followsTheFrontApplication_data() {
        QTest::addColumn<bool>("real");
        QTest::newRow("FakeWorkspace") << false;
        QTest::newRow("X11Workspace") << true;
    }
    void followsTheFrontApplication() {
        QFETCH(bool, real);
        FakeWorkspace fake;
        Workspace& workspace = real ? static_cast<Workspace&>(*m_workspace) : fake;
        QSignalSpy activated(&workspace, &Workspace::applicationActivated);
        QSignalSpy lost(&workspace, &Workspace::frontmostApplicationLost);
        QVERIFY(!workspace.frontmostApplication());

        QProcess* first = nullptr;
        if (real)
            first = openTerminal();
        else
            fake.setFrontmost(FakeWorkspace::makeApplication(terminal, QStringLiteral("Test Terminal")));
        QVERIFY(!real || focus("terminal.XTerm", terminal));
        QTRY_COMPARE(activated.size(), 1);
        QCOMPARE(frontmost(workspace), terminal);
        const auto application = activated.first().at(0).value<RunningApplication>();
        QCOMPARE(application.localizedName, QStringLiteral("Test Terminal"));
        QVERIFY(application.processId > 0);
        if (real) {
            QCOMPARE(application.processId, first->processId());
            QCOMPARE(application.declaredCategory.value(),
                     QStringLiteral("public.app-category.developer-tools"));
        }

        if (real)
            openCalculator();
        else
            fake.setFrontmost(FakeWorkspace::makeApplication(calculator));
        QVERIFY(!real || focus("xcalc.XCalc", calculator));
        QTRY_COMPARE(activated.size(), 2);
        QCOMPARE(frontmost(workspace), calculator);
        QCOMPARE(identifiers(workspace.runningApplications()), (QStringList{terminal, calculator}));

        if (real)
            activate("terminal.XTerm");
        else
            fake.setFrontmost(FakeWorkspace::makeApplication(terminal, QStringLiteral("Test Terminal")));
        QTRY_COMPARE(activated.size(), 3);
        QCOMPARE(lastActivated(activated), terminal);
        QCOMPARE(lost.size(), 0);

        // An empty desktop, then the same application again.
        if (real)
            DesktopRig::run(QStringLiteral("wmctrl"), {QStringLiteral("-k"), QStringLiteral("on")});
        else
            fake.clearFrontmost();
        QTRY_COMPARE(lost.size(), 1);
        QVERIFY(!workspace.frontmostApplication());
        QCOMPARE(activated.size(), 3);
        if (real)
            activate("terminal.XTerm");
        else
            fake.setFrontmost(FakeWorkspace::makeApplication(terminal, QStringLiteral("Test Terminal")));
        QTRY_COMPARE(activated.size(), 4);
        QCOMPARE(lastActivated(activated), terminal);
    }

    void anotherWindowOfTheSameApplicationIsNoActivation() {
        QSignalSpy activated(m_workspace.get(), &Workspace::applicationActivated);
        openTerminal();
        QTRY_COMPARE(activated.size(), 1);
        QProcess* second = openTerminal();
        QTRY_COMPARE(m_workspace->frontmostApplication()->processId, second->processId());
        QCOMPARE(activated.size(), 1);
        QCOMPARE(identifiers(m_workspace->runningApplications()), QStringList{terminal});
    }

    void tellsTheTitleOfTheFrontWindow() {
        QVERIFY(!m_workspace->frontmostWindowTitle());
        RawClient client;
        client.setTitle(client.open("titled"), QStringLiteral("Étude – 1").toUtf8());
        QVERIFY(focus("titled.titled", QStringLiteral("titled")));
        QTRY_COMPARE(m_workspace->frontmostWindowTitle().value_or(QString()), QStringLiteral("Étude – 1"));
    }

    void identifiesAWindowWithoutClassOrProcessId() {
        RawClient client;
        QSignalSpy activated(m_workspace.get(), &Workspace::applicationActivated);
        client.open(nullptr);
        QTRY_COMPARE(activated.size(), 1);
        // Only the server knows whose connection it is: this very program's.
        const auto application = activated.first().at(0).value<RunningApplication>();
        QCOMPARE(application.processId, QCoreApplication::applicationPid());
        QCOMPARE(application.bundleIdentifier, QStringLiteral("tst_workspace"));
    }

    void toleratesWindowsThatVanish() {
        RawClient client;
        for (int i = 0; i < 200; ++i) {
            const xcb_window_t window = client.open("fleeting");
            if (i % 3 == 0)
                QCoreApplication::processEvents();
            static_cast<void>(m_workspace->runningApplications());
            client.destroy(window);
            static_cast<void>(m_workspace->frontmostWindowTitle());
        }
        openTerminal();
        QVERIFY(focus("terminal.XTerm", terminal));
        QTRY_COMPARE(identifiers(m_workspace->runningApplications()), QStringList{terminal});
    }

    void windowNumbersAreNotMistakenForTheirFormerOwners() {
        QSignalSpy activated(m_workspace.get(), &Workspace::applicationActivated);
        for (const char* name : {"one", "two", "three"}) {
            // The server gives a new client the numbers of the one that left.
            RawClient client;
            client.open(name);
            QVERIFY(focus(name, QString::fromLatin1(name)));
            QCOMPARE(lastActivated(activated), QString::fromLatin1(name));
        }
    }

    void hidesAllWindowsOfAnApplicationAndThoseThatOpenMeanwhile() {
        RawClient client;
        const xcb_window_t other = client.open("other");
        QVERIFY(focus("other", QStringLiteral("other")));
        const xcb_window_t first = client.open("blocked");
        const xcb_window_t second = client.open("blocked");
        QVERIFY(focus("blocked", QStringLiteral("blocked")));
        const RunningApplication blocked = *m_workspace->frontmostApplication();
        QTRY_COMPARE(identifiers(m_workspace->runningApplications()).size(), 2);

        m_workspace->hide(blocked);
        const xcb_window_t late = client.open("blocked");
        QTRY_VERIFY(client.isIconic(first) && client.isIconic(second) && client.isIconic(late));
        QVERIFY(!client.isIconic(other));
        QTRY_VERIFY(frontmost(*m_workspace) != QLatin1String("blocked"));
    }

    void bringsOwnWindowsToTheFront() {
        QRasterWindow window;
        window.setTitle(QStringLiteral("Own"));
        QRasterWindow overlay;
        overlay.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
        openTerminal();
        QVERIFY(focus("terminal.XTerm", terminal));

        const QString own = QString::fromLatin1(ownBundleIdentifier);
        m_workspace->activateOwnApplication(); // closed
        QTRY_COMPARE(frontmost(*m_workspace), own);
        QCOMPARE(m_workspace->frontmostApplication()->localizedName, QStringLiteral("Norvin Focus"));
        QVERIFY(!overlay.isVisible());

        m_workspace->hide(*m_workspace->frontmostApplication()); // never the own ones
        QVERIFY(focus("terminal.XTerm", terminal));
        m_workspace->activateOwnApplication(); // behind
        QTRY_COMPARE(frontmost(*m_workspace), own);

        window.showMinimized();
        QTRY_VERIFY(frontmost(*m_workspace) != own);
        m_workspace->activateOwnApplication(); // minimised
        QTRY_COMPARE(frontmost(*m_workspace), own);
        QVERIFY(!overlay.isVisible());
    }

    void isUnavailableWithoutAWindowManager() {
        QSignalSpy changed(m_workspace.get(), &Workspace::availabilityChanged);
        QSignalSpy lost(m_workspace.get(), &Workspace::frontmostApplicationLost);
        openTerminal();
        QVERIFY(focus("terminal.XTerm", terminal));

        m_rig.kill(m_windowManager);
        QTRY_COMPARE(changed.size(), 1);
        QCOMPARE(m_workspace->availability().reason()->reasonKey, QStringLiteral("health_no_window_manager"));
        QVERIFY(!m_workspace->frontmostApplication());
        QCOMPARE(lost.size(), 1);
        QVERIFY(m_workspace->runningApplications().empty());

        // The mark that the killed one left on the root window is no window manager.
        {
            const X11Workspace late(connection(), m_clock, m_sleep, m_identity);
            QVERIFY(!late.availability().isAvailable());
        }

        QSignalSpy activated(m_workspace.get(), &Workspace::applicationActivated);
        startWindowManager();
        QTRY_VERIFY(m_workspace->availability().isAvailable());
        QCOMPARE(changed.size(), 2);
        QVERIFY(focus("terminal.XTerm", terminal));
        QCOMPARE(lastActivated(activated), terminal);
    }

    void neverWaitsForAWindowManagerThatHangs() {
        openTerminal();
        QVERIFY(focus("terminal.XTerm", terminal));
        ::kill(static_cast<pid_t>(m_windowManager->processId()), SIGSTOP);
        QRasterWindow window;
        // These return although nobody answers; the test's own time limit is the proof.
        m_workspace->hide(*m_workspace->frontmostApplication());
        m_workspace->activateOwnApplication();
        QCOMPARE(identifiers(m_workspace->runningApplications()), QStringList{terminal});
        ::kill(static_cast<pid_t>(m_windowManager->processId()), SIGCONT);
        QTRY_COMPARE(frontmost(*m_workspace), QString::fromLatin1(ownBundleIdentifier));
    }

    void isNotWokenByTheLifeInsideOtherWindows() {
        RawClient client;
        const xcb_window_t window = client.open("lively");
        QVERIFY(focus("lively", QStringLiteral("lively")));
        EventCounter counter;
        QCoreApplication::instance()->installNativeEventFilter(&counter);
        for (int i = 0; i < 100; ++i)
            client.setTitle(window, "title " + QByteArray::number(i));
        // Events keep their order: whatever the titles caused has come before this window's end.
        client.destroy(window);
        QTRY_VERIFY(m_workspace->runningApplications().empty());
        QTRY_VERIFY(frontmost(*m_workspace).isEmpty());
        QCoreApplication::instance()->removeNativeEventFilter(&counter);
        QVERIFY2(counter.count < 20, qPrintable(QString::number(counter.count)));
    }

    void passesSleepOn() {
        NullWorkspace null(Availability::unavailable(QStringLiteral("health_no_display")), m_sleep);
        for (Workspace* workspace :
             {static_cast<Workspace*>(m_workspace.get()), static_cast<Workspace*>(&null)}) {
            QSignalSpy willSleep(workspace, &Workspace::willSleep);
            QSignalSpy didWake(workspace, &Workspace::didWake);
            m_sleep.emitWillSleep();
            QCOMPARE(willSleep.size(), 1);
            m_sleep.emitDidWake();
            QCOMPARE(didWake.size(), 1);
        }
        QCOMPARE(null.availability().reason()->reasonKey, QStringLiteral("health_no_display"));
    }

private:
    static xcb_connection_t* connection() {
        return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    }

    void startWindowManager() {
        // Its themes are found through the variable that hides the machine's desktop entries here.
        m_windowManager = m_rig.start(QStringLiteral("openbox"), {QStringLiteral("--sm-disable")},
                                      {QStringLiteral("XDG_DATA_DIRS=/usr/local/share:/usr/share")});
        // It marks the root window before it listens, one that left has left its marks too, and a window that
        // is shown before it is ready may stay unmanaged. Only one that does what it is asked, twice and
        // differently, is ready.
        for (const int count : {2, 1}) {
            QVERIFY(QTest::qWaitFor([count] {
                DesktopRig::run(QStringLiteral("wmctrl"), {QStringLiteral("-n"), QString::number(count)});
                const QByteArray desktops = DesktopRig::run(QStringLiteral("wmctrl"), {QStringLiteral("-d")});
                return desktops.startsWith('0') && desktops.count('\n') + 1 == count;
            }));
        }
    }
    QProcess* openTerminal(const QString& title = QStringLiteral("A terminal")) {
        m_programs.push_back(
            m_rig.start(QStringLiteral("xterm"),
                        {QStringLiteral("-name"), QStringLiteral("terminal"), QStringLiteral("-T"), title,
                         QStringLiteral("-e"), QStringLiteral("sleep"), QStringLiteral("600")}));
        return m_programs.back();
    }
    void openCalculator() { m_programs.push_back(m_rig.start(QStringLiteral("xcalc"))); }
    /// Window managers do not give every new window the keyboard: asks until it has it.
    [[nodiscard]] bool focus(const char* windowClass, const QString& identifier) const {
        constexpr int patience = 20'000; // milliseconds: on a busy machine a program takes its time to open
        const auto isInFront = [&] {
            activate(windowClass);
            return frontmost(*m_workspace) == identifier;
        };
        return QTest::qWaitFor(isInFront, patience);
    }
    static void activate(const char* windowClass) {
        DesktopRig::run(QStringLiteral("wmctrl"),
                        {QStringLiteral("-x"), QStringLiteral("-a"), QString::fromLatin1(windowClass)});
    }

    DesktopRig& m_rig;
    SystemClock m_clock;
    FakeSleepMonitor m_sleep;
    GioDesktopEntries m_entries;
    ApplicationIdentity m_identity;
    std::unique_ptr<X11Workspace> m_workspace;
    QProcess* m_windowManager = nullptr;
    std::vector<QProcess*> m_programs;
    static inline QStringList s_messages;
};

int main(int argc, char** argv) {
    DesktopRig rig;
    rig.writeFile(QStringLiteral("data/applications/org.example.Terminal.desktop"),
                  "[Desktop Entry]\nType=Application\nName=Test Terminal\nExec=xterm\n"
                  "StartupWMClass=xterm\nCategories=System;TerminalEmulator;\n");
    qputenv("XDG_DATA_HOME", rig.filePath(QStringLiteral("data")).toLocal8Bit());
    qputenv("XDG_DATA_DIRS", rig.filePath(QStringLiteral("none")).toLocal8Bit());
    qputenv("DISPLAY", rig.startDisplay());
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("LC_ALL", "C.UTF-8");
    QGuiApplication application(argc, argv);
    WorkspaceTest test(rig);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Workspace.moc"
