#pragma once

#include "platform/Autostart.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace norvin {

/// The entry that session managers start at login: one file in the user's "autostart" folder, which goes
/// before one of the same name that came with the system.
class XdgAutostart final : public Autostart {
    Q_OBJECT
public:
    struct Places {
        /// The user's entry, which need not exist.
        QString userEntry;
        /// Those of the system, of which the first that exists counts.
        QStringList systemEntries;
        /// What the user's entry starts, absolute.
        QString program;
    };
    /// In $XDG_CONFIG_HOME and $XDG_CONFIG_DIRS, for this program.
    [[nodiscard]] static Places ownPlaces();

    explicit XdgAutostart(Places places, QObject* parent = nullptr);

    [[nodiscard]] Availability availability() const override { return m_availability; }
    [[nodiscard]] bool isEnabled() const override;
    void setEnabled(bool enabled) override;

private:
    [[nodiscard]] std::optional<bool> systemState() const;
    [[nodiscard]] bool write(bool isHidden) const;

    Places m_places;
    Availability m_availability = Availability::available();
};

} // namespace norvin
