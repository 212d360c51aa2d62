#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace norvin {

/// A file of the browser extension.
struct ExtensionFile {
    /// Relative, with "/" ("icons/48.png").
    QString path;
    QByteArray content;
};

/// The extension that this program carries, sorted by path. Any thread.
[[nodiscard]] QList<ExtensionFile> extensionFiles();

/// The files as a ZIP archive; the same files always give the same bytes. At most 4 GiB and 65,535 files.
[[nodiscard]] QByteArray zipArchive(const QList<ExtensionFile>& files);

/// An archive that is signed for Chromium and the browsers made of it.
struct SignedPackage {
    /// How those browsers call it: 32 letters from a to p, made of the key.
    QString extensionId;
    /// CRX, version 3.
    QByteArray content;
};
/// Signs an archive with a key that is made for it and then forgotten, so that nobody else can ever make a
/// package of that id. Takes some 0.1 s. None where the cryptographic library cannot.
[[nodiscard]] std::optional<SignedPackage> signedPackage(const QByteArray& archive);

/// The id that browsers of the Chromium family give an extension with this public key (DER).
[[nodiscard]] QString extensionIdOfKey(const QByteArray& publicKey);

} // namespace norvin
