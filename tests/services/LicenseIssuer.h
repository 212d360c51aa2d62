#pragma once

#include <QByteArray>

#include <sodium.h>

namespace norvin {

/// Makes licences, with a key of its own.
class LicenseIssuer final {
public:
    LicenseIssuer() {
        if (sodium_init() < 0)
            qFatal("libsodium does not start");
        crypto_sign_keypair(data(m_public), data(m_secret));
    }

    [[nodiscard]] const QByteArray& publicKey() const { return m_public; }
    /// The fields with their signature below them.
    [[nodiscard]] QByteArray sign(const QByteArray& fields) const {
        QByteArray signature(crypto_sign_BYTES, '\0');
        crypto_sign_detached(data(signature), nullptr,
                             reinterpret_cast<const unsigned char*>(fields.constData()),
                             static_cast<unsigned long long>(fields.size()),
                             reinterpret_cast<const unsigned char*>(m_secret.constData()));
        return fields + "signature: " + signature.toBase64() + '\n';
    }

private:
    static unsigned char* data(QByteArray& bytes) { return reinterpret_cast<unsigned char*>(bytes.data()); }

    QByteArray m_public = QByteArray(crypto_sign_PUBLICKEYBYTES, '\0');
    QByteArray m_secret = QByteArray(crypto_sign_SECRETKEYBYTES, '\0');
};

} // namespace norvin
