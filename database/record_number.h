// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace brelex {

/// The number of an entry as users see it: 1 for the first one. Rows are counted from 0 instead, as
/// plain numbers. Only the functions below lead from one to the other.
enum class RecordNumber : std::int32_t {
};

/// The number of the entry in a row (0-based, below 2^31 - 1).
[[nodiscard]] constexpr RecordNumber RecordNumberOf(std::int32_t row) {
    return RecordNumber{row + 1};
}

/// The row (0-based) of an entry whose number is at least 1.
[[nodiscard]] constexpr std::int32_t RowOf(RecordNumber number) {
    return static_cast<std::int32_t>(number) - 1;
}

}  // namespace brelex
