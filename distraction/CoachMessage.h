#pragma once

#include <QDateTime>
#include <QString>
#include <QUuid>

namespace norvin {

/// One thing that the coach said. A plain value.
struct CoachMessage {
    enum class MessageType { warning, encouragement, info };

    QUuid id = QUuid::createUuid();
    /// In the user's language at that time.
    QString text;
    QDateTime timestamp;
    MessageType type = MessageType::info;

    bool operator==(const CoachMessage&) const = default;
};

} // namespace norvin
