#include "distraction/BlockListsScreen.h"
#include "tests/support/FocusRig.h"

#include <QAbstractItemModelTester>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace norvin;

class tst_BlockListsScreen final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void browsersOfThisMachineComeFirst();
    void pastedSitesAreAddedAtOnceAndTheRestStaysInTheField();
    void changesAreTakenBackOneByOne();
    void takingBackLeavesAloneWhatChangedSince();
    void rowsFollowTheListsOneByOne();
    void aSiteOnBothListsIsMarkedAndMoved();
    void sitesAreCopiedToTheOtherBrowsers();
    void theTestFieldNamesTheRuleThatDecides();
    void filesAreExaminedBeforeAnythingChanges();
    void nothingIsSuggestedThatIsNotWanted();
    void chosenSuggestionsAreListed();
};

namespace {

const QString firefox = QStringLiteral("org.mozilla.firefox");
const QString chrome = QStringLiteral("com.google.Chrome");
const QString whitelisted = QStringLiteral("whitelisted");
const QString blocked = QStringLiteral("blocked");

struct ListsRig : FocusRig {
    ListsRig() {
        install(firefox, QStringLiteral("Firefox"));
        install(chrome, QStringLiteral("Chromium"));
    }
    void install(const QString& id, const QString& name, const std::optional<QString>& category = {}) {
        catalog.install({id, name, QString(), category});
    }
    void open() { screen.refresh(); }

    BlockListsScreen screen{catalog, workspace, blocker, preferences};
};

QStringList patterns(const SiteListModel* model) {
    QStringList result;
    for (int row = 0; row < model->rowCount(); ++row)
        result.append(model->patternAt(row));
    return result;
}

QStringList browserIds(const BrowserListModel* model) {
    QStringList result;
    for (int row = 0; row < model->rowCount(); ++row)
        result.append(model->bundleIdAt(row));
    return result;
}

QString site(const char* text) {
    return QString::fromLatin1(text);
}

} // namespace

void tst_BlockListsScreen::browsersOfThisMachineComeFirst() {
    ListsRig rig;
    const QAbstractItemModelTester tester(rig.screen.browsers());
    rig.blocker.addSiteToBlocklist(QStringLiteral("com.vivaldi.Vivaldi"), site("a.org"));
    rig.open();
    QCOMPARE(browserIds(rig.screen.browsers()),
             QStringList({chrome, firefox, QStringLiteral("com.vivaldi.Vivaldi")}));
    QCOMPARE(rig.screen.browser(), chrome);
    QCOMPARE(rig.screen.browserName(), QStringLiteral("Chromium"));

    rig.screen.browsers()->setShowsAll(true);
    QCOMPARE(rig.screen.browsers()->count(), 8);
    rig.screen.browsers()->setShowsAll(false);
    // A command gives a browser its first site while the screen is open.
    rig.blocker.addSiteToBlocklist(QStringLiteral("org.example.Other"), site("a.org"));
    QVERIFY(rig.screen.browsers()->rowOf(QStringLiteral("org.example.Other")) >= 0);

    FocusRig bare;
    BlockListsScreen withoutBrowsers(bare.catalog, bare.workspace, bare.blocker, bare.preferences);
    withoutBrowsers.refresh();
    QCOMPARE(withoutBrowsers.browsers()->count(), 8);
    QVERIFY(!withoutBrowsers.browser().isEmpty());
}

void tst_BlockListsScreen::pastedSitesAreAddedAtOnceAndTheRestStaysInTheField() {
    ListsRig rig;
    rig.open();
    rig.screen.setBrowser(firefox);
    QSignalSpy changes(&rig.blocker, &AppBlockerService::listsChanged);
    QCOMPARE(rig.screen.addSites(blocked, QStringLiteral("https://www.a.org/x, b.org\nnot%one; news c.org")),
             QStringLiteral("not%one news"));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(rig.blocker.getBlockedSites(firefox),
             QSet<QString>({site("a.org"), site("b.org"), site("c.org")}));
    QVERIFY(!rig.screen.blockedReport().isEmpty());
    QVERIFY(rig.screen.whitelistReport().isEmpty());

    QCOMPARE(rig.screen.addSites(blocked, QStringLiteral("A.org")), QString());
    QCOMPARE(changes.size(), 1);
    QVERIFY(!rig.screen.blockedReport().isEmpty()); // listed already
    rig.screen.clearReport(blocked);
    QVERIFY(rig.screen.blockedReport().isEmpty());
    QCOMPARE(rig.screen.addSites(QStringLiteral("no such list"), site("a.org")), site("a.org"));
}

void tst_BlockListsScreen::changesAreTakenBackOneByOne() {
    ListsRig rig;
    rig.open();
    rig.screen.setBrowser(firefox);
    const BlockLists empty = rig.blocker.lists();
    rig.screen.addSites(whitelisted, site("a.org b.org"));
    const BlockLists two = rig.blocker.lists();
    rig.screen.removeSite(whitelisted, site("a.org"));
    const BlockLists one = rig.blocker.lists();
    rig.screen.whitelistBrowser();
    QCOMPARE(rig.screen.browserList(), whitelisted);
    QVERIFY(rig.screen.isNoticeUndoable());

    for (const BlockLists& before : {one, two, empty}) {
        rig.screen.undo();
        QCOMPARE(rig.blocker.lists(), before);
        QVERIFY(!rig.screen.isNoticeUndoable());
    }
    rig.screen.undo();
    QCOMPARE(rig.blocker.lists(), empty);
    // What changes nothing is nothing to take back.
    rig.screen.removeSite(whitelisted, site("a.org"));
    QVERIFY(!rig.screen.isNoticeUndoable());
}

void tst_BlockListsScreen::takingBackLeavesAloneWhatChangedSince() {
    ListsRig rig;
    rig.open();
    rig.screen.setBrowser(firefox);
    rig.screen.addSites(blocked, site("a.org b.org"));
    rig.screen.applications()->setList(QStringLiteral("org.example.Game"), blocked);
    rig.blocker.addSiteToBlocklist(firefox, site("c.org"));
    rig.blocker.removeSiteFromBlocklist(firefox, site("a.org"));
    rig.screen.undo();
    QCOMPARE(rig.blocker.getBlockedSites(firefox), QSet<QString>{site("c.org")});
    QCOMPARE(rig.blocker.blockedAppBundleIDs().size(), 1);
}

void tst_BlockListsScreen::rowsFollowTheListsOneByOne() {
    ListsRig rig;
    rig.open();
    rig.screen.setBrowser(firefox);
    SiteListModel* model = rig.screen.blockedSites();
    const QAbstractItemModelTester tester(model);
    QSignalSpy resets(model, &QAbstractItemModel::modelReset);
    rig.screen.addSites(blocked, site("c.org a.org"));
    rig.screen.addSites(blocked, site("b.org www.a.org"));
    QCOMPARE(patterns(model), QStringList({site("a.org"), site("b.org"), site("c.org")}));
    rig.screen.removeSite(blocked, site("a.org"));
    rig.screen.undo();
    rig.screen.addSites(whitelisted, site("z.org"));
    rig.blocker.addAppToBlocklist(QStringLiteral("org.example.Game"));
    QCOMPARE(patterns(model), QStringList({site("a.org"), site("b.org"), site("c.org")}));
    QCOMPARE(resets.size(), 0);

    QStringList many;
    for (int i = 0; i < 2000; ++i)
        many.append(QStringLiteral("site%1.example.net").arg(i));
    rig.screen.addSites(blocked, many.join(u'\n'));
    QCOMPARE(resets.size(), 1);
    QCOMPARE(model->total(), 2003);
    model->setFilterText(QStringLiteral("SITE199"));
    QCOMPARE(model->count(), 11);
    QCOMPARE(model->total(), 2003);
    rig.screen.removeSite(blocked, site("site1995.example.net"));
    QCOMPARE(model->count(), 10);
    rig.screen.setBrowser(chrome);
    QCOMPARE(model->total(), 0);
}

void tst_BlockListsScreen::aSiteOnBothListsIsMarkedAndMoved() {
    ListsRig rig;
    rig.open();
    rig.screen.setBrowser(firefox);
    rig.screen.addSites(blocked, site("a.org news.a.org"));
    rig.screen.addSites(whitelisted, site("news.a.org"));
    SiteListModel* model = rig.screen.blockedSites();
    const auto cell = [model](const char* pattern, int role) {
        return model->index(model->rowOf(site(pattern))).data(role);
    };
    QVERIFY(cell("news.a.org", SiteListModel::IsOnOtherListRole).toBool());
    QCOMPARE(cell("news.a.org", SiteListModel::CoveredByRole).toString(), site("a.org"));
    QVERIFY(!cell("a.org", SiteListModel::IsOnOtherListRole).toBool());
    QVERIFY(cell("a.org", SiteListModel::CoveredByRole).toString().isEmpty());

    rig.screen.moveSite(blocked, site("a.org"));
    rig.screen.moveSite(blocked, site("never-listed.org"));
    QCOMPARE(patterns(model), QStringList{site("news.a.org")});
    QCOMPARE(patterns(rig.screen.whitelistedSites()), QStringList({site("a.org"), site("news.a.org")}));
}

void tst_BlockListsScreen::sitesAreCopiedToTheOtherBrowsers() {
    ListsRig rig;
    rig.open();
    rig.screen.setBrowser(firefox);
    QVERIFY(!rig.screen.canCopySites());
    rig.screen.addSites(blocked, site("a.org"));
    rig.screen.addSites(whitelisted, site("b.org"));
    rig.blocker.addSiteToBlocklist(chrome, site("c.org"));
    QVERIFY(rig.screen.canCopySites());
    rig.screen.copySites();
    QCOMPARE(rig.blocker.getBlockedSites(chrome), QSet<QString>({site("a.org"), site("c.org")}));
    QCOMPARE(rig.blocker.getWhitelistedSites(chrome), QSet<QString>{site("b.org")});
    QCOMPARE(rig.blocker.getBlockedSites(firefox), QSet<QString>{site("a.org")});
    rig.screen.undo();
    QCOMPARE(rig.blocker.getBlockedSites(chrome), QSet<QString>{site("c.org")});
}

void tst_BlockListsScreen::theTestFieldNamesTheRuleThatDecides() {
    ListsRig rig;
    rig.open();
    rig.screen.setBrowser(firefox);
    // Without translations a text is its key, and its arguments are not shown.
    const auto expect = [&rig](const char* text, const char* outcome, const char* reason) {
        rig.screen.setTestText(QString::fromUtf8(text));
        QCOMPARE(rig.screen.testOutcome(), QString::fromLatin1(outcome));
        QCOMPARE(rig.screen.testReason(), QString::fromLatin1(reason));
    };
    expect("", "", "");
    expect("two words", "unreadable", "verdict_unreadable");
    expect("a.org", "distracted", "verdict_browser_not_whitelisted");
    rig.screen.whitelistBrowser();
    expect("a.org", "legitimate", "verdict_no_lists");
    rig.screen.addSites(blocked, site("example.org"));
    expect("https://www.News.example.org/page?x", "blocked", "verdict_blocked");
    expect("myexample.org", "legitimate", "verdict_not_blocked");
    rig.screen.addSites(whitelisted, QStringLiteral("docs.example.org bücher.example"));
    expect("docs.example.org", "blocked", "verdict_blocked_and_whitelisted");
    expect("https://BÜCHER.example/a", "legitimate", "verdict_whitelisted");
    expect("other.org", "distracted", "verdict_not_whitelisted");

    QSignalSpy changed(&rig.screen, &BlockListsScreen::testChanged);
    rig.screen.removeSite(whitelisted, site("docs.example.org"));
    QVERIFY(changed.size() > 0);
    rig.blocker.addAppToBlocklist(firefox);
    expect("other.org", "blocked", "verdict_browser_blocked");
}

void tst_BlockListsScreen::filesAreExaminedBeforeAnythingChanges() {
    ListsRig rig;
    rig.open();
    rig.screen.setBrowser(firefox);
    QTemporaryDir folder;
    const QUrl good = QUrl::fromLocalFile(folder.filePath(QStringLiteral("good.json")));
    rig.screen.addSites(blocked, site("a.org b.org"));
    rig.blocker.addAppToBlocklist(QStringLiteral("org.example.Game"));
    rig.screen.exportLists(good);
    QVERIFY(!rig.screen.isNoticeProblem());
    const BlockLists exported = rig.blocker.lists();

    rig.screen.removeSite(blocked, site("a.org"));
    rig.screen.addSites(whitelisted, site("c.org"));
    const BlockLists before = rig.blocker.lists();
    rig.screen.examineImport(good);
    QCOMPARE(rig.screen.importState(), QStringLiteral("ready"));
    QCOMPARE(rig.screen.importApplicationCount(), 1);
    QCOMPARE(rig.screen.importSiteCount(), 2);
    QCOMPARE(rig.screen.importAddedCount(), 1);
    QCOMPARE(rig.screen.importRemovedCount(), 1);
    rig.screen.dropImport();
    rig.screen.applyImport(true); // nothing is waiting any more
    QCOMPARE(rig.blocker.lists(), before);

    rig.screen.examineImport(good);
    rig.screen.applyImport(true);
    QCOMPARE(rig.blocker.lists(), exported);
    QCOMPARE(rig.screen.importState(), QStringLiteral("none"));
    rig.screen.undo();
    QCOMPARE(rig.blocker.lists(), before);
    rig.screen.examineImport(good);
    rig.screen.applyImport(false);
    QCOMPARE(rig.blocker.lists(), unitedLists(before, exported));

    QFile bad(folder.filePath(QStringLiteral("bad.json")));
    QVERIFY(bad.open(QIODevice::WriteOnly) && bad.write("{\n\"version\": }") > 0);
    bad.close();
    rig.screen.examineImport(QUrl::fromLocalFile(bad.fileName()));
    QCOMPARE(rig.screen.importState(), QStringLiteral("refused"));
    QVERIFY(!rig.screen.importProblem().isEmpty());
    rig.screen.applyImport(true);
    QCOMPARE(rig.blocker.lists(), unitedLists(before, exported));

    rig.screen.exportLists(QUrl::fromLocalFile(folder.filePath(QStringLiteral("missing/x.json"))));
    QVERIFY(rig.screen.isNoticeProblem());
}

void tst_BlockListsScreen::nothingIsSuggestedThatIsNotWanted() {
    ListsRig rig;
    rig.install(QStringLiteral("org.example.Sheets"), QStringLiteral("Sheets"),
                QStringLiteral("public.app-category.productivity"));
    rig.open();
    QVERIFY(rig.screen.offersSuggestions());
    QVERIFY(rig.blocker.lists().isEmpty());
    rig.blocker.addAppToBlocklist(QStringLiteral("org.example.Game"));
    QVERIFY(!rig.screen.offersSuggestions());
    rig.blocker.removeAppFromBlocklist(QStringLiteral("org.example.Game"));
    QVERIFY(rig.screen.offersSuggestions());
    rig.screen.dismissSuggestions();
    QVERIFY(!rig.screen.offersSuggestions());

    BlockListsScreen nextLaunch(rig.catalog, rig.workspace, rig.blocker, rig.preferences);
    nextLaunch.refresh();
    QVERIFY(!nextLaunch.offersSuggestions());
}

void tst_BlockListsScreen::chosenSuggestionsAreListed() {
    ListsRig rig;
    rig.install(QStringLiteral("org.example.Sheets"), QStringLiteral("Sheets"),
                QStringLiteral("public.app-category.productivity"));
    rig.install(QStringLiteral("org.example.Chess"), QStringLiteral("Chess"),
                QStringLiteral("public.app-category.games"));
    rig.install(QStringLiteral("org.example.Unknown"), QStringLiteral("Unknown"));
    rig.open();
    BlockListSuggestions* model = rig.screen.suggestions();
    const QAbstractItemModelTester tester(model);
    const auto rowOf = [model](const QString& name) {
        for (int row = 0; row < model->rowCount(); ++row) {
            if (model->index(row).data(BlockListSuggestions::NameRole).toString() == name)
                return row;
        }
        return -1;
    };
    QCOMPARE(rowOf(QStringLiteral("Unknown")), -1);
    QCOMPARE(model->chosenCount(), 0);
    model->toggle(0); // the heading over the browsers
    QVERIFY(model->index(0).data(BlockListSuggestions::IsChosenRole).toBool());
    QCOMPARE(model->chosenCount(), 2);
    model->toggle(rowOf(QStringLiteral("Firefox")));
    QVERIFY(!model->index(0).data(BlockListSuggestions::IsChosenRole).toBool());
    model->toggle(rowOf(QStringLiteral("Sheets")));
    model->toggle(rowOf(QStringLiteral("Chess")));
    model->toggle(rowOf(QStringLiteral("youtube.com")));
    rig.screen.refresh();
    QCOMPARE(model->chosenCount(), 4);

    rig.screen.addChosenSuggestions();
    const QSet<QString> sites{QStringLiteral("youtube.com")};
    QCOMPARE(rig.blocker.lists(),
             (BlockLists{.blockedAppBundleIDs = {QStringLiteral("org.example.Chess")},
                         .whitelistedAppBundleIDs = {chrome, QStringLiteral("org.example.Sheets")},
                         .browserWhitelistedSites = {},
                         .browserBlockedSites = {{firefox, sites}, {chrome, sites}}}));
    QVERIFY(!rig.screen.offersSuggestions());
    rig.screen.undo();
    QVERIFY(rig.screen.offersSuggestions());
}

QTEST_GUILESS_MAIN(tst_BlockListsScreen)
#include "tst_BlockListsScreen.moc"
