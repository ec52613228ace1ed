// SPDX-License-Identifier: MIT
#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace brelex {

/// The entries in display order, as everything outside the loader sees them: text in one block and
/// where each row begins in it. Whoever owns the block derives from this. Reading a row is no
/// virtual call, as look-ups and searches read millions.
class RowList {
  public:
    RowList(const RowList&) = delete;
    RowList& operator=(const RowList&) = delete;

    /// Number of rows, 0 or more.
    [[nodiscard]] std::int32_t RowCount() const { return rowCount_; }

    /// The record text (abbreviation, TAB, expansion; Windows-1252 bytes) of `row`, 0-based and
    /// below RowCount(). Valid as long as the rows are.
    [[nodiscard]] std::string_view RowText(std::int32_t row) const {
        assert(row >= 0 && row < rowCount_);
        const std::uint32_t* const offset = offsets_ + row;
        return {block_ + offset[0], offset[1] - offset[0] - 1};
    }

    /// All rows' texts as they lie in memory, from row `first` to before `last` (0 <= first <= last
    /// <= RowCount()), each with a byte behind it.
    [[nodiscard]] std::string_view TextOfRows(std::int32_t first, std::int32_t last) const {
        assert(0 <= first && first <= last && last <= rowCount_);
        return {block_ + offsets_[first], offsets_[last] - offsets_[first]};
    }

    /// The row that `byte` belongs to, which lies in the texts of row `first` or a later one. The
    /// sooner it comes, the cheaper.
    [[nodiscard]] std::int32_t RowHolding(const char* byte, std::int32_t first) const;

    /// A length in bytes: cut to any length up to it, the rows are in ascending order and two of
    /// them are equal only if all rows between them are. 0 promises nothing.
    [[nodiscard]] std::size_t AscendingPrefixBytes() const { return ascendingPrefixBytes_; }

  protected:
    RowList() = default;
    ~RowList() = default;

    /// Makes the NUL-terminated texts at `block` the rows; row i begins at `offsets[i]`, and one
    /// offset more than there are rows says where the next would begin. Both stay the owner's.
    void SetRows(const char* block, const std::uint32_t* offsets, std::int32_t rowCount,
                 std::size_t ascendingPrefixBytes) {
        assert(rowCount >= 0);
        block_ = block;
        offsets_ = offsets;
        rowCount_ = rowCount;
        ascendingPrefixBytes_ = ascendingPrefixBytes;
    }

  private:
    const char* block_ = nullptr;
    const std::uint32_t* offsets_ = nullptr;
    std::int32_t rowCount_ = 0;
    std::size_t ascendingPrefixBytes_ = 0;
};

}  // namespace brelex
