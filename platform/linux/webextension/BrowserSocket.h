#pragma once

#include <QByteArray>
#include <QString>

#include <sys/un.h>

#include <optional>

namespace norvin {

/// Where the application and the native hosts of browsers meet.
struct BrowserSocket {
    /// "$XDG_RUNTIME_DIR/norvin-focus"
    QByteArray directory;
    /// Name of the socket within the directory.
    QByteArray name;

    [[nodiscard]] QByteArray path() const { return directory + '/' + name; }
};

/// The socket of this session's user; none without XDG_RUNTIME_DIR, or where the path is too long for a
/// socket.
[[nodiscard]] std::optional<BrowserSocket> browserSocket();

/// Makes the directory, for its user alone; one of the user's that others may enter is closed to them.
/// @return what is wrong, in English; empty on success
[[nodiscard]] QString prepareSocketDirectory(const QByteArray& directory);

/// The address of a path, which must not be longer than browserSocket() allows.
[[nodiscard]] sockaddr_un socketAddress(const QByteArray& path);

} // namespace norvin
