#include "platform/ScriptableBrowser.h"
#include "tests/support/FocusRig.h"

#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

using namespace norvin;
using namespace std::chrono_literals;
using Kind = CurrentActivityStatus::Kind;

/// What happens second by second while a browser is in front.
class tst_BrowserPages final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void secondsBelongToTheDomainInFront();
    void lateTicksLoseNoSecond();
    void pagesWithoutDomain();
    void unlistedBrowsersAreNeverAsked();
    void blockedSiteCostsItsTab();
    void tabThatCannotBeClosedCostsTheBrowser();
    void browserWithoutScripts();
    void oneAttemptForEachStay();
    void permissions();
    void leavingTheBrowserEndsTheAlert();
    void listsThatChangeWhileTheBrowserIsInFront();
    void everySecondOfRandomPagesIsCountedOnce();
};

namespace {

/// A whitelisted browser in front, and its pages.
struct BrowserRig : FocusRig {
    BrowserRig() {
        blocker.addAppToWhitelist(vivaldi);
        scripting.setAnswer(script.closeScript(), {});
        workspace.setFrontmost(scriptedBrowser);
        QObject::connect(&usage, &AppUsageService::blockedSiteAttempt,
                         [this](const QString& domain) { attempts.append(domain); });
    }

    void open(const QString& url) { scripting.setAnswer(script.readScript(), {url, std::nullopt}); }
    void fail(int number) { scripting.setAnswer(script.readScript(), {std::nullopt, number}); }
    void refuseToClose(int number = -1700) {
        scripting.setAnswer(script.closeScript(), {std::nullopt, number});
    }
    [[nodiscard]] qsizetype closes() const { return scripting.scripts().count(script.closeScript()); }

    const QString vivaldi = scriptedBrowser.bundleIdentifier;
    const ScriptableBrowser script = *scriptableBrowser(vivaldi);
    QStringList attempts;
};

} // namespace

void tst_BrowserPages::secondsBelongToTheDomainInFront() {
    BrowserRig rig;
    rig.blocker.addSiteToWhitelist(rig.vivaldi, "docs.example.org");
    rig.open("https://docs.example.org/page");
    rig.usage.startTracking();
    QVERIFY(rig.lines.contains(QStringLiteral(
        "AppUsageService: [Browser] polling started for com.vivaldi.Vivaldi (scriptable: true)")));
    QCOMPARE(rig.usage.currentActivityStatus(),
             (CurrentActivityStatus{Kind::legitimate, "Vivaldi", "docs.example.org"}));
    rig.pass(10s);
    rig.open("https://news.example.org/");
    rig.pass(1s);
    QCOMPARE(rig.usage.currentActivityStatus(),
             (CurrentActivityStatus{Kind::distracted, "Vivaldi", "news.example.org"}));
    QVERIFY(
        rig.lines.contains(QStringLiteral("AppUsageService: CLOSE docs.example.org → LEGITIMATE (+11s)")));
    rig.pass(4s);
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{11, 4}));
    rig.workspace.setFrontmost(rig.game);
    QVERIFY(rig.lines.contains(QStringLiteral("AppUsageService: CLOSE news.example.org → DISTRACTED (+4s)")));
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{11, 4}));
    // The interval of the application is one, and counts nothing a second time.
    QCOMPARE(rig.context().fetchAppUsage().first().durationSeconds, 15);
    const qsizetype asked = rig.scripting.scripts().size();
    rig.pass(10s);
    QCOMPARE(rig.scripting.scripts().size(), asked);
}

void tst_BrowserPages::lateTicksLoseNoSecond() {
    BrowserRig rig;
    rig.open("https://a.example/");
    rig.usage.startTracking();
    // Now and then the main thread is held up: what it missed comes in a burst, late.
    for (int second = 0; second < 60; ++second) {
        rig.open(QStringLiteral("https://%1.example/").arg(second % 7));
        rig.clock.stall(second % 3 == 0 ? 1400ms : 800ms);
        FocusRig::settle();
    }
    const auto passed = std::chrono::duration_cast<std::chrono::seconds>(20 * 1400ms + 40 * 800ms).count();
    rig.usage.stopTracking();
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{static_cast<int>(passed), 0}));
}

void tst_BrowserPages::pagesWithoutDomain() {
    BrowserRig rig;
    rig.blocker.addSiteToWhitelist(rig.vivaldi, "docs.example.org");
    rig.open("https://games.example/");
    rig.usage.startTracking();
    rig.pass(5s);
    rig.fail(-1728);
    rig.pass(1s);
    QCOMPARE(rig.usage.currentActivityStatus(),
             (CurrentActivityStatus{Kind::legitimate, "Vivaldi", std::nullopt}));
    rig.pass(3s);
    rig.open("https://games.example/");
    rig.pass(2s);
    rig.usage.stopTracking();
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{4, 7}));
    QVERIFY(rig.lines.contains(QStringLiteral("AppUsageService: CLOSE (no domain) → LEGITIMATE (+4s)")));
}

void tst_BrowserPages::unlistedBrowsersAreNeverAsked() {
    BrowserRig rig;
    rig.blocker.removeAppFromWhitelist(rig.vivaldi);
    rig.blocker.addSiteToBlocklist(rig.vivaldi, "games.example");
    rig.open("https://games.example/");
    rig.usage.startTracking();
    rig.pass(30s);
    rig.usage.stopTracking();
    QVERIFY(rig.scripting.scripts().isEmpty());
    QVERIFY(rig.attempts.isEmpty());
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{0, 30}));
}

void tst_BrowserPages::blockedSiteCostsItsTab() {
    BrowserRig rig;
    rig.blocker.addSiteToBlocklist(rig.vivaldi, "games.example");
    rig.open("https://work.example/");
    rig.usage.startTracking();
    rig.pass(3s);
    QVERIFY(!rig.overlay.isShown());
    rig.open("https://www.games.example/play");
    rig.pass(1s);
    QCOMPARE(rig.attempts, QStringList{"games.example"});
    QCOMPARE(rig.closes(), 1);
    QVERIFY(rig.overlay.isShown());
    QCOMPARE(rig.alert.model().domain(), QStringLiteral("games.example"));
    QVERIFY(rig.workspace.hiddenApplications().empty());
    rig.open("https://work.example/");
    rig.pass(1s);
    QVERIFY(!rig.overlay.isShown());
    rig.usage.stopTracking();
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{4, 1}));
}

void tst_BrowserPages::tabThatCannotBeClosedCostsTheBrowser() {
    BrowserRig rig;
    rig.blocker.addSiteToBlocklist(rig.vivaldi, "games.example");
    rig.open("https://games.example/");
    rig.refuseToClose();
    rig.usage.startTracking();
    QCOMPARE(rig.workspace.hiddenApplications().size(), 1U);
    QCOMPARE(rig.workspace.hiddenApplications().front(), rig.scriptedBrowser);
    QCOMPARE(rig.workspace.ownActivations(), 1);
    // It stays in front here as on a desktop that refuses: still one attempt, one entrance.
    rig.pass(30s);
    QCOMPARE(rig.attempts.size(), 1);
    QCOMPARE(rig.overlay.presentations(), 1);
    rig.workspace.setFrontmost(rig.own);
    QVERIFY(!rig.overlay.isShown());
    rig.workspace.setFrontmost(rig.scriptedBrowser);
    QCOMPARE(rig.attempts.size(), 2);
    QCOMPARE(rig.overlay.presentations(), 2);
}

void tst_BrowserPages::browserWithoutScripts() {
    BrowserRig rig;
    rig.blocker.addAppToWhitelist(rig.browser.bundleIdentifier);
    rig.blocker.addSiteToBlocklist(rig.browser.bundleIdentifier, "games.example");
    const auto window = std::make_shared<FakeElement>(
        FakeElement::Texts{}, AccessibilityElement::List{std::make_shared<FakeElement>(FakeElement::Texts{
                                  {"AXRole", "AXWebArea"}, {"AXURL", "https://games.example/"}})});
    rig.accessibility.application().setChildren({window});
    rig.scripting.setClosing(BrowserScripting::Closing::closed);
    rig.workspace.setFrontmost(rig.browser);
    rig.usage.startTracking();
    QVERIFY(rig.lines.contains(QStringLiteral(
        "AppUsageService: [Browser] polling started for org.mozilla.firefox (scriptable: false)")));
    QCOMPARE(rig.scripting.closings().size(), 1);
    QCOMPARE(rig.scripting.closings().first().domain, QStringLiteral("games.example"));
    QVERIFY(rig.workspace.hiddenApplications().empty());
    rig.scripting.setClosing(BrowserScripting::Closing::failed);
    rig.pass(1s);
    QCOMPARE(rig.workspace.hiddenApplications().size(), 1U);
    QVERIFY(rig.scripting.scripts().isEmpty());
}

void tst_BrowserPages::oneAttemptForEachStay() {
    BrowserRig rig;
    rig.timer.startSession(nullptr, PomodoroPhase::work);
    rig.blocker.addSiteToBlocklist(rig.vivaldi, "games.example");
    rig.blocker.addSiteToBlocklist(rig.vivaldi, "news.example");
    for (const char* url : {"https://games.example/1", "https://games.example/2", "https://news.example/",
                            "https://work.example/", "https://games.example/3", "about:blank"}) {
        rig.open(url);
        rig.pass(3s);
    }
    QCOMPARE(rig.attempts, (QStringList{"games.example", "news.example", "games.example"}));
    QCOMPARE(rig.timer.blockedSiteAttemptsCount(), 3);
}

void tst_BrowserPages::permissions() {
    BrowserRig rig;
    QSignalSpy changes(&rig.usage, &AppUsageService::permissionsChanged);
    rig.fail(-1743);
    rig.usage.startTracking();
    rig.pass(3s);
    QVERIFY(!rig.usage.isAutomationGranted());
    QCOMPARE(changes.size(), 1);
    QCOMPARE(rig.usage.getCurrentMetrics(), (FocusMetrics{3, 0}));
    rig.fail(-1728);
    rig.pass(1s);
    QVERIFY(rig.usage.isAutomationGranted());

    rig.blocker.addSiteToBlocklist(rig.vivaldi, "games.example");
    rig.open("https://games.example/");
    rig.refuseToClose(-10004);
    rig.pass(1s);
    QVERIFY(!rig.usage.isAutomationGranted());

    // What one browser refuses says nothing about the other kind.
    rig.blocker.addAppToWhitelist(rig.browser.bundleIdentifier);
    rig.accessibility.application().setErrorCode(-25211);
    rig.workspace.setFrontmost(rig.browser);
    QVERIFY(!rig.usage.isAccessibilityGranted());
    QVERIFY(!rig.usage.isAutomationGranted());
    rig.accessibility.application().setErrorCode(0);
    rig.pass(1s);
    QVERIFY(rig.usage.isAccessibilityGranted());
}

void tst_BrowserPages::leavingTheBrowserEndsTheAlert() {
    BrowserRig rig;
    rig.blocker.addSiteToBlocklist(rig.vivaldi, "games.example");
    rig.open("https://games.example/");
    const QList<std::function<void()>> ways{
        [&rig] { rig.workspace.setFrontmost(rig.editor); },
        [&rig] { rig.workspace.clearFrontmost(); },
        [&rig] { rig.usage.stopTracking(); },
        [&rig] { rig.blocker.removeAppFromWhitelist(rig.vivaldi); },
    };
    for (const auto& leave : ways) {
        rig.blocker.addAppToWhitelist(rig.vivaldi);
        rig.workspace.setFrontmost(rig.scriptedBrowser);
        rig.usage.startTracking();
        QVERIFY(rig.overlay.isShown());
        leave();
        QVERIFY(!rig.overlay.isShown());
        const qsizetype asked = rig.scripting.scripts().size();
        rig.pass(5s);
        QCOMPARE(rig.scripting.scripts().size(), asked);
        rig.usage.stopTracking();
    }
}

void tst_BrowserPages::listsThatChangeWhileTheBrowserIsInFront() {
    BrowserRig rig;
    rig.blocker.removeAppFromWhitelist(rig.vivaldi);
    rig.open("https://games.example/");
    rig.usage.startTracking();
    rig.pass(10s);
    // From now on it is looked into; what it showed until now is not known.
    rig.blocker.addAppToWhitelist(rig.vivaldi);
    QCOMPARE(rig.usage.currentActivityStatus().domain, std::optional<QString>("games.example"));
    rig.pass(10s);
    rig.blocker.addSiteToBlocklist(rig.vivaldi, "games.example");
    QCOMPARE(rig.usage.currentActivityStatus().kind, Kind::distracted);
    rig.pass(1s);
    QCOMPARE(rig.attempts.size(), 1);
    rig.blocker.removeSiteFromBlocklist(rig.vivaldi, "games.example");
    rig.pass(1s);
    QVERIFY(!rig.overlay.isShown());
    rig.blocker.removeAppFromWhitelist(rig.vivaldi);
    QCOMPARE(rig.usage.currentActivityStatus(),
             (CurrentActivityStatus{Kind::distracted, "Vivaldi", std::nullopt}));
    rig.pass(10s);
    rig.usage.stopTracking();
    const FocusMetrics metrics = rig.usage.getCurrentMetrics();
    QCOMPARE(metrics.legitimate + metrics.distracted, 32);
}

void tst_BrowserPages::everySecondOfRandomPagesIsCountedOnce() {
    for (quint32 seed = 1; seed <= 20; ++seed) {
        BrowserRig rig;
        rig.blocker.addSiteToBlocklist(rig.vivaldi, "blocked.example");
        QRandomGenerator random(seed);
        rig.open("https://work.example/");
        rig.usage.startTracking();
        FocusMetrics expected;
        std::optional<QString> inFront = "work.example"; // as the last poll found it
        const QStringList urls{"https://work.example/a", "https://blocked.example/", "about:blank",
                               "https://sub.blocked.example:80/x"};
        for (int second = 0; second < 2000; ++second) {
            // A page is known from the poll on that finds it.
            const bool isBlocked = inFront && inFront->endsWith("blocked.example");
            ++(isBlocked ? expected.distracted : expected.legitimate);
            if (random.bounded(4) == 0) {
                const int choice = random.bounded(5);
                if (choice == 4) {
                    rig.fail(-1728);
                    inFront.reset();
                } else {
                    rig.open(urls.at(choice));
                    inFront =
                        QStringList{"work.example", "blocked.example", "about", "sub.blocked.example"}.at(
                            choice);
                }
            }
            rig.clock.advance(1s);
            if (random.bounded(100) == 0) {
                rig.workspace.setFrontmost(rig.game);
                rig.pass(3s);
                expected.distracted += 3;
                rig.workspace.setFrontmost(rig.scriptedBrowser);
            }
        }
        rig.usage.stopTracking();
        QCOMPARE(rig.usage.getCurrentMetrics(), expected);
    }
}

QTEST_GUILESS_MAIN(tst_BrowserPages)
#include "tst_BrowserPages.moc"
