// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace brelex {

/// The keys of the lookup box that move the list's selection, and Enter.
enum class NavigationKey {
    Enter,
    Up,
    Down,
    PageUp,
    PageDown
};

/// Where a list scrolls for a row that it selects.
enum class Scrolling {
    Nowhere,       ///< the row stays where it is
    IntoSight,     ///< by the least amount that makes all of the row visible; not at all if it is
    SecondFromTop  ///< so that one row of context is above it, as far as the list's end allows
};

/// The row (0-based) that a list box selects for `key` when `row` is selected (-1: none) among
/// `rowCount` rows, `rowsPerPage` of which are visible. A page is one row less than is visible, so
/// that one row stays in sight. Enter moves nothing. -1 if there are no rows.
[[nodiscard]] std::int32_t RowAfterKey(NavigationKey key, std::int32_t row, std::int32_t rowCount,
                                       std::int32_t rowsPerPage);

}  // namespace brelex
