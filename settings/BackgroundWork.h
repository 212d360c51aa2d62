#pragma once

#include <QObject>
#include <QThread>

#include <functional>
#include <memory>

namespace norvin {

/// Work on a thread of its own, one piece at a time. Whoever lets go of this waits for the piece that is
/// under way. For the main thread.
class BackgroundWork final {
public:
    /// Done on the other thread; what it returns is called on the main thread.
    using Piece = std::function<std::function<void()>()>;

    BackgroundWork() = default;
    BackgroundWork(const BackgroundWork&) = delete;
    BackgroundWork& operator=(const BackgroundWork&) = delete;
    ~BackgroundWork() { wait(); }

    [[nodiscard]] bool isRunning() const { return m_thread != nullptr; }
    /// Must not be running.
    void start(Piece piece) {
        m_thread.reset(QThread::create([this, piece = std::move(piece)] {
            QMetaObject::invokeMethod(
                &m_receiver,
                [this, finish = piece()] {
                    wait();
                    finish();
                },
                Qt::QueuedConnection);
        }));
        m_thread->start();
    }
    void wait() {
        if (m_thread)
            m_thread->wait();
        m_thread.reset();
    }

private:
    std::unique_ptr<QThread> m_thread;
    // What is still on its way to it when this ends is never delivered.
    QObject m_receiver;
};

} // namespace norvin
