#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>

#include <optional>
#include <variant>

namespace norvin {

/// What a licence says.
struct License {
    QString name;
    QString email;
    QDate issued;
    /// The last day on which it counts; none for always.
    std::optional<QDate> expires;

    bool operator==(const License&) const = default;
};

/// Why a text is no licence, as the localisation key of a sentence ("licence_bad_signature").
struct LicenseProblem {
    QString reasonKey;

    bool operator==(const LicenseProblem&) const = default;
};

/// A public Ed25519 key of 32 bytes, from 64 hexadecimal digits or Base64.
/// @return none for any other text
[[nodiscard]] std::optional<QByteArray> parseLicenseKey(const QByteArray& text);

/// The largest text that is looked at, in bytes.
inline constexpr qsizetype largestLicense = 16 * 1024;

/// Reads a licence and verifies its signature.
///
/// A licence is UTF-8 text, one "field: value" a line, with these fields: product ("Norvin Focus"), name,
/// email, issued and, where it ends, expires (days as 2026-01-31), and signature at the end: Base64 of the
/// Ed25519 signature over all lines before it, each ended by one line feed. White space around a line, empty
/// lines, and lines that begin with "#" do not count, so that a licence survives the way through a letter.
/// Fields of other names are signed like the rest and otherwise ignored.
/// @param key 32 bytes
[[nodiscard]] std::variant<License, LicenseProblem> readLicense(const QByteArray& text,
                                                                const QByteArray& key);

} // namespace norvin
