#pragma once

#include "platform/Availability.h"
#include "platform/Clock.h"
#include "platform/linux/webextension/BrowserMessage.h"
#include "platform/linux/webextension/BrowserSocket.h"

#include <QList>
#include <QObject>
#include <QSet>

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

class QSocketNotifier;

namespace norvin {

/// The application's end towards the extensions that run in browsers: what their front tabs show, and closing
/// those. Browsers are known by the process id of their main process. Connections are accepted from processes
/// of the same user only; what one of them breaks costs it its connection and is logged. Signals are emitted
/// from the event loop, never from within a call. Main thread only.
class ExtensionServer final : public QObject {
    Q_OBJECT
public:
    /// @param clock must outlive this object
    /// @param socket where to listen; none where the session has no place for it
    explicit ExtensionServer(Clock& clock, std::optional<BrowserSocket> socket = browserSocket(),
                             QObject* parent = nullptr);
    ~ExtensionServer() override;

    /// Begins to listen. The socket of an instance that has ended is replaced, the one of an instance that
    /// runs is not.
    /// @return "health_extension_socket" with the detail where it cannot
    [[nodiscard]] Availability listen();

    /// Whether an extension of that browser is connected.
    [[nodiscard]] bool isConnected(qint64 browserProcessId) const;
    /// The browsers that are connected, each once.
    [[nodiscard]] QList<qint64> connectedBrowsers() const;

    struct Page {
        /// Host name of the front tab, in lower case ("www.example.org"); none where it shows no web page.
        std::optional<QString> domain;
        /// Whether the tab's window is the one of the browser's that has the keyboard. While the browser is
        /// in front and this is false, a window is in front that the extension must not see (a private one):
        /// its page is not known. Says nothing while another program is in front: Chromium leaves it as it
        /// was.
        bool isFocused = false;

        bool operator==(const Page&) const = default;
    };
    /// The browser's front tab; none where it is not connected or has not told yet. Of several profiles, the
    /// one that has the keyboard, else the one that told last.
    [[nodiscard]] std::optional<Page> frontPage(qint64 browserProcessId) const;

    enum class CloseResult {
        closed,       ///< the tab is gone
        otherPage,    ///< the front tab shows another domain, or none
        notClosable,  ///< the user has pinned the tab
        failed,       ///< the tab is still there, or is not known to be in front
        notAnswering, ///< the browser is not connected, or gave no answer in time
    };
    /// Closes the browser's front tab if it still shows the domain ("www." in front makes no difference), and
    /// has the keyboard or had it in the last 2 s. Waits for 300 ms at most, without running the event loop;
    /// no browser begins to close the tab later than that. One that let the time pass is not asked again
    /// before it has said something, or 10 s have passed.
    [[nodiscard]] CloseResult closeFrontTab(qint64 browserProcessId, const QString& domain);

Q_SIGNALS:
    /// A browser connected, or the last connection of one ended.
    void connectionsChanged();
    /// frontPage() of that browser may have changed.
    void frontPageChanged(qint64 browserProcessId);

private:
    struct Connection;

    void acceptConnections();
    void serve(Connection& connection);
    void receive(Connection& connection);
    void apply(Connection& connection, const BrowserMessage& message);
    void apply(Connection& connection, const HostMessage& message);
    void apply(Connection& connection, const PageMessage& message);
    void apply(Connection& connection, const CloseAnswer& message);
    void drop(Connection& connection, const QString& reason);
    void announce();
    [[nodiscard]] Connection* connectionFor(qint64 browserProcessId) const;
    [[nodiscard]] std::optional<CloseAnswer> awaitAnswer(Connection& connection, int id);
    [[nodiscard]] Availability unavailable(const QString& detail) const;

    Clock& m_clock;
    const std::optional<BrowserSocket> m_socket;
    int m_listener = -1;
    // Of our socket in the file system.
    quint64 m_inode = 0;
    std::unique_ptr<QSocketNotifier> m_incoming;
    std::unique_ptr<ClockTimer> m_pause;
    std::vector<std::unique_ptr<Connection>> m_connections;
    // Told by the next turn of the event loop.
    QSet<qint64> m_changedPages;
    bool m_connectionsChanged = false;
    bool m_isAnnouncing = false;
    int m_lastId;
    quint64 m_pageCount = 0;
};

} // namespace norvin
