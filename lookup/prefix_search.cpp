// SPDX-License-Identifier: MIT
#include "lookup/prefix_search.h"

#include <algorithm>
#include <optional>

#include "database/string_order.h"

namespace brelex {

namespace {

std::string_view CutRow(const RowList& rows, std::int32_t row, std::size_t bytes) {
    return rows.RowText(row).substr(0, bytes);
}

bool BeginsWith(const RowList& rows, std::int32_t row, std::string_view probe) {
    return EqualIgnoringCase(CutRow(rows, row, probe.size()), probe);
}

// Any row that begins with `probe`.
std::optional<std::int32_t> FindAnyByPrefix(const RowList& rows, std::string_view probe) {
    std::int32_t low = 0;
    std::int32_t high = rows.RowCount() - 1;
    while (low <= high) {
        const std::int32_t mid = low + (high - low) / 2;
        const auto order = CompareTexts(probe, CutRow(rows, mid, probe.size()));
        if (order < 0) {
            high = mid - 1;
        } else if (order > 0) {
            low = mid + 1;
        } else {
            return mid;
        }
    }
    return std::nullopt;
}

// The first row of the run of rows around `row` that begin with `probe`, as stepping back one by
// one finds it.
std::int32_t WalkBack(const RowList& rows, std::int32_t row, std::string_view probe) {
    if (probe.size() > rows.AscendingPrefixBytes()) {
        while (row > 0 && BeginsWith(rows, row - 1, probe)) {
            --row;
        }
        return row;
    }
    // Here the run has no gap, so growing strides find its beginning as well: at a million
    // entries a run can be tens of thousands of rows long.
    std::int32_t inside = row;
    std::int32_t outside = row;
    for (std::int32_t stride = 1;; stride *= 2) {
        outside = stride > inside ? -1 : inside - stride;
        if (outside < 0 || !BeginsWith(rows, outside, probe)) {
            break;
        }
        inside = outside;
    }
    while (inside - outside > 1) {
        const std::int32_t mid = outside + (inside - outside) / 2;
        (BeginsWith(rows, mid, probe) ? inside : outside) = mid;
    }
    return inside;
}

}  // namespace

std::int32_t FindFirstByPrefix(const RowList& rows, std::string_view text) {
    std::string_view probe = text.substr(0, text.find('\0'));
    for (; !probe.empty(); probe.remove_suffix(1)) {
        if (const auto row = FindAnyByPrefix(rows, probe)) {
            return WalkBack(rows, *row, probe);
        }
    }
    return 0;
}

}  // namespace brelex
