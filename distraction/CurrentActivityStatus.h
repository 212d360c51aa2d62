#pragma once

#include <QString>

#include <optional>

namespace norvin {

/// What the user is doing right now, as far as focus is concerned.
struct CurrentActivityStatus {
    enum class Kind { legitimate, distracted, idle };

    Kind kind = Kind::idle;
    /// Name of the application in front; empty while idle.
    QString appName;
    /// Domain of the page in front; none outside browsers and where it is not known.
    std::optional<QString> domain;

    bool operator==(const CurrentActivityStatus&) const = default;
};

} // namespace norvin
