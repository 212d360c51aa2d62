#include "browser-host/BrowserHost.h"

#include <sys/inotify.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <poll.h>
#include <variant>

namespace norvin {

namespace {

constexpr quint32 largestFromBrowser = 64 * 1024;
constexpr quint32 largestFromApplication = 4 * 1024;
// An application that is there but does not take the connection is asked again after this; nothing announces
// that it would.
constexpr std::chrono::seconds retryDelay{5};

void complain(const char* text, const char* detail = "") {
    std::fprintf(stderr, "norvin-focus-browser-host: %s%s\n", text, detail);
}

const char* textOf(MessageStream::State state) {
    switch (state) {
    case MessageStream::State::tooLong:
        return "a message is too long";
    case MessageStream::State::broken:
        return "a read or write failed";
    case MessageStream::State::open:
    case MessageStream::State::ended:
        break;
    }
    return "";
}

} // namespace

BrowserHost::BrowserHost(int input, int output, BrowserSocket socket)
    : m_input(input)
    , m_output(output)
    , m_socket(std::move(socket))
    , m_fromBrowser(largestFromBrowser) {}

BrowserHost::~BrowserHost() {
    for (const int descriptor : {m_watch, m_application}) {
        if (descriptor >= 0)
            ::close(descriptor);
    }
}

int BrowserHost::run() {
    if (!watchDirectory())
        return 1;
    connectToApplication();
    for (;;) {
        const auto wanted = [](const MessageStream& stream) {
            return static_cast<short>(stream.hasToWrite() ? POLLOUT : 0);
        };
        std::array<pollfd, 4> waiting = {
            pollfd{m_input, POLLIN, 0},
            // A negative descriptor is passed over: with nothing to write, only its end would wake us.
            pollfd{m_fromBrowser.hasToWrite() ? m_output : -1, POLLOUT, 0},
            pollfd{m_watch, POLLIN, 0},
            pollfd{m_application, POLLIN, 0},
        };
        if (m_withApplication)
            waiting[3].events = static_cast<short>(POLLIN | wanted(*m_withApplication));
        const int count = ::poll(waiting.data(), waiting.size(), millisecondsToRetry());
        if (count < 0 && errno != EINTR) {
            complain("poll: ", std::strerror(errno));
            return 1;
        }
        if (count < 0)
            continue;
        if (!serveBrowser(waiting[0].revents != 0, waiting[1].revents != 0))
            return m_fromBrowser.state() == MessageStream::State::ended ? 0 : 1;
        if (waiting[3].revents != 0)
            serveApplication((waiting[3].revents & ~POLLOUT) != 0, (waiting[3].revents & POLLOUT) != 0);
        if (waiting[2].revents != 0 && !readWatch())
            return 1;
        if (millisecondsToRetry() == 0)
            connectToApplication();
    }
}

bool BrowserHost::watchDirectory() {
    const QString problem = prepareSocketDirectory(m_socket.directory);
    if (!problem.isEmpty()) {
        complain(qUtf8Printable(problem));
        return false;
    }
    if (m_watch >= 0)
        ::close(m_watch);
    m_watch = ::inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
    // The server's socket is moved into its place once it listens.
    if (m_watch < 0 ||
        ::inotify_add_watch(m_watch, m_socket.directory.constData(), IN_MOVED_TO | IN_ONLYDIR) < 0) {
        complain("inotify: ", std::strerror(errno));
        return false;
    }
    return true;
}

bool BrowserHost::readWatch() {
    alignas(inotify_event) std::array<char, 4096> events{};
    bool appeared = false;
    for (ssize_t size; (size = ::read(m_watch, events.data(), events.size())) > 0;) {
        for (ssize_t at = 0; at < size;) {
            const auto* event = reinterpret_cast<const inotify_event*>(&events[static_cast<size_t>(at)]);
            at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
            if ((event->mask & IN_IGNORED) != 0) {
                // Somebody has removed the directory.
                if (!watchDirectory())
                    return false;
                appeared = true;
                break;
            }
            appeared = appeared || (event->mask & IN_Q_OVERFLOW) != 0 ||
                       (event->len > 0 && m_socket.name == event->name);
        }
    }
    if (appeared) {
        // Another socket means another application; the one we may still be connected to is going.
        leaveApplication(false);
        connectToApplication();
    }
    return true;
}

void BrowserHost::connectToApplication() {
    m_retryAt.reset();
    m_application = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const sockaddr_un address = socketAddress(m_socket.path());
    if (m_application >= 0 &&
        ::connect(m_application, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) {
        m_withApplication.emplace(largestFromApplication);
        forwardToApplication(HostMessage{::getppid()});
        if (m_page)
            forwardToApplication(*m_page);
        return;
    }
    // Without a socket, or with one that nobody listens on, the next one to appear is an event.
    leaveApplication(errno == EAGAIN || errno == EMFILE || errno == ENFILE);
}

void BrowserHost::leaveApplication(bool willReturn) {
    if (m_application >= 0)
        ::close(m_application);
    m_application = -1;
    m_withApplication.reset();
    m_retryAt.reset();
    if (willReturn)
        m_retryAt = std::chrono::steady_clock::now() + retryDelay;
}

bool BrowserHost::serveBrowser(bool isReadable, bool isWritable) {
    using State = MessageStream::State;
    if (isWritable && m_fromBrowser.writeTo(m_output) != State::open) {
        complain(textOf(m_fromBrowser.state()));
        return false;
    }
    if (!isReadable)
        return true;
    State state = m_fromBrowser.readFrom(m_input);
    while (const std::optional<QByteArray> text = m_fromBrowser.next()) {
        const std::optional<BrowserMessage> message = decodeBrowserMessage(*text);
        if (message && std::holds_alternative<PageMessage>(*message))
            m_page = std::get<PageMessage>(*message);
        else if (!message || !std::holds_alternative<CloseAnswer>(*message)) {
            complain("dropped a message of the browser that is not understood");
            continue;
        }
        forwardToApplication(*message);
    }
    state = m_fromBrowser.state();
    if (state == State::tooLong || state == State::broken)
        complain("browser: ", textOf(state));
    return state == State::open;
}

void BrowserHost::serveApplication(bool isReadable, bool isWritable) {
    using State = MessageStream::State;
    if (isWritable)
        (void)m_withApplication->writeTo(m_application);
    if (isReadable && m_withApplication->state() == State::open)
        (void)m_withApplication->readFrom(m_application);
    while (const std::optional<QByteArray> text = m_withApplication->next()) {
        const std::optional<BrowserMessage> message = decodeBrowserMessage(*text);
        if (!message || !std::holds_alternative<CloseRequest>(*message))
            complain("dropped a message of the application that is not understood");
        else if (!m_fromBrowser.queue(encodeBrowserMessage(*message)))
            complain("dropped a request that the browser does not read");
    }
    const State state = m_withApplication->state();
    if (state == State::tooLong || state == State::broken)
        complain("application: ", textOf(state));
    if (state != State::open)
        leaveApplication(true);
}

void BrowserHost::forwardToApplication(const BrowserMessage& message) {
    if (!m_withApplication)
        return;
    // What an application that stands still has not taken is worth nothing later but for the last page, which
    // a new connection begins with.
    if (!m_withApplication->queue(encodeBrowserMessage(message)))
        leaveApplication(true);
}

int BrowserHost::millisecondsToRetry() const {
    if (!m_retryAt)
        return -1;
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(*m_retryAt - std::chrono::steady_clock::now());
    return static_cast<int>(std::max<std::chrono::milliseconds::rep>(left.count(), 0));
}

} // namespace norvin
