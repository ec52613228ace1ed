// SPDX-License-Identifier: MIT
#include "lookup/prefix_search.h"

#include <algorithm>
#include <compare>
#include <cstddef>
#include <optional>

#include "database/string_order.h"

namespace brelex {

namespace {

struct Comparison {
    std::weak_ordering order;  // of the row, cut to the length of the text, relative to the text
    std::size_t same;          // how many bytes at the beginning of both are plain and equal
};

// Compares a row with a text. The row is already known to begin with the first `from` bytes of the
// text.
Comparison CompareRow(const RowList& rows, std::int32_t row, std::string_view text,
                      std::size_t from) {
    const std::string_view cut = rows.RowText(row).substr(0, text.size());
    std::size_t i = from;
    for (; i < cut.size(); ++i) {
        const std::uint8_t ofRow = PlainWeightOf(cut[i]);
        const std::uint8_t ofText = PlainWeightOf(text[i]);
        if (ofRow == 0 || ofText == 0) {
            return {CompareTexts(cut.substr(i), text.substr(i)), i};
        }
        if (ofRow != ofText) {
            return {ofRow <=> ofText, i};
        }
    }
    return {i == text.size() ? std::weak_ordering::equivalent
                             : CompareTexts(cut.substr(i), text.substr(i)),
            i};
}

// Finds the first row that begins with the text if the rows, cut to its length, are in ascending
// order. All rows of the current range share the beginning that its two ends share with the text,
// so these bytes are not compared again.
std::optional<std::int32_t> FindInOrder(const RowList& rows, std::string_view text,
                                        std::int64_t& steps) {
    std::int32_t low = 0;
    std::int32_t count = rows.RowCount();
    std::size_t sameAtLow = 0;
    std::size_t sameAtEnd = 0;
    bool endBegins = false;  // whether the row after the range begins with the text
    while (count > 0) {
        ++steps;
        const std::int32_t half = count / 2;
        const auto [order, same] =
            CompareRow(rows, low + half, text, std::min(sameAtLow, sameAtEnd));
        if (std::is_lt(order)) {
            sameAtLow = same;
            low += half + 1;
            count -= half + 1;
        } else {
            sameAtEnd = same;
            endBegins = std::is_eq(order);
            count = half;
        }
    }
    return endBegins ? std::optional(low) : std::nullopt;
}

// Finds a row by bisection and then steps back row by row. Rows with accents can be out of order
// when they are cut, so this exact procedure defines the result.
std::optional<std::int32_t> FindStepByStep(const RowList& rows, std::string_view text,
                                           std::int64_t& steps) {
    std::int32_t low = 0;
    std::int32_t high = rows.RowCount() - 1;
    while (low <= high) {
        ++steps;
        std::int32_t mid = low + (high - low) / 2;
        const auto order = CompareRow(rows, mid, text, 0).order;
        if (std::is_gt(order)) {
            high = mid - 1;
        } else if (std::is_lt(order)) {
            low = mid + 1;
        } else {
            while (mid > 0 && std::is_eq(CompareRow(rows, mid - 1, text, 0).order)) {
                --mid;
                ++steps;
            }
            return mid;
        }
    }
    return std::nullopt;
}

}  // namespace

std::int32_t FindFirstByPrefix(const RowList& rows, std::string_view text, std::int64_t* steps) {
    std::int64_t uncounted = 0;
    std::int64_t& counted = steps != nullptr ? *steps : uncounted;
    const std::size_t ascending = rows.AscendingPrefixBytes();
    std::string_view probe = text.substr(0, text.find('\0'));
    for (; !probe.empty(); probe.remove_suffix(1)) {
        // If the rows are in order, both give the same row. But the first method avoids one step
        // for each row of a run, which can be tens of thousands of rows long in a million entries.
        const auto row = probe.size() <= ascending ? FindInOrder(rows, probe, counted)
                                                   : FindStepByStep(rows, probe, counted);
        if (row) {
            return *row;
        }
    }
    return 0;
}

}  // namespace brelex
