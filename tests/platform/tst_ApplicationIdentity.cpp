#include "platform/linux/identity/ApplicationIdentity.h"
#include "platform/linux/identity/BundleIdentifiers.h"
#include "platform/linux/identity/ProcessFacts.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace norvin;

namespace {

class Entries final : public DesktopEntrySource {
public:
    [[nodiscard]] const std::vector<DesktopEntry>& entries() const override { return list; }
    [[nodiscard]] quint64 generation() const override { return number; }

    std::vector<DesktopEntry> list;
    quint64 number = 1;
};

DesktopEntry entry(const char* id, const char* windowClass, const char* command, bool shown = true) {
    DesktopEntry result;
    result.id = QString::fromLatin1(id);
    result.name = QStringLiteral("Name of ") + result.id;
    result.windowClass = QString::fromLatin1(windowClass);
    result.command = QString::fromLatin1(command).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    result.shown = shown;
    return result;
}

} // namespace

class ApplicationIdentityTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { m_processes = std::make_unique<QTemporaryDir>(); }

    void mapsEveryNameOfAKnownBrowser_data() {
        QTest::addColumn<QString>("desktopId");
        QTest::addColumn<QString>("identifier");
        const auto row = [](const char* id, const char* identifier) {
            QTest::newRow(id) << QString::fromLatin1(id) << QString::fromLatin1(identifier);
        };
        row("chromium", "com.google.Chrome");
        row("org.chromium.Chromium", "com.google.Chrome");
        row("google-chrome", "com.google.Chrome");
        row("firefox-esr", "org.mozilla.firefox");
        row("firefox_firefox", "org.mozilla.firefox");
        row("org.mozilla.Firefox", "org.mozilla.firefox");
        row("microsoft-edge", "com.microsoft.edgemac");
        row("com.brave.Browser", "com.brave.Browser");
        row("com.opera.Opera", "com.operasoftware.Opera");
        row("vivaldi-stable", "com.vivaldi.Vivaldi");
        row("org.gnome.Epiphany", "org.gnome.Epiphany");
        row("org.gnome.TextEditor", "org.gnome.TextEditor");
    }
    void mapsEveryNameOfAKnownBrowser() {
        QFETCH(QString, desktopId);
        QTEST(bundleIdentifierForDesktopId(desktopId), "identifier");
    }

    void declaresTheMostTellingCategory_data() {
        QTest::addColumn<QString>("categories");
        QTest::addColumn<QString>("declared");
        QTest::newRow("editor for programs") << "Utility;TextEditor;Development;IDE"
                                             << "public.app-category.developer-tools";
        QTest::newRow("terminal") << "GNOME;System;TerminalEmulator"
                                  << "public.app-category.developer-tools";
        QTest::newRow("chat") << "Network;InstantMessaging"
                              << "public.app-category.communication";
        QTest::newRow("game shop") << "Network;FileTransfer;Game"
                                   << "public.app-category.games";
        QTest::newRow("photo tool") << "Graphics;Photography"
                                    << "public.app-category.photography";
        QTest::newRow("player") << "AudioVideo;Player;Video"
                                << "public.app-category.video";
        QTest::newRow("office") << "Office"
                                << "public.app-category.productivity";
        QTest::newRow("browser") << "Network;WebBrowser;Utility"
                                 << "";
        QTest::newRow("toolkit only") << "Qt;KDE"
                                      << "";
    }
    void declaresTheMostTellingCategory() {
        QFETCH(QString, categories);
        QTEST(declaredCategoryForCategories(categories.split(QLatin1Char(';'))).value_or(QString()),
              "declared");
    }

    void findsTheEntry_data() {
        QTest::addColumn<QString>("applicationId");
        QTest::addColumn<QString>("instance");
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("identifier");
        QTest::newRow("application id") << "org.gnome.Maps"
                                        << "gnome-maps"
                                        << "Gnome-maps"
                                        << "org.gnome.Maps";
        QTest::newRow("declared class, other case") << ""
                                                    << "Navigator"
                                                    << "Firefox-ESR"
                                                    << "org.mozilla.firefox";
        QTest::newRow("desktop id") << ""
                                    << "gvim"
                                    << "Gvim"
                                    << "gvim";
        QTest::newRow("last segment") << ""
                                      << "nautilus"
                                      << "Nautilus"
                                      << "org.gnome.Nautilus";
        QTest::newRow("web application of a browser") << ""
                                                      << "crx_abc"
                                                      << "Chromium"
                                                      << "chrome-abc";
        QTest::newRow("the browser itself") << ""
                                            << "chromium (/other/profile)"
                                            << "Chromium"
                                            << "com.google.Chrome";
        QTest::newRow("hidden entry") << ""
                                      << "helper"
                                      << "Helper"
                                      << "org.example.Helper";
        QTest::newRow("shown before hidden") << ""
                                             << "twice"
                                             << "Twice"
                                             << "shown-twice";
        QTest::newRow("two alike are no answer") << ""
                                                 << "writer"
                                                 << "Suite"
                                                 << "suite";
        QTest::newRow("no entry") << ""
                                  << "xclock"
                                  << "XClock"
                                  << "xclock";
        QTest::newRow("no entry, known browser") << ""
                                                 << "brave-browser"
                                                 << "Brave-browser"
                                                 << "com.brave.Browser";
        QTest::newRow("no entry, application id") << "org.Example.Thing"
                                                  << ""
                                                  << ""
                                                  << "org.Example.Thing";
        QTest::newRow("nothing") << ""
                                 << ""
                                 << ""
                                 << "";
    }
    void findsTheEntry() {
        QFETCH(QString, applicationId);
        QFETCH(QString, instance);
        QFETCH(QString, className);
        Entries entries;
        entries.list = sampleEntries();
        const ApplicationIdentity identity(entries, m_processes->path());
        QTEST(identity.identify({applicationId, instance, className, 0}).bundleIdentifier, "identifier");
    }

    void findsTheEntryByTheProcess() {
        Entries entries;
        entries.list = sampleEntries();
        const ApplicationIdentity identity(entries, m_processes->path());
        const auto identifierOf = [&](qint64 pid, const char* className = "") {
            return identity.identify({{}, {}, QString::fromLatin1(className), pid}).bundleIdentifier;
        };

        addProcess(10, "/usr/bin/gnome-maps", "gnome-maps");
        QCOMPARE(identifierOf(10), QStringLiteral("org.gnome.Maps"));
        addProcess(11, "/opt/tool/tool (deleted)", "tool");
        QCOMPARE(identifierOf(11), QStringLiteral("org.example.Tool"));

        // Scripts are not their interpreter.
        addProcess(12, "/usr/bin/python3.11", "/usr/bin/python3|-u|/usr/share/planner/planner.py");
        QCOMPARE(identifierOf(12), QStringLiteral("org.example.Planner"));
        addProcess(13, "/usr/bin/python3.11", "python3|/home/u/unknown.py");
        QCOMPARE(identifierOf(13), QStringLiteral("unknown.py"));
        QCOMPARE(identifierOf(13, "Tk"), QStringLiteral("unknown.py"));
        QCOMPARE(identifierOf(13, "Hamster"), QStringLiteral("hamster"));

        addProcess(14, "/app/bin/thing", "thing");
        addFile(14, "root/.flatpak-info", "[Instance]\nname=x\n[Application]\nname=org.gnome.Maps\n");
        QCOMPARE(identifierOf(14, "Gvim"), QStringLiteral("org.gnome.Maps"));
        addProcess(15, "/snap/firefox/1/usr/lib/firefox/firefox", "firefox");
        addFile(15, "cgroup",
                "0::/user.slice/snap.firefox.firefox-0f2e11aa-1111-2222-3333-444455556666.scope\n");
        QCOMPARE(identifierOf(15), QStringLiteral("org.mozilla.firefox"));

        const char* unit = "0::/user.slice/app.slice/app-gnome-org.gnome.Nautilus-4711.scope\n";
        addProcess(16, "/usr/libexec/worker", "worker");
        addFile(16, "cgroup", unit);
        QCOMPARE(identifierOf(16), QStringLiteral("org.gnome.Nautilus"));
        // Started by hand from a terminal: the unit is the terminal's.
        addProcess(17, "/home/u/game", "game", 34816);
        addFile(17, "cgroup", unit);
        QCOMPARE(identifierOf(17), QStringLiteral("game"));

        QCOMPARE(identifierOf(99), QString());
    }

    void readsUnitsOfApplications() {
        QCOMPARE(applicationIdsOfUnit(QStringLiteral("app-gnome-google\\x2dchrome-12.scope")).first(),
                 QStringLiteral("google-chrome"));
        QVERIFY(applicationIdsOfUnit(QStringLiteral("app-org.kde.dolphin@abc.service"))
                    .contains(QStringLiteral("org.kde.dolphin")));
        QVERIFY(applicationIdsOfUnit(QStringLiteral("session-2.scope")).isEmpty());
    }

    void followsChangedEntries() {
        Entries entries;
        const ApplicationIdentity identity(entries, m_processes->path());
        const WindowClues clues{{}, QStringLiteral("late"), QStringLiteral("Late"), 0};
        QCOMPARE(identity.identify(clues).localizedName, QStringLiteral("Late"));
        entries.list.push_back(entry("late", "", "late"));
        ++entries.number;
        QCOMPARE(identity.identify(clues).localizedName, QStringLiteral("Name of late"));
    }

private:
    static std::vector<DesktopEntry> sampleEntries() {
        std::vector<DesktopEntry> entries = {
            entry("org.gnome.Maps", "", "gapplication launch org.gnome.Maps"),
            entry("firefox-esr", "firefox-esr", "/usr/lib/firefox-esr/firefox-esr %u"),
            entry("gvim", "", "gvim -f %F"),
            entry("org.gnome.Nautilus", "", "nautilus --new-window %U"),
            entry("chromium", "chromium", "/usr/bin/chromium %U"),
            entry("chrome-abc", "crx_abc", "/usr/bin/chromium --app-id=abc"),
            entry("org.example.Helper", "helper", "helper", false),
            entry("hidden-twice", "twice", "twice", false),
            entry("shown-twice", "twice", "twice"),
            entry("suite-a", "suite", "suite --writer"),
            entry("suite-b", "suite", "suite --calc"),
            entry("org.example.Tool", "", "env LANG=C /opt/tool/tool --gui"),
            entry("org.example.Planner", "", "python3 /usr/share/planner/planner.py"),
        };
        entries.front().command = {QStringLiteral("gnome-maps")};
        return entries;
    }

    void addFile(int pid, const char* name, const QByteArray& content) const {
        const QString path =
            QStringLiteral("%1/%2/%3").arg(m_processes->path()).arg(pid).arg(QString::fromLatin1(name));
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    void addProcess(int pid, const char* executable, QByteArray commandLine, int terminal = 0) const {
        addFile(pid, "cmdline", commandLine.replace('|', '\0'));
        addFile(pid, "stat", QByteArray("1 (a ) b) S 1 1 1 ") + QByteArray::number(terminal) + " -1 0");
        QVERIFY(QFile::link(QString::fromLatin1(executable),
                            QStringLiteral("%1/%2/exe").arg(m_processes->path()).arg(pid)));
    }

    std::unique_ptr<QTemporaryDir> m_processes;
};

QTEST_GUILESS_MAIN(ApplicationIdentityTest)
#include "tst_ApplicationIdentity.moc"
