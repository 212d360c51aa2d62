#pragma once

#include "platform/linux/webextension/BrowserSocket.h"
#include "platform/linux/webextension/MessageStream.h"

#include <QString>

#include <sys/socket.h>
#include <unistd.h>

#include <poll.h>

/// One end of a stream of messages, as whoever is on the other side of the code under test has it. Reading
/// waits; it may be used from a thread of its own.
class MessageEnd final {
public:
    /// @param input, output become this object's; they may be the same
    MessageEnd(int input, int output)
        : m_input(input)
        , m_output(output) {}
    ~MessageEnd() { close(); }
    MessageEnd(const MessageEnd&) = delete;
    MessageEnd& operator=(const MessageEnd&) = delete;

    /// A connection to a socket; isOpen() tells whether there was one to be had.
    explicit MessageEnd(const QByteArray& path)
        : MessageEnd(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        const sockaddr_un address = norvin::socketAddress(path);
        if (::connect(m_input, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
            close();
    }

    [[nodiscard]] bool isOpen() const { return m_input >= 0; }

    void write(const QByteArray& message) {
        m_stream.queue(message);
        (void)m_stream.writeTo(m_output);
    }
    void writeRaw(const QByteArray& bytes) const {
        (void)!::write(m_output, bytes.constData(), static_cast<size_t>(bytes.size()));
    }

    /// The next message; none when the other side has closed the stream, or said nothing for 10 s.
    [[nodiscard]] std::optional<QByteArray> read() { return readFor(10'000); }
    /// Whether the other side closes the stream, or said nothing for 10 s; messages before are passed over.
    [[nodiscard]] bool isEnded() {
        while (read()) {
        }
        return m_stream.state() == norvin::MessageStream::State::ended;
    }
    /// A message that is there already.
    [[nodiscard]] std::optional<QByteArray> readAtOnce() { return readFor(0); }

    void closeOutput() {
        if (m_output >= 0 && m_output != m_input)
            ::close(m_output);
        m_output = -1;
    }
    void close() {
        closeOutput();
        if (m_input >= 0)
            ::close(m_input);
        m_input = -1;
    }

private:
    explicit MessageEnd(int descriptor)
        : MessageEnd(descriptor, descriptor) {}

    std::optional<QByteArray> readFor(int milliseconds) {
        for (;;) {
            if (std::optional<QByteArray> message = m_stream.next())
                return message;
            pollfd waiting{m_input, POLLIN, 0};
            if (::poll(&waiting, 1, milliseconds) <= 0 ||
                m_stream.readFrom(m_input) != norvin::MessageStream::State::open)
                return m_stream.next();
        }
    }

    int m_input;
    int m_output;
    norvin::MessageStream m_stream{1024 * 1024};
};
