#include "platform/linux/webextension/BrowserSocket.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace norvin {

namespace {

// Room for the process id that the server's socket has in its name until it listens.
constexpr qsizetype longestPath = sizeof(sockaddr_un::sun_path) - 16;

} // namespace

std::optional<BrowserSocket> browserSocket() {
    const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
    const BrowserSocket socket{runtime + "/norvin-focus", "browser.socket"};
    if (!runtime.startsWith('/') || socket.path().size() > longestPath)
        return std::nullopt;
    return socket;
}

QString prepareSocketDirectory(const QByteArray& directory) {
    const auto because = [&directory](const char* reason) {
        return QStringLiteral("%1: %2").arg(QString::fromLocal8Bit(directory),
                                            QString::fromLocal8Bit(reason));
    };
    if (::mkdir(directory.constData(), 0700) != 0 && errno != EEXIST)
        return because(std::strerror(errno));
    struct stat facts {};
    if (::lstat(directory.constData(), &facts) != 0)
        return because(std::strerror(errno));
    if (!S_ISDIR(facts.st_mode) || facts.st_uid != ::geteuid())
        return because("not a directory of this user's");
    if ((facts.st_mode & 0077) != 0 && ::chmod(directory.constData(), 0700) != 0)
        return because(std::strerror(errno));
    return {};
}

sockaddr_un socketAddress(const QByteArray& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::copy(path.begin(), path.end(), std::begin(address.sun_path));
    return address;
}

} // namespace norvin
