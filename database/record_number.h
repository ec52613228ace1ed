// SPDX-License-Identifier: MIT
#pragma once

#include <cassert>
#include <cstdint>
#include <limits>
#include <string>

namespace brelex {

/// The number of an entry as users see it: 1 for the first one. Rows are plain numbers that start
/// at 0. Only the functions below convert between the two.
enum class RecordNumber : std::int32_t {
};

/// The number of the entry in a row (0-based, below 2^31 - 1).
[[nodiscard]] constexpr RecordNumber RecordNumberOf(std::int32_t row) {
    assert(row >= 0 && row < std::numeric_limits<std::int32_t>::max());
    return RecordNumber{row + 1};
}

/// The row (0-based) of an entry whose number is at least 1.
[[nodiscard]] constexpr std::int32_t RowOf(RecordNumber number) {
    assert(number >= RecordNumber{1});
    return static_cast<std::int32_t>(number) - 1;
}

/// The number in digits, without groups.
[[nodiscard]] inline std::string TextOf(RecordNumber number) {
    return std::to_string(static_cast<std::int32_t>(number));
}

}  // namespace brelex
