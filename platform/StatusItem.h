#pragma once

#include "platform/Availability.h"

#include <QList>
#include <QObject>
#include <QPoint>
#include <QString>

#include <optional>

namespace norvin {

/// The program's item in the desktop's tray. Main thread only; nothing here waits for the desktop, which
/// hears of changes only, and only while it shows the item.
class StatusItem : public QObject {
    Q_OBJECT
public:
    /// What the item shows. Texts are in the user's language.
    struct Content {
        /// File of the symbol: an SVG in one colour, "currentColor".
        QString symbolFile;
        /// Text beside the symbol, on desktops that show one; may be empty.
        QString label;
        /// What the desktop shows while the pointer rests on the item.
        QString title;
        QString text;

        bool operator==(const Content&) const = default;
    };
    /// A line of the item's menu.
    struct MenuEntry {
        /// What menuEntryChosen() tells; empty for a line that separates the others.
        QString id;
        QString text;
        bool isEnabled = true;
        /// Whether the line is ticked; none for a line that cannot be.
        std::optional<bool> isChecked = std::nullopt;

        bool operator==(const MenuEntry&) const = default;
    };

    using QObject::QObject;

    /// Whether the desktop has a tray that shows the item; the first answer may come a moment after start,
    /// and a tray may come and go. Unavailable with "health_no_tray".
    [[nodiscard]] virtual Availability availability() const = 0;

    /// Whether the desktop shows the label, so that it is worth keeping up to date by the second.
    [[nodiscard]] virtual bool showsLabel() const = 0;

    /// Says what the item shows; the first call puts it into the tray.
    virtual void setContent(const Content& content) = 0;
    /// @param entries each id but the empty one once
    virtual void setMenu(const QList<MenuEntry>& entries) = 0;

Q_SIGNALS:
    /// The item was clicked. @param position of the pointer on the desktop, in the pixels of the screen; none
    /// where the desktop does not tell
    void activated(std::optional<QPoint> position);
    /// It was clicked with the middle button.
    void secondaryActivated();
    void menuEntryChosen(const QString& id);
    void availabilityChanged();
};

} // namespace norvin
