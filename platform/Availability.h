#pragma once

#include <QString>

#include <optional>
#include <utility>

namespace norvin {

/// Why a capability of the desktop cannot be used here.
struct Unavailable {
    /// Localisation key of the reason ("health_no_window_manager"); the key with "_remedy" appended says what
    /// a person can do about it.
    QString reasonKey;
    /// Technical detail in no particular language, for the log and the doctor; may be empty.
    QString detail;

    bool operator==(const Unavailable&) const = default;
};

/// Whether a capability works. Absence of support is this value, never a zero that looks real.
class Availability final {
public:
    [[nodiscard]] static Availability available() { return Availability{}; }
    [[nodiscard]] static Availability unavailable(QString reasonKey, QString detail = {}) {
        Availability result;
        result.m_reason = Unavailable{std::move(reasonKey), std::move(detail)};
        return result;
    }

    [[nodiscard]] bool isAvailable() const { return !m_reason.has_value(); }
    /// The reason; none while available.
    [[nodiscard]] const std::optional<Unavailable>& reason() const { return m_reason; }

    bool operator==(const Availability&) const = default;

private:
    std::optional<Unavailable> m_reason;
};

} // namespace norvin
