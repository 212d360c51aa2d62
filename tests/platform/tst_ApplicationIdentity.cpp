#include "platform/linux/identity/ApplicationIdentity.h"
#include "platform/linux/identity/BundleIdentifiers.h"
#include "platform/linux/identity/ProcessFacts.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <utility>

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

    void mapsEveryNameOfAKnownBrowser() {
        const std::pair<const char*, const char*> names[] = {
            {"chromium", "com.google.Chrome"},
            {"org.chromium.Chromium", "com.google.Chrome"},
            {"firefox-esr", "org.mozilla.firefox"},
            {"firefox_firefox", "org.mozilla.firefox"},
            {"microsoft-edge", "com.microsoft.edgemac"},
            {"com.brave.Browser", "com.brave.Browser"},
            {"com.opera.Opera", "com.operasoftware.Opera"},
            {"vivaldi-stable", "com.vivaldi.Vivaldi"},
            {"org.gnome.TextEditor", "org.gnome.TextEditor"},
        };
        for (const auto& [desktopId, identifier] : names)
            QCOMPARE(bundleIdentifierForDesktopId(QString::fromLatin1(desktopId)), QLatin1String(identifier));
    }

    void declaresTheMostTellingCategory() {
        const std::pair<const char*, const char*> categories[] = {
            {"Utility;TextEditor;Development;IDE", "public.app-category.developer-tools"},
            {"GNOME;System;TerminalEmulator", "public.app-category.developer-tools"},
            {"Network;InstantMessaging", "public.app-category.communication"},
            {"Network;FileTransfer;Game", "public.app-category.games"},
            {"AudioVideo;Player;Video", "public.app-category.video"},
            {"Network;WebBrowser;Utility", ""},
            {"Qt;KDE", ""},
        };
        for (const auto& [list, declared] : categories) {
            const QStringList names = QString::fromLatin1(list).split(QLatin1Char(';'));
            QCOMPARE(declaredCategoryForCategories(names).value_or(QString()), QLatin1String(declared));
        }
    }

    void findsTheEntry_data() {
        QTest::addColumn<QString>("applicationId");
        QTest::addColumn<QString>("instance");
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("identifier");
        const auto row = [](const char* name, const char* applicationId, const char* instance,
                            const char* className, const char* identifier) {
            QTest::newRow(name) << QString::fromLatin1(applicationId) << QString::fromLatin1(instance)
                                << QString::fromLatin1(className) << QString::fromLatin1(identifier);
        };
        row("application id", "org.gnome.Maps", "gnome-maps", "Gnome-maps", "org.gnome.Maps");
        row("declared class, other case", "", "Navigator", "Firefox-ESR", "org.mozilla.firefox");
        row("desktop id", "", "gvim", "Gvim", "gvim");
        row("last segment", "", "nautilus", "Nautilus", "org.gnome.Nautilus");
        row("web application of a browser", "", "crx_abc", "Chromium", "chrome-abc");
        row("the browser itself", "", "chromium (/other/profile)", "Chromium", "com.google.Chrome");
        row("hidden entry", "", "helper", "Helper", "org.example.Helper");
        row("shown before hidden", "", "twice", "Twice", "shown-twice");
        row("two alike are no answer", "", "writer", "Suite", "suite");
        row("no entry", "", "xclock", "XClock", "xclock");
        row("no entry, known browser", "", "brave-browser", "Brave-browser", "com.brave.Browser");
        row("no entry, application id", "org.Example.Thing", "", "", "org.Example.Thing");
        row("nothing", "", "", "", "");
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
