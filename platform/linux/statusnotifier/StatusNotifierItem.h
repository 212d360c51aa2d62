#pragma once

#include "platform/StatusItem.h"

#include <QDBusConnection>

#include <memory>

namespace norvin {

class TrayItemFace;
class TrayMenu;

/// An item in trays that follow the status notifiers of the session bus. A tray that comes later, or again,
/// is told of the item then. Unavailable with "health_no_session_bus" or "health_no_tray". Every call to the
/// bus is asynchronous.
class StatusNotifierItem final : public StatusItem {
    Q_OBJECT
public:
    explicit StatusNotifierItem(const QDBusConnection& sessionBus, QObject* parent = nullptr);
    ~StatusNotifierItem() override;

    /// Begins to look for a tray; done by the first setContent() too.
    void probe();

    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] bool showsLabel() const override;
    void setContent(const Content& content) override;
    void setMenu(const QList<MenuEntry>& entries) override;

private Q_SLOTS:
    void askForTray();

private:
    void onWatcherOwner(const QString& owner);
    void registerItem();
    void askForHost();
    void setAvailability(const Availability& availability);
    void announce(const Content& before);

    QDBusConnection m_bus;
    Availability m_availability;
    // Null without a bus.
    std::unique_ptr<TrayMenu> m_menu;
    std::unique_ptr<TrayItemFace> m_face;
    bool m_isFollowing = false;
    bool m_isWanted = false;
    bool m_hasWatcher = false;
    bool m_isDesktopWithLabels;
};

} // namespace norvin
