#include "tests/support/FocusRig.h"

#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <random>

using namespace norvin;

class tst_AppBlockerService final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void blockedApplicationIsHiddenOnEachActivation();
    void nothingIsBlockedWhileInactive();
    void stoppingCallsOffABlockThatIsUnderWay();
    void ownApplicationIsNeverHidden();
    void siteRules();
    void theVerdictNamesItsRule();
    void theVerdictIsTheRuleForEveryDomain();
    void sitesAreNormalisedAndRefused();
    void listsSurviveARestart();
    void damagedListsReadAsEmpty();
};

void tst_AppBlockerService::blockedApplicationIsHiddenOnEachActivation() {
    FocusRig rig;
    rig.blocker.addAppToBlocklist(rig.game.bundleIdentifier);
    rig.workspace.setFrontmost(rig.game);
    QSignalSpy attempts(&rig.blocker, &AppBlockerService::blockedAppAttempt);

    rig.blocker.startBlocking();
    QCOMPARE(attempts.size(), 0); // only after the activation has run its course
    FocusRig::settle();
    QCOMPARE(attempts.size(), 1);
    QCOMPARE(attempts.first().first().toString(), QStringLiteral("Game"));
    QCOMPARE(rig.workspace.hiddenApplications().size(), 1u);
    QCOMPARE(rig.workspace.hiddenApplications().front(), rig.game);
    QCOMPARE(rig.workspace.ownActivations(), 1);
    QCOMPARE(rig.sounds.beeps(), 1);
    QVERIFY(rig.lines.contains(QStringLiteral("Blocking app: Game")));

    rig.workspace.setFrontmost(rig.editor);
    rig.workspace.setFrontmost(rig.game);
    FocusRig::settle();
    QCOMPARE(attempts.size(), 2);

    // An application without a name is known by its identifier.
    const RunningApplication nameless =
        FakeWorkspace::makeApplication(QStringLiteral("org.example.nameless"));
    rig.blocker.addAppToBlocklist(nameless.bundleIdentifier);
    rig.workspace.setFrontmost({.bundleIdentifier = nameless.bundleIdentifier,
                                .localizedName = {},
                                .declaredCategory = {},
                                .iconName = {},
                                .processId = 7});
    FocusRig::settle();
    QCOMPARE(attempts.last().first().toString(), nameless.bundleIdentifier);
}

void tst_AppBlockerService::nothingIsBlockedWhileInactive() {
    FocusRig rig;
    rig.blocker.addAppToBlocklist(rig.game.bundleIdentifier);
    QSignalSpy attempts(&rig.blocker, &AppBlockerService::blockedAppAttempt);
    rig.workspace.setFrontmost(rig.game);
    FocusRig::settle();
    rig.blocker.startBlocking();
    rig.blocker.startBlocking();
    FocusRig::settle();
    const auto before = attempts.size();
    rig.blocker.stopBlocking();
    rig.workspace.setFrontmost(rig.editor);
    rig.workspace.setFrontmost(rig.game);
    FocusRig::settle();
    QCOMPARE(attempts.size(), before);
    QVERIFY(!rig.blocker.isBlockingActive());

    rig.blocker.startBlocking();
    FocusRig::settle();
    rig.workspace.setFrontmost(rig.editor);
    FocusRig::settle();
    QCOMPARE(attempts.size(), before + 1); // once although started three times in all
}

void tst_AppBlockerService::stoppingCallsOffABlockThatIsUnderWay() {
    FocusRig rig;
    rig.blocker.addAppToBlocklist(rig.game.bundleIdentifier);
    rig.blocker.startBlocking();
    rig.workspace.setFrontmost(rig.game);
    rig.blocker.stopBlocking();
    FocusRig::settle();
    QVERIFY(rig.workspace.hiddenApplications().empty());
}

void tst_AppBlockerService::ownApplicationIsNeverHidden() {
    FocusRig rig;
    rig.blocker.addAppToBlocklist(QLatin1String(ownBundleIdentifier));
    rig.workspace.setFrontmost(rig.own);
    rig.blocker.startBlocking();
    FocusRig::settle();
    QVERIFY(rig.workspace.hiddenApplications().empty());
}

void tst_AppBlockerService::siteRules() {
    FocusRig rig;
    AppBlockerService& blocker = rig.blocker;
    const QString firefox = QStringLiteral("org.mozilla.firefox");
    const QString chrome = QStringLiteral("com.google.Chrome");
    const auto legitimate = [&](const char* domain) {
        return blocker.isSiteLegitimate(firefox, QString::fromLatin1(domain));
    };
    QVERIFY(legitimate("anything.example"));
    QVERIFY(!blocker.hasSiteConfiguration(firefox));

    blocker.addSiteToBlocklist(firefox, QStringLiteral("example.org"));
    QVERIFY(blocker.hasSiteConfiguration(firefox));
    QVERIFY(blocker.shouldBlockSite(firefox, QStringLiteral("news.example.org")));
    QVERIFY(!blocker.shouldBlockSite(firefox, QStringLiteral("myexample.org")));
    QVERIFY(!blocker.shouldBlockSite(chrome, QStringLiteral("example.org")));
    QVERIFY(!legitimate("example.org"));
    QVERIFY(legitimate("other.org"));

    // One whitelisted site puts the browser into whitelist mode.
    blocker.addSiteToWhitelist(firefox, QStringLiteral("docs.example.org"));
    QVERIFY(legitimate("docs.example.org"));
    QVERIFY(!legitimate("other.org"));
    QVERIFY(!legitimate("news.example.org"));
    QVERIFY(blocker.isSiteLegitimate(chrome, QStringLiteral("other.org")));
}

void tst_AppBlockerService::theVerdictNamesItsRule() {
    using Rule = SiteVerdict::Rule;
    const QSet<QString> none;
    const QSet<QString> example{QStringLiteral("example.org")};
    const QSet<QString> news{QStringLiteral("news.example.org")};
    const QString address = QStringLiteral("https://www.news.example.org/page");
    const auto expect = [](const SiteVerdict& verdict, Rule rule, const QSet<QString>& whitelist,
                           const QSet<QString>& blocking) {
        QCOMPARE(verdict.rule, rule);
        QCOMPARE(verdict.whitelistPattern, whitelist.isEmpty() ? QString() : *whitelist.cbegin());
        QCOMPARE(verdict.blockingPattern, blocking.isEmpty() ? QString() : *blocking.cbegin());
    };
    const QString other = QStringLiteral("other.org");
    expect(judgeSite(address, none, none), Rule::noLists, none, none);
    expect(judgeSite(address, example, none), Rule::whitelisted, example, none);
    expect(judgeSite(other, example, none), Rule::notWhitelisted, none, none);
    expect(judgeSite(address, none, example), Rule::blocked, none, example);
    expect(judgeSite(other, none, example), Rule::notBlocked, none, none);
    // Counting goes by the whitelist, closing tabs by the blocked list.
    expect(judgeSite(address, news, example), Rule::whitelisted, news, example);
    QVERIFY(judgeSite(address, news, example).isLegitimate() &&
            judgeSite(address, news, example).isBlocked());
    expect(judgeSite(QStringLiteral("example.org"), news, example), Rule::notWhitelisted, none, example);
}

// The rules once more, as plainly as they can be put.
void tst_AppBlockerService::theVerdictIsTheRuleForEveryDomain() {
    FocusRig rig;
    const QString firefox = QStringLiteral("org.mozilla.firefox");
    const auto matches = [](const QString& domain, const QSet<QString>& patterns) {
        return std::any_of(patterns.cbegin(), patterns.cend(), [&domain](QString pattern) {
            if (pattern.startsWith(QLatin1String("*.")))
                pattern.remove(0, 2);
            return domain == pattern || domain.endsWith(u'.' + pattern);
        });
    };
    std::mt19937 random(20240517);
    const auto name = [&random] {
        QStringList labels;
        for (auto count = 1 + random() % 3; count > 0; --count)
            labels.append(QString(QLatin1String("ab")).left(1 + static_cast<int>(random() % 2)));
        return labels.join(u'.');
    };
    const auto list = [&] {
        QSet<QString> patterns;
        for (auto count = random() % 4; count > 0; --count)
            patterns.insert((random() % 4 == 0 ? QStringLiteral("*.") : QString()) + name());
        return patterns;
    };
    int blocked = 0;
    int distracted = 0;
    for (int round = 0; round < 3000; ++round) {
        const QSet<QString> w = list();
        const QSet<QString> b = list();
        rig.blocker.replaceLists({.blockedAppBundleIDs = {},
                                  .whitelistedAppBundleIDs = {},
                                  .browserWhitelistedSites = {{firefox, w}},
                                  .browserBlockedSites = {{firefox, b}}});
        const QString domain = name();
        const bool isLegitimate = w.isEmpty() ? !matches(domain, b) : matches(domain, w);
        QCOMPARE(rig.blocker.isSiteLegitimate(firefox, domain), isLegitimate);
        QCOMPARE(rig.blocker.shouldBlockSite(firefox, domain), matches(domain, b));
        blocked += matches(domain, b) ? 1 : 0;
        distracted += isLegitimate ? 0 : 1;
    }
    QVERIFY(blocked > 300 && distracted > 300 && blocked < 2700 && distracted < 2700);
}

void tst_AppBlockerService::sitesAreNormalisedAndRefused() {
    FocusRig rig;
    using Change = AppBlockerService::SiteChange;
    const QString firefox = QStringLiteral("org.mozilla.firefox");
    QCOMPARE(rig.blocker.addSiteToBlocklist(firefox, QStringLiteral("https://www.Example.org/page")),
             Change::changed);
    QCOMPARE(rig.blocker.getBlockedSites(firefox), QSet<QString>{QStringLiteral("example.org")});
    QCOMPARE(rig.blocker.addSiteToBlocklist(firefox, QStringLiteral("example.org")), Change::unchanged);
    QCOMPARE(rig.blocker.addSiteToBlocklist(firefox, QStringLiteral("  ")), Change::notASite);
    QCOMPARE(rig.blocker.addSiteToBlocklist(QString(), QStringLiteral("example.org")), Change::notASite);
    QCOMPARE(rig.blocker.removeSiteFromBlocklist(firefox, QStringLiteral("www.example.org")),
             Change::changed);
    QVERIFY(rig.blocker.browserBlockedSites().isEmpty());
    QVERIFY(!rig.blocker.addAppToBlocklist(QStringLiteral(" ")));
}

void tst_AppBlockerService::listsSurviveARestart() {
    FocusRig rig;
    rig.blocker.addAppToBlocklist(QStringLiteral("org.example.Game"));
    rig.blocker.addAppToWhitelist(QStringLiteral("org.example.Editor"));
    rig.blocker.addSiteToWhitelist(QStringLiteral("com.google.Chrome"), QStringLiteral("docs.example.org"));
    rig.blocker.addSiteToBlocklist(QStringLiteral("org.mozilla.firefox"), QStringLiteral("example.org"));
    for (const char* key : {"NorvinBlockedApps", "NorvinWhitelistedApps", "NorvinBrowserWhitelistedSites",
                            "NorvinBrowserBlockedSites"})
        QVERIFY2(rig.preferences.value(QLatin1String(key)), key);
    QVERIFY(rig.lines.last().startsWith(QStringLiteral("AppBlockerService: Saved to UserDefaults (")));

    const AppBlockerService again(rig.preferences, rig.workspace, rig.sounds);
    QCOMPARE(again.blockedAppBundleIDs(), rig.blocker.blockedAppBundleIDs());
    QCOMPARE(again.whitelistedAppBundleIDs(), rig.blocker.whitelistedAppBundleIDs());
    QCOMPARE(again.browserWhitelistedSites(), rig.blocker.browserWhitelistedSites());
    QCOMPARE(again.browserBlockedSites(), rig.blocker.browserBlockedSites());
}

void tst_AppBlockerService::damagedListsReadAsEmpty() {
    FocusRig rig;
    rig.preferences.setValue(QStringLiteral("NorvinBlockedApps"), QStringLiteral("[\"a\", "));
    rig.preferences.setValue(QStringLiteral("NorvinWhitelistedApps"), QStringLiteral("{\"a\": 1}"));
    rig.preferences.setValue(QStringLiteral("NorvinBrowserBlockedSites"),
                             QStringLiteral("{\"b\": [1, \"x.org\"]}"));
    const AppBlockerService again(rig.preferences, rig.workspace, rig.sounds);
    QVERIFY(again.blockedAppBundleIDs().isEmpty());
    QVERIFY(again.whitelistedAppBundleIDs().isEmpty());
    QCOMPARE(again.getBlockedSites(QStringLiteral("b")), QSet<QString>{QStringLiteral("x.org")});
    QVERIFY(rig.lines.last().contains(QStringLiteral("NorvinBlockedApps cannot be read")));
}

QTEST_GUILESS_MAIN(tst_AppBlockerService)
#include "tst_AppBlockerService.moc"
