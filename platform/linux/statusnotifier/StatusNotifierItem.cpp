#include "platform/linux/statusnotifier/StatusNotifierItem.h"

#include "platform/Log.h"
#include "platform/linux/statusnotifier/TrayItemFace.h"
#include "platform/linux/statusnotifier/TrayMenu.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include <algorithm>

namespace norvin {

namespace {

const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");
const QString watcherInterface = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString menuPath = QStringLiteral("/StatusNotifierItem/Menu");

Availability noTray(const QString& detail) {
    return Availability::unavailable(QStringLiteral("health_no_tray"), detail);
}

// Trays that show labels and read everything at once cannot be told from others by what they ask for.
bool isDesktopWithLabels() {
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QLatin1Char(':'));
    return std::any_of(desktops.cbegin(), desktops.cend(), [](const QString& desktop) {
        return desktop == QLatin1String("GNOME") || desktop == QLatin1String("Unity");
    });
}

} // namespace

StatusNotifierItem::StatusNotifierItem(const QDBusConnection& sessionBus, QObject* parent)
    : StatusItem(parent)
    , m_bus(sessionBus)
    , m_availability(noTray(QStringLiteral("not answered yet")))
    , m_isDesktopWithLabels(isDesktopWithLabels()) {
    if (!m_bus.isConnected()) {
        m_availability =
            Availability::unavailable(QStringLiteral("health_no_session_bus"), m_bus.lastError().message());
        return;
    }
    m_menu = std::make_unique<TrayMenu>(m_bus, menuPath);
    connect(m_menu.get(), &TrayMenu::chosen, this, &StatusItem::menuEntryChosen);
    m_face = std::make_unique<TrayItemFace>(m_bus, menuPath);
    connect(m_face.get(), &TrayItemFace::activated, this, &StatusItem::activated);
    connect(m_face.get(), &TrayItemFace::secondaryActivated, this, &StatusItem::secondaryActivated);
}

StatusNotifierItem::~StatusNotifierItem() = default;

void StatusNotifierItem::probe() {
    if (m_isFollowing || !m_face)
        return;
    m_isFollowing = true;
    auto* watcher =
        new QDBusServiceWatcher(watcherService, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) { onWatcherOwner(owner); });
    // Without the service's name in the rules: looking up its owner would be a call that waits.
    for (const char* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        m_bus.connect(QString(), watcherPath, watcherInterface, QLatin1String(signal), this,
                      SLOT(askForTray()));
    askForTray();
}

void StatusNotifierItem::askForTray() {
    const QDBusMessage call =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
                                       QStringLiteral("/org/freedesktop/DBus"),
                                       QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetNameOwner"))
        << watcherService;
    auto* reply = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply] {
        reply->deleteLater();
        const QDBusPendingReply<QString> answer = *reply;
        const bool hadWatcher = m_hasWatcher;
        m_hasWatcher = !answer.isError();
        if (m_hasWatcher && !hadWatcher)
            registerItem();
        if (m_hasWatcher)
            askForHost();
        else
            setAvailability(noTray(QStringLiteral("nobody owns %1").arg(watcherService)));
    });
}

void StatusNotifierItem::onWatcherOwner(const QString& owner) {
    // Another owner knows nothing of what its predecessor was told.
    m_hasWatcher = false;
    m_face->forgetReaders();
    if (owner.isEmpty())
        setAvailability(noTray(QStringLiteral("nobody owns %1").arg(watcherService)));
    else
        askForTray();
}

void StatusNotifierItem::registerItem() {
    if (!m_isWanted)
        return;
    QDBusMessage call = QDBusMessage::createMethodCall(watcherService, watcherPath, watcherInterface,
                                                       QStringLiteral("RegisterStatusNotifierItem"));
    // The unique name needs no other that a sandbox would have to allow.
    auto* reply = new QDBusPendingCallWatcher(m_bus.asyncCall(call << m_bus.baseService()), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [reply] {
        reply->deleteLater();
        if (reply->isError())
            logLine(QStringLiteral("StatusNotifierItem: Not shown: ") + reply->error().message());
    });
}

void StatusNotifierItem::askForHost() {
    const QDBusMessage call = QDBusMessage::createMethodCall(
                                  watcherService, watcherPath,
                                  QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"))
                              << watcherInterface << QStringLiteral("IsStatusNotifierHostRegistered");
    auto* reply = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply] {
        reply->deleteLater();
        if (!m_hasWatcher)
            return; // it went away meanwhile
        const QDBusPendingReply<QDBusVariant> answer = *reply;
        if (answer.isError())
            setAvailability(noTray(answer.error().message()));
        else if (answer.value().variant().toBool())
            setAvailability(Availability::available());
        else
            setAvailability(noTray(QStringLiteral("%1 has no host").arg(watcherService)));
    });
}

bool StatusNotifierItem::showsLabel() const {
    return m_availability.isAvailable() && (m_isDesktopWithLabels || m_face->isLabelRead());
}

void StatusNotifierItem::setContent(const Content& content) {
    if (!m_face)
        return;
    const Content before = m_face->content();
    if (m_isWanted && content == before)
        return;
    m_face->setContent(content);
    if (!m_isWanted) {
        m_isWanted = true;
        probe();
        if (m_hasWatcher)
            registerItem();
    } else if (m_availability.isAvailable()) {
        announce(before);
    }
}

void StatusNotifierItem::announce(const Content& before) {
    const Content& now = m_face->content();
    const bool hasNews = now.symbolFile != before.symbolFile || now.title != before.title ||
                         now.text != before.text || now.label.isEmpty() != before.label.isEmpty();
    if (now.symbolFile != before.symbolFile)
        m_face->announceSymbol();
    if (now.title != before.title || now.text != before.text)
        m_face->announceTip();
    // A label moves every second. A tray that has never asked for it is told now and then, should it want it.
    if (now.label != before.label && (hasNews || showsLabel()))
        m_face->announceLabel();
}

void StatusNotifierItem::setMenu(const QList<MenuEntry>& entries) {
    if (m_menu)
        m_menu->setEntries(entries, m_availability.isAvailable());
}

void StatusNotifierItem::setAvailability(const Availability& availability) {
    if (m_availability == availability)
        return;
    m_availability = availability;
    Q_EMIT availabilityChanged();
}

} // namespace norvin
