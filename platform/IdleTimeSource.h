#pragma once

#include "platform/Availability.h"

#include <chrono>
#include <optional>

namespace norvin {

/// How long keyboard and pointer have been untouched. Main thread only.
class IdleTimeSource {
public:
    IdleTimeSource() = default;
    IdleTimeSource(const IdleTimeSource&) = delete;
    IdleTimeSource& operator=(const IdleTimeSource&) = delete;
    virtual ~IdleTimeSource() = default;

    [[nodiscard]] virtual Availability availability() const = 0;

    /// Time since the last input of the user; none when it cannot be known.
    [[nodiscard]] virtual std::optional<std::chrono::milliseconds> timeSinceLastInput() = 0;
};

} // namespace norvin
