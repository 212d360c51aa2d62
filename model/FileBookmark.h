#pragma once

#include <QByteArray>
#include <QUrl>

#include <optional>

namespace norvin {

/// Finds a file again: its path, and what tells it from its neighbours if it was renamed in its folder.
class FileBookmark final {
public:
    /// Bookmark of a local file, which need not exist.
    /// @return none for an address that is no local file
    [[nodiscard]] static std::optional<FileBookmark> of(const QUrl& url);
    /// @return none when the bytes are no bookmark
    [[nodiscard]] static std::optional<FileBookmark> fromData(const QByteArray& data);

    /// JSON text.
    [[nodiscard]] QByteArray toData() const;
    /// Where the file was when the bookmark was made.
    [[nodiscard]] const QString& path() const { return m_path; }
    /// Where the file is now: at its path, or else under another name in the same folder.
    /// @return none when it is in neither place
    [[nodiscard]] std::optional<QUrl> resolve() const;

private:
    /// Without the device, whose number may be another after every start of the machine.
    struct Identity {
        quint64 inode = 0;
        quint64 size = 0;
        bool operator==(const Identity&) const = default;
    };
    [[nodiscard]] static std::optional<Identity> identityOf(const QByteArray& encodedPath);

    QString m_path;
    /// None when the file was not there as the bookmark was made.
    std::optional<Identity> m_identity;
};

} // namespace norvin
