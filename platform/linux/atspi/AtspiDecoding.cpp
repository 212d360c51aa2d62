#include "platform/linux/atspi/AtspiDecoding.h"

#include <QVariantMap>

namespace norvin {

namespace {

constexpr qint64 embedsRelation = 13;
constexpr qsizetype mostAttributes = 64;

bool isText(const QVariant& value) {
    return value.metaType() == QMetaType::fromType<QString>();
}

QVariantList listOf(const QVariant& value) {
    return value.metaType() == QMetaType::fromType<QVariantList>() ? value.toList() : QVariantList();
}

QVariantList firstList(const QVariantList& reply) {
    return reply.isEmpty() ? QVariantList() : listOf(reply.first());
}

std::optional<qint64> numberOf(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::UChar:
    case QMetaType::LongLong:
        return value.toLongLong();
    default:
        return {};
    }
}

AtspiReference referenceOf(const QVariant& value) {
    const QVariantList pair = listOf(value);
    if (pair.size() != 2 || !isText(pair[0]) || !isText(pair[1]))
        return {};
    AtspiReference reference{.service = pair[0].toString(), .path = pair[1].toString()};
    if (reference.service.isEmpty() || reference.path == QLatin1String("/org/a11y/atspi/null"))
        return {};
    return reference;
}

} // namespace

std::vector<AtspiReference> decodeReferences(const QVariantList& reply, size_t most) {
    std::vector<AtspiReference> references;
    const QVariantList list = firstList(reply);
    for (const QVariant& value : list) {
        if (references.size() == most)
            break;
        if (AtspiReference reference = referenceOf(value); !reference.isNull())
            references.push_back(std::move(reference));
    }
    return references;
}

QString decodeText(const QVariantList& reply, qsizetype longest) {
    return reply.isEmpty() || !isText(reply.first()) ? QString() : reply.first().toString().left(longest);
}

std::optional<qint64> decodeNumber(const QVariantList& reply) {
    return reply.isEmpty() ? std::nullopt : numberOf(reply.first());
}

quint64 decodeStates(const QVariantList& reply) {
    const QVariantList words = firstList(reply);
    quint64 states = 0;
    for (qsizetype i = 0; i < qMin<qsizetype>(words.size(), 2); ++i)
        states |= (static_cast<quint64>(numberOf(words[i]).value_or(0)) & 0xffff'ffff) << (32 * i);
    return states;
}

QHash<QString, QString> decodeAttributes(const QVariantList& reply, qsizetype longest) {
    QHash<QString, QString> attributes;
    if (reply.isEmpty() || reply.first().metaType() != QMetaType::fromType<QVariantMap>())
        return attributes;
    const QVariantMap map = reply.first().toMap();
    for (auto it = map.cbegin(); it != map.cend() && attributes.size() < mostAttributes; ++it)
        if (isText(it.value()))
            attributes.insert(it.key(), it.value().toString().left(longest));
    return attributes;
}

AtspiReference decodeEmbedded(const QVariantList& reply) {
    const QVariantList relations = firstList(reply);
    for (const QVariant& value : relations) {
        const QVariantList relation = listOf(value);
        if (relation.size() != 2 || numberOf(relation[0]) != embedsRelation)
            continue;
        const auto targets = decodeReferences({relation[1]}, 1);
        if (!targets.empty())
            return targets.front();
    }
    return {};
}

} // namespace norvin
