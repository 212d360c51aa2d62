// A browser, and a bus, that answer whatever they like to a reader that reads, closes and walks.

#include "platform/fake/FakeClock.h"
#include "platform/linux/atspi/AtspiElements.h"
#include "platform/linux/atspi/AtspiReader.h"

#include <QVariantMap>

#include <cstdint>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>

using namespace norvin;
using namespace std::chrono_literals;

namespace {

const QString browser = QStringLiteral(":1.5");
constexpr qint64 pid = 42;

void require(bool condition) {
    if (!condition)
        std::abort();
}

class FuzzedBus final : public AtspiTransport {
public:
    FuzzedBus(FuzzedDataProvider& data, FakeClock& clock)
        : m_data(data)
        , m_clock(clock) {}

    int calls = 0;
    int clicks = 0;
    bool mayClick = false;

    std::vector<AtspiReply> call(const std::vector<AtspiCall>& batch,
                                 std::chrono::milliseconds timeout) override {
        require(timeout > 0ms && timeout <= AtspiProbe::length && !batch.empty());
        std::vector<AtspiReply> replies;
        for (const AtspiCall& call : batch) {
            // Nobody else is ever spoken to.
            require(call.target.service == browser ||
                    call.target.service == QStringLiteral("org.freedesktop.DBus") ||
                    call.target.service == QStringLiteral("org.a11y.atspi.Registry"));
            ++calls;
            if (call.member == QLatin1String("DoAction")) {
                require(mayClick);
                ++clicks;
            }
            replies.push_back(reply(call));
        }
        m_clock.advance(m_data.ConsumeBool() ? 0ms : timeout / 16);
        return replies;
    }

    void awaitAnswer(const QString&, std::function<void()> answers) override {
        if (m_data.ConsumeBool())
            answers();
    }

private:
    AtspiReply reply(const AtspiCall& call) {
        // Mostly a browser as it should be, so that what follows on its answers is reached. The bus itself
        // knows whose process is whose.
        const bool isOfBus = call.target.service == QStringLiteral("org.freedesktop.DBus");
        const auto kind = m_data.ConsumeIntegralInRange<int>(0, isOfBus ? 0 : 255);
        if (kind > 252)
            return {.status = static_cast<AtspiReply::Status>(kind - 252)};
        AtspiReply answer{.status = AtspiReply::Status::answered};
        if (kind == 252)
            return answer;
        answer.values.append(kind > 248 ? anything(0) : kind > 236 ? expected(call) : proper(call));
        return answer;
    }

    static QVariant list(std::initializer_list<const char*> paths) {
        QVariantList references;
        for (const char* path : paths)
            references.append(QVariant(QVariantList{browser, QString::fromLatin1(path)}));
        return references;
    }

    // A window with a page, an address bar and two tabs.
    QVariant proper(const AtspiCall& call) {
        const QString& path = call.target.path;
        if (call.member == QLatin1String("GetChildren")) {
            if (path == QStringLiteral("/w"))
                return list({"/bar", "/tabs", "/page"});
            if (path == QStringLiteral("/tabs"))
                return list({"/tab", "/tab-behind"});
            if (path == QStringLiteral("/tab"))
                return list({"/close"});
            if (path == QStringLiteral("/bar"))
                return list({"/field"});
            return path.endsWith(QStringLiteral("/root")) ? list({"/w"}) : list({});
        }
        if (call.member == QLatin1String("GetRelationSet"))
            return QVariantList{QVariant(QVariantList{13U, list({"/page"})})};
        if (call.member == QLatin1String("GetState")) {
            quint64 states = AtspiState::showing;
            if (path == QStringLiteral("/tab"))
                states |= AtspiState::selected;
            if (path == QStringLiteral("/field"))
                states |= AtspiState::editable;
            return QVariantList{static_cast<quint32>(states), 0U};
        }
        if (call.member == QLatin1String("GetRole"))
            return path == QStringLiteral("/w")       ? AtspiRole::frame
                   : path == QStringLiteral("/tabs")  ? AtspiRole::pageTabList
                   : path == QStringLiteral("/page")  ? AtspiRole::documentWeb
                   : path == QStringLiteral("/close") ? AtspiRole::pushButton
                   : path == QStringLiteral("/bar")   ? AtspiRole::toolBar
                   : path == QStringLiteral("/field") ? AtspiRole::entry
                                                      : AtspiRole::pageTab;
        if (call.member == QLatin1String("GetAttributes"))
            return QVariantMap{{QStringLiteral("class"), QStringLiteral("tab-close-button")}};
        if (call.member == QLatin1String("GetAttributeValue"))
            return QStringLiteral("http://example.org/");
        if (call.member == QLatin1String("Get"))
            return path == QStringLiteral("/page") ? QStringLiteral("Page")
                                                   : QStringLiteral("Page - Browser");
        if (call.member == QLatin1String("DoAction"))
            return true;
        return expected(call);
    }

    QString text() {
        switch (m_data.ConsumeIntegralInRange<int>(0, 5)) {
        case 0:
            return QStringLiteral("Page - Browser");
        case 1:
            return QStringLiteral("Page");
        case 2:
            return QStringLiteral("http://example.org/");
        case 3:
            return QStringLiteral("tab-close-button");
        case 4:
            return QString(m_data.ConsumeIntegralInRange<int>(0, 40'000), u'x');
        default:
            return QString::fromStdString(m_data.ConsumeRandomLengthString(24));
        }
    }

    QVariant reference() {
        constexpr const char* paths[] = {"/w",     "/tabs", "/tab",  "/tab-behind",
                                         "/close", "/bar",  "/page", "/gone"};
        const QString path = QString::fromLatin1(m_data.PickValueInArray(paths));
        return QVariantList{m_data.ConsumeIntegralInRange<int>(0, 7) == 0 ? text() : browser, path};
    }

    QVariant references() {
        QVariantList list;
        for (auto left = m_data.ConsumeIntegralInRange<int>(0, 6); left > 0; --left)
            list.append(reference());
        return list;
    }

    QVariant anything(int depth) {
        switch (m_data.ConsumeIntegralInRange<int>(0, depth > 4 ? 5 : 8)) {
        case 0:
            return {};
        case 1:
            return m_data.ConsumeIntegral<quint32>();
        case 2:
            return m_data.ConsumeIntegral<qint64>();
        case 3:
            return m_data.ConsumeBool();
        case 4:
            return text();
        case 5:
            return m_data.ConsumeFloatingPoint<double>();
        case 6:
            return QVariantMap{{text(), anything(depth + 1)}};
        default: {
            QVariantList list;
            for (auto left = m_data.ConsumeIntegralInRange<int>(0, 4); left > 0; --left)
                list.append(anything(depth + 1));
            return list;
        }
        }
    }

    QVariant expected(const AtspiCall& call) {
        if (call.member == QLatin1String("GetChildren"))
            return references();
        if (call.member == QLatin1String("GetConnectionUnixProcessID"))
            return static_cast<uint>(call.arguments.value(0) == browser ? pid : pid + 1);
        if (call.member == QLatin1String("GetRelationSet"))
            return QVariantList{QVariant(QVariantList{13U, references()})};
        if (call.member == QLatin1String("GetState"))
            return QVariantList{m_data.ConsumeIntegral<quint32>() | static_cast<quint32>(AtspiState::showing),
                                0U};
        if (call.member == QLatin1String("GetRole")) {
            constexpr quint32 roles[] = {AtspiRole::comboBox,   AtspiRole::frame,       AtspiRole::pageTab,
                                         AtspiRole::pushButton, AtspiRole::pageTabList, AtspiRole::toolBar,
                                         AtspiRole::entry,      AtspiRole::documentWeb, 39U};
            return m_data.PickValueInArray(roles);
        }
        if (call.member == QLatin1String("GetAttributes"))
            return QVariantMap{{QStringLiteral("class"), text()}, {QStringLiteral("id"), text()}};
        if (call.member == QLatin1String("DoAction"))
            return m_data.ConsumeBool();
        return text();
    }

    FuzzedDataProvider& m_data;
    FakeClock& m_clock;
};

void walk(AccessibilityElement& element, int depth) {
    for (const auto* attribute : {"AXRole", "AXSubrole", "AXIdentifier", "AXURL", "AXValue"}) {
        const auto value = element.text(QString::fromLatin1(attribute));
        require(!value || value->size() <= AtspiProbe::longestText);
    }
    if (depth == 24)
        return;
    for (const auto& child :
         element.elements(QStringLiteral("AXChildren")).list.value_or(AccessibilityElement::List()))
        walk(*child, depth + 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider input(data, size);
    FakeClock clock;
    AtspiReader reader(clock);
    const auto bus = std::make_shared<FuzzedBus>(input, clock);
    const QString title = QStringLiteral("Page - Browser");
    while (input.remaining_bytes() > 0) {
        const int callsBefore = bus->calls;
        const auto begin = clock.monotonic();
        switch (input.ConsumeIntegralInRange<int>(0, 3)) {
        case 0: {
            const BrowserFrontPage page = reader.readFrontPage(bus, pid, title);
            require((page.state == BrowserReadState::readable) == !page.url.isEmpty());
            require(page.url.size() <= AtspiProbe::longestText);
            break;
        }
        case 1: {
            const int clicksBefore = bus->clicks;
            const auto closing = reader.closeFrontTab(bus, pid, title, [&](const QString& url) {
                // Only right after the right address was seen.
                return bus->mayClick = url == QStringLiteral("http://example.org/");
            });
            bus->mayClick = false;
            require(bus->clicks - clicksBefore <= 1);
            require(bus->clicks == clicksBefore || closing.result == BrowserCloseResult::closed ||
                    closing.result == BrowserCloseResult::failed);
            break;
        }
        case 2: {
            const auto application = atspiApplicationElement(
                {reader, clock, bus, BrowserReadState::unknown, pid, title, [](BrowserReadState) {}});
            application->set(QStringLiteral("AXManualAccessibility"), true);
            for (const auto& window : application->elements(QStringLiteral("AXWindows"))
                                          .list.value_or(AccessibilityElement::List()))
                walk(*window, 0);
            break;
        }
        default:
            clock.advance(20s);
            continue;
        }
        require(bus->calls - callsBefore <= AtspiProbe::mostCalls);
        require(clock.monotonic() - begin <= AtspiProbe::length + AtspiProbe::length / 16);
    }
    return 0;
}
