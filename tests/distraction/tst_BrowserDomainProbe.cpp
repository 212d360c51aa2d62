#include "distraction/BrowserDomainProbe.h"
#include "distraction/KnownBrowsers.h"
#include "distraction/PageAddress.h"
#include "platform/Log.h"
#include "platform/ScriptableBrowser.h"
#include "platform/fake/FakeAccessibility.h"
#include "platform/fake/FakeBrowserScripting.h"
#include "platform/fake/FakeWorkspace.h"

#include <QTest>

using namespace norvin;
using Kind = BrowserURLReadResult::Kind;

class tst_BrowserDomainProbe final : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void domainsOfAddresses_data();
    void domainsOfAddresses();
    void textsThatLookLikeAddresses_data();
    void textsThatLookLikeAddresses();
    void scriptsNameTheBrowserAndItsTab();
    void scriptedReads_data();
    void scriptedReads();
    void scriptedCloses_data();
    void scriptedCloses();
    void accessibleReads();
    void accessibilityThatIsOff();
    void searchesGoDownToTheirDepthOnly();
    void addressBarsAreToldByAnyOfTheirMarks();
    void tabsWithoutScriptsAreClosedAnotherWay();

private:
    QStringList m_lines;
};

namespace {

std::shared_ptr<FakeElement> element(FakeElement::Texts texts, AccessibilityElement::List children = {}) {
    return std::make_shared<FakeElement>(std::move(texts), std::move(children));
}

std::shared_ptr<FakeElement> page(const QString& url) {
    return element({{"AXRole", "AXWebArea"}, {"AXURL", url}});
}

std::shared_ptr<FakeElement> buried(std::shared_ptr<FakeElement> what, int levels) {
    for (int i = 0; i < levels; ++i)
        what = element({{"AXRole", "AXGroup"}}, {what});
    return what;
}

const RunningApplication& firefox() {
    static const RunningApplication application =
        FakeWorkspace::makeApplication(QStringLiteral("org.mozilla.firefox"), QStringLiteral("Firefox"));
    return application;
}

} // namespace

void tst_BrowserDomainProbe::init() {
    m_lines.clear();
    setLogSink([this](const QString& line) { m_lines.append(line); });
}

void tst_BrowserDomainProbe::cleanup() {
    setLogSink({});
}

void tst_BrowserDomainProbe::domainsOfAddresses_data() {
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("domain"); // empty for none
    const QList<std::pair<const char*, const char*>> cases{
        {"HTTPS://WWW.Example.COM:8443/path?q=1#frag", "example.com"},
        {"www.example.com", "example.com"},
        {"www.www.example.com", "www.example.com"},
        {"https://www2.example.com", "www2.example.com"},
        {"  http://m.example.org?x=http://other.org \n", "m.example.org"},
        {"example.org/login?next=https://bank.example", "bank.example"},
        {"localhost:8080", "localhost"},
        {"example.org#top", "example.org"},
        {"about:blank", "about"},
        {"https://", ""},
        {" \t\n", ""},
        {"", ""},
        {"www.", ""},
    };
    for (const auto& [address, domain] : cases)
        QTest::newRow(qPrintable(QStringLiteral("'%1'").arg(QLatin1String(address)))) << address << domain;
}

void tst_BrowserDomainProbe::domainsOfAddresses() {
    QFETCH(QString, address);
    QFETCH(QString, domain);
    QCOMPARE(extractDomain(address), domain.isEmpty() ? std::nullopt : std::optional<QString>(domain));
}

void tst_BrowserDomainProbe::textsThatLookLikeAddresses_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isAddress");
    for (const char* text : {"example.xyz", "a.fr", "http://x", "https://a b", "  example.com/a  ",
                             "sub.example.museum", ".example.org."})
        QTest::newRow(text) << text << true;
    for (const char* text :
         {"", "   ", "abc", "a.b", "my file.txt", "example.c", "localhost", "....", ".com", "HTTP://x"})
        QTest::newRow(text) << text << false;
}

void tst_BrowserDomainProbe::textsThatLookLikeAddresses() {
    QFETCH(QString, text);
    QFETCH(bool, isAddress);
    QCOMPARE(looksLikeURL(text), isAddress);
}

void tst_BrowserDomainProbe::scriptsNameTheBrowserAndItsTab() {
    QCOMPARE(scriptableBrowser("com.google.Chrome")->readScript(),
             QStringLiteral("tell application \"Google Chrome\" to get URL of active tab of front window"));
    QCOMPARE(scriptableBrowser("com.apple.Safari")->closeScript(),
             QStringLiteral("tell application \"Safari\" to close current tab of front window"));
    QCOMPARE(scriptableBrowser("company.thebrowser.Browser")->applicationName, QStringLiteral("Arc"));
    QVERIFY(!scriptableBrowser("com.google.chrome"));
    int scripted = 0;
    for (const QString& identifier : knownBrowserBundleIDs())
        scripted += scriptableBrowser(identifier) ? 1 : 0;
    QCOMPARE(scripted, 7);
    QVERIFY(!scriptableBrowser(firefox().bundleIdentifier));
}

void tst_BrowserDomainProbe::scriptedReads_data() {
    QTest::addColumn<ScriptAnswer>("answer");
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QString>("domain");
    QTest::addColumn<QString>("line"); // empty for none
    const auto error = [](int number) { return ScriptAnswer{std::nullopt, number}; };
    QTest::newRow("page") << ScriptAnswer{"https://www.example.org/a", std::nullopt} << Kind::domain
                          << "example.org"
                          << "";
    QTest::newRow("no address") << ScriptAnswer{} << Kind::noURL << ""
                                << "";
    QTest::newRow("nothing left") << ScriptAnswer{"https://", std::nullopt} << Kind::noURL << ""
                                  << "";
    QTest::newRow("not allowed") << error(-1743) << Kind::automationDenied << ""
                                 << "";
    QTest::newRow("privilege") << error(-10004) << Kind::automationDenied << ""
                               << "";
    QTest::newRow("no window") << error(-1728) << Kind::noURL << ""
                               << "";
    QTest::newRow("no tab") << error(-1719) << Kind::noURL << ""
                            << "";
    QTest::newRow("other") << error(-1712) << Kind::noURL << ""
                           << "AppUsageService: AppleScript error -1712 for Vivaldi";
}

void tst_BrowserDomainProbe::scriptedReads() {
    QFETCH(ScriptAnswer, answer);
    FakeBrowserScripting scripting;
    FakeAccessibility accessibility;
    const RunningApplication vivaldi = FakeWorkspace::makeApplication("com.vivaldi.Vivaldi", "Vivaldi");
    const BrowserDomainProbe probe(scripting, accessibility);
    // A script that nobody understands is no address, and no reason for a line.
    QCOMPARE(probe.readBrowserDomain(vivaldi).kind, Kind::noURL);

    scripting.setAnswer(scriptableBrowser(vivaldi.bundleIdentifier)->readScript(), answer);
    const BrowserURLReadResult result = probe.readBrowserDomain(vivaldi);
    QTEST(result.kind, "kind");
    QTEST(result.domain, "domain");
    QVERIFY(!result.isAccessibilityGranted);
    QTEST(m_lines.join(u'\n'), "line");
    QCOMPARE(probe.readBrowserDomain(RunningApplication{}).kind, Kind::unreadable);
}

void tst_BrowserDomainProbe::scriptedCloses_data() {
    QTest::addColumn<std::optional<ScriptAnswer>>("answer");
    QTest::addColumn<bool>("isClosed");
    QTest::addColumn<bool>("isDenied");
    const auto error = [](int number) { return std::optional(ScriptAnswer{std::nullopt, number}); };
    QTest::newRow("closed") << std::optional(ScriptAnswer{}) << true << false;
    QTest::newRow("gone already") << error(-1728) << true << false;
    QTest::newRow("no such tab") << error(-1719) << false << false;
    QTest::newRow("not allowed") << error(-1743) << false << true;
    QTest::newRow("privilege") << error(-10004) << false << true;
    QTest::newRow("not understood") << std::optional<ScriptAnswer>() << false << false;
}

void tst_BrowserDomainProbe::scriptedCloses() {
    QFETCH(std::optional<ScriptAnswer>, answer);
    FakeBrowserScripting scripting;
    FakeAccessibility accessibility;
    const ScriptableBrowser chrome = *scriptableBrowser("com.google.Chrome");
    if (answer)
        scripting.setAnswer(chrome.closeScript(), *answer);
    const BrowserDomainProbe::CloseResult result =
        BrowserDomainProbe(scripting, accessibility).closeActiveTab(chrome.bundleIdentifier);
    QTEST(result.isClosed, "isClosed");
    QTEST(result.isAutomationDenied, "isDenied");
}

void tst_BrowserDomainProbe::accessibleReads() {
    FakeBrowserScripting scripting;
    FakeAccessibility accessibility;
    const BrowserDomainProbe probe(scripting, accessibility);

    accessibility.application().setChildren({});
    QCOMPARE(probe.readBrowserDomain(firefox()).kind, Kind::unreadable);
    QCOMPARE(m_lines.takeLast(), QStringLiteral("AppUsageService: [Firefox/AX] no URL found in 0 window(s)"));
    QCOMPARE(accessibility.application().switchedOn(),
             (QStringList{"AXManualAccessibility", "AXEnhancedUserInterface"}));

    const auto addressBar = element({{"AXRole", "AXTextField"}, {"AXValue", "typed.example.net"}});
    const auto window =
        element({{"AXRole", "AXWindow"}}, {addressBar, buried(page("https://a.example.org/"), 3)});
    accessibility.application().setChildren({element({}), window});
    BrowserURLReadResult result = probe.readBrowserDomain(firefox());
    QCOMPARE(result.domain, QStringLiteral("a.example.org"));
    QCOMPARE(result.isAccessibilityGranted, std::optional(true));
    QCOMPARE(m_lines.takeLast(),
             QStringLiteral("AppUsageService: [Firefox/AX] domain via AXWebArea → a.example.org"));

    // Where the page has no address, the bar stands in for it.
    window->setChildren({addressBar, element({{"AXRole", "AXWebArea"}})});
    result = probe.readBrowserDomain(firefox());
    QCOMPARE(result.domain, QStringLiteral("typed.example.net"));
    QCOMPARE(m_lines.takeLast(),
             QStringLiteral("AppUsageService: [Firefox/AX] domain via address bar → typed.example.net"));
    QVERIFY(scripting.scripts().isEmpty());
}

void tst_BrowserDomainProbe::accessibilityThatIsOff() {
    FakeBrowserScripting scripting;
    FakeAccessibility accessibility;
    const BrowserDomainProbe probe(scripting, accessibility);
    for (const auto& [code, isGranted] : {std::pair(-25211, false), std::pair(-25204, true)}) {
        accessibility.application().setErrorCode(code);
        const BrowserURLReadResult result = probe.readBrowserDomain(firefox());
        QCOMPARE(result.kind, Kind::unreadable);
        QCOMPARE(result.isAccessibilityGranted, std::optional(isGranted));
        QCOMPARE(
            m_lines.takeLast(),
            QStringLiteral("AppUsageService: [Firefox/AX] windows query failed (%1) — accessibility off?")
                .arg(code));
    }
}

void tst_BrowserDomainProbe::searchesGoDownToTheirDepthOnly() {
    const auto bar = element({{"AXSubrole", "AXURLTextField"}, {"AXValue", "example.org"}});
    QVERIFY(findWebAreaURL(*buried(page("https://example.org"), 24), 0));
    QVERIFY(!findWebAreaURL(*buried(page("https://example.org"), 25), 0));
    QVERIFY(findURLTextField(*buried(bar, 24), 0));
    QVERIFY(!findURLTextField(*buried(bar, 25), 0));
    // The first in depth wins, not the nearest.
    const auto tree = element({}, {buried(page("https://deep.example"), 5), page("https://near.example")});
    QCOMPARE(findWebAreaURL(*tree, 0), std::optional<QString>("https://deep.example"));
}

void tst_BrowserDomainProbe::addressBarsAreToldByAnyOfTheirMarks() {
    const auto found = [](const FakeElement::Texts& marks, const char* value) {
        FakeElement::Texts texts = marks;
        texts.insert("AXValue", value);
        return findURLTextField(*element({}, {element(texts)}), 0).has_value();
    };
    for (const char* identifier : {"WEB_BROWSER_ADDRESS_AND_SEARCH_FIELD", "addressField", "urlbar-input"})
        QVERIFY(found({{"AXRole", "AXComboBox"}, {"AXIdentifier", identifier}}, "example.org"));
    QVERIFY(found({{"AXSubrole", "AXURLTextField"}}, "example.org"));
    QVERIFY(found({{"AXRole", "AXTextField"}}, "example.org"));
    QVERIFY(!found({{"AXRole", "AXStaticText"}}, "example.org"));
    QVERIFY(!found({{"AXRole", "AXTextField"}}, "words to search for"));
    // What is inside a field that holds no address is searched too.
    const auto outer = element({{"AXRole", "AXTextField"}, {"AXValue", "words"}},
                               {element({{"AXRole", "AXTextField"}, {"AXValue", "example.org"}})});
    QCOMPARE(findURLTextField(*outer, 0), std::optional<QString>("example.org"));
}

void tst_BrowserDomainProbe::tabsWithoutScriptsAreClosedAnotherWay() {
    FakeBrowserScripting scripting;
    FakeAccessibility accessibility;
    const BrowserDomainProbe probe(scripting, accessibility);
    QVERIFY(!probe.closeActiveTab(firefox().bundleIdentifier).isClosed);
    QVERIFY(!probe.closeUnscriptedTab(firefox(), "example.org"));
    scripting.setClosing(BrowserScripting::Closing::closed);
    QVERIFY(probe.closeUnscriptedTab(firefox(), "example.org"));
    QCOMPARE(scripting.closings().last().domain, QStringLiteral("example.org"));
    QVERIFY(!probe.closeUnscriptedTab(FakeWorkspace::makeApplication("com.vivaldi.Vivaldi"), "example.org"));
    QVERIFY(scripting.scripts().isEmpty());
}

QTEST_GUILESS_MAIN(tst_BrowserDomainProbe)
#include "tst_BrowserDomainProbe.moc"
