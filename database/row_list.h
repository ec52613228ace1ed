// SPDX-License-Identifier: MIT
#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace brelex {

/// The entries in display order, as everything except the loader sees them: one block of text, and
/// where each row begins in it. The class that owns the block derives from this one. Reading a row
/// is not a virtual call, because look-ups and searches read millions of them.
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

    /// The texts as they are in memory, from row `first` up to but not including row `last`, each
    /// followed by one more byte. Requires 0 <= first <= last <= RowCount().
    [[nodiscard]] std::string_view TextOfRows(std::int32_t first, std::int32_t last) const {
        assert(0 <= first && first <= last && last <= rowCount_);
        return {block_ + offsets_[first], offsets_[last] - offsets_[first]};
    }

    /// The row that contains `byte` in its text or directly after it. Requires a byte in row
    /// `first` or a later one. Costs a few steps, unless the lengths of the rows are very uneven.
    [[nodiscard]] std::int32_t RowHolding(const char* byte, std::int32_t first) const;

    /// A number of bytes. When all rows are cut to that length, or to any shorter one, they are in
    /// ascending order, and equal rows are adjacent. 0 promises nothing.
    [[nodiscard]] std::size_t AscendingPrefixBytes() const { return ascendingPrefixBytes_; }

  protected:
    RowList() = default;
    ~RowList() = default;

    /// Makes the NUL-terminated texts at `block` the rows. Row i begins at `offsets[i]`, and a last
    /// offset says where the next row would begin. The caller keeps owning both.
    void SetRows(const char* block, const std::uint32_t* offsets, std::int32_t rowCount,
                 std::size_t ascendingPrefixBytes = 0) {
        assert(rowCount >= 0);
        block_ = block;
        offsets_ = offsets;
        rowCount_ = rowCount;
        rowsPerByte_ = rowCount > 0 ? rowCount / static_cast<double>(offsets[rowCount]) : 0;
        ascendingPrefixBytes_ = ascendingPrefixBytes;
    }

  private:
    const char* block_ = nullptr;
    const std::uint32_t* offsets_ = nullptr;
    std::int32_t rowCount_ = 0;
    double rowsPerByte_ = 0;
    std::size_t ascendingPrefixBytes_ = 0;
};

}  // namespace brelex
