#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <QString>

#include <memory>
#include <optional>

namespace norvin {

/// Finds out whether a message bus answers before anything waits for it: connects to its socket and begins to
/// log on. Nothing here blocks. Main thread only.
class BusGreeting final : public QObject {
    Q_OBJECT
public:
    /// Starts; finished() follows from the event loop unless the bus neither answers nor goes away.
    explicit BusGreeting(const QString& busAddress, QObject* parent = nullptr);
    ~BusGreeting() override;

    /// Path of the first socket that a bus address names; one in the abstract name space begins with a zero
    /// byte. None where it names none, or a malformed one.
    [[nodiscard]] static std::optional<QByteArray> socketPath(const QString& busAddress);

Q_SIGNALS:
    void finished(bool answers);

private:
    void read();
    void finish(bool answers);

    int m_socket = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace norvin
