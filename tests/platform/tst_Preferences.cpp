#include "platform/Log.h"
#include "platform/fake/FakePreferences.h"
#include "platform/linux/settings/IniPreferences.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
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

QByteArray readFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class PreferencesTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        m_directory = std::make_unique<QTemporaryDir>();
        m_log.clear();
        setLogSink([this](const QString& line) { m_log.append(line); });
    }

    void cleanup() { setLogSink({}); }

    void storesForgetsAndAnnounces_data() {
        QTest::addColumn<bool>("real");
        QTest::newRow("FakePreferences") << false;
        QTest::newRow("IniPreferences") << true;
    }
    void storesForgetsAndAnnounces() {
        QFETCH(bool, real);
        const std::unique_ptr<Preferences> preferences =
            real ? std::unique_ptr<Preferences>(std::make_unique<IniPreferences>(path()))
                 : std::make_unique<FakePreferences>();
        QSignalSpy changed(preferences.get(), &Preferences::changed);
        QVERIFY(!preferences->value(QStringLiteral("tick_sound_type")));

        preferences->setValue(QStringLiteral("tick_sound_type"), QStringLiteral("été, \"Zwölf\" = ;%\n"));
        preferences->setValue(QStringLiteral("tick_sound_volume"), 0.25);
        preferences->setValue(QStringLiteral("tick_sound_enabled"), false);
        preferences->setValue(QStringLiteral("inactivity_threshold_minutes"), 7);
        QCOMPARE(changed.size(), 4);
        QCOMPARE(changed.at(1).at(0).toString(), QStringLiteral("tick_sound_volume"));

        preferences->remove(QStringLiteral("inactivity_threshold_minutes"));
        preferences->remove(QStringLiteral("never_stored"));
        QCOMPARE(changed.size(), 5);
        QVERIFY(!preferences->value(QStringLiteral("inactivity_threshold_minutes")));
        QCOMPARE(preferences->value(QStringLiteral("tick_sound_type"))->toString(),
                 QStringLiteral("été, \"Zwölf\" = ;%\n"));
        QCOMPARE(preferences->value(QStringLiteral("tick_sound_volume"))->toDouble(), 0.25);
        QCOMPARE(preferences->value(QStringLiteral("tick_sound_enabled"))->toBool(), false);
        if (real) {
            QVERIFY(readFile(path()).contains("\ntick_sound_volume=0.25\n"));
            QVERIFY(!readFile(path()).contains("inactivity_threshold_minutes"));
        }
    }

    void keepsListsAndMaps_data() {
        QTest::addColumn<QStringList>("list");
        QTest::newRow("none") << QStringList();
        QTest::newRow("one") << QStringList{QStringLiteral("org.mozilla.firefox")};
        QTest::newRow("several") << QStringList{QStringLiteral("a, b"), QStringLiteral("@c;\"d\""),
                                                QString()};
    }
    void keepsListsAndMaps() {
        QFETCH(QStringList, list);
        const QString json = QStringLiteral("{\"org.mozilla.firefox\":[\"example.org\",\"a,b\"]}");
        {
            IniPreferences preferences(path());
            preferences.setValue(QStringLiteral("NorvinBlockedApps"), list);
            preferences.setValue(QStringLiteral("NorvinBrowserBlockedSites"), json);
            QCOMPARE(preferences.value(QStringLiteral("NorvinBlockedApps"))->toStringList(), list);
        }
        const IniPreferences reopened(path());
        QVERIFY(reopened.value(QStringLiteral("NorvinBlockedApps")).has_value());
        QCOMPARE(reopened.value(QStringLiteral("NorvinBlockedApps"))->toStringList(), list);
        QCOMPARE(reopened.value(QStringLiteral("NorvinBrowserBlockedSites"))->toString(), json);
    }

    void setsADamagedFileAside_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("zeros after a power cut") << QByteArray(512, '\0');
        QTest::newRow("text without a key") << QByteArray("app_language=en\nthis is no setting\n");
    }
    void setsADamagedFileAside() {
        QFETCH(QByteArray, content);
        writeFile(path() + QStringLiteral(".damaged"), "an older one");
        writeFile(path(), content);
        {
            IniPreferences preferences(path());
            QVERIFY(!preferences.value(QStringLiteral("app_language")));
            QCOMPARE(m_log.size(), 1);
            QVERIFY(m_log.first().startsWith(QLatin1String("IniPreferences: ")));
            QCOMPARE(preferences.availability(),
                     Availability::unavailable(QStringLiteral("health_preferences_damaged"),
                                               path() + QStringLiteral(".damaged.2")));
            preferences.setValue(QStringLiteral("app_language"), QStringLiteral("fr"));
            QVERIFY(preferences.availability().isAvailable());
        }
        QCOMPARE(readFile(path() + QStringLiteral(".damaged.2")), content);
        QCOMPARE(readFile(path() + QStringLiteral(".damaged")), QByteArray("an older one"));
        QCOMPARE(IniPreferences(path()).value(QStringLiteral("app_language"))->toString(),
                 QStringLiteral("fr"));
        QCOMPARE(m_log.size(), 1);
    }

    void keepsValuesInMemoryWhileItCannotWrite() {
        // A file where the directory should be: nobody can write below it, not even root.
        const QString blocked = m_directory->filePath(QStringLiteral("blocked"));
        writeFile(blocked, "in the way");
        IniPreferences preferences(blocked + QStringLiteral("/preferences.ini"));
        preferences.setValue(QStringLiteral("app_language"), QStringLiteral("en"));
        preferences.setValue(QStringLiteral("tick_sound_type"), QStringLiteral("wood"));
        QCOMPARE(preferences.value(QStringLiteral("app_language"))->toString(), QStringLiteral("en"));
        QCOMPARE(m_log.size(), 1);
        QCOMPARE(preferences.availability().reason()->reasonKey,
                 QStringLiteral("health_preferences_unwritable"));

        QVERIFY(QFile::remove(blocked));
        QSignalSpy availabilityChanged(&preferences, &Preferences::availabilityChanged);
        preferences.setValue(QStringLiteral("tick_sound_volume"), 1);
        QCOMPARE(availabilityChanged.size(), 1);
        QVERIFY(preferences.availability().isAvailable());
        const QByteArray content = readFile(blocked + QStringLiteral("/preferences.ini"));
        QVERIFY2(content.contains("app_language=en") && content.contains("tick_sound_type=wood"),
                 content.constData());
        QCOMPARE(m_log.size(), 1);
    }

private:
    [[nodiscard]] QString path() const {
        return m_directory->filePath(QStringLiteral("norvin-focus/preferences.ini"));
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    QStringList m_log;
};

QTEST_GUILESS_MAIN(PreferencesTest)
#include "tst_Preferences.moc"
