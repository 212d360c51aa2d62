// A stream of messages with whatever may be on it, read as both ends read it.

#include "platform/linux/webextension/BrowserMessage.h"
#include "platform/linux/webextension/MessageStream.h"
#include "tests/fuzz/NativeInput.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdlib>

using namespace norvin;

namespace {

constexpr quint32 largestMessage = 256;
// A pipe takes five times this, which it may become on a stream, without a reader.
constexpr size_t largestInput = 8 * 1024;

void require(bool condition) {
    if (!condition)
        std::abort();
}

void checkMessage(const QByteArray& text) {
    require(text.size() <= largestMessage);
    const auto message = decodeBrowserMessage(text);
    if (!message)
        return;
    if (const auto* page = std::get_if<PageMessage>(&*message))
        require(!page->domain || isHostName(*page->domain));
    if (const auto* request = std::get_if<CloseRequest>(&*message))
        require(isHostName(request->domain) && request->id > 0 && request->until > 0);
    const QByteArray again = encodeBrowserMessage(*message);
    require(again.size() < 512 && decodeBrowserMessage(again) == message);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size > largestInput)
        return -1;
    std::array<int, 2> pipe{};
    require(::pipe2(pipe.data(), O_CLOEXEC | O_NONBLOCK) == 0);
    const QByteArray bytes = nativeStream(data, size);
    // Cut in two, so that messages come in parts.
    MessageStream stream(largestMessage);
    const qsizetype half = bytes.size() / 2;
    for (const QByteArray& part : {bytes.first(half), bytes.sliced(half)}) {
        require(::write(pipe[1], part.constData(), static_cast<size_t>(part.size())) == part.size());
        if (stream.state() != MessageStream::State::open)
            break;
        require(stream.readFrom(pipe[0]) == MessageStream::State::open);
        while (const auto message = stream.next())
            checkMessage(*message);
    }
    ::close(pipe[0]);
    ::close(pipe[1]);
    return 0;
}
