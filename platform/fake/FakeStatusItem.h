#pragma once

#include "platform/StatusItem.h"

namespace norvin {

/// Keeps what the tray would show, and is clicked by tests.
class FakeStatusItem final : public StatusItem {
    Q_OBJECT
public:
    using StatusItem::StatusItem;

    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] bool showsLabel() const override { return m_showsLabel; }
    void setContent(const Content& content) override {
        if (content != m_content)
            ++m_changes;
        m_content = content;
    }
    void setMenu(const QList<MenuEntry>& entries) override { m_menu = entries; }

    [[nodiscard]] const Content& content() const { return m_content; }
    [[nodiscard]] const QList<MenuEntry>& menu() const { return m_menu; }
    /// How often the content has changed.
    [[nodiscard]] int changes() const { return m_changes; }
    /// The entry of that id; none where the menu has none.
    [[nodiscard]] std::optional<MenuEntry> entry(const QString& id) const {
        for (const MenuEntry& entry : m_menu) {
            if (entry.id == id)
                return entry;
        }
        return std::nullopt;
    }

    void click(std::optional<QPoint> position = std::nullopt) { Q_EMIT activated(position); }
    void clickMiddle() { Q_EMIT secondaryActivated(); }
    void choose(const QString& id) { Q_EMIT menuEntryChosen(id); }
    void setShowsLabel(bool showsLabel) { m_showsLabel = showsLabel; }
    /// Emits availabilityChanged() on a change.
    void setAvailability(const Availability& availability) {
        if (m_availability == availability)
            return;
        m_availability = availability;
        Q_EMIT availabilityChanged();
    }

private:
    Availability m_availability = Availability::available();
    Content m_content;
    QList<MenuEntry> m_menu;
    bool m_showsLabel = false;
    int m_changes = 0;
};

} // namespace norvin
