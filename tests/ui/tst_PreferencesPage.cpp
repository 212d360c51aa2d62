#include "platform/fake/FakeAutostart.h"
#include "platform/fake/FakeOverlaySupport.h"
#include "platform/fake/FakeUpdateSource.h"
#include "services/OutsideServices.h"
#include "settings/BackupService.h"
#include "settings/DataSettings.h"
#include "tests/model/StoreFixture.h"
#include "tests/ui/UiRig.h"

using namespace norvin;

/// The preferences by keyboard and pointer, in both languages.
class PreferencesPageTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        rig->userInterface.reset(); // before what it shows
        parts.reset();
        rig.reset();
    }
    void everyPaneIsWhole_data();
    void everyPaneIsWhole();
    void settingsCountAtOnce();
    void aBackupIsMadeAndRestored_data() { UiRig::addLanguages(); }
    void aBackupIsMadeAndRestored();
    void erasingWantsTheWord_data();
    void erasingWantsTheWord();
    void aLostStoreIsOfferedOnEveryPage_data() { UiRig::addLanguages(); }
    void aLostStoreIsOfferedOnEveryPage();
    void whatTheDesktopLacksIsNotOffered();

private:
    /// What the page has beside the window's own.
    struct Parts {
        explicit Parts(UiRig& rig)
            : container(test::container(ModelContainer::openOrRecreate(store.file())))
            , service(rig.focus.clock, store.file())
            , data(service, container->opening(), rig.focus.timer, rig.focus.preferences)
            , updater(source)
            , feedback(QStringLiteral("https://example.org"), rig.focus.preferences, rig.focus.clock)
            , license({}, {.preferences = rig.focus.preferences,
                           .clock = rig.focus.clock,
                           .file = store.folder() + QStringLiteral("/licence"),
                           .oldestRecord = {}}) {
            test::addTask(container->mainContext(), QStringLiteral("Task"));
            container->mainContext().insert(test::sessionOf(nullptr, test::morning));
            static_cast<void>(container->mainContext().save());
        }
        test::StoreFixture store;
        std::unique_ptr<ModelContainer> container;
        BackupService service;
        DataSettings data;
        FakeAutostart autostart;
        FakeOverlaySupport overlays;
        FakeUpdateSource source;
        UpdaterService updater;
        FeedbackForm feedback;
        LicenseService license;
        OutsideServices outside{updater, feedback, license};
    };
    void begin(const QString& language = QStringLiteral("en")) {
        rig = std::make_unique<UiRig>(language);
        QVERIFY2(rig->loaded, qPrintable(rig->focus.lines.join(u'\n')));
        parts = std::make_unique<Parts>(*rig);
        rig->preferences.setCompanions({.autostart = &parts->autostart,
                                        .overlays = &parts->overlays,
                                        .ambientSounds = &rig->ambientSounds,
                                        .immersion = &rig->immersion,
                                        .outside = &parts->outside,
                                        .data = &parts->data});
    }
    void showPane(int number) const {
        rig->show();
        rig->showPage(UiRig::Page::preferences);
        QTRY_VERIFY(rig->hasKeyboard("preferencesPane"));
        for (int presses = 0; presses < number; ++presses)
            rig->press(Qt::Key_Right);
    }
    std::unique_ptr<UiRig> rig;
    std::unique_ptr<Parts> parts;
};

void PreferencesPageTest::everyPaneIsWhole_data() {
    UiRig::addLanguages();
}

void PreferencesPageTest::everyPaneIsWhole() {
    QFETCH(QString, language);
    begin(language);
    rig->preferences.setProfileName(QStringLiteral("Ada"));
    for (const int daysAgo : {0, 1, 2}) {
        const QString file =
            parts->service.folder().fileFor(daysAgo == 1 ? BackupKind::beforeRestore : BackupKind::daily,
                                            rig->focus.clock.now().addDays(-daysAgo));
        QVERIFY(!copyStoreFile(parts->store.file(), file));
    }
    showPane(0);
    QTRY_COMPARE(parts->data.backups()->count(), 3);
    const QStringList panes{QStringLiteral("general"), QStringLiteral("session"), QStringLiteral("sound"),
                            QStringLiteral("data"), QStringLiteral("program")};
    for (const QString& pane : panes) {
        rig->checkTexts(QStringLiteral("preferences-") + pane);
        QQuickItem* scroll = rig->visible("preferencesScroll");
        const double height = scroll->property("contentHeight").toDouble();
        if (height > scroll->height()) {
            QMetaObject::invokeMethod(scroll, "scrollTo", Q_ARG(double, height));
            rig->checkTexts(QStringLiteral("preferences-%1-below").arg(pane));
        }
        rig->press(Qt::Key_Right);
    }
}

void PreferencesPageTest::settingsCountAtOnce() {
    begin();
    showPane(0);
    rig->tabTo("profileName");
    rig->type(QStringLiteral("Ada"));
    QCOMPARE(rig->preferences.profileName(), QStringLiteral("Ada"));
    rig->tabTo("autostartSwitch");
    rig->press(Qt::Key_Space);
    QVERIFY(parts->autostart.isEnabled());
    parts->autostart.setAvailability(Availability::unavailable(QStringLiteral("autostart_unwritable")));
    rig->press(Qt::Key_Space);
    QTRY_VERIFY(rig->visible("autostartProblem"));
    QVERIFY(rig->visible("autostartSwitch")->property("checked").toBool());
    rig->showPage(UiRig::Page::deepWork);
    showPane(1);
    rig->tabTo("inactivityThreshold");
    rig->press(Qt::Key_Right);
    QCOMPARE(rig->focus.motion.threshold(), std::chrono::minutes(5));
    rig->tabTo("floatingTimerSwitch");
    rig->press(Qt::Key_Space);
    QVERIFY(!rig->preferences.hasFloatingTimer());
    rig->tabTo("openBlockLists");
    rig->press(Qt::Key_Return);
    QTRY_COMPARE(rig->window()->property("page").toInt(), static_cast<int>(UiRig::Page::blockLists));

    // The language changes under the page.
    rig->showPage(UiRig::Page::preferences);
    rig->press(Qt::Key_Left);
    rig->tabTo("preferencesLanguage");
    rig->press(Qt::Key_Left);
    QTRY_VERIFY(rig->saying(QStringLiteral("Préférences")));
    QSignalSpy welcome(&rig->preferences, &PreferencesScreen::welcomeWanted);
    rig->tabTo("welcomeAgain");
    rig->press(Qt::Key_Return);
    QCOMPARE(welcome.size(), 1);
}

void PreferencesPageTest::aBackupIsMadeAndRestored() {
    QFETCH(QString, language);
    begin(language);
    showPane(3);
    rig->tabTo("backUpNow");
    rig->press(Qt::Key_Space);
    QTRY_COMPARE(parts->data.backups()->count(), 1);
    QVERIFY(rig->visible("dataNotice"));
    rig->tabTo("backupList");
    rig->press(Qt::Key_Return);
    QTRY_VERIFY(rig->saying(qtTrId("restore_title")));
    rig->checkTexts(QStringLiteral("preferences-restore"));
    rig->press(Qt::Key_Escape);
    QTRY_VERIFY(!rig->saying(qtTrId("restore_title")));
    QTRY_VERIFY(rig->hasKeyboard("backupList"));
    QSignalSpy restart(&parts->data, &DataSettings::restartWanted);
    rig->press(Qt::Key_Return);
    QTRY_VERIFY(rig->saying(qtTrId("restore_button")));
    QTRY_VERIFY(rig->focusName().startsWith(QLatin1String("PushButton")));
    rig->press(Qt::Key_Tab);
    rig->press(Qt::Key_Return);
    QTRY_COMPARE(restart.size(), 1);

    // While a phase is under way, nothing leads there.
    rig->focus.timer.startSession(nullptr, PomodoroPhase::work);
    rig->press(Qt::Key_Return);
    QVERIFY(!rig->saying(qtTrId("restore_title")));
    QVERIFY(!rig->visible("eraseButton")->isEnabled());
}

void PreferencesPageTest::erasingWantsTheWord_data() {
    QTest::addColumn<QString>("language");
    for (const char* language : {"en", "fr"}) // what can be typed
        QTest::newRow(language) << QString::fromLatin1(language);
}

void PreferencesPageTest::erasingWantsTheWord() {
    QFETCH(QString, language);
    begin(language);
    showPane(3);
    rig->tabTo("eraseButton");
    rig->press(Qt::Key_Space);
    QTRY_VERIFY(rig->hasKeyboard("eraseWord"));
    QSignalSpy restart(&parts->data, &DataSettings::restartWanted);
    const QString word = parts->data.eraseWord();
    rig->type(word.chopped(1));
    rig->press(Qt::Key_Return);
    QVERIFY(!rig->visible("eraseConfirm")->isEnabled());
    rig->type(word.last(1));
    QVERIFY(rig->visible("eraseConfirm")->isEnabled());
    rig->checkTexts(QStringLiteral("preferences-erase"));
    rig->tabTo("eraseBackups");
    rig->press(Qt::Key_Space);
    rig->tabTo("eraseConfirm");
    QCOMPARE(restart.size(), 0);
    rig->press(Qt::Key_Return);
    QCOMPARE(restart.size(), 1);
}

void PreferencesPageTest::aLostStoreIsOfferedOnEveryPage() {
    QFETCH(QString, language);
    begin(language);
    const QString file = parts->service.folder().fileFor(BackupKind::daily, rig->focus.clock.now());
    QVERIFY(!copyStoreFile(parts->store.file(), file));
    DataSettings lost(parts->service,
                      {.replacement = {}, .lossReason = QStringLiteral("file is not a database")},
                      rig->focus.timer, rig->focus.preferences);
    rig->preferences.setCompanions({.data = &lost});
    rig->show();
    QTRY_VERIFY(rig->visible("startNotice"));
    rig->checkTexts(QStringLiteral("preferences-lost"));
    QSignalSpy restart(&lost, &DataSettings::restartWanted);
    rig->click(rig->saying(qtTrId("data_restore_button")));
    QTRY_COMPARE(restart.size(), 1);
    rig->userInterface.reset(); // before what it shows
}

void PreferencesPageTest::whatTheDesktopLacksIsNotOffered() {
    begin();
    parts->overlays.setAvailability(Availability::unavailable(QStringLiteral("health_wayland_overlay")));
    showPane(1);
    QTRY_VERIFY(rig->visible("floatingTimerSwitch"));
    QVERIFY(!rig->visible("floatingTimerSwitch")->isEnabled());
    QVERIFY(
        rig->saying(qtTrId("floating_timer_unavailable") + u' ' + qtTrId("health_wayland_overlay_remedy")));
}

QTEST_MAIN(PreferencesPageTest)
#include "tst_PreferencesPage.moc"
