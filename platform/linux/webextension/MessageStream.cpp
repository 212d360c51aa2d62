#include "platform/linux/webextension/MessageStream.h"

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace norvin {

namespace {

constexpr qsizetype lengthSize = sizeof(quint32);
constexpr qsizetype mostAtOnce = 64 * 1024;
constexpr qsizetype mostWaiting = 64 * 1024;

// A peer that has gone is an error here and never a signal, whatever the rest of the process does with those.
ssize_t writeSome(int descriptor, const QByteArray& bytes) {
    const auto size = static_cast<size_t>(bytes.size());
    const ssize_t count = ::send(descriptor, bytes.constData(), size, MSG_NOSIGNAL);
    return count < 0 && errno == ENOTSOCK ? ::write(descriptor, bytes.constData(), size) : count;
}

} // namespace

MessageStream::MessageStream(quint32 largestMessage)
    : m_largestMessage(largestMessage) {}

MessageStream::State MessageStream::readFrom(int descriptor) {
    std::array<char, 4096> chunk; // NOLINT(cppcoreguidelines-pro-type-member-init): read() fills it
    for (qsizetype taken = 0; m_state == State::open && taken < mostAtOnce;) {
        const ssize_t count = ::read(descriptor, chunk.data(), chunk.size());
        if (count > 0) {
            m_input.append(chunk.data(), count);
            taken += count;
            // A short read has emptied the descriptor, so that one that blocks is not asked again.
            if (static_cast<size_t>(count) < chunk.size())
                break;
        } else if (count == 0) {
            m_state = State::ended;
        } else if (errno == EAGAIN || errno == EWOULDBLOCK) {
            break;
        } else if (errno != EINTR) {
            m_state = errno == ECONNRESET ? State::ended : State::broken;
        }
    }
    return m_state;
}

std::optional<QByteArray> MessageStream::next() {
    if (m_input.size() < lengthSize)
        return std::nullopt;
    quint32 length = 0;
    std::memcpy(&length, m_input.constData(), sizeof length);
    if (length > m_largestMessage) {
        m_state = State::tooLong;
        m_input.clear();
        return std::nullopt;
    }
    const auto end = lengthSize + static_cast<qsizetype>(length);
    if (m_input.size() < end)
        return std::nullopt;
    const QByteArray message = m_input.sliced(lengthSize, length);
    m_input.remove(0, end);
    return message;
}

bool MessageStream::queue(const QByteArray& message) {
    if (m_output.size() + lengthSize + message.size() > mostWaiting)
        return false;
    const auto length = static_cast<quint32>(message.size());
    m_output.append(reinterpret_cast<const char*>(&length), sizeof length);
    m_output.append(message);
    return true;
}

MessageStream::State MessageStream::writeTo(int descriptor) {
    while (m_state == State::open && !m_output.isEmpty()) {
        const ssize_t count = writeSome(descriptor, m_output);
        if (count >= 0)
            m_output.remove(0, count);
        else if (errno == EAGAIN || errno == EWOULDBLOCK)
            break;
        else if (errno != EINTR)
            m_state = errno == EPIPE ? State::ended : State::broken;
    }
    return m_state;
}

} // namespace norvin
