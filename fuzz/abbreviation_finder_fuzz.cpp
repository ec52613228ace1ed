// SPDX-License-Identifier: MIT
// Input: a byte for the most similar abbreviations, a text (Windows-1252), a NUL, another text, a
// NUL, the rows as lines.
#include "lookup/abbreviation_finder.h"

#include <map>

#include "base/letter_case.h"
#include "database/record_text.h"
#include "fuzz/fuzz_support.h"

namespace brelex {

namespace {

// The characters of a text that count.
std::string PlainKey(std::string_view text) {
    std::string key;
    for (const char c : text) {
        if (std::string_view(" -./").find(c) == std::string_view::npos) {
            key.push_back(static_cast<char>(SmallLetterOfByte(static_cast<unsigned char>(c))));
        }
    }
    return key;
}

std::vector<std::int32_t> PlainFind(const RowList& rows, std::string_view text) {
    std::vector<std::int32_t> found;
    for (std::int32_t row = 0; row < rows.RowCount(); ++row) {
        const std::string_view abbreviation = ColumnText(rows.RowText(row), 0);
        const std::string key = PlainKey(text);
        if (key.empty() ? abbreviation == text : PlainKey(abbreviation) == key) {
            found.push_back(row);
        }
    }
    return found;
}

// How likely the slip is that makes one key of another: 0 for two neighbors exchanged, 1 for a
// character too many or missing, 2 for a wrong one; 3 if it takes more than one slip, or none.
int PlainSlip(const std::string& one, const std::string& other) {
    if (one == other) {
        return 3;
    }
    for (std::size_t i = 0; i < one.size(); ++i) {
        std::string changed = one;
        if (i + 1 < one.size()) {
            std::swap(changed[i], changed[i + 1]);
            if (changed == other) {
                return 0;
            }
        }
        if (i < other.size()) {
            changed = one;
            changed[i] = other[i];
            if (changed == other) {
                return 2;
            }
        }
        changed = one;
        if (changed.erase(i, 1) == other) {
            return 1;
        }
    }
    for (std::size_t i = 0; i < other.size(); ++i) {
        std::string changed = other;
        if (changed.erase(i, 1) == one) {
            return 1;
        }
    }
    return 3;
}

// All abbreviations that are one slip away, the likeliest first.
std::vector<std::string_view> PlainSimilar(const RowList& rows, std::string_view text) {
    const std::string key = PlainKey(text);
    std::map<int, std::vector<std::string_view>> byRank;
    std::vector<std::string> seen;
    for (std::int32_t row = 0; row < rows.RowCount() && !key.empty(); ++row) {
        const std::string_view abbreviation = ColumnText(rows.RowText(row), 0);
        const std::string other = PlainKey(abbreviation);
        const int slip = PlainSlip(key, other);
        if (other.empty() || slip > 2 || std::find(seen.begin(), seen.end(), other) != seen.end()) {
            continue;
        }
        seen.push_back(other);
        byRank[(other.front() == key.front() ? 0 : 3) + slip].push_back(abbreviation);
    }
    std::vector<std::string_view> similar;
    for (const auto& [rank, abbreviations] : byRank) {
        similar.insert(similar.end(), abbreviations.begin(), abbreviations.end());
    }
    return similar;
}

void Search(AbbreviationFinder& finder, const RowList& rows, std::string_view text,
            std::size_t limit) {
    Require(finder.Find(text) == PlainFind(rows, text), "an abbreviation is found whole");
    std::vector<std::string_view> similar = PlainSimilar(rows, text);
    similar.resize(std::min(similar.size(), limit));
    Require(finder.FindSimilar(text, limit) == similar, "what is similar is one slip away");
}

}  // namespace

}  // namespace brelex

// Searches the same rows several times, because later searches use what earlier ones have kept.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    brelex::FuzzInput input(data, size);
    const std::size_t limit = input.Byte();
    const std::string_view text = input.Text();
    const std::string_view other = input.Text();
    brelex::RecordStore rows;
    brelex::FillWithLines(input.Rest(), rows);
    brelex::AbbreviationFinder finder(rows);
    brelex::Require(finder.Find(text) == brelex::PlainFind(rows, text),
                    "the first search finds an abbreviation whole");
    brelex::Search(finder, rows, other, limit);
    brelex::Search(finder, rows, text, limit);
    return 0;
}
