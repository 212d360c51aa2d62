#include "ui/MotionPreference.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace norvin {

namespace {

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString interfaceGroup = QStringLiteral("org.gnome.desktop.interface");
const QString animationsKey = QStringLiteral("enable-animations");

/// The portal's older Read wraps its answer in one variant more than its signal does.
QVariant unwrapped(QVariant value) {
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

MotionPreference::MotionPreference(QObject* parent)
    : QObject(parent)
    , m_isForced(qEnvironmentVariableIntValue("NORVIN_REDUCED_MOTION") == 1)
    , m_isReduced(m_isForced) {}

void MotionPreference::askDesktop() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (m_isForced || !bus.isConnected())
        return;
    bus.connect(portalService, portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                SLOT(takeSetting(QString, QString, QDBusVariant)));
    QDBusMessage question =
        QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, QStringLiteral("Read"));
    question << interfaceGroup << animationsKey;
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid())
            takeSetting(interfaceGroup, animationsKey, reply.value());
    });
}

void MotionPreference::takeSetting(const QString& group, const QString& key, const QDBusVariant& value) {
    if (group != interfaceGroup || key != animationsKey)
        return;
    const QVariant animations = unwrapped(value.variant());
    if (animations.metaType() == QMetaType::fromType<bool>())
        setReduced(!animations.toBool());
}

void MotionPreference::setReduced(bool reduced) {
    if (reduced == m_isReduced)
        return;
    m_isReduced = reduced;
    Q_EMIT isReducedChanged();
}

} // namespace norvin
