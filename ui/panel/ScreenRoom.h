#pragma once

#include <algorithm>

namespace norvin {

/// The place along one axis that is nearest to the wanted one; a window larger than the room begins where the
/// room does. @param low first place there is room for, high last one, below low where there is none
[[nodiscard]] inline int placeWithin(int wanted, int low, int high) {
    return std::max(low, std::min(wanted, high));
}

} // namespace norvin
