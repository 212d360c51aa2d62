#include "platform/linux/login1/Login1SleepMonitor.h"
#include "support/DesktopRig.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

using namespace norvin;

/// Runs against a stand-in for logind on a bus of the test's own.
class SleepMonitorTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        m_rig = std::make_unique<DesktopRig>();
        m_address = QString::fromLatin1(m_rig->startBus());
        QVERIFY(!m_address.isEmpty());
    }

    void cleanup() {
        QDBusConnection::disconnectFromBus(QStringLiteral("monitor"));
        QDBusConnection::disconnectFromBus(QStringLiteral("test"));
    }

    void holdsTheMachineAwakeUntilTheSlotsHaveRun() {
        startLogind();
        Login1SleepMonitor monitor(bus("monitor"));
        QTRY_VERIFY(monitor.availability().isAvailable());
        QTRY_COMPARE(inhibitors(), 1);

        int inhibitorsDuringSlot = -1;
        connect(&monitor, &SleepMonitor::willSleep, this, [&] { inhibitorsDuringSlot = inhibitors(); });
        QSignalSpy willSleep(&monitor, &SleepMonitor::willSleep);
        QSignalSpy didWake(&monitor, &SleepMonitor::didWake);
        for (int round = 1; round <= 2; ++round) {
            emitPrepareForSleep(true);
            QTRY_COMPARE(willSleep.size(), round);
            QCOMPARE(inhibitorsDuringSlot, 1);
            QTRY_COMPARE(inhibitors(), 0);
            emitPrepareForSleep(false);
            QTRY_COMPARE(didWake.size(), round);
            QTRY_COMPARE(inhibitors(), 1);
        }
    }

    void ignoresSignalsOfOthers() {
        startLogind();
        Login1SleepMonitor monitor(bus("monitor"));
        QTRY_VERIFY(monitor.availability().isAvailable());
        QSignalSpy willSleep(&monitor, &SleepMonitor::willSleep);
        QSignalSpy didWake(&monitor, &SleepMonitor::didWake);
        QDBusMessage forged = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/login1"),
                                                         QStringLiteral("org.freedesktop.login1.Manager"),
                                                         QStringLiteral("PrepareForSleep"));
        forged << true;
        QVERIFY(bus("test").send(forged));
        emitPrepareForSleep(true);
        emitPrepareForSleep(false);
        QTRY_COMPARE(didWake.size(), 1);
        QCOMPARE(willSleep.size(), 1);
    }

    void followsTheServiceComingAndGoing() {
        Login1SleepMonitor monitor(bus("monitor"));
        QSignalSpy changed(&monitor, &SleepMonitor::availabilityChanged);
        QTRY_VERIFY(!changed.isEmpty());
        QCOMPARE(monitor.availability().reason()->reasonKey, QStringLiteral("health_no_login1"));
        QVERIFY(monitor.availability().reason()->detail.contains(QLatin1String("login1")));

        QProcess* logind = startLogind();
        QTRY_VERIFY(monitor.availability().isAvailable());
        // Nobody will tell of the waking any more, and whoever stopped for the sleep waits for it.
        QSignalSpy didWake(&monitor, &SleepMonitor::didWake);
        QSignalSpy willSleep(&monitor, &SleepMonitor::willSleep);
        emitPrepareForSleep(true);
        QTRY_COMPARE(willSleep.size(), 1);
        m_rig->kill(logind);
        QTRY_VERIFY(!monitor.availability().isAvailable());
        QCOMPARE(didWake.size(), 1);
        startLogind();
        QTRY_VERIFY(monitor.availability().isAvailable());
        QTRY_COMPARE(inhibitors(), 1);
    }

private:
    [[nodiscard]] QDBusConnection bus(const char* name) const {
        return QDBusConnection::connectToBus(m_address, QString::fromLatin1(name));
    }

    QProcess* startLogind() {
        QProcess* process =
            m_rig->start(QStringLiteral("/usr/bin/python3"),
                         {QStringLiteral("-m"), QStringLiteral("dbusmock"), QStringLiteral("--system"),
                          QStringLiteral("--template"), QStringLiteral("logind")},
                         {QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS=") + m_address});
        const bool started = QTest::qWaitFor([this] {
            return bus("test").interface()->isServiceRegistered(QStringLiteral("org.freedesktop.login1"));
        });
        return started ? process : nullptr;
    }

    [[nodiscard]] QDBusMessage call(const QString& interface, const QString& method,
                                    const QVariantList& arguments = {}) const {
        QDBusMessage message =
            QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.login1"),
                                           QStringLiteral("/org/freedesktop/login1"), interface, method);
        message.setArguments(arguments);
        return bus("test").call(message);
    }

    [[nodiscard]] int inhibitors() const {
        const QDBusMessage reply =
            call(QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("ListInhibitors"));
        int count = 0;
        const QDBusArgument list = reply.arguments().value(0).value<QDBusArgument>();
        list.beginArray();
        while (!list.atEnd()) {
            QString what;
            QString who;
            QString why;
            QString mode;
            list.beginStructure();
            list >> what >> who >> why >> mode;
            list.endStructure();
            if (what == QLatin1String("sleep") && mode == QLatin1String("delay"))
                ++count;
        }
        list.endArray();
        return count;
    }

    void emitPrepareForSleep(bool starting) const {
        const QDBusMessage reply =
            call(QStringLiteral("org.freedesktop.DBus.Mock"), QStringLiteral("EmitSignal"),
                 {QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"),
                  QStringLiteral("b"), QVariantList{starting}});
        QVERIFY2(reply.type() == QDBusMessage::ReplyMessage, qPrintable(reply.errorMessage()));
    }

    std::unique_ptr<DesktopRig> m_rig;
    QString m_address;
};

QTEST_GUILESS_MAIN(SleepMonitorTest)
#include "tst_SleepMonitor.moc"
