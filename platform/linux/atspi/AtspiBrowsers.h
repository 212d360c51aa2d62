#pragma once

#include "platform/AccessibilityElement.h"
#include "platform/linux/atspi/AtspiBus.h"
#include "platform/linux/atspi/AtspiReader.h"

#include <QDBusConnection>
#include <QHash>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace norvin {

/// The pages in front of browsers, read over the accessibility bus, and the user's consent to that: the
/// switch of the accessibility services. Main thread only; a call waits 300 ms at most, and for nobody else
/// than the browser that it is about and the accessibility bus.
class AtspiBrowsers final : public QObject {
    Q_OBJECT
public:
    using ReadState = BrowserReadState;
    using FrontPage = BrowserFrontPage;
    using CloseResult = BrowserCloseResult;

    /// Asks for the services at once, so that they are ready for the first read.
    /// @param clock outlives this
    AtspiBrowsers(QDBusConnection sessionBus, Clock& clock, QObject* parent = nullptr);

    /// The page in front of a browser.
    /// @param windowTitle of the browser's window in front, as the window system has it
    [[nodiscard]] FrontPage readFrontPage(qint64 processId, const QString& windowTitle);

    /// Closes the tab in front, if `isExpected` holds for its page's address right before; never another one.
    /// Closing takes the browser a moment. A tab that is asked for again after half a second is notClosable:
    /// the browser asks whether the page may be left, say. lastState() tells more about a failure.
    [[nodiscard]] CloseResult closeFrontTab(qint64 processId, const QString& windowTitle,
                                            const std::function<bool(const QString& url)>& isExpected);

    /// The browser's user interface, as far as the address in front needs it; never null. To be used at once:
    /// its time begins now, and it must not outlive this.
    [[nodiscard]] std::shared_ptr<AccessibilityElement> applicationElement(qint64 processId,
                                                                           const QString& windowTitle);

    /// What the last read, closing or element showed; unknown for a browser that was never asked.
    [[nodiscard]] ReadState lastState(qint64 processId) const { return m_states.value(processId); }

    /// Position of the switch; none until it is known, and where there are no services.
    [[nodiscard]] std::optional<bool> isAccessibilityEnabled() const { return m_bus.isEnabled(); }
    /// Turns the switch for all programs; the desktop keeps it beyond this session. Returns at once;
    /// accessibilityEnabledChanged() or accessibilitySwitchFailed() follows unless it stood so already.
    void setAccessibilityEnabled(bool isEnabled) { m_bus.setEnabled(isEnabled); }

Q_SIGNALS:
    void stateChanged(qint64 processId);
    void accessibilityEnabledChanged();
    /// @param message of the accessibility services, in their language
    void accessibilitySwitchFailed(const QString& message);

private:
    struct Access {
        AtspiReader::Transport transport;
        ReadState state;
    };
    [[nodiscard]] Access access();
    void setState(qint64 processId, ReadState state);

    Clock& m_clock;
    AtspiReader m_reader; // answers that the bus still waits for reach it
    AtspiBus m_bus;
    QHash<qint64, ReadState> m_states;
};

} // namespace norvin
