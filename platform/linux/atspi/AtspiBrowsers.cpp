#include "platform/linux/atspi/AtspiBrowsers.h"

#include "platform/linux/atspi/AtspiElements.h"

namespace norvin {

namespace {

constexpr qsizetype mostKnown = 64;

}

AtspiBrowsers::AtspiBrowsers(QDBusConnection sessionBus, Clock& clock, QObject* parent)
    : QObject(parent)
    , m_clock(clock)
    , m_reader(clock)
    , m_bus(std::move(sessionBus), clock) {
    connect(&m_bus, &AtspiBus::enabledChanged, this, &AtspiBrowsers::accessibilityEnabledChanged);
    connect(&m_bus, &AtspiBus::switchFailed, this, &AtspiBrowsers::accessibilitySwitchFailed);
    connect(&m_bus, &AtspiBus::connectionChanged, this, [this] { m_reader.forgetBus(); });
}

AtspiBrowsers::Access AtspiBrowsers::access() {
    Access access{.transport = m_bus.transport(), .state = ReadState::unknown};
    if (m_bus.isMissing())
        access.state = ReadState::serviceMissing;
    else if (m_bus.isEnabled() == false)
        access.state = ReadState::accessibilityOff;
    if (access.state != ReadState::unknown)
        access.transport.reset();
    return access;
}

AtspiBrowsers::FrontPage AtspiBrowsers::readFrontPage(qint64 processId, const QString& windowTitle) {
    const Access bus = access();
    FrontPage page{.state = bus.state, .url = {}};
    if (bus.transport)
        page = m_reader.readFrontPage(bus.transport, processId, windowTitle);
    setState(processId, page.state);
    return page;
}

AtspiBrowsers::CloseResult
AtspiBrowsers::closeFrontTab(qint64 processId, const QString& windowTitle,
                             const std::function<bool(const QString& url)>& isExpected) {
    const Access bus = access();
    AtspiReader::Closing closing{.result = CloseResult::failed, .state = bus.state};
    if (bus.transport)
        closing = m_reader.closeFrontTab(bus.transport, processId, windowTitle, isExpected);
    setState(processId, closing.state);
    return closing.result;
}

std::shared_ptr<AccessibilityElement> AtspiBrowsers::applicationElement(qint64 processId,
                                                                        const QString& windowTitle) {
    const Access bus = access();
    return atspiApplicationElement(
        {.reader = m_reader,
         .clock = m_clock,
         .transport = bus.transport,
         .access = bus.state,
         .processId = processId,
         .windowTitle = windowTitle,
         .report = [this, processId](ReadState state) { setState(processId, state); }});
}

void AtspiBrowsers::setState(qint64 processId, ReadState state) {
    const auto known = m_states.constFind(processId);
    if (known != m_states.constEnd() && *known == state)
        return;
    if (m_states.size() >= mostKnown)
        m_states.clear();
    m_states.insert(processId, state);
    Q_EMIT stateChanged(processId);
}

} // namespace norvin
