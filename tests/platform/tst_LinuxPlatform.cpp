#include "platform/Log.h"
#include "platform/linux/LinuxPlatform.h"
#include "support/DesktopRig.h"

#include <QGuiApplication>
#include <QProcess>
#include <QTest>

using namespace norvin;

namespace {

QString reasonOf(const Availability& availability) {
    return availability.isAvailable() ? QString() : availability.reason()->reasonKey;
}

} // namespace

/// The whole platform on a bare X server, without any bus.
class LinuxPlatformTest : public QObject {
    Q_OBJECT
public:
    explicit LinuxPlatformTest(DesktopRig& rig)
        : m_rig(rig) {}

private Q_SLOTS:
    void init() {
        setLogSink([](const QString&) {});
    }
    void cleanup() { setLogSink({}); }

    void everyAbsenceHasItsReason() {
        const LinuxPlatform platform;
        QCOMPARE(reasonOf(platform.workspace().availability()), QStringLiteral("health_no_window_manager"));
        QCOMPARE(reasonOf(platform.sleepMonitor().availability()), QStringLiteral("health_no_login1"));
        QCOMPARE(reasonOf(platform.notifications().availability()), QStringLiteral("health_no_session_bus"));
        QTRY_COMPARE(reasonOf(platform.sounds().availability()), QStringLiteral("health_no_sound_server"));
        QVERIFY(platform.idleTime().availability().isAvailable());
        QVERIFY(platform.idleTime().timeSinceLastInput().has_value());
        QVERIFY(!platform.applications().isOwnApplicationInstalled());
        platform.notifications().post(QStringLiteral("nobody"), QStringLiteral("sees this"));
        platform.workspace().activateOwnApplication();
        platform.preferences().setValue(QStringLiteral("app_language"), QStringLiteral("en"));
        QVERIFY(m_rig.readFile(QStringLiteral("config/norvin-focus/preferences.ini")).contains("=en"));
    }

    void aWindowManagerMakesTheWorkspaceAvailable() {
        const LinuxPlatform platform;
        QVERIFY(m_rig.start(QStringLiteral("openbox"), {QStringLiteral("--sm-disable")}));
        QTRY_VERIFY(platform.workspace().availability().isAvailable());
    }

private:
    DesktopRig& m_rig;
};

int main(int argc, char** argv) {
    DesktopRig rig;
    qputenv("XDG_CONFIG_HOME", rig.filePath(QStringLiteral("config")).toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", rig.filePath(QStringLiteral("runtime")).toLocal8Bit());
    qunsetenv("XDG_SESSION_TYPE");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nowhere/bus");
    qputenv("PULSE_SERVER", "unix:/nowhere/pulse");
    qputenv("CANBERRA_DRIVER", "pulse");
    qputenv("DISPLAY", rig.startDisplay());
    qputenv("QT_QPA_PLATFORM", "xcb");
    QGuiApplication application(argc, argv);
    LinuxPlatformTest test(rig);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_LinuxPlatform.moc"
