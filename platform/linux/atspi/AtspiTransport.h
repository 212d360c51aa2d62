#pragma once

#include <QLatin1String>
#include <QString>
#include <QVariantList>

#include <chrono>
#include <functional>
#include <vector>

namespace norvin {

/// Names one accessible object: the connection of its program on the accessibility bus, and its path there.
struct AtspiReference {
    QString service;
    QString path;

    [[nodiscard]] bool isNull() const { return path.isEmpty(); }
    bool operator==(const AtspiReference&) const = default;
};

struct AtspiCall {
    AtspiReference target;
    QLatin1String interface;
    QLatin1String member;
    QVariantList arguments = {};
};

struct AtspiReply {
    enum class Status {
        answered, ///< `values` holds what was answered
        refused,  ///< an error was answered: no such object, interface or property, say
        silent,   ///< nothing was answered in time
        gone,     ///< nobody has that name any more, or the bus itself is gone
    };
    Status status = Status::refused;
    /// Plain values, whatever their signature: numbers, QString (also for paths), QVariantList (for arrays
    /// and structures) and QVariantMap (for dictionaries, by the text of their keys).
    QVariantList values = {};
};

/// Sends calls over the accessibility bus. Main thread only.
class AtspiTransport {
public:
    AtspiTransport() = default;
    AtspiTransport(const AtspiTransport&) = delete;
    AtspiTransport& operator=(const AtspiTransport&) = delete;
    virtual ~AtspiTransport() = default;

    /// Sends all calls at once and waits for their answers, `timeout` at most for all of them together.
    /// @param timeout at least 1 ms
    /// @return as many replies as there are calls, in their order
    [[nodiscard]] virtual std::vector<AtspiReply> call(const std::vector<AtspiCall>& calls,
                                                       std::chrono::milliseconds timeout) = 0;

    /// Calls `answers` from the event loop when the program behind `service` answers something at all, within
    /// a minute. Does not wait; what `answers` holds on to must live as long as the transport.
    virtual void awaitAnswer(const QString& service, std::function<void()> answers) = 0;
};

} // namespace norvin
