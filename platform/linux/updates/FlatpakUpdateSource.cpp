#include "platform/linux/updates/FlatpakUpdateSource.h"

#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/linux/updates/SoftwareCentre.h"

#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace norvin {

namespace {

const QString portalName = QStringLiteral("org.freedesktop.portal.Flatpak");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/Flatpak");
const QString monitorInterface = QStringLiteral("org.freedesktop.portal.Flatpak.UpdateMonitor");

// The portal asks the remote over the network before it says anything.
constexpr std::chrono::seconds patience{30};

} // namespace

FlatpakUpdateSource::FlatpakUpdateSource(const QDBusConnection& sessionBus, Clock& clock, QObject* parent)
    : UpdateSource(parent)
    , m_bus(sessionBus)
    , m_clock(clock) {}

FlatpakUpdateSource::~FlatpakUpdateSource() {
    if (!m_monitor.isEmpty())
        m_bus.send(
            QDBusMessage::createMethodCall(m_portal, m_monitor, monitorInterface, QStringLiteral("Close")));
}

Availability FlatpakUpdateSource::availability() const {
    return m_bus.isConnected() ? Availability::available()
                               : Availability::unavailable(QStringLiteral("health_no_session_bus"));
}

bool FlatpakUpdateSource::canCheckForUpdates() const {
    return m_bus.isConnected() && !m_patience;
}

void FlatpakUpdateSource::checkForUpdates() {
    if (!canCheckForUpdates())
        return;
    m_patience = m_clock.after(m_announced ? std::chrono::seconds(0) : patience, [this] {
        finish(m_announced.value_or(UpdateResult{
            .outcome = UpdateResult::Outcome::noneAnnounced, .version = {}, .reasonKey = {}, .detail = {}}));
    });
    Q_EMIT changed();
    if (!m_monitor.isEmpty())
        return;
    QDBusMessage call = QDBusMessage::createMethodCall(portalName, portalPath, portalName,
                                                       QStringLiteral("CreateUpdateMonitor"));
    call << QVariantMap();
    auto* reply = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply] {
        reply->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> answer = *reply;
        if (!answer.isError()) {
            m_portal = reply->reply().service();
            follow(answer.value().path());
        } else if (m_patience) {
            logLine(QStringLiteral("FlatpakUpdateSource: ") + answer.error().message());
            finish({.outcome = UpdateResult::Outcome::failed,
                    .version = {},
                    .reasonKey = QStringLiteral("update_portal_missing"),
                    .detail = answer.error().message()});
        }
    });
}

void FlatpakUpdateSource::follow(const QString& monitor) {
    m_monitor = monitor;
    m_bus.connect(QString(), m_monitor, monitorInterface, QStringLiteral("UpdateAvailable"), this,
                  SLOT(onUpdateAvailable(QVariantMap, QDBusMessage)));
}

void FlatpakUpdateSource::onUpdateAvailable(const QVariantMap& commits, const QDBusMessage& message) {
    // Without the service's name in the rule, because looking up its owner would be a call that waits.
    if (message.service() != m_portal)
        return;
    const QString running = commits.value(QStringLiteral("running-commit")).toString();
    const QString local = commits.value(QStringLiteral("local-commit")).toString();
    const QString remote = commits.value(QStringLiteral("remote-commit")).toString();
    if (remote == running && local == running)
        return;
    const bool isInstalled = local != running && local == remote;
    m_announced = UpdateResult{.outcome = isInstalled ? UpdateResult::Outcome::installed
                                                      : UpdateResult::Outcome::available,
                               .version = {},
                               .reasonKey = {},
                               .detail = {}};
    finish(*m_announced);
}

void FlatpakUpdateSource::finish(const UpdateResult& result) {
    m_patience.reset();
    Q_EMIT changed();
    Q_EMIT checked(result);
}

void FlatpakUpdateSource::openSoftwareCentre() {
    norvin::openSoftwareCentre();
}

} // namespace norvin
