#include "platform/linux/atspi/BusGreeting.h"

#include <QMetaObject>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstddef>
#include <cstring>

namespace norvin {

std::optional<QByteArray> BusGreeting::socketPath(const QString& busAddress) {
    const QByteArray first = busAddress.toLatin1().split(';').constFirst();
    if (!first.startsWith("unix:"))
        return {};
    const QList<QByteArray> pairs = first.mid(5).split(',');
    for (const QByteArray& pair : pairs) {
        const bool isAbstract = pair.startsWith("abstract=");
        if (!isAbstract && !pair.startsWith("path="))
            continue;
        QByteArray path = QByteArray::fromPercentEncoding(pair.mid(pair.indexOf('=') + 1));
        if (isAbstract)
            path.prepend('\0');
        if (path.size() < 2 || path.size() >= static_cast<qsizetype>(sizeof(sockaddr_un::sun_path)))
            return {};
        return path;
    }
    return {};
}

BusGreeting::BusGreeting(const QString& busAddress, QObject* parent)
    : QObject(parent) {
    const auto fail = [this] {
        QMetaObject::invokeMethod(
            this, [this] { finish(false); }, Qt::QueuedConnection);
    };
    const auto path = socketPath(busAddress);
    m_socket = path ? ::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0) : -1;
    if (m_socket < 0) {
        fail();
        return;
    }
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path->constData(), static_cast<size_t>(path->size()));
    const auto size =
        static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + static_cast<size_t>(path->size()));
    const QByteArray logOn =
        QByteArrayLiteral("\0AUTH EXTERNAL ") + QByteArray::number(::getuid()).toHex() + "\r\n";
    // A socket of this kind is connected at once or not at all; one whose bus has stopped taking connections
    // refuses for the moment.
    if (::connect(m_socket, reinterpret_cast<const sockaddr*>(&address), size) != 0 ||
        ::send(m_socket, logOn.constData(), static_cast<size_t>(logOn.size()), MSG_NOSIGNAL) !=
            logOn.size()) {
        fail();
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_socket, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &BusGreeting::read);
}

BusGreeting::~BusGreeting() {
    m_notifier.reset();
    if (m_socket >= 0)
        ::close(m_socket);
}

void BusGreeting::read() {
    char buffer[16];
    finish(::recv(m_socket, buffer, sizeof buffer, 0) >= 2 && buffer[0] == 'O' && buffer[1] == 'K');
}

void BusGreeting::finish(bool answers) {
    if (m_notifier)
        m_notifier->setEnabled(false);
    Q_EMIT finished(answers);
}

} // namespace norvin
