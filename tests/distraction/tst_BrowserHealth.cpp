#include "distraction/AppBlockerService.h"
#include "distraction/BrowserHealth.h"
#include "platform/Log.h"
#include "platform/fake/FakeBrowserAccess.h"
#include "platform/fake/FakePreferences.h"
#include "platform/fake/FakeSystemSounds.h"
#include "platform/fake/FakeWorkspace.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace norvin;
using Model = TrackingHealthModel;

class tst_BrowserHealth final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void accessIsTurnedOnAndOffInOnePlace();
    void browsersComeAndGo();
    void extensionIsInstalledAndRemoved();
    void browserIsRestartedAfterAQuestion();
    void bannerAsksOnceForWhitelistedBrowsers();
};

namespace {

const QString firefox = QStringLiteral("org.mozilla.firefox");
const QString vivaldi = QStringLiteral("com.vivaldi.Vivaldi");

BrowserAccess::Browser browser(const QString& identifier, const QString& name,
                               const char* problem = nullptr) {
    return {identifier, name,
            problem ? Availability::unavailable(QLatin1String(problem)) : Availability::available()};
}

struct Rig {
    Rig() {
        model.setPassingChecks(1, [this] { return health.browserChecks(); });
        model.refresh();
    }
    [[nodiscard]] QStringList actions(int row) const {
        return model.index(row).data(Model::ActionsRole).toStringList();
    }
    [[nodiscard]] QString reasonKey(int row) const {
        const auto& reason = model.availability(row).reason();
        return reason ? reason->reasonKey : QString();
    }

    FakePreferences preferences;
    FakeWorkspace workspace;
    FakeSystemSounds sounds;
    AppBlockerService blocker{preferences, workspace, sounds};
    FakeBrowserAccess access;
    BrowserHealth health{access, blocker, preferences};
    Model model{{health.accessCheck()}};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::QtTest};
};

} // namespace

// Texts are their keys here: no translation is loaded.
void tst_BrowserHealth::initTestCase() {
    setLogSink([](const QString&) {});
}

void tst_BrowserHealth::accessIsTurnedOnAndOffInOnePlace() {
    Rig rig;
    QCOMPARE(rig.reasonKey(0), QStringLiteral("health_accessibility_off"));
    QCOMPARE(rig.actions(0), QStringList{"accessibility_turn_on_button"});
    rig.model.act(0, 0);
    QVERIFY(rig.model.availability(0).isAvailable());
    QCOMPARE(rig.model.notice(), QStringLiteral("accessibility_turned_on"));
    QCOMPARE(rig.actions(0), QStringList{"accessibility_turn_off_button"});
    rig.model.act(0, 0);
    QVERIFY(!rig.model.availability(0).isAvailable());
    QVERIFY(rig.model.notice().isEmpty());

    // A desktop without the service has no button for it.
    rig.access.setAccessibility(Availability::unavailable("health_accessibility_missing"));
    rig.model.refresh();
    QVERIFY(rig.actions(0).isEmpty());
    rig.model.act(0, 0);
    rig.model.act(-1, 0);
    rig.model.act(7, 0);
}

void tst_BrowserHealth::browsersComeAndGo() {
    Rig rig;
    QSignalSpy resets(&rig.model, &QAbstractItemModel::modelReset);
    rig.access.setBrowsers(
        {browser(vivaldi, "Vivaldi"), browser(firefox, "Firefox", "health_browser_restart")});
    rig.model.refresh();
    QCOMPARE(rig.model.rowCount(), 3);
    QCOMPARE(rig.model.subject(2), QStringLiteral("Firefox"));
    QCOMPARE(rig.reasonKey(2), QStringLiteral("health_browser_restart"));
    QCOMPARE(rig.model.problemCount(), 2);
    QCOMPARE(resets.size(), 1);
    // The same browsers with other news are not a new list: the reader keeps the place.
    rig.access.setBrowsers(
        {browser(vivaldi, "Vivaldi", "health_browser_not_answering"), browser(firefox, "Firefox")});
    rig.model.refresh();
    QCOMPARE(resets.size(), 1);
    QCOMPARE(rig.reasonKey(1), QStringLiteral("health_browser_not_answering"));
    QVERIFY(rig.model.availability(2).isAvailable());
    rig.access.setBrowsers({});
    rig.model.refresh();
    QCOMPARE(rig.model.rowCount(), 1);
}

void tst_BrowserHealth::extensionIsInstalledAndRemoved() {
    Rig rig;
    rig.access.setBrowsers({browser(firefox, "Firefox"), browser(vivaldi, "Vivaldi")});
    rig.access.setInstallable({firefox});
    rig.model.refresh();
    QVERIFY(rig.actions(2).isEmpty());
    QCOMPARE(rig.actions(1), QStringList{"extension_install_button"});
    rig.model.act(1, 0);
    QVERIFY(rig.access.isExtensionInstalled(firefox));
    QCOMPARE(rig.model.notice(), QStringLiteral("extension_restart_browser"));
    QCOMPARE(rig.actions(1), QStringList{"extension_remove_button"});
    // It is a way of its own: what the desktop keeps closed is no problem any more.
    QVERIFY(rig.model.availability(0).isAvailable());
    rig.model.dismissNotice();
    QVERIFY(rig.model.notice().isEmpty());
    rig.model.act(1, 0);
    QVERIFY(!rig.access.isExtensionInstalled(firefox));
}

void tst_BrowserHealth::browserIsRestartedAfterAQuestion() {
    Rig rig;
    QObject::connect(&rig.health, &BrowserHealth::noticed, &rig.model, &Model::setNotice);
    QSignalSpy questions(&rig.model, &Model::questionAsked);
    rig.access.setInstallable({firefox});
    for (const char* reason :
         {"health_browser_not_answering", "health_extension_not_connected", "health_browser_restart"}) {
        rig.access.setBrowsers({browser(firefox, "Firefox", reason)});
        rig.model.refresh();
        QCOMPARE(rig.actions(1), (QStringList{"browser_restart_button", "extension_install_button"}));
    }
    rig.model.confirm(); // nothing was asked
    rig.model.act(1, 0);
    QCOMPARE(questions.size(), 1);
    QCOMPARE(rig.model.questionTitle(), QStringLiteral("browser_restart_title"));
    QVERIFY(rig.access.restarting().isEmpty());
    // Another action, and the old question is answered by nothing.
    rig.model.act(1, 1);
    rig.model.confirm();
    QVERIFY(rig.access.restarting().isEmpty());

    // The answer is for the browser that was asked about, whatever has become of the rows.
    rig.model.act(1, 0);
    rig.access.setBrowsers({browser(vivaldi, "Vivaldi", "health_browser_restart")});
    rig.model.refresh();
    rig.model.confirm();
    rig.model.confirm();
    QCOMPARE(rig.access.restarting(), QStringList{firefox});
    QCOMPARE(rig.model.notice(), QStringLiteral("browser_restart_under_way"));
    Q_EMIT rig.access.restartEnded(firefox, QStringLiteral("browser_restart_not_closed"));
    QCOMPARE(rig.model.notice(), QStringLiteral("browser_restart_not_closed"));
    Q_EMIT rig.access.restartEnded(firefox, {});
    QVERIFY(rig.model.notice().isEmpty());

    rig.access.setBrowsers({browser(vivaldi, "Vivaldi", "health_accessibility_off")});
    rig.model.refresh();
    QVERIFY(rig.actions(1).isEmpty());
}

void tst_BrowserHealth::bannerAsksOnceForWhitelistedBrowsers() {
    Rig rig;
    rig.access.setBrowsers({browser(firefox, "Firefox", "health_browser_restart")});
    rig.health.refreshBanner();
    QVERIFY(!rig.health.hasBanner()); // nobody wants to look into a browser yet
    rig.blocker.addAppToWhitelist("org.example.Editor");
    rig.health.refreshBanner();
    QVERIFY(!rig.health.hasBanner());

    rig.blocker.addAppToWhitelist(firefox);
    rig.health.refreshBanner();
    QVERIFY(rig.health.hasBanner());
    QVERIFY(rig.health.bannerText().startsWith("health_accessibility_off"));
    QCOMPARE(rig.health.bannerActionText(), QStringLiteral("accessibility_turn_on_button"));
    rig.health.bannerAct();
    QVERIFY(rig.access.accessibility().isAvailable());
    QVERIFY(rig.health.bannerText().startsWith("health_browser_restart"));
    QVERIFY(rig.health.bannerLeadsToHealth());
    QCOMPARE(rig.health.bannerActionText(), QStringLiteral("health_title"));
    rig.health.declineBanner(); // which is about that browser only
    QVERIFY(!rig.health.hasBanner());
    rig.access.setBrowsers({browser(firefox, "Firefox", "health_browser_not_answering")});
    rig.health.refreshBanner();
    QVERIFY(rig.health.hasBanner());
    rig.access.setBrowsers({browser(firefox, "Firefox")});
    rig.health.refreshBanner();
    QVERIFY(!rig.health.hasBanner());

    rig.access.setAccessibilityEnabled(false);
    rig.health.refreshBanner();
    QVERIFY(rig.health.hasBanner());
    rig.health.declineBanner();
    QVERIFY(!rig.health.hasBanner());
    QVERIFY(!rig.access.accessibility().isAvailable());
    BrowserHealth later(rig.access, rig.blocker, rig.preferences);
    later.refreshBanner();
    QVERIFY(!later.hasBanner());
}

QTEST_GUILESS_MAIN(tst_BrowserHealth)
#include "tst_BrowserHealth.moc"
