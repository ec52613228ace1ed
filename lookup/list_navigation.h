// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace brelex {

/// The keys that move the list's selection when pressed in the look-up box, and Enter.
enum class NavigationKey {
    Enter,
    Up,
    Down,
    PageUp,
    PageDown
};

/// Where a list scrolls when it selects a row.
enum class Scrolling {
    Nowhere,    ///< the row stays where it is
    IntoSight,  ///< as little as possible to make the whole row visible; nothing if it already is
    SecondFromTop  ///< leaves one row of context above it, as far as the list's end allows
};

/// Returns the row (0-based) that a list box selects for `key` when `row` is selected (-1: none)
/// among `rowCount` rows, of which `rowsPerPage` are visible. A page is one row less than the
/// visible rows, so that one row stays in view. Enter moves nothing. -1 if there are no rows.
[[nodiscard]] std::int32_t RowAfterKey(NavigationKey key, std::int32_t row, std::int32_t rowCount,
                                       std::int32_t rowsPerPage);

}  // namespace brelex
