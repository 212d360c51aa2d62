#include "platform/linux/webextension/BrowserMessage.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace norvin {

namespace {

using Outcome = CloseAnswer::Outcome;

constexpr int longestHostName = 253; // DNS

struct Reason {
    Outcome outcome;
    QLatin1String text;
};

constexpr std::array reasons = {
    Reason{Outcome::otherPage, QLatin1String("otherPage")},
    Reason{Outcome::pinned, QLatin1String("pinned")},
    Reason{Outcome::late, QLatin1String("late")},
    Reason{Outcome::failed, QLatin1String("failed")},
};

// A whole number from 1 on that JSON's floating-point numbers hold exactly.
std::optional<qint64> positiveInteger(const QJsonValue& value, qint64 largest) {
    constexpr double largestExact = 9007199254740991.0;
    const double number = value.toDouble(0);
    if (number < 1 || number > largestExact || number != std::floor(number))
        return std::nullopt;
    const auto integer = static_cast<qint64>(number);
    return integer <= largest ? std::optional(integer) : std::nullopt;
}

std::optional<int> requestId(const QJsonObject& object) {
    const auto id = positiveInteger(object.value(QLatin1String("id")), std::numeric_limits<int>::max());
    return id ? std::optional(static_cast<int>(*id)) : std::nullopt;
}

std::optional<BrowserMessage> page(const QJsonObject& object) {
    const QJsonValue domain = object.value(QLatin1String("domain"));
    const QJsonValue focused = object.value(QLatin1String("focused"));
    if (!focused.isBool())
        return std::nullopt;
    if (domain.isNull())
        return PageMessage{std::nullopt, focused.toBool()};
    if (!domain.isString() || !isHostName(domain.toString()))
        return std::nullopt;
    return PageMessage{domain.toString(), focused.toBool()};
}

std::optional<BrowserMessage> closeRequest(const QJsonObject& object) {
    const std::optional<int> id = requestId(object);
    const QString domain = object.value(QLatin1String("domain")).toString();
    const auto until =
        positiveInteger(object.value(QLatin1String("until")), std::numeric_limits<qint64>::max());
    if (!id || !until || !isHostName(domain))
        return std::nullopt;
    return CloseRequest{*id, domain, *until};
}

std::optional<BrowserMessage> closeAnswer(const QJsonObject& object) {
    const std::optional<int> id = requestId(object);
    const QJsonValue closed = object.value(QLatin1String("closed"));
    if (!id || !closed.isBool())
        return std::nullopt;
    if (closed.toBool())
        return CloseAnswer{*id, Outcome::closed};
    const QString text = object.value(QLatin1String("reason")).toString();
    const auto reason = std::find_if(reasons.begin(), reasons.end(),
                                     [&text](const Reason& candidate) { return candidate.text == text; });
    return reason == reasons.end() ? std::nullopt : std::optional(CloseAnswer{*id, reason->outcome});
}

std::optional<BrowserMessage> hostMessage(const QJsonObject& object) {
    const auto processId =
        positiveInteger(object.value(QLatin1String("browserProcessId")), std::numeric_limits<qint32>::max());
    return processId ? std::optional(HostMessage{*processId}) : std::nullopt;
}

QJsonObject toJson(const PageMessage& message) {
    const QJsonValue domain = message.domain ? QJsonValue(*message.domain) : QJsonValue();
    return {{QStringLiteral("type"), QStringLiteral("page")},
            {QStringLiteral("domain"), domain},
            {QStringLiteral("focused"), message.isFocused}};
}

QJsonObject toJson(const CloseRequest& message) {
    return {{QStringLiteral("type"), QStringLiteral("close")},
            {QStringLiteral("id"), message.id},
            {QStringLiteral("domain"), message.domain},
            {QStringLiteral("until"), message.until}};
}

QJsonObject toJson(const CloseAnswer& message) {
    QJsonObject object{{QStringLiteral("type"), QStringLiteral("closeAnswer")},
                       {QStringLiteral("id"), message.id},
                       {QStringLiteral("closed"), message.outcome == Outcome::closed}};
    for (const Reason& reason : reasons) {
        if (reason.outcome == message.outcome)
            object.insert(QStringLiteral("reason"), reason.text);
    }
    return object;
}

QJsonObject toJson(const HostMessage& message) {
    return {{QStringLiteral("type"), QStringLiteral("host")},
            {QStringLiteral("browserProcessId"), message.browserProcessId}};
}

} // namespace

std::optional<BrowserMessage> decodeBrowserMessage(QByteArrayView json) {
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromRawData(json.data(), json.size()));
    if (!document.isObject())
        return std::nullopt;
    const QJsonObject object = document.object();
    const QString type = object.value(QLatin1String("type")).toString();
    if (type == QLatin1String("page"))
        return page(object);
    if (type == QLatin1String("close"))
        return closeRequest(object);
    if (type == QLatin1String("closeAnswer"))
        return closeAnswer(object);
    if (type == QLatin1String("host"))
        return hostMessage(object);
    return std::nullopt;
}

QByteArray encodeBrowserMessage(const BrowserMessage& message) {
    const QJsonObject object = std::visit([](const auto& content) { return toJson(content); }, message);
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

bool isHostName(QStringView text) {
    const auto isAllowed = [](QChar character) {
        const char16_t c = character.unicode();
        return (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9') || c == u'.' || c == u'-' || c == u'_';
    };
    return !text.isEmpty() && text.size() <= longestHostName &&
           std::all_of(text.begin(), text.end(), isAllowed);
}

bool isSameSite(QStringView domain, QStringView otherDomain) {
    const auto bare = [](QStringView text) { return text.startsWith(u"www.") ? text.sliced(4) : text; };
    return bare(domain) == bare(otherDomain);
}

} // namespace norvin
