#pragma once

#include <QString>

namespace norvin {

/// Keeps a second program away from the store: an operating-system lock on a file beside it, which ends with
/// the process however that ends. Any thread.
class InstanceLock final {
public:
    enum class Outcome {
        acquired,
        heldByAnother,
        unsupported, ///< the file cannot be made or the file system knows no locks
    };

    explicit InstanceLock(const QString& storeFile);
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;
    ~InstanceLock();

    [[nodiscard]] Outcome tryAcquire();

    /// The file that is locked: the store's name with the ending ".lock".
    [[nodiscard]] const QString& lockFile() const { return m_lockFile; }

private:
    QString m_lockFile;
    int m_descriptor = -1;
};

} // namespace norvin
