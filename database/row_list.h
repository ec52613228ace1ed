// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace brelex {

/// The entries in display order, as everything outside the loader sees them.
class RowList {
  public:
    RowList() = default;
    RowList(const RowList&) = delete;
    RowList& operator=(const RowList&) = delete;
    virtual ~RowList() = default;

    /// Number of rows, 0 or more.
    [[nodiscard]] virtual std::int32_t RowCount() const = 0;

    /// The record text (abbreviation, TAB, expansion; Windows-1252 bytes) of `row`, 0-based and
    /// below RowCount(). Valid as long as the rows are.
    [[nodiscard]] virtual std::string_view RowText(std::int32_t row) const = 0;

    /// A length in bytes: cut to any length up to it, the rows are in ascending order and two of
    /// them are equal only if all rows between them are. 0 promises nothing.
    [[nodiscard]] virtual std::size_t AscendingPrefixBytes() const { return 0; }
};

}  // namespace brelex
