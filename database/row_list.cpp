// SPDX-License-Identifier: MIT
#include "database/row_list.h"

#include <algorithm>
#include <cassert>

namespace brelex {

std::int32_t RowList::RowHolding(const char* byte, std::int32_t first) const {
    assert(first >= 0 && first < rowCount_);
    assert(byte >= block_ + offsets_[first] && byte < block_ + offsets_[rowCount_]);
    const auto offset = static_cast<std::uint32_t>(byte - block_);
    // Doubles the step until it passes the row, then bisects the last step.
    std::int32_t step = 1;
    std::int32_t low = first;
    while (step <= rowCount_ - low && offsets_[low + step] <= offset) {
        low += step;
        step *= 2;
    }
    const std::int32_t high = std::min(step, rowCount_ - low) + low;
    const auto* const next = std::upper_bound(offsets_ + low + 1, offsets_ + high, offset);
    return static_cast<std::int32_t>(next - offsets_) - 1;
}

}  // namespace brelex
