#include "platform/ScriptableBrowser.h"
#include "platform/fake/FakeAccessibility.h"
#include "platform/fake/FakeWorkspace.h"
#include "platform/linux/browsers/BrowserRoutes.h"

#include <QStringList>
#include <QTest>

using namespace norvin;
using State = BrowserRoute::State;

class tst_BrowserRoutes final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void domainsOfTheWeb();
    void answersKeepTheMeaningOfTheNumbers_data();
    void answersKeepTheMeaningOfTheNumbers();
    void onlyTheBrowserInFrontIsAsked();
    void theFirstRouteThatReachesTheBrowserServes();
    void aTabIsClosedByTheRouteThatReadIt();
    void closesKeepTheMeaningOfTheNumbers();
    void unscriptedBrowsers();
    void elementsComeFromTheFirstRouteThatHasOne();
};

namespace {

class FakeRoute final : public BrowserRoute {
public:
    [[nodiscard]] FrontPage readFrontPage(const FrontWindow& window) override {
        windows.append(window.title);
        last = page.state;
        return page;
    }
    [[nodiscard]] Closing closeFrontTab(const FrontWindow& /*window*/, const QString& domain) override {
        closed.append(domain);
        return closing;
    }
    [[nodiscard]] State lastState(qint64 /*processId*/) const override { return last; }
    [[nodiscard]] std::shared_ptr<AccessibilityElement>
    applicationElement(const FrontWindow& /*window*/) override {
        return element;
    }

    FrontPage page{State::notConnected, {}};
    Closing closing = Closing::closed;
    State last = State::unknown;
    std::shared_ptr<AccessibilityElement> element;
    QStringList windows;
    QStringList closed;
};

struct Rig {
    Rig() {
        workspace.setFrontmost(browser);
        workspace.setFrontmostWindowTitle(QStringLiteral("A page - Vivaldi"));
    }
    ScriptAnswer read() { return *routes.run(script.readScript()); }
    ScriptAnswer close() { return *routes.run(script.closeScript()); }

    FakeWorkspace workspace;
    FakeRoute extension;
    FakeRoute accessibility;
    BrowserRoutes routes{workspace, {&extension, &accessibility}};
    const RunningApplication browser = FakeWorkspace::makeApplication("com.vivaldi.Vivaldi", "Vivaldi");
    const ScriptableBrowser script = *scriptableBrowser("com.vivaldi.Vivaldi");
};

ScriptAnswer failure(int number) {
    return {std::nullopt, number};
}

} // namespace

void tst_BrowserRoutes::domainsOfTheWeb() {
    QCOMPARE(webDomain("https://www.Example.org:8443/a?b#c"), QStringLiteral("example.org"));
    QCOMPARE(webDomain("http://localhost:80/"), QStringLiteral("localhost"));
    QCOMPARE(webDomain("www.example.org"), QStringLiteral("example.org"));
    for (const char* address :
         {"about:blank", "file:///home/page.html", "chrome://settings/", "data:text/html,x",
          "moz-extension://0a1b/page", "chrome-error://chromewebdata/", "", "https://"})
        QVERIFY2(webDomain(address).isEmpty(), address);
}

void tst_BrowserRoutes::answersKeepTheMeaningOfTheNumbers_data() {
    QTest::addColumn<State>("state");
    QTest::addColumn<QString>("address");
    QTest::addColumn<ScriptAnswer>("answer");
    const QString url = QStringLiteral("https://example.org/a");
    QTest::newRow("page") << State::readable << url << ScriptAnswer{url, std::nullopt};
    QTest::newRow("no page of the web") << State::readable << "chrome://settings/" << ScriptAnswer{};
    QTest::newRow("no tab") << State::noPage << "" << failure(-1719);
    QTest::newRow("no window") << State::noWindow << "" << failure(-1728);
    QTest::newRow("off") << State::off << "" << failure(-1743);
    QTest::newRow("not there") << State::notConnected << "" << failure(-1743);
    QTest::newRow("hangs") << State::notAnswering << "" << failure(-1712);
}

void tst_BrowserRoutes::answersKeepTheMeaningOfTheNumbers() {
    QFETCH(State, state);
    QFETCH(QString, address);
    Rig rig;
    rig.accessibility.page = {state, address};
    QTEST(rig.read(), "answer");
    QCOMPARE(rig.accessibility.windows, QStringList{"A page - Vivaldi"});
    QCOMPARE(rig.routes.standing(rig.browser.processId).state, state);
}

void tst_BrowserRoutes::onlyTheBrowserInFrontIsAsked() {
    Rig rig;
    rig.extension.page = {State::readable, "example.org"};
    QVERIFY(!rig.routes.run("tell application \"Vivaldi\" to quit"));
    QVERIFY(!rig.routes.run(""));
    QCOMPARE(*rig.routes.run(scriptableBrowser("com.google.Chrome")->readScript()), failure(-1728));
    rig.workspace.setFrontmost(FakeWorkspace::makeApplication("org.example.Editor"));
    QCOMPARE(rig.read(), failure(-1728));
    rig.workspace.clearFrontmost();
    QCOMPARE(rig.read(), failure(-1728));
    QVERIFY(rig.extension.windows.isEmpty());
}

void tst_BrowserRoutes::theFirstRouteThatReachesTheBrowserServes() {
    Rig rig;
    rig.accessibility.page = {State::readable, "https://b.example/"};
    QCOMPARE(rig.read().text, std::optional<QString>("https://b.example/"));
    QCOMPARE(rig.routes.standing(rig.browser.processId).route, 1);
    rig.extension.page = {State::readable, "a.example"};
    QCOMPARE(rig.read().text, std::optional<QString>("a.example"));
    QCOMPARE(rig.accessibility.windows.size(), 1);
    QCOMPARE(rig.routes.standing(rig.browser.processId).route, 0);
    // A window that the extension may not tell of is left to the next route, and is no reason to say that
    // nothing is allowed.
    rig.extension.page = {State::elsewhere, {}};
    QCOMPARE(rig.read().text, std::optional<QString>("https://b.example/"));
    rig.accessibility.page = {State::off, {}};
    QCOMPARE(rig.read(), failure(-1719));
    QCOMPARE(rig.routes.standing(rig.browser.processId).state, State::elsewhere);
    // A route that reaches the browser and gets no answer is not followed by another wait.
    rig.extension.page = {State::notAnswering, {}};
    const qsizetype asked = rig.accessibility.windows.size();
    QCOMPARE(rig.read(), failure(-1712));
    QCOMPARE(rig.accessibility.windows.size(), asked);
}

void tst_BrowserRoutes::aTabIsClosedByTheRouteThatReadIt() {
    Rig rig;
    // Nothing was read yet, so nothing is known that may be closed.
    rig.extension.page = {State::readable, "a.example"};
    QCOMPARE(rig.close(), failure(-1719));
    rig.extension.page = {State::notConnected, {}};
    rig.accessibility.page = {State::readable, "https://www.b.example:80/x"};
    static_cast<void>(rig.read());
    rig.extension.page = {State::readable, "a.example"};
    QCOMPARE(rig.close(), ScriptAnswer{});
    QCOMPARE(rig.accessibility.closed, QStringList{"b.example"});
    QVERIFY(rig.extension.closed.isEmpty());
    // What was read before a page without domain is not closed after it.
    rig.extension.page = {State::noPage, {}};
    static_cast<void>(rig.read());
    QCOMPARE(rig.close(), failure(-1719));
    QCOMPARE(rig.accessibility.closed.size(), 1);
}

void tst_BrowserRoutes::closesKeepTheMeaningOfTheNumbers() {
    Rig rig;
    rig.extension.page = {State::readable, "a.example"};
    static_cast<void>(rig.read());
    using Closing = BrowserRoute::Closing;
    const QList<std::pair<Closing, int>> cases{{Closing::otherPage, -1728},
                                               {Closing::failed, -1708},
                                               {Closing::denied, -1743},
                                               {Closing::notAnswering, -1712}};
    for (const auto& [closing, number] : cases) {
        rig.extension.closing = closing;
        QCOMPARE(rig.close(), failure(number));
    }
}

void tst_BrowserRoutes::unscriptedBrowsers() {
    Rig rig;
    using Outcome = BrowserScripting::Closing;
    const RunningApplication firefox = FakeWorkspace::makeApplication("org.mozilla.firefox", "Firefox");
    rig.accessibility.page = {State::readable, "https://games.example/"};
    // Another program is in front by now: its page is gone.
    QCOMPARE(rig.routes.closeFrontTab(firefox, "games.example"), Outcome::closed);
    QVERIFY(rig.accessibility.windows.isEmpty());

    rig.workspace.setFrontmost(firefox);
    QCOMPARE(rig.routes.closeFrontTab(firefox, "games.example"), Outcome::closed);
    QCOMPARE(rig.accessibility.closed, QStringList{"games.example"});
    rig.accessibility.closing = BrowserRoute::Closing::failed;
    QCOMPARE(rig.routes.closeFrontTab(firefox, "games.example"), Outcome::failed);
    // Another page is in front by now.
    QCOMPARE(rig.routes.closeFrontTab(firefox, "other.example"), Outcome::closed);
    QCOMPARE(rig.accessibility.closed.size(), 2);
    rig.accessibility.page = {State::off, {}};
    QCOMPARE(rig.routes.closeFrontTab(firefox, "games.example"), Outcome::failed);
    QCOMPARE(rig.accessibility.closed.size(), 2);
}

void tst_BrowserRoutes::elementsComeFromTheFirstRouteThatHasOne() {
    Rig rig;
    rig.accessibility.element = std::make_shared<FakeElement>();
    QCOMPARE(rig.routes.applicationElement(rig.browser), rig.accessibility.element);
    rig.extension.element = std::make_shared<FakeElement>();
    QCOMPARE(rig.routes.applicationElement(rig.browser), rig.extension.element);
}

QTEST_GUILESS_MAIN(tst_BrowserRoutes)
#include "tst_BrowserRoutes.moc"
