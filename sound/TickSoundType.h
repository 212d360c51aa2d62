#pragma once

#include <QString>

#include <array>
#include <optional>

namespace norvin {

/// The characters that a tick can have.
enum class TickSoundType { clock, digital, soft, metronome };

/// All of them, in the order in which they are offered.
inline constexpr std::array allTickSoundTypes{TickSoundType::clock, TickSoundType::digital,
                                              TickSoundType::soft, TickSoundType::metronome};

/// "clock", "digital", "soft", "metronome".
[[nodiscard]] QString rawValue(TickSoundType type);
/// The character of a raw value; none for any other text.
[[nodiscard]] std::optional<TickSoundType> tickSoundTypeFromRawValue(const QString& raw);

} // namespace norvin
