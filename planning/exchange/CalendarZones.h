#pragma once

#include "planning/exchange/CalendarLines.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QTimeZone>

namespace norvin {

/// The time zones that an iCalendar file speaks of.
class CalendarZones final {
public:
    /// Takes in a line of a VTIMEZONE component, what stands in its parts included.
    void addLine(const CalendarLine& line);
    /// To be called at the end of the component.
    void endZone();

    /// The zone of a TZID: by its name among those of this machine (also where a path or a vendor's name
    /// stands for it), else as the file defines it, if it has one offset all the year.
    /// @return invalid for a zone that cannot be known
    [[nodiscard]] QTimeZone zone(const QString& id) const;

private:
    struct Definition {
        QString id;
        QString location;
        QSet<QString> offsets;
    };
    [[nodiscard]] static QTimeZone named(const QString& id);
    [[nodiscard]] QTimeZone defined(const QString& id) const;

    Definition m_open;
    QHash<QString, Definition> m_definitions;
    mutable QHash<QString, QTimeZone> m_found;
};

} // namespace norvin
