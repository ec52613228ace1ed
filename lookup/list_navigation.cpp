// SPDX-License-Identifier: MIT
#include "lookup/list_navigation.h"

#include <algorithm>

namespace brelex {

std::int32_t RowAfterKey(NavigationKey key, std::int32_t row, std::int32_t rowCount,
                         std::int32_t rowsPerPage) {
    if (rowCount <= 0) {
        return -1;
    }
    const std::int64_t page = std::max(rowsPerPage - 1, 1);
    std::int64_t target = row;
    switch (key) {
        case NavigationKey::Up:
            target -= 1;
            break;
        case NavigationKey::Down:
            target += 1;
            break;
        case NavigationKey::PageUp:
            target -= page;
            break;
        case NavigationKey::PageDown:
            target += page;
            break;
        case NavigationKey::Enter:
            return row;
    }
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(target, 0, rowCount - 1));
}

}  // namespace brelex
