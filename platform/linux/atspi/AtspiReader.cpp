#include "platform/linux/atspi/AtspiReader.h"

#include "platform/Clock.h"
#include "platform/linux/atspi/AtspiWindowSearch.h"

#include <QUrl>

#include <algorithm>

namespace norvin {

using namespace std::chrono_literals;

namespace {

// Key for the bus itself among the process ids of browsers.
constexpr qint64 busItself = 0;
constexpr auto firstRest = 10s;
constexpr auto longestRest = 60s;
// A tab takes a moment to close, and the browser is perhaps asked again in that moment.
constexpr auto timeToClose = 500ms;
// More windows than this have no place on a desktop, nor in the time of a probe.
constexpr size_t mostWindows = 64;
constexpr qsizetype mostBrowsers = 64;

// Browsers add to the name of a window for those who hear it that its page plays sound, say, or that it is
// private: between the title of the page and their own name, or behind both.
bool hasTitle(const AtspiProbe::WindowFacts& window, const QString& title) {
    if (title.isEmpty())
        return false; // browsers have windows without a name besides those that are seen
    const QString name = window.name.simplified();
    if (name == title)
        return true;
    const QString page = window.documentName.simplified();
    return !page.isEmpty() && name.startsWith(page) && title.startsWith(page) &&
           name.indexOf(title.mid(page.size()), page.size()) >= 0;
}

} // namespace

AtspiReader::AtspiReader(Clock& clock)
    : m_clock(clock) {}

void AtspiReader::forgetBus() {
    m_applications.clear();
    m_processes.clear();
    m_silent.clear();
    m_attempts.clear();
}

BrowserReadState AtspiReader::stateAfter(const AtspiProbe& probe, BrowserReadState otherwise) {
    switch (probe.failure()) {
    case AtspiProbe::Failure::none:
        return otherwise;
    case AtspiProbe::Failure::gone:
        return BrowserReadState::notOnBus;
    case AtspiProbe::Failure::silent:
    case AtspiProbe::Failure::exhausted:
        break;
    }
    return BrowserReadState::notAnswering;
}

bool AtspiReader::mayProbe(qint64 processId) const {
    const auto now = m_clock.monotonic();
    return m_silent.value(processId).until <= now && m_silent.value(busItself).until <= now;
}

void AtspiReader::conclude(const Transport& transport, qint64 processId, const AtspiProbe& probe) {
    if (probe.failure() == AtspiProbe::Failure::silent) {
        const qint64 key = m_askingBus ? busItself : processId;
        Silence& silence = m_silent[key];
        silence.length = std::clamp<std::chrono::milliseconds>(2 * silence.length, firstRest, longestRest);
        silence.until = m_clock.monotonic() + silence.length;
        // A browser that was only busy is read again as soon as it answers.
        transport->awaitAnswer(probe.failedService(), [this, key, until = silence.until] {
            if (m_silent.value(key).until == until)
                m_silent.remove(key);
        });
        return;
    }
    m_silent.remove(busItself);
    if (probe.failure() == AtspiProbe::Failure::none)
        m_silent.remove(processId);
    // Those whose rest is over have either left, or are asked again and then counted anew.
    if (m_silent.size() > mostBrowsers)
        m_silent.removeIf([&](const auto& entry) { return entry.value().until <= m_clock.monotonic(); });
}

AtspiReference AtspiReader::findApplication(AtspiProbe& probe, qint64 processId) {
    m_askingBus = true;
    const auto applications = probe.applications();
    QHash<QString, qint64> processes;
    AtspiReference found;
    for (const AtspiReference& application : applications) {
        std::optional<qint64> process;
        if (const auto known = m_processes.constFind(application.service); known != m_processes.constEnd()) {
            process = known.value();
        } else {
            process = probe.processOf(application.service);
            probe.forgetGone(); // one that has just left
        }
        if (process)
            processes.insert(application.service, *process);
        if (process == processId && found.isNull())
            found = application;
    }
    m_processes = std::move(processes);
    m_askingBus = probe.failure() != AtspiProbe::Failure::none;
    return found;
}

AtspiReader::Window AtspiReader::findWindow(AtspiProbe& probe, qint64 processId, const QString& windowTitle) {
    AtspiReference application = m_applications.value(processId);
    std::vector<AtspiReference> frames;
    m_askingBus = false;
    if (!application.isNull()) {
        frames = probe.children(application);
        if (probe.failure() == AtspiProbe::Failure::gone) {
            m_applications.remove(processId);
            probe.forgetGone();
            application = {};
        }
    }
    if (application.isNull()) {
        application = findApplication(probe, processId);
        if (application.isNull())
            return {.frame = {}, .others = {}, .state = stateAfter(probe, BrowserReadState::notOnBus)};
        if (m_applications.size() >= mostBrowsers)
            m_applications.clear();
        m_applications.insert(processId, application);
        frames = probe.children(application);
    }

    if (frames.size() > mostWindows)
        frames.resize(mostWindows);
    const auto facts = probe.windowFactsOfEach(frames);
    std::vector<AtspiReference> matching;
    for (size_t i = 0; i < frames.size(); ++i)
        if (hasTitle(facts[i], windowTitle.simplified()))
            matching.push_back(frames[i]);
    // Two windows may show pages of the same title. Not every browser keeps the state of being in front up to
    // date.
    if (matching.size() > 1 && probe.toolkit(application) == QLatin1String("Gecko")) {
        const auto states = probe.factsOfEach(matching);
        for (size_t i = 0; i < matching.size(); ++i)
            if (states[i].states & AtspiState::active)
                matching = {matching[i]};
    }
    if (probe.failure() != AtspiProbe::Failure::none || matching.empty())
        return {.frame = {}, .others = {}, .state = stateAfter(probe, BrowserReadState::noWindow)};
    Window window{.frame = matching.front(), .others = {}, .state = BrowserReadState::readable};
    window.others.assign(matching.begin() + 1, matching.end());
    return window;
}

AtspiReader::Page AtspiReader::readPage(AtspiProbe& probe, const Window& window) {
    Page page = readPage(probe, window.frame);
    for (const AtspiReference& other : window.others) {
        const Page otherPage = readPage(probe, other);
        if (probe.failure() == AtspiProbe::Failure::none &&
            (otherPage.state != page.state || QUrl(otherPage.url).host() != QUrl(page.url).host()))
            return {.document = {}, .url = {}, .state = BrowserReadState::noWindow};
    }
    if (probe.failure() != AtspiProbe::Failure::none)
        return {.document = {}, .url = {}, .state = stateAfter(probe, page.state)};
    return page;
}

AtspiReader::Page AtspiReader::readPage(AtspiProbe& probe, const AtspiReference& frame) {
    Page page;
    page.document = findFrontDocument(probe, frame);
    page.url = probe.documentUrl(page.document);
    // A cut address would be another one.
    const bool isComplete = probe.failure() == AtspiProbe::Failure::none;
    if (!isComplete)
        page.url.clear();
    page.state =
        stateAfter(probe, page.url.isEmpty() ? BrowserReadState::noDocument : BrowserReadState::readable);
    return page;
}

void AtspiReader::noteFront(qint64 processId, const Page& page) {
    const auto attempt = m_attempts.constFind(processId);
    if (attempt != m_attempts.constEnd() && page.state == BrowserReadState::readable &&
        (attempt->document != page.document || attempt->url != page.url))
        m_attempts.erase(attempt);
}

BrowserFrontPage AtspiReader::readFrontPage(const Transport& transport, qint64 processId,
                                            const QString& windowTitle) {
    if (!mayProbe(processId))
        return {.state = BrowserReadState::notAnswering, .url = {}};
    AtspiProbe probe(transport, m_clock);
    const Window window = findWindow(probe, processId, windowTitle);
    BrowserFrontPage front{.state = window.state, .url = {}};
    if (!window.frame.isNull()) {
        const Page page = readPage(probe, window);
        noteFront(processId, page);
        front = {.state = page.state, .url = page.url};
    }
    conclude(transport, processId, probe);
    return front;
}

AtspiReader::Closing AtspiReader::closeFrontTab(const Transport& transport, qint64 processId,
                                                const QString& windowTitle,
                                                const std::function<bool(const QString& url)>& isExpected) {
    if (!mayProbe(processId))
        return {.state = BrowserReadState::notAnswering};
    AtspiProbe probe(transport, m_clock);
    const Closing closing = close(probe, processId, windowTitle, isExpected);
    conclude(transport, processId, probe);
    return closing;
}

AtspiReader::Closing AtspiReader::close(AtspiProbe& probe, qint64 processId, const QString& windowTitle,
                                        const std::function<bool(const QString& url)>& isExpected) {
    using Result = BrowserCloseResult;
    const Window window = findWindow(probe, processId, windowTitle);
    if (window.frame.isNull())
        return {.result = Result::failed, .state = window.state};
    const Page page = readPage(probe, window);
    noteFront(processId, page);
    if (page.state != BrowserReadState::readable)
        return {.result = Result::failed, .state = page.state};
    if (!isExpected(page.url))
        return {.result = Result::otherPage, .state = page.state};

    if (!window.others.empty())
        return {.result = Result::notClosable, .state = page.state};

    const auto now = m_clock.monotonic();
    if (const auto attempt = m_attempts.constFind(processId); attempt != m_attempts.constEnd()) {
        // Still the page that was to be closed: the browser asks whether to leave it, say. Pressing again
        // would only pile up such questions.
        const bool isUnderWay = now - attempt->when < timeToClose;
        return {.result = isUnderWay ? Result::closed : Result::notClosable, .state = page.state};
    }

    const FrontTab front = findFrontTab(probe, window.frame);
    if (probe.failure() != AtspiProbe::Failure::none)
        return {.result = Result::failed, .state = stateAfter(probe, page.state)};
    if (front.closeButton.isNull())
        return {.result = Result::notClosable, .state = page.state};

    // The search took a while in which the user may have gone elsewhere.
    const Page again = readPage(probe, window.frame);
    const bool isStillSelected = (probe.states(front.tab) & AtspiState::selected) != 0;
    if (probe.failure() != AtspiProbe::Failure::none)
        return {.result = Result::failed, .state = stateAfter(probe, page.state)};
    if (again.document != page.document || !isStillSelected || !isExpected(again.url))
        return {.result = Result::otherPage, .state = again.state};
    if (!probe.doAction(front.closeButton))
        return {.result = Result::failed, .state = stateAfter(probe, again.state)};
    if (m_attempts.size() >= mostBrowsers)
        m_attempts.clear();
    m_attempts.insert(processId, {.document = again.document, .url = again.url, .when = m_clock.monotonic()});
    return {.result = Result::closed, .state = again.state};
}

} // namespace norvin
