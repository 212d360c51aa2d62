#pragma once

#include <QObject>
#include <QSocketNotifier>

namespace norvin {

/// Turns SIGTERM, SIGINT and SIGHUP into a Qt signal, so that the program ends the same way as by its menu,
/// and has the program outlive whoever reads its output.
/// One instance at a time. Main thread only.
class UnixSignals final : public QObject {
    Q_OBJECT
public:
    explicit UnixSignals(QObject* parent = nullptr);
    ~UnixSignals() override;

Q_SIGNALS:
    void terminationRequested();

private:
    int m_read = -1;
    int m_write = -1;
    QSocketNotifier* m_notifier = nullptr;
};

} // namespace norvin
