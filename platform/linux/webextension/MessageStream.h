#pragma once

#include <QByteArray>

#include <optional>

namespace norvin {

/// A stream of messages on a descriptor: each is its length in bytes as four bytes in the machine's order,
/// then that many bytes. Not thread-safe. Descriptors have to be non-blocking, but for one that is only read
/// when it has something. Writing to a pipe without a reader raises SIGPIPE; to a socket, it never does.
class MessageStream final {
public:
    /// @param largestMessage bytes; the announcement of a longer one ends the stream
    explicit MessageStream(quint32 largestMessage);

    enum class State {
        open,
        ended,   ///< the other side has closed it
        broken,  ///< a read or write failed
        tooLong, ///< a message is longer than is allowed
    };

    /// Takes what is there to read, 64 KiB at most.
    [[nodiscard]] State readFrom(int descriptor);
    /// The next whole message, also of a stream that has ended; none until more is read. State changes to
    /// tooLong where that is why.
    [[nodiscard]] std::optional<QByteArray> next();
    [[nodiscard]] State state() const { return m_state; }

    /// Queues a message for writeTo().
    /// @return false where 64 KiB are waiting already; the message is dropped then
    bool queue(const QByteArray& message);
    /// Writes what the descriptor takes.
    [[nodiscard]] State writeTo(int descriptor);
    [[nodiscard]] bool hasToWrite() const { return !m_output.isEmpty(); }

private:
    const quint32 m_largestMessage;
    QByteArray m_input;
    QByteArray m_output;
    State m_state = State::open;
};

} // namespace norvin
