#include "app/UnixSignals.h"

#include "platform/Log.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>

namespace norvin {

namespace {

constexpr std::array handledSignals{SIGTERM, SIGINT, SIGHUP};

// The only thing that a signal handler touches.
volatile std::sig_atomic_t wakeDescriptor = -1;

void wake(int) {
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(wakeDescriptor, &byte, 1);
}

} // namespace

UnixSignals::UnixSignals(QObject* parent)
    : QObject(parent) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        logLine(QStringLiteral("UnixSignals: No pipe could be made, signals end the program at once"));
        return;
    }
    m_read = ends[0];
    m_write = ends[1];
    wakeDescriptor = m_write;
    m_notifier = new QSocketNotifier(m_read, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (::read(m_read, &byte, 1) > 0) {
        }
        Q_EMIT terminationRequested();
    });
    for (const int signal : handledSignals)
        std::signal(signal, wake);
    // Whoever read our output may end before us, and a session goes on without its log.
    std::signal(SIGPIPE, SIG_IGN);
}

UnixSignals::~UnixSignals() {
    if (m_read < 0)
        return;
    for (const int signal : handledSignals)
        std::signal(signal, SIG_DFL);
    wakeDescriptor = -1;
    ::close(m_read);
    ::close(m_write);
}

} // namespace norvin
