#include "services/LicenseFile.h"

#include <QHash>

#include <sodium.h>

namespace norvin {

namespace {

constexpr auto product = "Norvin Focus";
constexpr qsizetype keyLength = crypto_sign_PUBLICKEYBYTES;
constexpr qsizetype signatureLength = crypto_sign_BYTES;

const unsigned char* bytes(const QByteArray& data) {
    return reinterpret_cast<const unsigned char*>(data.constData());
}

LicenseProblem problem(const char* key) {
    return {QLatin1String(key)};
}

bool isSigned(const QByteArray& message, const QByteArray& signature, const QByteArray& key) {
    return sodium_init() >= 0 && signature.size() == signatureLength && key.size() == keyLength &&
           crypto_sign_verify_detached(bytes(signature), bytes(message),
                                       static_cast<unsigned long long>(message.size()), bytes(key)) == 0;
}

struct Fields {
    QHash<QByteArray, QByteArray> values;
    QByteArray signedPart;
    QByteArray signature;
};

// None where a line is no field, a field is there twice, or something follows the signature.
std::optional<Fields> takeApart(const QByteArray& text) {
    // What some editors begin a text with.
    constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");
    Fields fields;
    for (const QByteArray& untrimmed :
         text.mid(text.startsWith(byteOrderMark) ? byteOrderMark.size() : 0).split('\n')) {
        const QByteArray line = untrimmed.trimmed();
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        const qsizetype colon = line.indexOf(':');
        const QByteArray name = line.left(std::max<qsizetype>(colon, 0)).trimmed();
        if (name.isEmpty() || fields.values.contains(name) || !fields.signature.isEmpty())
            return std::nullopt;
        const QByteArray value = line.mid(colon + 1).trimmed();
        if (name == "signature") {
            fields.signature = value;
        } else {
            fields.values.insert(name, value);
            fields.signedPart += line + '\n';
        }
    }
    return fields;
}

QDate toDay(const QByteArray& text) {
    return QDate::fromString(QString::fromLatin1(text), Qt::ISODate);
}

} // namespace

std::optional<QByteArray> parseLicenseKey(const QByteArray& text) {
    const QByteArray digits = text.trimmed();
    if (digits.size() == 2 * keyLength) {
        QByteArray key = QByteArray::fromHex(digits);
        return key.toHex() == digits.toLower() ? std::optional(key) : std::nullopt;
    }
    const auto decoded = QByteArray::fromBase64Encoding(digits, QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded || decoded.decoded.size() != keyLength)
        return std::nullopt;
    return decoded.decoded;
}

std::variant<License, LicenseProblem> readLicense(const QByteArray& text, const QByteArray& key) {
    if (text.size() > largestLicense)
        return problem("licence_unreadable");
    const std::optional<Fields> fields = takeApart(text);
    if (!fields || fields->signature.isEmpty() || fields->values.isEmpty())
        return problem("licence_unreadable");
    const auto signature =
        QByteArray::fromBase64Encoding(fields->signature, QByteArray::AbortOnBase64DecodingErrors);
    if (!signature || !isSigned(fields->signedPart, signature.decoded, key))
        return problem("licence_bad_signature");

    if (fields->values.value("product") != product)
        return problem("licence_other_product");
    License license{.name = QString::fromUtf8(fields->values.value("name")),
                    .email = QString::fromUtf8(fields->values.value("email")),
                    .issued = toDay(fields->values.value("issued")),
                    .expires = {}};
    if (license.name.isEmpty() || !license.issued.isValid())
        return problem("licence_unreadable");
    if (fields->values.contains("expires")) {
        const QDate day = toDay(fields->values.value("expires"));
        if (!day.isValid())
            return problem("licence_unreadable");
        license.expires = day;
    }
    return license;
}

} // namespace norvin
