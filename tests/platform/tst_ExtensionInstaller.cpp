#include "platform/linux/webextension/ExtensionInstaller.h"
#include "platform/linux/webextension/ExtensionPackage.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace norvin;

namespace {

using State = ExtensionInstaller::State;

void writeFile(const QString& path, const QByteArray& content) {
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray readFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class ExtensionInstallerTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        m_directory = std::make_unique<QTemporaryDir>();
        m_places.home = path("home");
        m_places.configHome = path("config");
        m_places.packages = path("data/norvin-focus/extension");
        m_places.hostProgram = path("libexec/norvin-focus-browser-host");
        m_places.firefoxSystem = {path("system/extensions")};
        writeFile(m_places.hostProgram, "#!/bin/sh\n");
        QFile::setPermissions(m_places.hostProgram, QFile::ReadOwner | QFile::ExeOwner);
    }

    void leavesNothingBehind_data() {
        QTest::addColumn<ExtensionBrowser>("browser");
        QTest::addColumn<QString>("manifest");
        QTest::addColumn<State>("state");
        QTest::addColumn<QString>("address");
        const auto add = [](const char* name, ExtensionBrowser browser, const char* manifest, State state,
                            const char* address) {
            QTest::newRow(name) << browser << QString::fromLatin1(manifest) << state
                                << QString::fromLatin1(address);
        };
        using enum ExtensionBrowser;
        add("Firefox", firefox, "home/.mozilla/native-messaging-hosts", State::needsStep,
            "system/extensions");
        add("Chromium", chromium, "config/chromium/NativeMessagingHosts", State::activeAfterRestart, "");
        add("Chrome", chrome, "config/google-chrome/NativeMessagingHosts", State::needsStep,
            "chrome://extensions");
        add("Edge", edge, "config/microsoft-edge/NativeMessagingHosts", State::needsStep,
            "edge://extensions");
        add("Brave", brave, "config/BraveSoftware/Brave-Browser/NativeMessagingHosts", State::needsStep,
            "brave://extensions");
        add("Vivaldi", vivaldi, "config/vivaldi/NativeMessagingHosts", State::needsStep,
            "vivaldi://extensions");
        add("Opera", opera, "config/opera/NativeMessagingHosts", State::needsStep, "opera://extensions");
    }
    void leavesNothingBehind() {
        QFETCH(ExtensionBrowser, browser);
        QFETCH(QString, manifest);
        QFETCH(QString, address);
        const QString other = path("config/chromium/External Extensions/other.json");
        writeFile(other, "{}");
        const QStringList before = allFiles();
        ExtensionInstaller installer(m_places);
        QVERIFY(!installer.isInstalled(browser));

        const ExtensionInstaller::Result result = installer.install(browser);
        QTEST(result.state, "state");
        QVERIFY(installer.isInstalled(browser));
        QVERIFY2(result.address == address || result.address.endsWith(QLatin1Char('/') + address),
                 qPrintable(result.address));
        if (result.state == State::needsStep)
            QVERIFY2(QFileInfo::exists(result.detail), qPrintable(result.detail));
        const QString file = path(manifest + QStringLiteral("/com.norvin.focus.json"));
        const QJsonObject content = QJsonDocument::fromJson(readFile(file)).object();
        QCOMPARE(content.value(QLatin1String("name")).toString(), QStringLiteral("com.norvin.focus"));
        QCOMPARE(content.value(QLatin1String("path")).toString(), m_places.hostProgram);
        QCOMPARE(content.value(QLatin1String("type")).toString(), QStringLiteral("stdio"));
        const bool isFirefox = browser == ExtensionBrowser::firefox;
        QCOMPARE(content.contains(QLatin1String("allowed_extensions")), isFirefox);
        QCOMPARE(content.contains(QLatin1String("allowed_origins")), !isFirefox);

        QCOMPARE(installer.remove(browser).state, State::removed);
        QVERIFY(!installer.isInstalled(browser));
        QCOMPARE(allFiles(), before);
        QCOMPARE(installer.remove(browser).state, State::removed);
    }

    void namesThePackageThatChromiumGets() {
        ExtensionInstaller installer(m_places);
        QCOMPARE(installer.install(ExtensionBrowser::chromium).state, State::activeAfterRestart);
        const auto packages = [this] {
            return QDir(m_places.packages + QStringLiteral("/chromium")).entryList(QDir::Files);
        };
        QCOMPARE(packages().size(), 1);
        const QString name = packages().first();
        const QString id = name.section(QLatin1Char('.'), 0, 0);
        const QString external = path("config/chromium/External Extensions/") + id + QStringLiteral(".json");
        QCOMPARE(QJsonDocument::fromJson(readFile(external))
                     .object()
                     .value(QLatin1String("external_crx"))
                     .toString(),
                 m_places.packages + QStringLiteral("/chromium/") + name);
        const QString manifest = path("config/chromium/NativeMessagingHosts/com.norvin.focus.json");
        QVERIFY(readFile(manifest).contains("chrome-extension://" + id.toLatin1() + "/"));

        // Again, after the program has moved: the same package, the new path.
        m_places.hostProgram = path("moved/norvin-focus-browser-host");
        QVERIFY(QDir().mkpath(path("moved")));
        QVERIFY(QFile::rename(path("libexec/norvin-focus-browser-host"), m_places.hostProgram));
        QCOMPARE(ExtensionInstaller(m_places).install(ExtensionBrowser::chromium).state,
                 State::activeAfterRestart);
        QCOMPARE(packages(), QStringList{name});
        QVERIFY(readFile(manifest).contains(m_places.hostProgram.toUtf8()));

        // A package of other content gives way to a new one, and so does what names it.
        writeFile(m_places.packages + QStringLiteral("/chromium/") + name, "older");
        QCOMPARE(ExtensionInstaller(m_places).install(ExtensionBrowser::chromium).state,
                 State::activeAfterRestart);
        QCOMPARE(packages().size(), 1);
        QVERIFY(packages().first() != name);
        QVERIFY(!QFileInfo::exists(external));
    }

    void knowsWhatAnAdministratorDid() {
        ExtensionInstaller installer(m_places);
        const auto result = installer.install(ExtensionBrowser::firefox);
        QCOMPARE(result.state, State::needsStep);
        QVERIFY(QDir().mkpath(result.address));
        QVERIFY(QFile::copy(result.detail,
                            result.address + QLatin1Char('/') + QFileInfo(result.detail).fileName()));
        QCOMPARE(installer.install(ExtensionBrowser::firefox).state, State::activeAfterRestart);
    }

    void sharesTheUnpackedExtension() {
        ExtensionInstaller installer(m_places);
        const QString directory = installer.install(ExtensionBrowser::brave).detail;
        QCOMPARE(installer.install(ExtensionBrowser::opera).detail, directory);
        QCOMPARE(installer.remove(ExtensionBrowser::brave).state, State::removed);
        QVERIFY(QFileInfo::exists(directory + QStringLiteral("/manifest.json")));
        QCOMPARE(installer.remove(ExtensionBrowser::opera).state, State::removed);
        QVERIFY(!QFileInfo::exists(directory));
    }

    void leavesOthersFilesAlone() {
        ExtensionInstaller installer(m_places);
        const QString manifest = path("home/.mozilla/native-messaging-hosts/com.norvin.focus.json");
        writeFile(manifest, R"({"name":"com.norvin.focus","path":"/opt/other/program"})");
        const QStringList before = allFiles();
        const auto result = installer.install(ExtensionBrowser::firefox);
        QCOMPARE(result.state, State::failed);
        QCOMPARE(result.sentenceKey, QStringLiteral("extension_foreign_file"));
        QCOMPARE(result.detail, manifest);
        QVERIFY(!installer.isInstalled(ExtensionBrowser::firefox));
        QCOMPARE(installer.remove(ExtensionBrowser::firefox).state, State::removed);
        QCOMPARE(allFiles(), before);
    }

    void takesBackWhatItCouldNotFinish() {
        // A file where the directory of the manifest should be: nobody can write below it, not even root.
        writeFile(path("config/chromium/NativeMessagingHosts"), "in the way");
        const QStringList before = allFiles();
        ExtensionInstaller installer(m_places);
        const auto result = installer.install(ExtensionBrowser::chromium);
        QCOMPARE(result.state, State::failed);
        QCOMPARE(result.sentenceKey, QStringLiteral("extension_not_written"));
        QCOMPARE(allFiles(), before);

        m_places.hostProgram.clear();
        QCOMPARE(ExtensionInstaller(m_places).install(ExtensionBrowser::chrome).sentenceKey,
                 QStringLiteral("extension_host_missing"));
        QCOMPARE(allFiles(), before);
    }

    void packsWhatOthersCanUnpack() {
        const QList<ExtensionFile> files = extensionFiles();
        QVERIFY(files.size() >= 2);
        const QString archive = path("extension.zip");
        writeFile(archive, zipArchive(files));
        QProcess python;
        python.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral("-m"), QStringLiteral("zipfile"),
                                                          QStringLiteral("-e"), archive, path("unpacked")});
        QVERIFY(python.waitForFinished());
        QCOMPARE(python.exitCode(), 0);
        for (const ExtensionFile& file : files)
            QCOMPARE(readFile(path("unpacked/") + file.path), file.content);
    }

private:
    [[nodiscard]] QString path(const char* name) const {
        return m_directory->filePath(QString::fromLatin1(name));
    }
    [[nodiscard]] QString path(const QString& name) const { return m_directory->filePath(name); }
    [[nodiscard]] QStringList allFiles() const {
        QStringList files;
        for (QDirIterator entry(m_directory->path(), QDir::Files, QDirIterator::Subdirectories);
             entry.hasNext();)
            files.append(entry.next());
        files.sort();
        return files;
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    ExtensionPlaces m_places;
};

QTEST_GUILESS_MAIN(ExtensionInstallerTest)
#include "tst_ExtensionInstaller.moc"
