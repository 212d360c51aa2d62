#pragma once

#include "platform/linux/atspi/AtspiProbe.h"

#include <QHash>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace norvin {

class Clock;

/// What can be known of the page in front of a browser.
enum class BrowserReadState {
    unknown,          ///< not asked yet, or the accessibility services have not answered yet
    readable,         ///< the address was read
    serviceMissing,   ///< this session has no accessibility services
    accessibilityOff, ///< they are there, and switched off
    notOnBus,         ///< the browser does not take part: it was started while they were off, say
    noWindow,         ///< it has no window of that title (any more)
    noDocument,       ///< the window shows no page, or one without address
    notAnswering,     ///< the browser did not answer in time, and is left alone for a while
};

struct BrowserFrontPage {
    BrowserReadState state = BrowserReadState::unknown;
    /// The full address as the browser gives it, of any scheme; empty unless readable.
    QString url;
};

enum class BrowserCloseResult {
    closed,      ///< the tab's close button was pressed; whether the tab is gone shows the next read
    otherPage,   ///< another page is in front; nothing was done
    notClosable, ///< a tab without close button, several selected ones, several windows of that title, or a
                 ///< tab that has stayed open before
    failed,      ///< there is no such page to be seen, or the browser would not do it; nothing was closed
};

/// Reads and closes the front tab of browsers over the accessibility bus. Of a browser it reads its windows'
/// titles, its tabs and the address of the page in front; never the content of pages. A call takes 300 ms at
/// most. A browser that does not answer is left alone until it answers a question
/// that nobody waits for; or for 10 s, and for longer each time, a minute at most.
/// Main thread only.
class AtspiReader final {
public:
    /// @param clock outlives the reader
    explicit AtspiReader(Clock& clock);

    using Transport = std::shared_ptr<AtspiTransport>;

    [[nodiscard]] BrowserFrontPage readFrontPage(const Transport& transport, qint64 processId,
                                                 const QString& windowTitle);

    struct Closing {
        BrowserCloseResult result = BrowserCloseResult::failed;
        BrowserReadState state = BrowserReadState::unknown;
    };
    /// @param isExpected asked for the address that is in front; only a tab with a page for which it answers
    ///        true is closed
    [[nodiscard]] Closing closeFrontTab(const Transport& transport, qint64 processId,
                                        const QString& windowTitle,
                                        const std::function<bool(const QString& url)>& isExpected);

    // Single steps, for the elements that show a browser to others.

    /// False while the browser, or the bus, is to be left alone.
    [[nodiscard]] bool mayProbe(qint64 processId) const;
    struct Window {
        /// Null where there is no such window.
        AtspiReference frame;
        /// Other windows that may as well be the one in front, having the same title.
        std::vector<AtspiReference> others;
        /// readable when there is a frame, else why there is none.
        BrowserReadState state = BrowserReadState::noWindow;
    };
    [[nodiscard]] Window findWindow(AtspiProbe& probe, qint64 processId, const QString& windowTitle);
    /// Takes note of whether the browser answered; the reader must outlive the transport then.
    void conclude(const Transport& transport, qint64 processId, const AtspiProbe& probe);

    /// What a failure of the probe means for the browser; `otherwise` where there was none.
    [[nodiscard]] static BrowserReadState stateAfter(const AtspiProbe& probe, BrowserReadState otherwise);

    /// Forgets what holds for one accessibility bus only.
    void forgetBus();

private:
    struct Silence {
        std::chrono::milliseconds until{};
        std::chrono::milliseconds length{};
    };
    struct Attempt {
        AtspiReference document;
        QString url;
        std::chrono::milliseconds when{};
    };
    struct Page {
        AtspiReference document;
        QString url;
        BrowserReadState state = BrowserReadState::noDocument;
    };

    [[nodiscard]] AtspiReference findApplication(AtspiProbe& probe, qint64 processId);
    [[nodiscard]] Page readPage(AtspiProbe& probe, const AtspiReference& frame);
    [[nodiscard]] Page readPage(AtspiProbe& probe, const Window& window);
    [[nodiscard]] Closing close(AtspiProbe& probe, qint64 processId, const QString& windowTitle,
                                const std::function<bool(const QString& url)>& isExpected);
    void noteFront(qint64 processId, const Page& page);

    Clock& m_clock;
    QHash<qint64, AtspiReference> m_applications;
    QHash<QString, qint64> m_processes;
    QHash<qint64, Silence> m_silent;
    QHash<qint64, Attempt> m_attempts;
    // Set while a probe waits for the bus rather than for the browser.
    bool m_askingBus = false;
};

} // namespace norvin
