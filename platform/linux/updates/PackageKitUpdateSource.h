#pragma once

#include "platform/UpdateSource.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>

#include <memory>

namespace norvin {

class Clock;
class ClockTimer;

/// Updates of an installed package, as PackageKit on the system bus knows them. It is asked for the newest
/// version that the package lists on this machine name; the lists themselves are refreshed by the desktop
/// whenever it sees fit, not by a look. Unavailable with "update_no_packagekit" until a PackageKit that runs,
/// or that the bus can start, has been found.
class PackageKitUpdateSource final : public UpdateSource {
    Q_OBJECT
public:
    /// @param package the name of the package that this program comes in
    /// @param clock must outlive this
    PackageKitUpdateSource(const QDBusConnection& systemBus, const QString& package, Clock& clock,
                           QObject* parent = nullptr);
    ~PackageKitUpdateSource() override;

    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] bool canCheckForUpdates() const override;
    void checkForUpdates() override;
    [[nodiscard]] bool canOpenSoftwareCentre() const override;
    void openSoftwareCentre() override;

private Q_SLOTS:
    void onPackage(uint info, const QString& id, const QString& summary, const QDBusMessage& message);
    void onErrorCode(uint code, const QString& details, const QDBusMessage& message);
    void onFinished(uint exit, uint runtime, const QDBusMessage& message);

private:
    void probe(const char* method);
    void resolve(const QString& transaction);
    void subscribe(bool isWanted);
    void fail(const QString& reasonKey, const QString& detail);
    void finish(const UpdateResult& result);
    void setAvailability(const Availability& availability);

    QDBusConnection m_bus;
    QString m_package;
    Clock& m_clock;
    Availability m_availability;
    /// Runs during a look.
    std::unique_ptr<ClockTimer> m_patience;
    /// Tells the look that runs from those before it.
    int m_look = 0;
    /// Object path of the transaction that runs, and the bus name of who runs it; empty for none.
    QString m_transaction;
    QString m_daemon;
    QString m_installed;
    QString m_newest;
    QString m_error;
};

} // namespace norvin
