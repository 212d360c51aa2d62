#include "platform/linux/updates/PackageKitUpdateSource.h"

#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/linux/updates/SoftwareCentre.h"

#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QStringList>

namespace norvin {

namespace {

const QString service = QStringLiteral("org.freedesktop.PackageKit");
const QString path = QStringLiteral("/org/freedesktop/PackageKit");
const QString transactionInterface = QStringLiteral("org.freedesktop.PackageKit.Transaction");

constexpr qulonglong filterNewest = 1U << 16U;
constexpr uint infoInstalled = 1;
constexpr uint exitSuccess = 1;

// Another transaction may have to end before ours begins.
constexpr std::chrono::seconds packageKitPatience{60};

} // namespace

PackageKitUpdateSource::PackageKitUpdateSource(const QDBusConnection& systemBus, const QString& package,
                                               Clock& clock, QObject* parent)
    : UpdateSource(parent)
    , m_bus(systemBus)
    , m_package(package)
    , m_clock(clock)
    , m_availability(Availability::unavailable(QStringLiteral("update_no_packagekit"))) {
    if (!m_bus.isConnected())
        return;
    auto* watcher = new QDBusServiceWatcher(service, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this,
            [this] { setAvailability(Availability::available()); });
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
        // It leaves by itself when it has had nothing to do for a while.
        if (!m_transaction.isEmpty())
            fail(QStringLiteral("update_failed"), QStringLiteral("PackageKit ended"));
        probe("ListActivatableNames");
    });
    probe("ListActivatableNames");
}

PackageKitUpdateSource::~PackageKitUpdateSource() = default;

void PackageKitUpdateSource::probe(const char* method) {
    const QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QString::fromLatin1(method));
    auto* reply = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply, method = QByteArray(method)] {
        reply->deleteLater();
        const QDBusPendingReply<QStringList> answer = *reply;
        if (!answer.isError() && answer.value().contains(service))
            setAvailability(Availability::available());
        else if (method == "ListActivatableNames")
            probe("ListNames");
        else
            setAvailability(Availability::unavailable(QStringLiteral("update_no_packagekit"),
                                                      QStringLiteral("nobody owns %1").arg(service)));
    });
}

bool PackageKitUpdateSource::canCheckForUpdates() const {
    return m_availability.isAvailable() && !m_patience;
}

void PackageKitUpdateSource::checkForUpdates() {
    if (!canCheckForUpdates())
        return;
    m_installed.clear();
    m_newest.clear();
    m_error.clear();
    m_patience = m_clock.after(packageKitPatience, [this] { fail(QStringLiteral("update_timed_out"), {}); });
    Q_EMIT changed();
    const QDBusMessage call =
        QDBusMessage::createMethodCall(service, path, service, QStringLiteral("CreateTransaction"));
    auto* reply = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply, look = ++m_look] {
        reply->deleteLater();
        if (look != m_look || !m_patience)
            return;
        const QDBusPendingReply<QDBusObjectPath> answer = *reply;
        if (answer.isError()) {
            fail(QStringLiteral("update_failed"), answer.error().message());
            return;
        }
        m_daemon = reply->reply().service();
        resolve(answer.value().path());
    });
}

void PackageKitUpdateSource::resolve(const QString& transaction) {
    m_transaction = transaction;
    subscribe(true);
    QDBusMessage call = QDBusMessage::createMethodCall(m_daemon, m_transaction, transactionInterface,
                                                       QStringLiteral("Resolve"));
    call << filterNewest << QStringList{m_package};
    auto* reply = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply, transaction] {
        reply->deleteLater();
        if (reply->isError() && m_transaction == transaction)
            fail(QStringLiteral("update_failed"), reply->error().message());
    });
}

// Without the service's name in the rules, because looking up its owner would be a call that waits; who sends
// is looked at instead.
void PackageKitUpdateSource::subscribe(bool isWanted) {
    const auto apply = [this, isWanted](const char* signal, const char* slot) {
        if (isWanted)
            m_bus.connect(QString(), m_transaction, transactionInterface, QLatin1String(signal), this, slot);
        else
            m_bus.disconnect(QString(), m_transaction, transactionInterface, QLatin1String(signal), this,
                             slot);
    };
    apply("Package", SLOT(onPackage(uint, QString, QString, QDBusMessage)));
    apply("ErrorCode", SLOT(onErrorCode(uint, QString, QDBusMessage)));
    apply("Finished", SLOT(onFinished(uint, uint, QDBusMessage)));
}

void PackageKitUpdateSource::onPackage(uint info, const QString& id, const QString& summary,
                                       const QDBusMessage& message) {
    Q_UNUSED(summary)
    const QStringList parts = id.split(u';'); // name, version, architecture, where it comes from
    if (message.service() != m_daemon || message.path() != m_transaction || parts.size() != 4 ||
        parts[0] != m_package)
        return;
    const bool isInstalled = info == infoInstalled || parts[3].startsWith(QLatin1String("installed"));
    (isInstalled ? m_installed : m_newest) = parts[1];
}

void PackageKitUpdateSource::onErrorCode(uint code, const QString& details, const QDBusMessage& message) {
    if (message.service() == m_daemon && message.path() == m_transaction)
        m_error = QStringLiteral("%1 (%2)").arg(details.simplified()).arg(code);
}

void PackageKitUpdateSource::onFinished(uint exit, uint runtime, const QDBusMessage& message) {
    Q_UNUSED(runtime)
    if (message.service() != m_daemon || message.path() != m_transaction)
        return;
    if (exit != exitSuccess) {
        fail(QStringLiteral("update_failed"), m_error);
    } else if (!m_newest.isEmpty() && m_newest != m_installed) {
        // A package of the same version from elsewhere is listed as well.
        finish({.outcome = UpdateResult::Outcome::available,
                .version = m_newest,
                .reasonKey = {},
                .detail = {}});
    } else if (!m_installed.isEmpty()) {
        finish({.outcome = UpdateResult::Outcome::upToDate, .version = {}, .reasonKey = {}, .detail = {}});
    } else {
        fail(QStringLiteral("update_unknown_package"), m_package);
    }
}

void PackageKitUpdateSource::fail(const QString& reasonKey, const QString& detail) {
    logLine(QStringLiteral("PackageKitUpdateSource: %1: %2").arg(reasonKey, detail));
    finish(
        {.outcome = UpdateResult::Outcome::failed, .version = {}, .reasonKey = reasonKey, .detail = detail});
}

void PackageKitUpdateSource::finish(const UpdateResult& result) {
    if (!m_transaction.isEmpty())
        subscribe(false);
    m_transaction.clear();
    m_patience.reset();
    Q_EMIT changed();
    Q_EMIT checked(result);
}

bool PackageKitUpdateSource::canOpenSoftwareCentre() const {
    return hasSoftwareCentre();
}

void PackageKitUpdateSource::openSoftwareCentre() {
    norvin::openSoftwareCentre();
}

void PackageKitUpdateSource::setAvailability(const Availability& availability) {
    if (m_availability == availability)
        return;
    m_availability = availability;
    Q_EMIT changed();
}

} // namespace norvin
