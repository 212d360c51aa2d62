#include "platform/linux/atspi/AtspiProbe.h"

#include "platform/Clock.h"
#include "platform/linux/atspi/AtspiDecoding.h"

#include <algorithm>

namespace norvin {

using namespace std::chrono_literals;

namespace {

constexpr QLatin1String accessible("org.a11y.atspi.Accessible");
constexpr QLatin1String action("org.a11y.atspi.Action");
constexpr QLatin1String document("org.a11y.atspi.Document");
constexpr QLatin1String textInterface("org.a11y.atspi.Text");
constexpr QLatin1String propertiesName("org.freedesktop.DBus.Properties");
constexpr QLatin1String busInterface("org.freedesktop.DBus");

AtspiReference registry() {
    return {.service = QStringLiteral("org.a11y.atspi.Registry"),
            .path = QStringLiteral("/org/a11y/atspi/accessible/root")};
}

AtspiReference bus() {
    return {.service = QStringLiteral("org.freedesktop.DBus"),
            .path = QStringLiteral("/org/freedesktop/DBus")};
}

AtspiCall nameCall(const AtspiReference& object) {
    return {object, propertiesName, QLatin1String("Get"), {QString(accessible), QStringLiteral("Name")}};
}

// A call with less time than this left may well remain unanswered by a program that is only slow.
constexpr auto enoughTime = 100ms;

} // namespace

AtspiProbe::AtspiProbe(std::shared_ptr<AtspiTransport> transport, const Clock& clock)
    : m_transport(std::move(transport))
    , m_clock(clock)
    , m_deadline(clock.monotonic() + length) {}

void AtspiProbe::forgetGone() {
    if (m_failure == Failure::gone)
        m_failure = Failure::none;
}

std::vector<QVariantList> AtspiProbe::callEach(std::vector<AtspiCall> calls) {
    std::vector<QVariantList> values(calls.size());
    if (m_failure != Failure::none || calls.empty())
        return values;
    const auto left = m_deadline - m_clock.monotonic();
    m_calls += static_cast<int>(calls.size());
    if (left < 1ms || m_calls > mostCalls) {
        m_failure = Failure::exhausted;
        return values;
    }
    const std::vector<AtspiReply> replies = m_transport->call(calls, left);
    for (size_t i = 0; i < values.size(); ++i) {
        switch (replies[i].status) {
        case AtspiReply::Status::answered:
            values[i] = replies[i].values;
            continue;
        case AtspiReply::Status::refused:
            continue;
        case AtspiReply::Status::silent:
            m_failure = left >= enoughTime ? Failure::silent : Failure::exhausted;
            break;
        case AtspiReply::Status::gone:
            m_failure = Failure::gone;
            break;
        }
        m_failedService = calls[i].target.service;
    }
    return values;
}

QVariantList AtspiProbe::call(const AtspiReference& target, QLatin1String interface, QLatin1String member,
                              const QVariantList& arguments) {
    return target.isNull() ? QVariantList() : callEach({{target, interface, member, arguments}}).front();
}

std::vector<AtspiReference> AtspiProbe::applications() {
    return decodeReferences(call(registry(), accessible, QLatin1String("GetChildren")), mostChildren);
}

std::optional<qint64> AtspiProbe::processOf(const QString& service) {
    return decodeNumber(call(bus(), busInterface, QLatin1String("GetConnectionUnixProcessID"), {service}));
}

AtspiProbe::References AtspiProbe::children(const AtspiReference& object) {
    return childrenOfEach({object}).front();
}

quint64 AtspiProbe::states(const AtspiReference& object) {
    return decodeStates(call(object, accessible, QLatin1String("GetState")));
}

std::vector<AtspiProbe::References> AtspiProbe::childrenOfEach(const References& objects) {
    std::vector<AtspiCall> calls;
    for (const AtspiReference& object : objects)
        calls.push_back({object, accessible, QLatin1String("GetChildren")});
    std::vector<References> lists;
    for (const QVariantList& reply : callEach(std::move(calls))) {
        References list = decodeReferences(reply, mostChildren);
        std::erase_if(list, [&](const AtspiReference& child) {
            return child.service != objects[lists.size()].service;
        });
        lists.push_back(std::move(list));
    }
    return lists;
}

std::vector<AtspiProbe::Facts> AtspiProbe::factsOfEach(const References& objects) {
    std::vector<AtspiCall> calls;
    for (const AtspiReference& object : objects) {
        calls.push_back({object, accessible, QLatin1String("GetState")});
        calls.push_back({object, accessible, QLatin1String("GetRole")});
    }
    const auto replies = callEach(std::move(calls));
    std::vector<Facts> facts;
    for (size_t i = 0; i < replies.size(); i += 2) {
        const qint64 role = decodeNumber(replies[i + 1]).value_or(0);
        facts.push_back({.role = static_cast<quint32>(std::clamp<qint64>(role, 0, 0xffff)),
                         .states = decodeStates(replies[i])});
    }
    return facts;
}

QHash<QString, QString> AtspiProbe::attributes(const AtspiReference& object) {
    return decodeAttributes(call(object, accessible, QLatin1String("GetAttributes")), longestText);
}

AtspiReference AtspiProbe::embeddedDocument(const AtspiReference& window) {
    const auto found = decodeEmbedded(call(window, accessible, QLatin1String("GetRelationSet")));
    return found.service == window.service ? found : AtspiReference{};
}

std::vector<AtspiProbe::WindowFacts> AtspiProbe::windowFactsOfEach(const References& windows) {
    std::vector<AtspiCall> calls;
    for (const AtspiReference& window : windows) {
        calls.push_back(nameCall(window));
        calls.push_back({window, accessible, QLatin1String("GetRelationSet")});
    }
    const auto replies = callEach(std::move(calls));
    std::vector<WindowFacts> facts(windows.size());
    calls.clear();
    for (size_t i = 0; i < windows.size(); ++i) {
        facts[i].name = decodeText(replies[2 * i], longestText);
        facts[i].document = decodeEmbedded(replies[2 * i + 1]);
        if (facts[i].document.service != windows[i].service)
            facts[i].document = {};
        if (!facts[i].document.isNull())
            calls.push_back(nameCall(facts[i].document));
    }
    const auto names = callEach(std::move(calls));
    auto name = names.begin();
    for (WindowFacts& window : facts)
        if (!window.document.isNull())
            window.documentName = decodeText(*name++, longestText);
    return facts;
}

QString AtspiProbe::toolkit(const AtspiReference& application) {
    return decodeText(call(application, propertiesName, QLatin1String("Get"),
                           {QStringLiteral("org.a11y.atspi.Application"), QStringLiteral("ToolkitName")}),
                      longestText);
}

QString AtspiProbe::documentUrl(const AtspiReference& object) {
    if (object.isNull())
        return {};
    // The two names under which browsers give it.
    std::vector<AtspiCall> calls;
    for (const auto* name : {"DocURL", "URI"})
        calls.push_back({object, document, QLatin1String("GetAttributeValue"), {QString::fromLatin1(name)}});
    for (const QVariantList& reply : callEach(std::move(calls)))
        if (QString url = decodeText(reply, longestText); !url.isEmpty())
            return url;
    return {};
}

QString AtspiProbe::text(const AtspiReference& object) {
    return decodeText(call(object, textInterface, QLatin1String("GetText"), {0, -1}), longestText);
}

bool AtspiProbe::doAction(const AtspiReference& object) {
    const QVariantList reply = call(object, action, QLatin1String("DoAction"), {0});
    return !reply.isEmpty() && reply.first().toBool();
}

} // namespace norvin
