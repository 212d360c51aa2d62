#include "app/InstanceLock.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace norvin {

InstanceLock::InstanceLock(const QString& storeFile) {
    const QFileInfo store(storeFile);
    m_lockFile = store.dir().filePath(store.completeBaseName() + QStringLiteral(".lock"));
}

InstanceLock::~InstanceLock() {
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

InstanceLock::Outcome InstanceLock::tryAcquire() {
    if (m_descriptor >= 0)
        return Outcome::acquired;
    QDir().mkpath(QFileInfo(m_lockFile).path());
    const int descriptor =
        ::open(QFile::encodeName(m_lockFile).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (descriptor < 0)
        return Outcome::unsupported;
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        const int error = errno;
        ::close(descriptor);
        return error == EWOULDBLOCK ? Outcome::heldByAnother : Outcome::unsupported;
    }
    m_descriptor = descriptor;
    return Outcome::acquired;
}

} // namespace norvin
