#include "platform/linux/atspi/DBusAtspiTransport.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusSignature>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QVariantMap>

namespace norvin {

namespace {

// Far above what a browser's window has: only a broken or hostile program answers more.
constexpr int mostValues = 4096;
constexpr int deepestValue = 8;
constexpr int longestWait = 60'000; // ms

QVariant plain(const QVariant& value, int depth, int& count);

QVariant plainArgument(const QDBusArgument& argument, int depth, int& count) {
    QVariantList list;
    // What was begun is ended also where not all of it was taken: its memory goes with that only.
    switch (argument.currentType()) {
    case QDBusArgument::ArrayType:
        argument.beginArray();
        while (!argument.atEnd() && count < mostValues)
            list.append(plain(argument.asVariant(), depth, count));
        argument.endArray();
        return list;
    case QDBusArgument::StructureType:
        argument.beginStructure();
        while (!argument.atEnd() && count < mostValues)
            list.append(plain(argument.asVariant(), depth, count));
        argument.endStructure();
        return list;
    case QDBusArgument::MapType: {
        QVariantMap map;
        argument.beginMap();
        while (!argument.atEnd() && count < mostValues) {
            argument.beginMapEntry();
            const QString key = plain(argument.asVariant(), depth, count).toString();
            map.insert(key, plain(argument.asVariant(), depth, count));
            argument.endMapEntry();
        }
        argument.endMap();
        return map;
    }
    default:
        return {};
    }
}

QVariant plain(const QVariant& value, int depth, int& count) {
    ++count;
    if (depth > deepestValue)
        return {};
    if (value.userType() == qMetaTypeId<QDBusVariant>())
        return plain(value.value<QDBusVariant>().variant(), depth + 1, count);
    if (value.userType() == qMetaTypeId<QDBusArgument>())
        return plainArgument(value.value<QDBusArgument>(), depth + 1, count);
    if (value.userType() == qMetaTypeId<QDBusObjectPath>())
        return value.value<QDBusObjectPath>().path();
    if (value.userType() == qMetaTypeId<QDBusSignature>())
        return value.value<QDBusSignature>().signature();
    return value;
}

AtspiReply::Status statusOf(const QDBusMessage& message) {
    if (message.type() == QDBusMessage::ReplyMessage)
        return AtspiReply::Status::answered;
    switch (QDBusError(message).type()) {
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
        return AtspiReply::Status::silent;
    case QDBusError::ServiceUnknown:
    case QDBusError::Disconnected:
        return AtspiReply::Status::gone;
    default:
        return message.errorName() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner")
                   ? AtspiReply::Status::gone
                   : AtspiReply::Status::refused;
    }
}

AtspiReply replyOf(const QDBusMessage& message) {
    AtspiReply reply{.status = statusOf(message)};
    if (reply.status == AtspiReply::Status::answered) {
        int count = 0;
        const QVariantList arguments = message.arguments();
        for (const QVariant& argument : arguments)
            reply.values.append(plain(argument, 0, count));
    }
    return reply;
}

} // namespace

DBusAtspiTransport::DBusAtspiTransport(QDBusConnection accessibilityBus)
    : m_bus(std::move(accessibilityBus)) {}

std::vector<AtspiReply> DBusAtspiTransport::call(const std::vector<AtspiCall>& calls,
                                                 std::chrono::milliseconds timeout) {
    if (!m_bus.isConnected())
        return std::vector<AtspiReply>(calls.size(), {.status = AtspiReply::Status::gone});
    // All of them run out at the same moment, so that waiting for one after the other takes no longer.
    std::vector<QDBusPendingCall> pending;
    pending.reserve(calls.size());
    for (const AtspiCall& call : calls) {
        QDBusMessage message = QDBusMessage::createMethodCall(call.target.service, call.target.path,
                                                              call.interface, call.member);
        message.setArguments(call.arguments);
        pending.push_back(m_bus.asyncCall(message, static_cast<int>(timeout.count())));
    }
    std::vector<AtspiReply> replies;
    replies.reserve(calls.size());
    QElapsedTimer waiting;
    waiting.start();
    for (QDBusPendingCall& call : pending) {
        call.waitForFinished();
        replies.push_back(replyOf(call.reply()));
        // The bus says the same of a program that ended while it was asked.
        if (replies.back().status == AtspiReply::Status::silent && waiting.elapsed() < timeout.count() / 2)
            replies.back().status = AtspiReply::Status::gone;
    }
    return replies;
}

void DBusAtspiTransport::awaitAnswer(const QString& service, std::function<void()> answers) {
    const QDBusMessage message = QDBusMessage::createMethodCall(
        service, QStringLiteral("/org/a11y/atspi/accessible/root"),
        QStringLiteral("org.a11y.atspi.Accessible"), QStringLiteral("GetRole"));
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, longestWait), &m_waiting);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &m_waiting,
                     [watcher, answers = std::move(answers)] {
                         watcher->deleteLater();
                         if (replyOf(watcher->reply()).status != AtspiReply::Status::silent)
                             answers();
                     });
}

} // namespace norvin
