// SPDX-License-Identifier: MIT
// Input: a byte of options (1: sort the rows, 2: measure their order, 4: look up in capitals, 8: no
// rows), the text to look up (Windows-1252), a NUL, the rows as lines.
#include "lookup/prefix_search.h"

#include "base/text.h"
#include "base/windows1252.h"
#include "fuzz/fuzz_support.h"

namespace brelex {

namespace {

constexpr std::size_t kMostRows = 200;

// The rows of the input in the order in which they are to be searched.
std::string LinesOf(FuzzInput input, bool sorted) {
    std::vector<std::string_view> rows;
    while (!input.IsAtEnd() && rows.size() < kMostRows) {
        rows.push_back(input.Line());
    }
    if (sorted) {
        std::stable_sort(rows.begin(), rows.end(), [](auto left, auto right) {
            return std::is_lt(CompareTexts(left, right));
        });
    }
    std::string lines;
    for (const std::string_view row : rows) {
        lines += std::string(lines.empty() ? "" : "\n").append(row);
    }
    return lines;
}

std::weak_ordering CompareBeginning(const RowList& rows, std::int32_t row, std::string_view text) {
    return CompareTexts(rows.RowText(row).substr(0, text.size()), text);
}

// Halves the rows, then steps back to the first that begins with the text. -1 if there is none.
std::int32_t RowByHalving(const RowList& rows, std::string_view text) {
    std::int32_t low = 0;
    std::int32_t high = rows.RowCount() - 1;
    while (low <= high) {
        std::int32_t middle = low + (high - low) / 2;
        const auto order = CompareBeginning(rows, middle, text);
        if (std::is_eq(order)) {
            while (middle > 0 && std::is_eq(CompareBeginning(rows, middle - 1, text))) {
                --middle;
            }
            return middle;
        }
        if (std::is_gt(order)) {
            high = middle - 1;
        } else {
            low = middle + 1;
        }
    }
    return -1;
}

// The first row that begins with the text, or -1.
std::int32_t RowByReadingAll(const RowList& rows, std::string_view text) {
    for (std::int32_t row = 0; row < rows.RowCount(); ++row) {
        if (std::is_eq(CompareBeginning(rows, row, text))) {
            return row;
        }
    }
    return -1;
}

// What `find` returns for the longest beginning of the text for which it returns a row.
template <typename Find>
std::int32_t RowOfLongestBeginning(const RowList& rows, std::string_view text, Find find) {
    for (text = text.substr(0, text.find('\0')); !text.empty(); text.remove_suffix(1)) {
        if (const std::int32_t row = find(rows, text); row >= 0) {
            return row;
        }
    }
    return 0;
}

// Whether the rows stay in order when they are cut.
bool IsInOrder(const RowList& rows) {
    for (std::int32_t row = 0; row < rows.RowCount(); ++row) {
        if (!IsPlain(rows.RowText(row)) ||
            (row > 0 && std::is_gt(CompareTexts(rows.RowText(row - 1), rows.RowText(row))))) {
            return false;
        }
    }
    return true;
}

// Whether texts are equal does not depend on how their characters are encoded.
void CheckEquality(std::string_view left, std::string_view right) {
    const bool areEqual = EqualIgnoringCase(left, right);
    Require(areEqual == EqualIgnoringCase(right, left), "equality has no direction");
    Require(EqualIgnoringCaseUtf8(Utf8OfBytes(left), Utf8OfBytes(right)) == areEqual,
            "texts are equal if their bytes are");
    Require(!EqualIgnoringCaseUtf8(std::string(left) + "\u0416", std::string(left) + "\u0436"),
            "nothing is known of the case of letters outside the code page");
}

// A store that is told of more rows than there are has none.
void CheckWrongCounts(std::string_view lines, RecordStore& store) {
    for (const std::size_t more : {std::size_t{1}, lines.size() + 1}) {
        Require(
            !FillWithLines(lines, store, static_cast<std::int64_t>(more)) && store.RowCount() == 0,
            "there are no more rows than lines");
    }
}

void LookUp(const RowList& rows, std::string_view text, bool isInOrder) {
    const std::int32_t found = FindFirstByPrefix(rows, text);
    Require(found == RowOfLongestBeginning(rows, text, RowByHalving),
            "a look-up finds the row that halving finds");
    if (isInOrder && IsPlain(text)) {
        Require(found == RowOfLongestBeginning(rows, text, RowByReadingAll),
                "a look-up among rows in order finds the first that begins with the text");
    }
}

}  // namespace

}  // namespace brelex

// Looks up the text, and each row with a piece of the text behind a piece of its own.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    brelex::FuzzInput input(data, size);
    const unsigned options = input.Byte();
    const std::string_view text = input.Text();
    brelex::RecordStore rows;
    const std::string lines = brelex::LinesOf(input, (options & 1U) != 0);
    brelex::CheckWrongCounts(lines, rows);
    if ((options & 8U) != 0) {
        brelex::Require(brelex::FillWithLines("", rows, -1), "a store may have no rows");
    } else {
        brelex::FillWithLines(lines, rows);
    }
    if ((options & 2U) != 0) {
        rows.MeasureOrder();
    }
    const bool isInOrder = brelex::IsInOrder(rows);
    brelex::LookUp(rows, text, isInOrder);
    brelex::CheckEquality(text, rows.RowCount() == 0 ? text : rows.RowText(0));
    constexpr std::int32_t kMostLookUps = 30;
    constexpr std::size_t kMostBytes = 60;
    for (std::int32_t row = 0; row < std::min(rows.RowCount(), kMostLookUps); ++row) {
        const std::string_view whole = rows.RowText(row);
        std::string probe(whole.substr(0, std::min(whole.size() / 2 + 1, kMostBytes)));
        probe += text.substr(0, static_cast<std::size_t>(row % 3));
        if ((options & 4U) != 0) {
            std::transform(probe.begin(), probe.end(), probe.begin(), brelex::AsciiCapital);
        }
        brelex::LookUp(rows, probe, isInOrder);
    }
    return 0;
}
