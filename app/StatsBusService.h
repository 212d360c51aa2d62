#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>

namespace norvin {

class StatsReporter;

inline constexpr auto statsBusInterface = "com.norvin.Focus.Statistics";

/// The interface for the statistics of the object on the session bus. Calls are answered when the records
/// have been read; a refused one with the error of refusals (focusBusRefused), like those about planning.
/// Main thread only.
class StatsBusService final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.norvin.Focus.Statistics")
public:
    /// @param object on the bus, which owns this; to be made before that is published
    StatsBusService(QDBusConnection bus, StatsReporter& reporter, QObject* object);
    ~StatsBusService() override;

public Q_SLOTS:
    /// @param period "today", "week", "month", "year" or "all" for the page of the past; empty for that of
    ///   today. @return JSON; see StatsReport
    QString Report(const QString& period, const QDBusMessage& message);

private:
    QDBusConnection m_bus;
    StatsReporter& m_reporter;
};

} // namespace norvin
