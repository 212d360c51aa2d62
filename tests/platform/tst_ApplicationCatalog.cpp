#include "platform/fake/FakeApplicationCatalog.h"
#include "platform/linux/gio/GioApplicationCatalog.h"
#include "platform/linux/gio/GioDesktopEntries.h"
#include "platform/linux/identity/ApplicationIdentity.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace norvin;

namespace {

void writeFile(const QString& path, const QByteArray& content) {
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray desktopEntry(const char* name, const char* more) {
    return QByteArray("[Desktop Entry]\nType=Application\nExec=true\nName=") + name + '\n' + more + '\n';
}

} // namespace

class ApplicationCatalogTest : public QObject {
    Q_OBJECT
public:
    explicit ApplicationCatalogTest(QString dataHome)
        : m_dataHome(std::move(dataHome)) {}

private Q_SLOTS:
    void initTestCase() {
        install("org.example.Zebra", desktopEntry("Zebra", "Categories=Game;\nIcon=zebra"));
        install("org.example.apple", desktopEntry("apple", "Categories=Office;"));
        install("chromium", desktopEntry("Chromium", "Categories=Network;WebBrowser;"));
        install("org.chromium.Chromium", desktopEntry("Chromium Flatpak", ""));
        install("org.example.Hidden", desktopEntry("Hidden", "NoDisplay=true\nStartupWMClass=hid"));
        writeFile(m_dataHome + QStringLiteral("/applications/broken.desktop"), "no entry at all");
    }

    void listsWhatMenusShow() {
        const GioDesktopEntries entries;
        const GioApplicationCatalog real(entries, QStringLiteral("/nowhere/norvin-focus"));
        FakeApplicationCatalog fake;
        for (const InstalledApplication& application : real.installedApplications())
            fake.install(application);

        for (const ApplicationCatalog* catalog :
             {static_cast<const ApplicationCatalog*>(&real), static_cast<const ApplicationCatalog*>(&fake)}) {
            QStringList names;
            QStringList identifiers;
            for (const InstalledApplication& application : catalog->installedApplications()) {
                names.append(application.name);
                identifiers.append(application.bundleIdentifier);
            }
            QCOMPARE(identifiers.count(QStringLiteral("com.google.Chrome")), 1);
            QVERIFY(!names.contains(QStringLiteral("Hidden")));
            QCOMPARE(names.size(), 3);

            const auto zebra = catalog->application(QStringLiteral("org.example.Zebra"));
            QVERIFY(zebra.has_value());
            QCOMPARE(zebra->iconName, QStringLiteral("zebra"));
            QCOMPARE(zebra->declaredCategory.value(), QStringLiteral("public.app-category.games"));
            QVERIFY(!catalog->application(QStringLiteral("org.example.Missing")));
        }
        QCOMPARE(real.installedApplications().front().name, QStringLiteral("apple"));
        QCOMPARE(real.application(QStringLiteral("org.example.Hidden"))->name, QStringLiteral("Hidden"));

        const ApplicationIdentity identity(entries);
        QCOMPARE(identity.identify({{}, {}, QStringLiteral("HID"), 0}).bundleIdentifier,
                 QStringLiteral("org.example.Hidden"));
    }

    void noticesNewEntries() {
        const GioDesktopEntries entries;
        const GioApplicationCatalog catalog(entries, QStringLiteral("/nowhere/norvin-focus"));
        QVERIFY(!catalog.application(QStringLiteral("org.example.Late")));
        install("org.example.Late", desktopEntry("Late", ""));
        QTRY_VERIFY(catalog.application(QStringLiteral("org.example.Late")));
    }

    void knowsAnInstalledProgram() {
        const QTemporaryDir prefix;
        const QString program = prefix.filePath(QStringLiteral("bin/norvin-focus"));
        const GioDesktopEntries entries;
        const GioApplicationCatalog catalog(entries, program);
        writeFile(program, "");
        QVERIFY(!catalog.isOwnApplicationInstalled());
        writeFile(prefix.filePath(QStringLiteral("share/applications/com.norvin.Focus.desktop")), "");
        QVERIFY(catalog.isOwnApplicationInstalled());
        const GioApplicationCatalog built(entries, prefix.filePath(QStringLiteral("build/norvin-focus")));
        QVERIFY(!built.isOwnApplicationInstalled());
    }

private:
    void install(const char* id, const QByteArray& content) const {
        writeFile(QStringLiteral("%1/applications/%2.desktop").arg(m_dataHome, QString::fromLatin1(id)),
                  content);
    }

    QString m_dataHome;
};

int main(int argc, char** argv) {
    // Read once by GIO, so set before anything asks it.
    const QTemporaryDir data;
    qputenv("XDG_DATA_HOME", data.filePath(QStringLiteral("home")).toLocal8Bit());
    qputenv("XDG_DATA_DIRS", data.filePath(QStringLiteral("system")).toLocal8Bit());
    QCoreApplication application(argc, argv);
    ApplicationCatalogTest test(data.filePath(QStringLiteral("home")));
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ApplicationCatalog.moc"
