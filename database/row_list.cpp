// SPDX-License-Identifier: MIT
#include "database/row_list.h"

#include <algorithm>
#include <cassert>

namespace brelex {

std::int32_t RowList::RowHolding(const char* byte, std::int32_t first) const {
    assert(first >= 0 && first < rowCount_);
    assert(byte >= block_ + offsets_[first] && byte < block_ + offsets_[rowCount_]);
    const auto offset = static_cast<std::uint32_t>(byte - block_);
    // Counts how many of the next rows begin before the byte. Counting all of them is faster than
    // bisecting, because no step depends on a comparison. If the row is not among them, counts
    // again where it should be by the average length of a row.
    constexpr std::int32_t kNearRows = 32;
    constexpr int kCounts = 4;
    std::int32_t low = first;
    for (int i = 0; i < kCounts && rowCount_ - first > kNearRows; ++i) {
        const std::uint32_t* const near = offsets_ + low;
        std::int32_t before = 0;
        for (std::int32_t j = 0; j < kNearRows; ++j) {
            before += near[j] <= offset ? 1 : 0;
        }
        if (before > 0 && offset < near[kNearRows]) {
            return low + before - 1;
        }
        const double ahead =
            (static_cast<double>(offset) - static_cast<double>(*near)) * rowsPerByte_;
        low = std::clamp(low + static_cast<std::int32_t>(ahead) - kNearRows / 2, first,
                         rowCount_ - kNearRows);
    }
    const auto* const next = std::upper_bound(offsets_, offsets_ + rowCount_, offset);
    return static_cast<std::int32_t>(next - offsets_) - 1;
}

}  // namespace brelex
