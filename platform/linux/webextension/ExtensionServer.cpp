#include "platform/linux/webextension/ExtensionServer.h"

#include "platform/Log.h"
#include "platform/linux/webextension/MessageStream.h"
#include "platform/linux/webextension/ProcessAncestors.h"

#include <QFile>
#include <QRandomGenerator>
#include <QSocketNotifier>

#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <utility>
#include <variant>

namespace norvin {

using std::chrono::milliseconds;

namespace {

constexpr quint32 largestMessage = 4 * 1024;
constexpr size_t mostConnections = 32;
constexpr milliseconds answerTime{300};
// The answer travels back too: what the browser begins to do at the last moment is done in time to be heard
// of.
constexpr milliseconds closingTime{200};
constexpr milliseconds silenceTime{10'000};
constexpr milliseconds descriptorPause{5'000};
// The alert over a blocked page may have taken the keyboard by the time its tab is closed.
constexpr milliseconds focusLinger{2'000};

QString lastError() {
    return QString::fromLocal8Bit(std::strerror(errno));
}

bool isAlive(const sockaddr_un& address) {
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const bool isTaken =
        descriptor >= 0 &&
        (::connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 ||
         errno == EAGAIN);
    if (descriptor >= 0)
        ::close(descriptor);
    return isTaken;
}

quint64 inodeOf(const QByteArray& path) {
    struct stat facts {};
    return ::lstat(path.constData(), &facts) == 0 ? facts.st_ino : 0;
}

} // namespace

struct ExtensionServer::Connection {
    explicit Connection(int socket)
        : descriptor(socket)
        , stream(largestMessage) {}
    ~Connection() {
        notifier.reset();
        ::close(descriptor);
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    int descriptor;
    std::unique_ptr<QSocketNotifier> notifier;
    MessageStream stream;
    QList<qint64> ancestors;
    qint64 browserProcessId = 0;
    std::optional<Page> page;
    // Grows from report to report over all connections.
    quint64 pageNumber = 0;
    std::optional<milliseconds> focusLostAt;
    std::optional<CloseAnswer> answer;
    // Since when it owes an answer that nobody waits for any more.
    std::optional<milliseconds> silentSince;
    bool isDropped = false;
};

ExtensionServer::ExtensionServer(Clock& clock, std::optional<BrowserSocket> socket, QObject* parent)
    : QObject(parent)
    , m_clock(clock)
    , m_socket(std::move(socket))
    // Answers to an earlier instance's requests are told apart from those to ours.
    , m_lastId(QRandomGenerator::global()->bounded(1, 1 << 30)) {}

ExtensionServer::~ExtensionServer() {
    m_connections.clear();
    if (m_listener < 0)
        return;
    m_incoming.reset();
    ::close(m_listener);
    // Another instance may have put its own socket into the place of ours.
    const QByteArray path = m_socket->path();
    if (inodeOf(path) == m_inode)
        ::unlink(path.constData());
}

Availability ExtensionServer::unavailable(const QString& detail) const {
    logLine(QStringLiteral("ExtensionServer: %1").arg(detail));
    return Availability::unavailable(QStringLiteral("health_extension_socket"), detail);
}

Availability ExtensionServer::listen() {
    if (m_listener >= 0)
        return Availability::available();
    if (!m_socket)
        return unavailable(QStringLiteral("XDG_RUNTIME_DIR is not set, or its path is too long"));
    if (const QString problem = prepareSocketDirectory(m_socket->directory); !problem.isEmpty())
        return unavailable(problem);
    const QByteArray path = m_socket->path();
    if (isAlive(socketAddress(path)))
        return unavailable(QStringLiteral("%1: another instance listens").arg(QFile::decodeName(path)));

    // The socket takes its place, and that of a dead one, when it can be connected to: hosts watch for that.
    const QByteArray draft = path + '.' + QByteArray::number(::getpid());
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const sockaddr_un address = socketAddress(draft);
    ::unlink(draft.constData());
    if (descriptor < 0 ||
        ::bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::chmod(draft.constData(), 0600) != 0 || ::listen(descriptor, 16) != 0 ||
        ::rename(draft.constData(), path.constData()) != 0) {
        const QString reason = QStringLiteral("%1: %2").arg(QFile::decodeName(path), lastError());
        if (descriptor >= 0)
            ::close(descriptor);
        ::unlink(draft.constData());
        return unavailable(reason);
    }
    m_listener = descriptor;
    m_inode = inodeOf(path);
    m_incoming = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    connect(m_incoming.get(), &QSocketNotifier::activated, this, &ExtensionServer::acceptConnections);
    return Availability::available();
}

void ExtensionServer::acceptConnections() {
    for (;;) {
        const int descriptor = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        if (descriptor < 0) {
            // Without descriptors left, the connection stays there to be accepted, and would wake us forever.
            if (errno == EMFILE || errno == ENFILE) {
                m_incoming->setEnabled(false);
                m_pause = m_clock.after(descriptorPause, [this] { m_incoming->setEnabled(true); });
            }
            return;
        }
        auto connection = std::make_unique<Connection>(descriptor);
        ucred peer{};
        socklen_t size = sizeof peer;
        if (::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0 || peer.uid != ::geteuid()) {
            logLine(QStringLiteral("ExtensionServer: refused a connection of user %1").arg(peer.uid));
            continue;
        }
        if (m_connections.size() >= mostConnections) {
            logLine(QStringLiteral("ExtensionServer: refused a connection beyond %1").arg(mostConnections));
            continue;
        }
        connection->ancestors = processAncestors(peer.pid);
        connection->browserProcessId = firstProgram(connection->ancestors);
        connection->notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
        Connection& accepted = *connection;
        connect(connection->notifier.get(), &QSocketNotifier::activated, this,
                [this, &accepted] { serve(accepted); });
        m_connections.push_back(std::move(connection));
        m_connectionsChanged = true;
        announce();
    }
}

void ExtensionServer::serve(Connection& connection) {
    (void)connection.stream.readFrom(connection.descriptor);
    receive(connection);
}

void ExtensionServer::receive(Connection& connection) {
    while (!connection.isDropped) {
        const std::optional<QByteArray> text = connection.stream.next();
        if (!text)
            break;
        const std::optional<BrowserMessage> message = decodeBrowserMessage(*text);
        if (!message) {
            drop(connection, QStringLiteral("a message that is not understood"));
            return;
        }
        connection.silentSince.reset();
        std::visit(
            [this, &connection](const auto& content) {
                using Content = std::decay_t<decltype(content)>;
                if constexpr (std::is_same_v<Content, CloseRequest>)
                    drop(connection, QStringLiteral("a request that only the application makes"));
                else
                    apply(connection, content);
            },
            *message);
    }
    switch (connection.stream.state()) {
    case MessageStream::State::open:
        return;
    case MessageStream::State::ended:
        drop(connection, {});
        return;
    case MessageStream::State::broken:
        drop(connection, QStringLiteral("a read or write failed"));
        return;
    case MessageStream::State::tooLong:
        drop(connection, QStringLiteral("a message that is too long"));
        return;
    }
}

void ExtensionServer::apply(Connection& connection, const HostMessage& message) {
    // The kernel knows better, but for a host whose processes are hidden from us.
    if (!connection.ancestors.isEmpty())
        return;
    connection.ancestors = {message.browserProcessId};
    connection.browserProcessId = message.browserProcessId;
    m_connectionsChanged = true;
    announce();
}

void ExtensionServer::apply(Connection& connection, const PageMessage& message) {
    if (message.isFocused)
        connection.focusLostAt.reset();
    else if (connection.page && connection.page->isFocused)
        connection.focusLostAt = m_clock.monotonic();
    connection.page = Page{message.domain, message.isFocused};
    connection.pageNumber = ++m_pageCount;
    m_changedPages.insert(connection.browserProcessId);
    announce();
}

void ExtensionServer::apply(Connection& connection, const CloseAnswer& message) {
    connection.answer = message;
}

void ExtensionServer::drop(Connection& connection, const QString& reason) {
    if (!reason.isEmpty())
        logLine(QStringLiteral("ExtensionServer: dropped the connection of process %1: %2")
                    .arg(connection.browserProcessId)
                    .arg(reason));
    connection.isDropped = true;
    connection.notifier->setEnabled(false);
    m_changedPages.insert(connection.browserProcessId);
    m_connectionsChanged = true;
    announce();
}

void ExtensionServer::announce() {
    if (std::exchange(m_isAnnouncing, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isAnnouncing = false;
            std::erase_if(m_connections, [](const auto& connection) { return connection->isDropped; });
            if (std::exchange(m_connectionsChanged, false))
                Q_EMIT connectionsChanged();
            for (const qint64 processId : std::exchange(m_changedPages, {}))
                Q_EMIT frontPageChanged(processId);
        },
        Qt::QueuedConnection);
}

ExtensionServer::Connection* ExtensionServer::connectionFor(qint64 browserProcessId) const {
    const auto rank = [](const Connection& connection) {
        return std::pair(connection.page && connection.page->isFocused, connection.pageNumber);
    };
    Connection* best = nullptr;
    for (const auto& connection : m_connections) {
        if (!connection->isDropped && connection->ancestors.contains(browserProcessId) &&
            (!best || rank(*best) < rank(*connection)))
            best = connection.get();
    }
    return best;
}

bool ExtensionServer::isConnected(qint64 browserProcessId) const {
    return connectionFor(browserProcessId) != nullptr;
}

QList<qint64> ExtensionServer::connectedBrowsers() const {
    QList<qint64> browsers;
    for (const auto& connection : m_connections) {
        const qint64 processId = connection->browserProcessId;
        if (!connection->isDropped && processId > 0 && !browsers.contains(processId))
            browsers.append(processId);
    }
    return browsers;
}

std::optional<ExtensionServer::Page> ExtensionServer::frontPage(qint64 browserProcessId) const {
    const Connection* connection = connectionFor(browserProcessId);
    return connection ? connection->page : std::nullopt;
}

ExtensionServer::CloseResult ExtensionServer::closeFrontTab(qint64 browserProcessId, const QString& domain) {
    Connection* connection = connectionFor(browserProcessId);
    if (!connection)
        return CloseResult::notAnswering;
    const milliseconds now = m_clock.monotonic();
    // What it has just told counts, and so does that it told something.
    serve(*connection);
    if (connection->isDropped || (connection->silentSince && now - *connection->silentSince < silenceTime))
        return CloseResult::notAnswering;

    const std::optional<Page>& page = connection->page;
    if (!page || !page->domain || !isHostName(domain) || !isSameSite(*page->domain, domain))
        return CloseResult::otherPage;
    const bool wasJustFocused = connection->focusLostAt && now - *connection->focusLostAt <= focusLinger;
    if (!page->isFocused && !wasJustFocused)
        return CloseResult::failed;

    m_lastId = m_lastId % (1 << 30) + 1;
    const qint64 until = m_clock.now().toMSecsSinceEpoch() + closingTime.count();
    const bool isQueued =
        connection->stream.queue(encodeBrowserMessage(CloseRequest{m_lastId, domain, until}));
    const std::optional<CloseAnswer> answer =
        isQueued ? awaitAnswer(*connection, m_lastId) : std::optional<CloseAnswer>();
    if (!answer) {
        connection->silentSince = m_clock.monotonic();
        return CloseResult::notAnswering;
    }
    switch (answer->outcome) {
    case CloseAnswer::Outcome::closed:
        return CloseResult::closed;
    case CloseAnswer::Outcome::otherPage:
        return CloseResult::otherPage;
    case CloseAnswer::Outcome::pinned:
        return CloseResult::notClosable;
    case CloseAnswer::Outcome::late:
        return CloseResult::notAnswering;
    case CloseAnswer::Outcome::failed:
        break;
    }
    return CloseResult::failed;
}

std::optional<CloseAnswer> ExtensionServer::awaitAnswer(Connection& connection, int id) {
    const milliseconds deadline = m_clock.monotonic() + answerTime;
    connection.answer.reset();
    (void)connection.stream.writeTo(connection.descriptor);
    while (!connection.isDropped) {
        const milliseconds left = deadline - m_clock.monotonic();
        if (left <= milliseconds::zero())
            break;
        const bool hasToWrite = connection.stream.hasToWrite();
        pollfd waiting{connection.descriptor, static_cast<short>(hasToWrite ? POLLIN | POLLOUT : POLLIN), 0};
        const int count = ::poll(&waiting, 1, static_cast<int>(left.count()));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break;
        if ((waiting.revents & POLLOUT) != 0)
            (void)connection.stream.writeTo(connection.descriptor);
        if ((waiting.revents & ~POLLOUT) != 0)
            (void)connection.stream.readFrom(connection.descriptor);
        receive(connection);
        if (connection.answer && connection.answer->id == id)
            return connection.answer;
    }
    return std::nullopt;
}

} // namespace norvin
