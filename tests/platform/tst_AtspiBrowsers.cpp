#include "platform/Log.h"
#include "platform/linux/atspi/AtspiBrowsers.h"
#include "platform/linux/atspi/BusGreeting.h"
#include "platform/linux/clock/SystemClock.h"
#include "support/DesktopRig.h"

#include <QDBusConnection>
#include <QDir>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <signal.h>

using namespace norvin;
using State = BrowserReadState;

/// Runs against the real accessibility services on a session bus of the test's own. No browser is there.
class AtspiBrowsersTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        setLogSink([](const QString&) {});
        m_rig = std::make_unique<DesktopRig>();
        m_address = QString::fromLatin1(m_rig->startBus());
        m_display = QString::fromLatin1(m_rig->startDisplay()); // the registry does not start without
        QVERIFY(!m_address.isEmpty() && !m_display.isEmpty());
    }

    void cleanup() {
        stopServices();
        QDBusConnection::disconnectFromBus(QStringLiteral("browsers"));
        setLogSink({});
    }

    void followsTheSwitch() {
        AtspiBrowsers browsers(bus(), m_clock);
        QSignalSpy failed(&browsers, &AtspiBrowsers::accessibilitySwitchFailed);
        QTRY_COMPARE(read(browsers), State::serviceMissing);
        browsers.setAccessibilityEnabled(true);
        QVERIFY(!failed.isEmpty() || failed.wait());
        QVERIFY(!browsers.isAccessibilityEnabled());

        startServices();
        QTRY_COMPARE(browsers.isAccessibilityEnabled(), std::optional(false));
        QCOMPARE(read(browsers), State::accessibilityOff);
        QSignalSpy changed(&browsers, &AtspiBrowsers::accessibilityEnabledChanged);
        browsers.setAccessibilityEnabled(true);
        QTRY_COMPARE(read(browsers), State::notOnBus);
        QCOMPARE(browsers.isAccessibilityEnabled(), std::optional(true));
        QCOMPARE(browsers.lastState(42), State::notOnBus);
        browsers.setAccessibilityEnabled(false);
        QTRY_COMPARE(read(browsers), State::accessibilityOff);
        QCOMPARE(changed.size(), 2);
    }

    void recoversFromServicesThatLeave() {
        startServices();
        AtspiBrowsers browsers(bus(), m_clock);
        browsers.setAccessibilityEnabled(true);
        QTRY_COMPARE(read(browsers), State::notOnBus);
        stopServices();
        QTRY_COMPARE(read(browsers), State::serviceMissing);
        startServices();
        browsers.setAccessibilityEnabled(true);
        QTRY_COMPARE(read(browsers), State::notOnBus);
    }

    void doesNotWaitForAHangingBus() {
        startServices();
        AtspiBrowsers browsers(bus(), m_clock);
        // Before there is a connection: nobody waits for one.
        ::kill(m_busProcess, SIGSTOP);
        browsers.setAccessibilityEnabled(true);
        QTRY_COMPARE(browsers.isAccessibilityEnabled(), std::optional(true));
        QCOMPARE(read(browsers), State::unknown);
        ::kill(m_busProcess, SIGCONT);
        QTRY_COMPARE(read(browsers), State::notOnBus);

        // And once there is one.
        ::kill(m_busProcess, SIGSTOP);
        QCOMPARE(read(browsers), State::notAnswering);
        ::kill(m_busProcess, SIGCONT);
        QTRY_COMPARE(read(browsers), State::notOnBus);
    }

    void findsTheSocketOfABus_data() {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QByteArray>("path");
        QTest::newRow("path") << "unix:path=/run/user/1/at%2dspi,guid=12" << QByteArray("/run/user/1/at-spi");
        QTest::newRow("second") << "unix:guid=12,path=/a;unix:path=/b" << QByteArray("/a");
        QTest::newRow("abstract") << "unix:abstract=/tmp/b" << QByteArray("\0/tmp/b", 7);
        QTest::newRow("network") << "tcp:host=localhost,port=1" << QByteArray();
        QTest::newRow("empty") << "unix:path=" << QByteArray();
        QTest::newRow("too long") << "unix:path=/" + QString(200, u'x') << QByteArray();
    }
    void findsTheSocketOfABus() {
        QFETCH(QString, address);
        QFETCH(QByteArray, path);
        QCOMPARE(BusGreeting::socketPath(address).value_or(QByteArray()), path);
    }

private:
    [[nodiscard]] QDBusConnection bus() const {
        return QDBusConnection::connectToBus(m_address, QStringLiteral("browsers"));
    }
    static State read(AtspiBrowsers& browsers) {
        return browsers.readFrontPage(42, QStringLiteral("Morning news")).state;
    }

    void startServices() {
        // The switch lives in memory: it is off at first, and no settings of a desktop are touched.
        m_launcher = m_rig->start(
            QStringLiteral("/usr/libexec/at-spi-bus-launcher"), {QStringLiteral("--launch-immediately")},
            {QStringLiteral("DBUS_SESSION_BUS_ADDRESS=") + m_address,
             QStringLiteral("GSETTINGS_BACKEND=memory"), QStringLiteral("XDG_DATA_DIRS=/usr/share"),
             QStringLiteral("DISPLAY=") + m_display,
             QStringLiteral("XDG_RUNTIME_DIR=") + m_rig->filePath(QString())});
        QVERIFY(m_launcher);
        QTRY_VERIFY((m_busProcess = childOf(m_launcher->processId())) > 0);
    }

    void stopServices() {
        if (!m_launcher)
            return;
        m_rig->kill(std::exchange(m_launcher, nullptr));
        if (m_busProcess > 0)
            ::kill(std::exchange(m_busProcess, 0), SIGKILL);
    }

    static pid_t childOf(qint64 process) {
        QFile file(QStringLiteral("/proc/%1/task/%1/children").arg(process));
        return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').constFirst().toInt() : 0;
    }

    SystemClock m_clock;
    std::unique_ptr<DesktopRig> m_rig;
    QString m_address;
    QString m_display;
    QProcess* m_launcher = nullptr;
    pid_t m_busProcess = 0;
};

QTEST_GUILESS_MAIN(AtspiBrowsersTest)
#include "tst_AtspiBrowsers.moc"
