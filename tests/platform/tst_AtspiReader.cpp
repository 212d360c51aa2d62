#include "platform/linux/atspi/AtspiElements.h"
#include "platform/linux/atspi/AtspiReader.h"
#include "support/FakeAtspi.h"

#include <QTest>

using namespace norvin;
using namespace std::chrono_literals;
using State = BrowserReadState;
using Result = BrowserCloseResult;

namespace {

const QString news = QStringLiteral("http://news.example.org/");
const QString videos = QStringLiteral("http://video.example.com/watch?v=1");
const QString newsTitle = QStringLiteral("Morning news — Browser");
const QString videosTitle = QStringLiteral("Funny videos — Browser");
const QString browser = QStringLiteral(":1.5");
constexpr qint64 pid = 42;

QString at(const char* path) {
    return QString::fromLatin1(path);
}

} // namespace

/// A browser with a window of two tabs, the second of which is in front, asked over a bus of the test's own.
class AtspiReaderTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        m_clock = std::make_unique<FakeClock>();
        m_bus = std::make_shared<FakeAtspi>(*m_clock);
        m_reader = std::make_unique<AtspiReader>(*m_clock);
        m_closed.clear();
        m_bus->programs[QStringLiteral(":1.1")] = {.processId = 7};
        auto& program = m_bus->programs[browser] = {.processId = pid};
        program.objects = {
            {at("/root"), {.children = {at("/w")}}},
            {at("/w"),
             {.role = AtspiRole::frame,
              .name = videosTitle,
              .children = {at("/menu"), at("/nav"), at("/tabbar"), at("/panel")},
              .embeds = at("/doc2")}},
            {at("/menu"), {.role = AtspiRole::menuBar, .children = {at("/field-in-menu")}}},
            {at("/tabbar"), {.role = AtspiRole::toolBar, .children = {at("/tabs")}}},
            {at("/tabs"), {.role = AtspiRole::pageTabList, .children = {at("/tab1"), at("/tab2")}}},
            {at("/tab1"), {.role = AtspiRole::pageTab, .children = {at("/close1")}}},
            {at("/tab2"),
             {.role = AtspiRole::pageTab,
              .children = {at("/close2"), at("/mute2")},
              .states = AtspiState::showing | AtspiState::selected}},
            {at("/close1"), closeButton(1)},
            {at("/close2"), closeButton(2)},
            {at("/mute2"), {.role = AtspiRole::pushButton, .attributes = {{at("class"), at("mute-button")}}}},
            {at("/nav"), {.role = AtspiRole::toolBar, .children = {at("/address")}}},
            {at("/address"),
             {.role = AtspiRole::comboBox,
              .states = AtspiState::showing | AtspiState::editable,
              .attributes = {{at("id"), at("urlbar-input")}, {at("class"), at("OmniboxViewViews")}},
              .text = at("video.example.com")}},
            {at("/panel"), {.children = {at("/doc1"), at("/doc2")}}},
            {at("/doc1"),
             {.role = AtspiRole::documentWeb, .name = at("Morning news"), .states = 0, .url = news}},
            {at("/doc2"),
             {.role = AtspiRole::documentWeb,
              .name = at("Funny videos"),
              .children = {at("/secret")},
              .url = videos}},
        };
    }

    void readsThePageInFront() {
        QCOMPARE(read().url, videos);
        // Other programs are never spoken to, nor are pages looked into.
        for (const AtspiCall& call : m_bus->calls)
            QVERIFY(call.target.service != QStringLiteral(":1.1") &&
                    call.target.path != QStringLiteral("/secret"));

        object("/w").embeds.clear(); // not described yet: found by search, and not the one behind
        QCOMPARE(read().url, videos);
        // The browser was started anew, under another name.
        m_bus->programs[QStringLiteral(":1.9")] = m_bus->programs.take(browser);
        QCOMPARE(read().url, videos);
        QCOMPARE(m_bus->count("GetConnectionUnixProcessID"), 3);
    }

    void tellsWhyThereIsNoPage() {
        QCOMPARE(m_reader->readFrontPage(m_bus, 43, videosTitle).state, State::notOnBus);
        QCOMPARE(read(newsTitle).state, State::noWindow);
        object("/doc2").url.clear();
        QCOMPARE(read().state, State::noDocument);
        object("/w").embeds.clear();
        object("/panel").children.clear();
        QCOMPARE(read().state, State::noDocument);
        m_bus->programs.remove(browser);
        QCOMPARE(read().state, State::notOnBus);
    }

    void knowsTheWindowByItsTitle_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("title");
        QTest::addColumn<bool>("isKnown");
        QTest::newRow("white space") << "Funny videos  — Browser " << videosTitle << true;
        QTest::newRow("sound") << "Funny videos - Audio playing - Browser"
                               << "Funny videos - Browser" << true;
        QTest::newRow("private") << "Funny videos - Browser (Private)"
                                 << "Funny videos - Browser" << true;
        QTest::newRow("longer page title") << "Funny videos - Browser"
                                           << "Funny videos of cats - Browser" << false;
        QTest::newRow("neither") << ""
                                 << "" << false;
        QTest::newRow("no name") << ""
                                 << "Funny videos - Browser" << false;
    }
    void knowsTheWindowByItsTitle() {
        QFETCH(QString, name);
        QFETCH(QString, title);
        object("/w").name = name;
        QTEST(read(title).state == State::readable, "isKnown");
    }

    void windowsOfTheSameTitle() {
        addSecondWindow(QStringLiteral("http://other.example.org/"));
        object("/w2").states |= AtspiState::active;
        QCOMPARE(read().url, QStringLiteral("http://other.example.org/"));

        // A browser whose windows' state means nothing.
        m_bus->programs[browser].toolkit = QStringLiteral("Chromium");
        QCOMPARE(read().state, State::noWindow);
        object("/doc3").url = QStringLiteral("http://video.example.com/other");
        QCOMPARE(read().url, videos);
        QCOMPARE(close(), Result::notClosable);
        QVERIFY(m_closed.isEmpty());
    }

    void leavesASilentBrowserAlone() {
        m_bus->programs[browser].isSilent = true;
        std::vector<std::chrono::milliseconds> probes;
        for (auto start = m_clock->monotonic(); m_clock->monotonic() - start < 200s; m_clock->advance(1s)) {
            const size_t before = m_bus->calls.size();
            const auto begin = m_clock->monotonic();
            QCOMPARE(read().state, State::notAnswering);
            QVERIFY(m_clock->monotonic() - begin <= 300ms);
            if (m_bus->calls.size() != before)
                probes.push_back(begin - start);
        }
        QCOMPARE(probes.size(), size_t{6}); // after 10, 20, 40 and twice 60 seconds
        QVERIFY(probes[1] >= 10s && probes[1] < 12s);
        QVERIFY(probes[5] - probes[4] >= 60s && probes[5] - probes[4] < 62s);

        // An answer to the question that nobody waits for ends the rest at once.
        m_bus->programs[browser].isSilent = false;
        QCOMPARE(read().state, State::notAnswering);
        m_bus->awaited.front()();
        QCOMPARE(read().state, State::notAnswering); // that was to an earlier one
        m_bus->awaited.back()();
        QCOMPARE(read().url, videos);
    }

    void aSilentBusRestsForAllBrowsers() {
        m_bus->isRegistrySilent = true;
        QCOMPARE(read().state, State::notAnswering);
        const size_t calls = m_bus->calls.size();
        QCOMPARE(m_reader->readFrontPage(m_bus, 43, newsTitle).state, State::notAnswering);
        QCOMPARE(m_bus->calls.size(), calls);
        m_reader->forgetBus(); // there is another one
        m_bus->isRegistrySilent = false;
        QCOMPARE(read().url, videos);
    }

    void keepsTheDeadlineWithASlowBrowser() {
        m_bus->perRoundTrip = 60ms;
        const auto begin = m_clock->monotonic();
        QCOMPARE(close(), Result::failed);
        QVERIFY(m_clock->monotonic() - begin <= 300ms);
        QVERIFY(m_closed.isEmpty());
        m_bus->perRoundTrip = 1ms;
        QCOMPARE(read().url, videos); // slow is not silent: no rest
    }

    void closesTheFrontTabOnly() {
        QCOMPARE(close(news), Result::otherPage);
        QVERIFY(m_closed.isEmpty());
        QCOMPARE(close(), Result::closed);
        QCOMPARE(m_closed, QList<int>{2});
    }

    void doesNotCloseWhatCameToTheFrontMeanwhile() {
        // The user switches to the other tab while the close button is looked for.
        m_bus->beforeCall = [this](const AtspiCall& call) {
            if (call.target.path != QStringLiteral("/close2"))
                return;
            object("/w").embeds = at("/doc1");
            object("/tab2").states = AtspiState::showing;
        };
        QCOMPARE(close(), Result::otherPage);
        QVERIFY(m_closed.isEmpty());
    }

    void tabsThatCannotBeClosed() {
        object("/tab2").children = {at("/mute2")}; // pinned, with sound
        QCOMPARE(close(), Result::notClosable);
        object("/tab2").children = {at("/close2")};
        object("/tab1").states |= AtspiState::selected; // its button would close both
        QCOMPARE(close(), Result::notClosable);
        object("/tab1").states = AtspiState::showing;
        object("/close2").onAction = {};
        QCOMPARE(close(), Result::failed);
        QVERIFY(m_closed.isEmpty());
    }

    void aTabThatStaysIsNotClosable() {
        QCOMPARE(close(), Result::closed);
        m_clock->advance(200ms);
        QCOMPARE(close(), Result::closed); // it may still be closing
        m_clock->advance(1s);
        QCOMPARE(close(), Result::notClosable);
        QCOMPARE(m_closed.size(), 1);

        object("/w").embeds = at("/doc1"); // the user goes elsewhere, and comes back
        QCOMPARE(read().url, news);
        object("/w").embeds = at("/doc2");
        QCOMPARE(close(), Result::closed);
        QCOMPARE(m_closed.size(), 2);
    }

    void showsABrowserAsElements() {
        std::vector<State> states;
        auto application = element(&states);
        const auto windows = application->elements(at("AXWindows"));
        QCOMPARE(windows.list->size(), size_t{1});
        auto children = *windows.list->front()->elements(at("AXChildren")).list;
        QCOMPARE(children.size(), size_t{1});
        QCOMPARE(children.front()->text(at("AXRole")), at("AXWebArea"));
        QCOMPARE(children.front()->text(at("AXURL")), videos);
        QVERIFY(children.front()->elements(at("AXChildren")).list->empty());
        QCOMPARE(states, std::vector{State::readable});

        // A page of the browser's own has no address of the web, and ends the search as well.
        object("/doc2").url = at("about:newtab");
        children =
            *element(&states)->elements(at("AXWindows")).list->front()->elements(at("AXChildren")).list;
        QCOMPARE(children.size(), size_t{1});
        QVERIFY(!children.front()->text(at("AXURL")));

        // Without any, the rest of the window is shown: toolbars come next, then the panel; of the
        // menu and of the tabs nothing is shown.
        object("/doc2").url.clear();
        children =
            *element(&states)->elements(at("AXWindows")).list->front()->elements(at("AXChildren")).list;
        auto address = children[1]->elements(at("AXChildren")).list->front();
        QCOMPARE(address->text(at("AXRole")), at("AXTextField"));
        QCOMPARE(address->text(at("AXIdentifier")), at("urlbar-input"));
        QCOMPARE(address->text(at("AXSubrole")), at("AXURLTextField"));
        QCOMPARE(address->text(at("AXValue")), at("video.example.com"));
        QCOMPARE(m_bus->count("GetText"), 1);
        for (const AtspiCall& call : m_bus->calls)
            QVERIFY(call.target.path != QStringLiteral("/field-in-menu"));
    }

    void elementsSayWhatIsMissing() {
        std::vector<State> states;
        const auto code = [&](State access, bool hasBus) {
            return atspiApplicationElement({*m_reader, *m_clock, hasBus ? m_bus : nullptr, access, pid,
                                            newsTitle, [&](State state) { states.push_back(state); }})
                ->elements(at("AXWindows"))
                .errorCode;
        };
        QCOMPARE(code(State::accessibilityOff, false), -25211);
        QCOMPARE(code(State::serviceMissing, false), -25211);
        QCOMPARE(code(State::unknown, false), -25204);
        QCOMPARE(code(State::unknown, true), 0); // it has no such window
        m_bus->programs[browser].isSilent = true;
        QCOMPARE(code(State::unknown, true), -25204);
        QCOMPARE(states, (std::vector{State::accessibilityOff, State::serviceMissing, State::unknown,
                                      State::noWindow, State::notAnswering}));
    }

    void endsWithAHostileBrowser() {
        // Each object is its own child, in many copies, and no document is in front.
        auto& program = m_bus->programs[browser];
        object("/w").embeds.clear();
        for (auto& entry : program.objects) {
            entry.children += QStringList(300, at("/panel")) + QStringList(300, at("/nav"));
            entry.url = QString(100'000, u'x');
        }
        object("/panel").children.removeAll(at("/doc2"));
        m_bus->perRoundTrip = 0ms;
        QVERIFY(read().state != State::readable);
        QCOMPARE(close(), Result::failed);
        QVERIFY(m_bus->calls.size() < 4 * AtspiProbe::mostCalls);
        const auto root = element(nullptr);
        int visited = 0;
        std::function<void(AccessibilityElement&, int)> walk = [&](AccessibilityElement& part, int depth) {
            ++visited;
            for (const auto& child :
                 part.elements(at("AXChildren")).list.value_or(AccessibilityElement::List()))
                if (depth < 24)
                    walk(*child, depth + 1);
        };
        walk(*root->elements(at("AXWindows")).list.value().front(), 0);
        QVERIFY(visited < 3 * AtspiProbe::mostCalls);
    }

private:
    FakeAtspi::Object closeButton(int tab) {
        return {.role = AtspiRole::pushButton,
                .attributes = {{at("class"), at("tab-close-button")}},
                .onAction = [this, tab] { m_closed.append(tab); }};
    }
    FakeAtspi::Object& object(const char* path) { return m_bus->programs[browser].objects[at(path)]; }

    void addSecondWindow(const QString& url) {
        object("/root").children.append(at("/w2"));
        object("/w2") = {.role = AtspiRole::frame, .name = videosTitle, .embeds = at("/doc3")};
        object("/doc3") = {.role = AtspiRole::documentWeb, .name = at("Funny videos"), .url = url};
    }

    BrowserFrontPage read(const QString& title = videosTitle) {
        return m_reader->readFrontPage(m_bus, pid, title);
    }
    Result close(const QString& expected = videos) {
        return m_reader
            ->closeFrontTab(m_bus, pid, videosTitle, [&](const QString& url) { return url == expected; })
            .result;
    }
    std::shared_ptr<AccessibilityElement> element(std::vector<State>* states) {
        return atspiApplicationElement(
            {*m_reader, *m_clock, m_bus, State::unknown, pid, videosTitle, [states](State state) {
                 if (states)
                     states->push_back(state);
             }});
    }

    std::unique_ptr<FakeClock> m_clock;
    std::shared_ptr<FakeAtspi> m_bus;
    std::unique_ptr<AtspiReader> m_reader;
    QList<int> m_closed;
};

QTEST_GUILESS_MAIN(AtspiReaderTest)
#include "tst_AtspiReader.moc"
