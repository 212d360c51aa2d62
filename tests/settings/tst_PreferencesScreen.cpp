#include "platform/fake/FakeAudioOutput.h"
#include "platform/fake/FakeAutostart.h"
#include "settings/PreferencesScreen.h"
#include "sound/TickSoundService.h"
#include "tests/model/StoreFixture.h"
#include "tests/support/FocusRig.h"

#include <QSignalSpy>
#include <QtTest>

using namespace norvin;
using namespace norvin::test;

/// The page's settings against those who read them.
class PreferencesScreenTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void inactivityIsWhatTheDetectorTakesItFor();
    void namesAreKeptTidy();
    void theDesktopHasTheLastWordOnAutostart();
    void companionsThatComeLaterSpeakTheLanguage();

private:
    FocusRig rig;
    FakeAudioOutput output{rig.clock};
    TickSoundService ticks{output, rig.preferences};
    TickSoundSettings tickSettings{ticks, output};
    PreferencesScreen screen{rig.preferences, tickSettings};
};

void PreferencesScreenTest::inactivityIsWhatTheDetectorTakesItFor() {
    const auto agrees = [this] {
        return std::chrono::minutes(screen.inactivityMinutes()) == rig.motion.threshold() &&
               screen.inactivityChoices().contains(screen.inactivityMinutes());
    };
    QVERIFY(screen.detectsInactivity());
    QVERIFY(agrees());
    QSignalSpy changed(&screen, &PreferencesScreen::inactivityChanged);
    // By hand, or by an earlier version.
    for (const QVariant& stored : {QVariant(7), QVariant(0), QVariant(-3), QVariant(QStringLiteral("?")),
                                   QVariant(QStringLiteral("20"))}) {
        rig.preferences.setValue(QStringLiteral("inactivity_threshold_minutes"), stored);
        QVERIFY2(agrees(), qPrintable(stored.toString()));
    }
    screen.setInactivityMinutes(5);
    QCOMPARE(rig.motion.threshold(), std::chrono::minutes(5));
    screen.setInactivityMinutes(0);
    QCOMPARE(rig.motion.threshold(), std::chrono::minutes(5));
    QCOMPARE(changed.size(), 6);

    rig.motion.startMonitoring();
    rig.idle.setTimeSinceLastInput(std::chrono::minutes(6));
    rig.pass(std::chrono::seconds(1));
    QVERIFY(rig.motion.isInactive());
    screen.setDetectsInactivity(false);
    rig.pass(std::chrono::seconds(1));
    QVERIFY(!rig.motion.isInactive());
}

void PreferencesScreenTest::namesAreKeptTidy() {
    screen.setProfileName(QStringLiteral("  Ada \n Lovelace "));
    QCOMPARE(screen.profileName(), QStringLiteral("Ada Lovelace"));
    screen.setProfileName(QStringLiteral("   "));
    QVERIFY(!rig.preferences.values().contains(QLatin1String(PreferencesScreen::profileNameKey)));
}

void PreferencesScreenTest::theDesktopHasTheLastWordOnAutostart() {
    screen.setStartsAtLogin(true);
    QVERIFY(!screen.startsAtLogin());
    FakeAutostart autostart;
    screen.setCompanions({.autostart = &autostart});
    QSignalSpy changed(&screen, &PreferencesScreen::autostartChanged);
    screen.setStartsAtLogin(true);
    QVERIFY(screen.startsAtLogin());
    QCOMPARE(screen.autostartProblemKey(), QString());
    autostart.setAvailability(Availability::unavailable(QStringLiteral("autostart_unwritable")));
    screen.setStartsAtLogin(false);
    QVERIFY(screen.startsAtLogin());
    QCOMPARE(screen.autostartProblemKey(), QStringLiteral("autostart_unwritable"));
    QCOMPARE(changed.size(), 3);
}

void PreferencesScreenTest::companionsThatComeLaterSpeakTheLanguage() {
    const StoreFixture store;
    const auto container = store.open();
    BackupService backups(rig.clock, store.file());
    DataSettings data(backups, container->opening(), rig.timer, rig.preferences);
    for (const QLocale& locale : {QLocale(QLocale::French), QLocale(QLocale::English)}) {
        screen.retranslate(locale);
        screen.setCompanions({.data = &data});
        screen.open();
        QTRY_COMPARE(data.sizeText(),
                     locale.formattedDataSize(QFileInfo(store.file()).size() +
                                                  QFileInfo(store.file() + QStringLiteral("-wal")).size(),
                                              1, QLocale::DataSizeTraditionalFormat));
    }
}

QTEST_GUILESS_MAIN(PreferencesScreenTest)
#include "tst_PreferencesScreen.moc"
