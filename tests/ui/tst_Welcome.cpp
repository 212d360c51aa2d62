#include "platform/fake/FakePreferences.h"
#include "tests/ui/UiRig.h"

using namespace norvin;

class WelcomeTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theDesktopsLanguageIsMet_data();
    void theDesktopsLanguageIsMet();
    void aLanguageIsStoredOnlyOnceItIsChosen();
    void itIsPassedThroughByKeyboardAlone();
    void everyStepCanBePassedOver();
    void leavingItKeepsWhatWasSaid();
    void itCanBeSeenAgainDuringASession();
    void everyStepCanBeRead_data();
    void everyStepCanBeRead();
};

void WelcomeTest::theDesktopsLanguageIsMet_data() {
    QTest::addColumn<QStringList>("desktop");
    QTest::addColumn<QString>("language");

    QTest::newRow("French of Canada") << QStringList{"fr-CA", "en-CA"} << "fr";
    QTest::newRow("the first that there is") << QStringList{"de-AT", "en-GB", "fr"} << "en";
    QTest::newRow("none of ours") << QStringList{"ja-JP"} << "en";
    QTest::newRow("a desktop without a language") << QStringList{"C"} << "";
}

void WelcomeTest::theDesktopsLanguageIsMet() {
    QFETCH(const QStringList, desktop);
    QTEST(languageForDesktop(desktop).value_or(QString()), "language");
}

void WelcomeTest::aLanguageIsStoredOnlyOnceItIsChosen() {
    FakePreferences preferences;
    Localization localization(preferences);
    QCOMPARE(localization.language(), QStringLiteral("fr"));
    QVERIFY(WelcomeScreen::isFirstLaunch(preferences));
    localization.preview(QStringLiteral("en"));
    QCOMPARE(qtTrId("welcome_next_button"), QStringLiteral("Next"));
    QVERIFY(!preferences.value(QLatin1String(Localization::preferencesKey)));
    // What is spoken already can be chosen as well.
    localization.setLanguage(QStringLiteral("en"));
    QCOMPARE(preferences.value(QLatin1String(Localization::preferencesKey))->toString(),
             QStringLiteral("en"));
    QVERIFY(!WelcomeScreen::isFirstLaunch(preferences));
}

void WelcomeTest::itIsPassedThroughByKeyboardAlone() {
    UiRig rig;
    rig.focus.preferences.remove(QLatin1String(Localization::preferencesKey));
    rig.browserAccess.setAccessibilityEnabled(false);
    rig.focus.catalog.install({.bundleIdentifier = QStringLiteral("org.example.Cards"),
                               .name = QStringLiteral("Cards"),
                               .iconName = {},
                               .declaredCategory = QStringLiteral("public.app-category.games")});
    rig.show();
    rig.welcome->present();
    QTRY_VERIFY(rig.hasKeyboard("welcomeLanguage"));
    rig.press(Qt::Key_Left); // French
    QCOMPARE(rig.localization->language(), QStringLiteral("fr"));
    rig.press(Qt::Key_Return);
    QTRY_VERIFY(rig.hasKeyboard("welcomeNext"));
    QCOMPARE(rig.focus.preferences.value(QLatin1String(Localization::preferencesKey))->toString(),
             QStringLiteral("fr"));
    rig.press(Qt::Key_Return);

    QTRY_VERIFY(rig.hasKeyboard("welcomeAllowPages"));
    QCOMPARE(rig.welcome->pageAccess(), QStringLiteral("off"));
    rig.press(Qt::Key_Space);
    QCOMPARE(rig.welcome->pageAccess(), QStringLiteral("on"));
    rig.tabTo("welcomeNext");
    rig.press(Qt::Key_Return);

    QTRY_VERIFY(rig.hasKeyboard("welcomeSuggestions"));
    rig.press(Qt::Key_Space); // the heading, and so the group
    QVERIFY(rig.welcome->suggestions()->chosenCount() > 0);
    rig.tabTo("welcomeNext");
    rig.press(Qt::Key_Return);
    QVERIFY(!rig.focus.blocker.lists().isEmpty());

    QTRY_VERIFY(rig.hasKeyboard("welcomeTask"));
    rig.press(Qt::Key_Return); // nothing is named yet
    QVERIFY(rig.welcome->isPresented());
    rig.type(QStringLiteral("Write report"));
    rig.press(Qt::Key_Return);
    QVERIFY(!rig.welcome->isPresented());
    QCOMPARE(rig.deepWork.state(), QStringLiteral("running"));
    QCOMPARE(rig.deepWork.activeTaskTitle(), QStringLiteral("Write report"));
    QVERIFY(rig.focus.preferences.value(QLatin1String(WelcomeScreen::completedKey))->toBool());
}

void WelcomeTest::everyStepCanBePassedOver() {
    UiRig rig;
    rig.show();
    rig.welcome->present();
    for (int step = 0; step < WelcomeScreen::stepCount(); ++step) {
        QTRY_COMPARE(static_cast<int>(rig.welcome->step()), step);
        QTRY_VERIFY(rig.visible("welcomeSkip"));
        rig.tabTo("welcomeSkip");
        rig.press(Qt::Key_Return);
    }
    QVERIFY(!rig.welcome->isPresented());
    QVERIFY(rig.focus.blocker.lists().isEmpty());
    QVERIFY(rig.focus.timer.taskQueue().isEmpty());
    QCOMPARE(rig.deepWork.state(), QStringLiteral("idle"));
}

void WelcomeTest::leavingItKeepsWhatWasSaid() {
    UiRig rig;
    rig.show();
    rig.welcome->present();
    for (int step = 0; step < WelcomeScreen::Task; ++step)
        rig.welcome->next();
    rig.welcome->back();
    QCOMPARE(rig.welcome->step(), WelcomeScreen::Lists);
    rig.welcome->next();
    QTRY_VERIFY(rig.hasKeyboard("welcomeTask"));
    rig.type(QStringLiteral("Plan the week"));
    rig.click(rig.visible("welcomeSkip")); // not now
    QCOMPARE(rig.focus.timer.taskQueue().size(), 1);
    QCOMPARE(rig.deepWork.state(), QStringLiteral("idle"));

    rig.welcome->present();
    QCOMPARE(rig.welcome->step(), WelcomeScreen::Language);
    QTRY_VERIFY(rig.hasKeyboard("welcomeLanguage"));
    rig.press(Qt::Key_Escape);
    QVERIFY(!rig.welcome->isPresented());
}

void WelcomeTest::itCanBeSeenAgainDuringASession() {
    UiRig rig;
    rig.show();
    rig.deepWork.start();
    rig.welcome->present();
    rig.welcome->setTaskTitle(QStringLiteral("Another task"));
    rig.welcome->start();
    QVERIFY(!rig.welcome->isPresented());
    QCOMPARE(rig.deepWork.state(), QStringLiteral("running"));
    QCOMPARE(rig.focus.timer.taskQueue().size(), 1);
}

void WelcomeTest::everyStepCanBeRead_data() {
    UiRig::addLanguages();
}

void WelcomeTest::everyStepCanBeRead() {
    QFETCH(const QString, language);
    UiRig rig(language);
    rig.browserAccess.setAccessibilityEnabled(false);
    for (const char* name : {"Cards", "Chess", "Draughts"}) {
        rig.focus.catalog.install({.bundleIdentifier = QStringLiteral("org.example.") + QLatin1String(name),
                                   .name = QLatin1String(name),
                                   .iconName = {},
                                   .declaredCategory = QStringLiteral("public.app-category.games")});
    }
    rig.show();
    rig.welcome->present();
    for (int step = 0; step < WelcomeScreen::stepCount(); ++step) {
        QTRY_VERIFY(rig.window()->activeFocusItem() != nullptr);
        rig.checkTexts(QStringLiteral("welcome-%1").arg(step));
        rig.welcome->skip();
    }
    QVERIFY(!rig.welcome->isPresented());
}

QTEST_MAIN(WelcomeTest)
#include "tst_Welcome.moc"
