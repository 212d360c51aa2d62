#include "platform/Log.h"
#include "platform/fake/FakePreferences.h"
#include "platform/linux/autostart/PortalAutostart.h"
#include "platform/linux/autostart/XdgAutostart.h"
#include "support/DesktopRig.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace norvin;

namespace {

/// Stands in for the desktop, which lets a program start at login or not.
class Portal final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Background")
public:
    explicit Portal(const QDBusConnection& bus)
        : m_bus(bus) {
        m_bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                             QDBusConnection::ExportAllSlots);
        m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    uint answer = 0;
    bool isGranted = true;
    bool answersFirst = false;
    QVariantMap asked;

public Q_SLOTS:
    QDBusObjectPath RequestBackground(const QString&, const QVariantMap& options,
                                      const QDBusMessage& message) {
        asked = options;
        QString sender = message.service().mid(1);
        const QString request = QStringLiteral("/org/freedesktop/portal/desktop/request/") +
                                sender.replace(u'.', u'_') + u'/' +
                                options.value(QStringLiteral("handle_token")).toString();
        const auto respond = [this, request] {
            QDBusMessage response = QDBusMessage::createSignal(
                request, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"));
            response << answer << QVariantMap{{QStringLiteral("autostart"), isGranted}};
            m_bus.send(response);
        };
        if (answersFirst)
            respond();
        else
            QMetaObject::invokeMethod(this, respond, Qt::QueuedConnection);
        return QDBusObjectPath(request);
    }

private:
    QDBusConnection m_bus;
};

} // namespace

class AutostartTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        setLogSink([](const QString&) {});
    }
    void cleanup() { setLogSink({}); }

    void theUsersEntryGoesBeforeTheSystems();
    void aProgramInAnyFolderIsStarted();
    void whatCannotBeWrittenIsSaid();
    void theDesktopIsAsked();

private:
    static void write(const QString& path, const QByteArray& content) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    [[nodiscard]] XdgAutostart::Places places() const {
        return {.userEntry = folder.filePath(QStringLiteral("user/autostart/entry.desktop")),
                .systemEntries = {folder.filePath(QStringLiteral("local/entry.desktop")),
                                  folder.filePath(QStringLiteral("system/entry.desktop"))},
                .program = QStringLiteral("/usr/bin/norvin-focus")};
    }
    QTemporaryDir folder;
};

void AutostartTest::theUsersEntryGoesBeforeTheSystems() {
    XdgAutostart autostart(places());
    QSignalSpy changed(&autostart, &Autostart::changed);
    QVERIFY(!autostart.isEnabled());
    autostart.setEnabled(true);
    QVERIFY(autostart.isEnabled());
    autostart.setEnabled(false);
    QVERIFY(!autostart.isEnabled());
    QVERIFY(!QFile::exists(places().userEntry));

    write(places().systemEntries.at(1), "[Desktop Entry]\nExec=norvin-focus --hidden\n");
    QVERIFY(autostart.isEnabled());
    write(places().systemEntries.at(0), "[Desktop Entry]\nHidden = true\n");
    QVERIFY(!autostart.isEnabled());
    write(places().systemEntries.at(0), "[Other]\nHidden=true\n[Desktop Entry]\nHidden=false\n");
    QVERIFY(autostart.isEnabled());
    autostart.setEnabled(false);
    QVERIFY(!autostart.isEnabled());
    autostart.setEnabled(true);
    QVERIFY(autostart.isEnabled());
    // As desktops switch an entry off.
    write(places().userEntry, "[Desktop Entry]\nX-GNOME-Autostart-enabled=false\n");
    QVERIFY(!autostart.isEnabled());
    QCOMPARE(changed.size(), 4);
}

void AutostartTest::aProgramInAnyFolderIsStarted() {
    // Names that mean something to whoever reads the entry, as its own reader understands them.
    const QString odd = folder.filePath(QStringLiteral("a \"b\" $c `d` \\e/run"));
    write(odd, "#!/bin/sh\necho \"$1\" > \"$(dirname \"$0\")/said\"\n");
    QFile::setPermissions(odd, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    XdgAutostart::Places own = places();
    own.program = odd;
    XdgAutostart autostart(own);
    autostart.setEnabled(true);
    static_cast<void>(DesktopRig::run(QStringLiteral("gio"), {QStringLiteral("launch"), own.userEntry}));
    const auto said = [&odd] {
        QFile file(QFileInfo(odd).path() + QStringLiteral("/said"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    QTRY_COMPARE(said(), QByteArray("--hidden\n"));
}

void AutostartTest::whatCannotBeWrittenIsSaid() {
    write(folder.filePath(QStringLiteral("file")), "");
    XdgAutostart::Places own = places();
    own.userEntry = folder.filePath(QStringLiteral("file/entry.desktop"));
    own.systemEntries.clear();
    XdgAutostart autostart(own);
    QSignalSpy changed(&autostart, &Autostart::changed);
    autostart.setEnabled(true);
    QVERIFY(!autostart.availability().isAvailable());
    QVERIFY(!autostart.isEnabled());
    QCOMPARE(changed.size(), 1);
}

void AutostartTest::theDesktopIsAsked() {
    DesktopRig rig;
    const QString address = QString::fromLatin1(rig.startBus());
    QVERIFY(!address.isEmpty());
    {
        const QDBusConnection bus = QDBusConnection::connectToBus(address, QStringLiteral("autostart"));
        FakePreferences preferences;
        PortalAutostart autostart(bus, preferences);
        QSignalSpy changed(&autostart, &Autostart::changed);
        QVERIFY(autostart.availability().isAvailable());
        autostart.setEnabled(true);
        QVERIFY(changed.wait());
        QVERIFY(!autostart.isEnabled());
        QCOMPARE(autostart.availability().reason()->reasonKey, QStringLiteral("autostart_no_portal"));

        Portal portal(QDBusConnection::connectToBus(address, QStringLiteral("portal")));
        for (const bool answersFirst : {false, true}) {
            portal.answersFirst = answersFirst;
            for (const bool isWanted : {true, false}) {
                portal.isGranted = isWanted;
                autostart.setEnabled(isWanted);
                QVERIFY(changed.wait());
                QCOMPARE(portal.asked.value(QStringLiteral("autostart")).toBool(), isWanted);
                QCOMPARE(portal.asked.value(QStringLiteral("commandline")).toStringList(),
                         (QStringList{QStringLiteral("norvin-focus"), QStringLiteral("--hidden")}));
                QCOMPARE(autostart.isEnabled(), isWanted);
                QVERIFY(autostart.availability().isAvailable());
            }
        }
        // Its user says no.
        portal.answer = 1;
        autostart.setEnabled(true);
        QVERIFY(changed.wait());
        QVERIFY(!autostart.isEnabled());
        QVERIFY(!PortalAutostart(bus, preferences).isEnabled());
    }
    QDBusConnection::disconnectFromBus(QStringLiteral("autostart"));
    QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
}

QTEST_GUILESS_MAIN(AutostartTest)
#include "tst_Autostart.moc"
