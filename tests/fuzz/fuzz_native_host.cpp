// The native host with whatever a browser may send: nothing but known messages reaches the application. The
// kernel takes its time to end a watch on a directory, so this makes a hundred rounds a second; the messages
// by themselves are the business of fuzz_native_message.

#include "browser-host/BrowserHost.h"
#include "platform/linux/webextension/BrowserMessage.h"
#include "platform/linux/webextension/MessageStream.h"
#include "tests/fuzz/NativeInput.h"

#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdlib>

using namespace norvin;

namespace {

// A pipe takes five times this, which it may become on a stream, without a reader.
constexpr size_t largestInput = 8 * 1024;

/// The application's socket, on which the host's messages arrive.
struct Application {
    Application() {
        socket = BrowserSocket{QFile::encodeName(directory.filePath(QStringLiteral("n"))), "s"};
        const sockaddr_un address = socketAddress(socket.path());
        if (!prepareSocketDirectory(socket.directory).isEmpty() ||
            ::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
            ::listen(listener, 1) != 0)
            std::abort();
    }

    QTemporaryDir directory;
    BrowserSocket socket;
    int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    int discarded = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
};

void require(bool condition) {
    if (!condition)
        std::abort();
}

void checkMessage(const QByteArray& text) {
    const auto message = decodeBrowserMessage(text);
    require(message.has_value());
    require(!std::holds_alternative<CloseRequest>(*message));
    if (const auto* page = std::get_if<PageMessage>(&*message))
        require(!page->domain || isHostName(*page->domain));
    require(encodeBrowserMessage(*message) == text);
    require(text.size() < 512);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static Application application;
    if (size > largestInput)
        return -1;

    std::array<int, 2> pipe{};
    require(::pipe2(pipe.data(), O_CLOEXEC) == 0);
    const QByteArray bytes = nativeStream(data, size);
    require(::write(pipe[1], bytes.constData(), static_cast<size_t>(bytes.size())) == bytes.size());
    ::close(pipe[1]);
    {
        BrowserHost host(pipe[0], application.discarded, application.socket);
        (void)host.run();
    }
    ::close(pipe[0]);

    const int connection = ::accept4(application.listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    require(connection >= 0);
    MessageStream received(4 * 1024);
    while (received.readFrom(connection) == MessageStream::State::open) {
    }
    ::close(connection);
    while (const auto message = received.next())
        checkMessage(*message);
    require(received.state() == MessageStream::State::ended);
    return 0;
}
