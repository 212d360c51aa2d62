#include "sound/TickSoundType.h"

#include <algorithm>

namespace norvin {

QString rawValue(TickSoundType type) {
    switch (type) {
    case TickSoundType::clock:
        return QStringLiteral("clock");
    case TickSoundType::digital:
        return QStringLiteral("digital");
    case TickSoundType::soft:
        return QStringLiteral("soft");
    case TickSoundType::metronome:
        return QStringLiteral("metronome");
    }
    return {};
}

std::optional<TickSoundType> tickSoundTypeFromRawValue(const QString& raw) {
    const auto* const found = std::find_if(allTickSoundTypes.begin(), allTickSoundTypes.end(),
                                           [&raw](TickSoundType type) { return rawValue(type) == raw; });
    return found == allTickSoundTypes.end() ? std::nullopt : std::optional(*found);
}

} // namespace norvin
