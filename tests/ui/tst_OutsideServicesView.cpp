#include "tests/services/LicenseIssuer.h"
#include "tests/ui/UiRig.h"

using namespace norvin;

/// What the window shows of updates, feedback and the licence, by keyboard and pointer.
class OutsideServicesViewTest final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void updatesAreToldAndHandedOver_data() { UiRig::addLanguages(); }
    void updatesAreToldAndHandedOver();
    void feedbackShowsWhatItSendsAndKeepsIt_data() { UiRig::addLanguages(); }
    void feedbackShowsWhatItSendsAndKeepsIt();
    void aLicenceOpensAClosedGate_data() { UiRig::addLanguages(); }
    void aLicenceOpensAClosedGate();

private:
    static void showProgramPane(const UiRig& rig) {
        rig.press(Qt::Key_7, Qt::ControlModifier);
        QTRY_VERIFY(rig.hasKeyboard("preferencesPane"));
        for (int presses = 0; presses < 5; ++presses)
            rig.press(Qt::Key_Right);
        QTRY_VERIFY(rig.visible("updateSection"));
    }
    static bool shows(const UiRig& rig, const QString& text) { return rig.saying(text) != nullptr; }
};

void OutsideServicesViewTest::updatesAreToldAndHandedOver() {
    QFETCH(QString, language);
    UiRig rig(language);
    rig.show();
    showProgramPane(rig);
    QVERIFY(shows(rig, qtTrId("update_not_checked")));
    rig.tabTo("updateCheck");
    rig.checkTexts(QStringLiteral("program-pane"));
    rig.press(Qt::Key_Return);
    QVERIFY(rig.updater.isChecking());
    QVERIFY(!rig.visible("updateCheck")->isEnabled());
    QVERIFY(shows(rig, qtTrId("update_checking")));

    rig.updates.finish({.outcome = UpdateResult::Outcome::available,
                        .version = QStringLiteral("2.0.1"),
                        .reasonKey = {},
                        .detail = {}});
    const QString found = qtTrId("update_available_version").arg(QStringLiteral("2.0.1"));
    QTRY_VERIFY(rig.visible("updateNotice"));
    QCOMPARE(rig.visible("updateNotice")->property("text").toString(), found);
    QCOMPARE(rig.visible("updateState")->property("text").toString(), found);
    rig.checkTexts(QStringLiteral("update-notice"));
    rig.click(rig.saying(qtTrId("update_open_centre_button")));
    QCOMPARE(rig.updates.opened, 1);
    rig.click(rig.saying(qtTrId("notice_close_button")));
    QTRY_VERIFY(!rig.visible("updateNotice"));

    rig.updates.setAvailability(Availability::unavailable(QStringLiteral("update_source_build")));
    QTRY_VERIFY(shows(rig, qtTrId("update_source_build_remedy")));
    QVERIFY(!rig.visible("updateCheck"));
}

void OutsideServicesViewTest::feedbackShowsWhatItSendsAndKeepsIt() {
    QFETCH(QString, language);
    UiRig rig(language);
    rig.show();
    showProgramPane(rig);
    QVERIFY(!rig.visible("feedbackSection"));
    rig.focus.preferences.setValue(QLatin1String(FeedbackForm::baseUrlKey),
                                   QStringLiteral("https://127.0.0.1:1/focus"));
    QTRY_VERIFY(rig.visible("feedbackSection"));
    rig.tabTo("feedbackOpen");
    rig.press(Qt::Key_Return);
    QTRY_VERIFY(rig.hasKeyboard("feedbackText"));
    rig.type(QStringLiteral("More rain please"));
    rig.tabTo("feedbackEmail");
    rig.type(QStringLiteral("ada@example.org"));
    const QString shown = rig.visible("feedbackPreview")->property("text").toString();
    QCOMPARE(shown, rig.feedback.preview());
    QVERIFY(shown.contains(QStringLiteral("\"More rain please\"")));

    rig.press(Qt::Key_Return, Qt::ControlModifier);
    QTRY_VERIFY(rig.visible("feedbackProblem"));
    QVERIFY(shows(rig, qtTrId("feedback_retry_button")));
    QCOMPARE(rig.feedback.preview(), shown);
    rig.checkTexts(QStringLiteral("feedback"));
    rig.press(Qt::Key_Escape);
    QTRY_VERIFY(!rig.visible("feedbackText"));
    QTRY_VERIFY(rig.hasKeyboard("feedbackOpen"));
    rig.press(Qt::Key_Space);
    QTRY_VERIFY(rig.hasKeyboard("feedbackText"));
    QCOMPARE(rig.visible("feedbackText")->property("text").toString(), QStringLiteral("More rain please"));
}

void OutsideServicesViewTest::aLicenceOpensAClosedGate() {
    QFETCH(QString, language);
    const LicenseIssuer issuer;
    UiRig rig(language, issuer.publicKey());
    rig.deepWork.setStartGate([&rig] { return rig.license.refusal(); });
    QObject::connect(&rig.license, &LicenseService::changed, &rig.deepWork,
                     &DeepWorkScreen::refreshStartGate);
    QObject::connect(&rig.deepWork, &DeepWorkScreen::gateHelpWanted, &rig.license, &LicenseService::present);
    rig.show();
    QVERIFY(!rig.visible("closedGate"));
    rig.focus.clock.setNow(rig.focus.clock.now().addDays(LicenseService::trialDays));
    rig.deepWork.refreshStartGate();
    QTRY_VERIFY(rig.visible("closedGate"));
    rig.checkTexts(QStringLiteral("closed-gate"));

    rig.click(rig.saying(qtTrId("licence_enter_button")));
    QTRY_VERIFY(rig.hasKeyboard("licencePaste"));
    rig.press(Qt::Key_Escape);
    QTRY_VERIFY(!rig.visible("licencePaste"));
    rig.deepWork.start();
    QCOMPARE(rig.deepWork.state(), QStringLiteral("idle"));
    QTRY_VERIFY(rig.hasKeyboard("licencePaste"));
    rig.press(Qt::Key_Return);
    QTRY_VERIFY(rig.hasKeyboard("licenceText"));
    rig.type(QStringLiteral("nonsense"));
    rig.click(rig.visible("licenceInstall"));
    QTRY_VERIFY(shows(rig, qtTrId("licence_unreadable")));
    rig.checkTexts(QStringLiteral("licence-sheet"));
    rig.visible("licenceText")
        ->setProperty(
            "text", QString::fromUtf8(issuer.sign("product: Norvin Focus\nname: Ada\nissued: 2025-01-01\n")));
    rig.click(rig.visible("licenceInstall"));
    QTRY_VERIFY(!rig.visible("licenceText"));
    QVERIFY(!rig.visible("closedGate"));
    rig.deepWork.start();
    QCOMPARE(rig.deepWork.state(), QStringLiteral("running"));
}

QTEST_MAIN(OutsideServicesViewTest)
#include "tst_OutsideServicesView.moc"
