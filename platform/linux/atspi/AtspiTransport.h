#pragma once

#include <QLatin1String>
#include <QString>
#include <QVariantList>

#include <chrono>

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

    /// Waits for the answer, `timeout` at most.
    /// @param timeout at least 1 ms
    [[nodiscard]] virtual AtspiReply call(const AtspiCall& call, std::chrono::milliseconds timeout) = 0;
};

} // namespace norvin
