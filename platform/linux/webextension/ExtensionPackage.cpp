#include "platform/linux/webextension/ExtensionPackage.h"

#include "platform/linux/webextension/CryptoLibrary.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <memory>

namespace norvin {

namespace {

void append16(QByteArray& bytes, quint16 value) {
    const quint16 little = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

void append32(QByteArray& bytes, quint32 value) {
    const quint32 little = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

quint32 crc32(const QByteArray& bytes) {
    quint32 crc = 0xffffffff;
    for (const char byte : bytes) {
        crc ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xedb88320 : 0);
    }
    return ~crc;
}

// What the local header and the central directory say alike: stored as it is, names in UTF-8, and the
// earliest date that the format knows.
QByteArray zipFacts(const QByteArray& name, const QByteArray& content) {
    QByteArray facts;
    append16(facts, 20);     // version needed
    append16(facts, 0x0800); // UTF-8 names
    append16(facts, 0);      // stored
    append16(facts, 0);      // time
    append16(facts, 0x0021); // 1980-01-01
    append32(facts, crc32(content));
    append32(facts, static_cast<quint32>(content.size()));
    append32(facts, static_cast<quint32>(content.size()));
    append16(facts, static_cast<quint16>(name.size()));
    append16(facts, 0); // extra field
    return facts;
}

// A field of the package's header, which is in the protocol-buffer format: number and kind, length, bytes.
QByteArray field(quint32 number, const QByteArray& content) {
    QByteArray bytes;
    const auto appendNumber = [&bytes](quint64 value) {
        for (; value > 127; value >>= 7)
            bytes.append(static_cast<char>((value & 127) | 128));
        bytes.append(static_cast<char>(value));
    };
    constexpr quint64 lengthDelimited = 2;
    appendNumber(quint64{number} << 3 | lengthDelimited);
    appendNumber(static_cast<quint64>(content.size()));
    return bytes + content;
}

QByteArray keyDigest(const QByteArray& publicKey) {
    return QCryptographicHash::hash(publicKey, QCryptographicHash::Sha256).first(16);
}

using Key = std::unique_ptr<EVP_PKEY, decltype(CryptoLibrary::EVP_PKEY_free)>;

QByteArray publicKeyOf(const CryptoLibrary& crypto, const Key& key) {
    unsigned char* encoded = nullptr;
    const int size = crypto.i2d_PUBKEY(key.get(), &encoded);
    if (size <= 0)
        return {};
    const QByteArray result(reinterpret_cast<const char*>(encoded), size);
    crypto.CRYPTO_free(encoded, OPENSSL_FILE, OPENSSL_LINE);
    return result;
}

QByteArray signature(const CryptoLibrary& crypto, const Key& key, const QByteArray& bytes) {
    const std::unique_ptr<EVP_MD_CTX, decltype(crypto.EVP_MD_CTX_free)> context(crypto.EVP_MD_CTX_new(),
                                                                                crypto.EVP_MD_CTX_free);
    const auto* data = reinterpret_cast<const unsigned char*>(bytes.constData());
    const auto dataSize = static_cast<size_t>(bytes.size());
    size_t size = 0;
    if (!context ||
        crypto.EVP_DigestSignInit(context.get(), nullptr, crypto.EVP_sha256(), nullptr, key.get()) != 1 ||
        crypto.EVP_DigestSign(context.get(), nullptr, &size, data, dataSize) != 1)
        return {};
    QByteArray result(static_cast<qsizetype>(size), Qt::Uninitialized);
    if (crypto.EVP_DigestSign(context.get(), reinterpret_cast<unsigned char*>(result.data()), &size, data,
                              dataSize) != 1)
        return {};
    result.truncate(static_cast<qsizetype>(size));
    return result;
}

} // namespace

QList<ExtensionFile> extensionFiles() {
    const QDir root(QStringLiteral(":/norvin/extension"));
    QList<ExtensionFile> files;
    for (QDirIterator entry(root.path(), QDir::Files, QDirIterator::Subdirectories); entry.hasNext();) {
        QFile file(entry.next());
        if (file.open(QIODevice::ReadOnly))
            files.append({root.relativeFilePath(file.fileName()), file.readAll()});
    }
    std::sort(files.begin(), files.end(),
              [](const ExtensionFile& a, const ExtensionFile& b) { return a.path < b.path; });
    return files;
}

QByteArray zipArchive(const QList<ExtensionFile>& files) {
    QByteArray archive;
    QByteArray directory;
    for (const ExtensionFile& file : files) {
        const QByteArray name = file.path.toUtf8();
        const QByteArray facts = zipFacts(name, file.content);
        const auto offset = static_cast<quint32>(archive.size());
        archive += QByteArrayLiteral("PK\x03\x04") + facts + name + file.content;

        directory += QByteArrayLiteral("PK\x01\x02");
        append16(directory, 20); // version made by
        directory += facts;
        directory.append(10, '\0'); // comment, disk, attributes
        append32(directory, offset);
        directory += name;
    }
    const auto start = static_cast<quint32>(archive.size());
    const auto count = static_cast<quint16>(files.size());
    archive += directory + QByteArrayLiteral("PK\x05\x06");
    append32(archive, 0); // disks
    append16(archive, count);
    append16(archive, count);
    append32(archive, static_cast<quint32>(directory.size()));
    append32(archive, start);
    append16(archive, 0); // comment
    return archive;
}

std::optional<SignedPackage> signedPackage(const QByteArray& archive) {
    const CryptoLibrary* const crypto = CryptoLibrary::find();
    if (crypto == nullptr)
        return std::nullopt;
    constexpr size_t keyBits = 2048;
    const Key key(crypto->EVP_PKEY_Q_keygen(nullptr, nullptr, "RSA", keyBits), crypto->EVP_PKEY_free);
    const QByteArray publicKey = key ? publicKeyOf(*crypto, key) : QByteArray();
    if (publicKey.isEmpty())
        return std::nullopt;

    const QByteArray signedData = field(1, keyDigest(publicKey));
    QByteArray covered("CRX3 SignedData\0", 16);
    append32(covered, static_cast<quint32>(signedData.size()));
    const QByteArray proof = signature(*crypto, key, covered + signedData + archive);
    if (proof.isEmpty())
        return std::nullopt;

    constexpr quint32 rsaProof = 2;
    constexpr quint32 signedHeader = 10'000;
    const QByteArray header =
        field(rsaProof, field(1, publicKey) + field(2, proof)) + field(signedHeader, signedData);
    QByteArray content("Cr24");
    append32(content, 3);
    append32(content, static_cast<quint32>(header.size()));
    return SignedPackage{extensionIdOfKey(publicKey), content + header + archive};
}

QString extensionIdOfKey(const QByteArray& publicKey) {
    QString id;
    for (const char digit : keyDigest(publicKey).toHex())
        id.append(
            QChar::fromLatin1(static_cast<char>(digit <= '9' ? 'a' + (digit - '0') : 'k' + (digit - 'a'))));
    return id;
}

} // namespace norvin
