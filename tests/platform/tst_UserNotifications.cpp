#include "platform/Log.h"
#include "platform/linux/freedesktop/FreedesktopNotifications.h"
#include "support/DesktopRig.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

using namespace norvin;

/// Runs against a stand-in for the notification daemon on a bus of the test's own.
class UserNotificationsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        setLogSink([](const QString&) {});
        m_rig = std::make_unique<DesktopRig>();
        m_address = QString::fromLatin1(m_rig->startBus());
        QVERIFY(!m_address.isEmpty());
    }

    void cleanup() {
        QDBusConnection::disconnectFromBus(QStringLiteral("notifications"));
        QDBusConnection::disconnectFromBus(QStringLiteral("test"));
        setLogSink({});
    }

    void postsAndHearsTheClick_data() {
        QTest::addColumn<QString>("capabilities");
        QTest::addColumn<QString>("shownBody");
        QTest::addColumn<QString>("shownActions");
        QTest::newRow("markup and actions") << "body body-markup actions"
                                            << "1 &lt; 2 &amp; 3"
                                            << "[\"default\", \"Done\"]";
        QTest::newRow("plain") << "body"
                               << "1 < 2 & 3"
                               << "[]";
    }
    void postsAndHearsTheClick() {
        QFETCH(QString, capabilities);
        QFETCH(QString, shownBody);
        QFETCH(QString, shownActions);
        QProcess* daemon = startDaemon(capabilities);
        FreedesktopNotifications notifications(bus("notifications"));
        QSignalSpy activated(&notifications, &UserNotifications::activated);
        // Posted before the bus has answered at all: kept until it has.
        notifications.post(QStringLiteral("Done"), QStringLiteral("1 < 2 & 3"));
        QTRY_VERIFY(notifications.availability().isAvailable());

        QByteArray log;
        QVERIFY(QTest::qWaitFor([&] {
            log += daemon->readAllStandardOutput();
            return log.contains(" Notify ");
        }));
        const QByteArray line = log.mid(log.indexOf(" Notify "));
        QVERIFY2(line.contains("\"Norvin Focus\" 0 \"com.norvin.Focus\" \"Done\""), line.constData());
        QVERIFY2(line.contains('"' + shownBody.toUtf8() + "\" " + shownActions.toUtf8()), line.constData());
        QVERIFY2(line.contains("desktop-entry"), line.constData());

        emitSignal(QStringLiteral("ActionInvoked"), QStringLiteral("us"),
                   {QVariant::fromValue(77U), QStringLiteral("default")});
        emitSignal(QStringLiteral("ActionInvoked"), QStringLiteral("us"),
                   {QVariant::fromValue(1U), QStringLiteral("default")});
        QTRY_COMPARE(activated.size(), 1);
    }

    void followsTheDaemonComingAndGoing() {
        FreedesktopNotifications notifications(bus("notifications"));
        QSignalSpy changed(&notifications, &UserNotifications::availabilityChanged);
        QTRY_VERIFY(!changed.isEmpty());
        QCOMPARE(notifications.availability().reason()->reasonKey, QStringLiteral("health_no_notifications"));
        notifications.post(QStringLiteral("lost"), QString());

        QProcess* daemon = startDaemon(QStringLiteral("body"));
        QTRY_VERIFY(notifications.availability().isAvailable());
        notifications.post(QStringLiteral("shown"), QString());
        QByteArray log;
        QVERIFY(QTest::qWaitFor([&] {
            log += daemon->readAllStandardOutput();
            return log.contains("\"shown\"");
        }));
        QVERIFY(!log.contains("\"lost\""));

        m_rig->kill(daemon);
        QTRY_VERIFY(!notifications.availability().isAvailable());
    }

    void speaksToTheDaemonThatReplacedAnother() {
        startDaemon(QStringLiteral("body body-markup"));
        FreedesktopNotifications notifications(bus("notifications"));
        notifications.post(QStringLiteral("first"), QString());
        QTRY_VERIFY(notifications.availability().isAvailable());
        const QString service = QStringLiteral("org.freedesktop.Notifications");
        const QString former = bus("test").interface()->serviceOwner(service);
        QProcess* daemon = startDaemon(QStringLiteral("body"));
        QTRY_VERIFY(bus("test").interface()->serviceOwner(service) != former);
        QByteArray log;
        QVERIFY(QTest::qWaitFor([&] {
            notifications.post(QStringLiteral("second"), QStringLiteral("1 < 2"));
            log += daemon->readAllStandardOutput();
            return log.contains("\"1 < 2\"");
        }));
    }

    void startsADaemonThatTheBusCanStart() {
        m_rig->writeFile(QStringLiteral("services/notifications.service"),
                         "[D-BUS Service]\nName=org.freedesktop.Notifications\n"
                         "Exec=/usr/bin/python3 -m dbusmock --template notification_daemon -l " +
                             m_rig->filePath(QStringLiteral("log")).toLocal8Bit() + '\n');
        m_address = QString::fromLatin1(m_rig->startBus(m_rig->filePath(QStringLiteral("services"))));
        FreedesktopNotifications notifications(bus("notifications"));
        QTRY_VERIFY(notifications.availability().isAvailable());
        const QString name = QStringLiteral("org.freedesktop.Notifications");
        QVERIFY(!bus("test").interface()->isServiceRegistered(name)); // asking did not start it
        notifications.post(QStringLiteral("awake"), QString());
        QTRY_VERIFY(bus("test").interface()->isServiceRegistered(name));
        QTRY_VERIFY(m_rig->readFile(QStringLiteral("log")).contains("\"awake\""));
        QVERIFY(notifications.availability().isAvailable());
    }

private:
    [[nodiscard]] QDBusConnection bus(const char* name) const {
        return QDBusConnection::connectToBus(m_address, QString::fromLatin1(name));
    }

    QProcess* startDaemon(const QString& capabilities) {
        QProcess* process = m_rig->start(QStringLiteral("/usr/bin/python3"),
                                         {QStringLiteral("-u"), QStringLiteral("-m"),
                                          QStringLiteral("dbusmock"), QStringLiteral("--template"),
                                          QStringLiteral("notification_daemon"), QStringLiteral("-p"),
                                          QStringLiteral("{\"capabilities\": \"%1\"}").arg(capabilities)},
                                         {QStringLiteral("DBUS_SESSION_BUS_ADDRESS=") + m_address});
        const bool started = QTest::qWaitFor([this] {
            return bus("test").interface()->isServiceRegistered(
                QStringLiteral("org.freedesktop.Notifications"));
        });
        return started ? process : nullptr;
    }

    void emitSignal(const QString& name, const QString& signature, const QVariantList& arguments) const {
        QDBusMessage message = QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("/org/freedesktop/Notifications"),
            QStringLiteral("org.freedesktop.DBus.Mock"), QStringLiteral("EmitSignal"));
        message << QStringLiteral("org.freedesktop.Notifications") << name << signature
                << QVariant(arguments);
        const QDBusMessage reply = bus("test").call(message);
        QVERIFY2(reply.type() == QDBusMessage::ReplyMessage, qPrintable(reply.errorMessage()));
    }

    std::unique_ptr<DesktopRig> m_rig;
    QString m_address;
};

QTEST_GUILESS_MAIN(UserNotificationsTest)
#include "tst_UserNotifications.moc"
