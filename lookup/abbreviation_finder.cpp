// SPDX-License-Identifier: MIT
#include "lookup/abbreviation_finder.h"

#include <algorithm>
#include <array>
#include <bit>
#include <functional>
#include <numeric>
#include <optional>
#include <string>
#include <tuple>
#include <utility>

#include "base/byte_table.h"
#include "base/letter_case.h"
#include "database/record_text.h"

namespace brelex {

namespace {

constexpr std::string_view kMarks = "-./";  // they do not count, and neither do blanks
constexpr unsigned char kBlank = ' ';

// The small letter of each byte, and a blank for each mark.
const auto kCountingBytes = TableOfBytes([](unsigned char byte) {
    const bool isMark = kMarks.find(static_cast<char>(byte)) != std::string_view::npos;
    return isMark ? kBlank : SmallLetterOfByte(byte);
});

// The characters of a text that count.
std::string KeyOf(std::string_view text) {
    std::string key;
    for (const char c : text) {
        const unsigned char byte = kCountingBytes[static_cast<unsigned char>(c)];
        if (byte != kBlank) {
            key.push_back(static_cast<char>(byte));
        }
    }
    return key;
}

// Whether `key` is that of the record's abbreviation. Tells so at the first character that differs.
bool HasKey(std::string_view record, std::string_view key) {
    std::size_t same = 0;
    for (std::size_t i = 0; i < record.size() && record[i] != '\t'; ++i) {
        const unsigned char byte = kCountingBytes[static_cast<unsigned char>(record[i])];
        if (byte == kBlank) {
            continue;
        }
        if (same == key.size() || byte != static_cast<unsigned char>(key[same])) {
            return false;
        }
        ++same;
    }
    return same == key.size();
}

// A bit for each byte that counts, regardless of its case. Some share one.
const auto kSignatureBits = TableOfBytes([](unsigned char byte) {
    const unsigned char counting = kCountingBytes[byte];
    return counting == kBlank ? 0 : std::rotl(std::uint64_t{1}, counting);
});

// The bits of all characters of the key.
std::uint64_t SignatureOf(std::string_view text) {
    return std::transform_reduce(
        text.begin(), text.end(), std::uint64_t{}, std::bit_or<>(),
        [](char c) { return kSignatureBits[static_cast<unsigned char>(c)]; });
}

// The kinds of edits, most likely slip first.
enum class Edit {
    Exchanged,
    TooManyOrMissing,
    Wrong
};

// The edit that makes one key the other. Nothing if there is none.
std::optional<Edit> EditBetween(std::string_view left, std::string_view right) {
    const auto different = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    const auto same = static_cast<std::size_t>(different.first - left.begin());
    left.remove_prefix(same);
    right.remove_prefix(same);
    while (!left.empty() && !right.empty() && left.back() == right.back()) {
        left.remove_suffix(1);
        right.remove_suffix(1);
    }
    if (left.size() + right.size() == 1) {
        return Edit::TooManyOrMissing;
    }
    if (left.size() == 1 && right.size() == 1) {
        return Edit::Wrong;
    }
    if (left.size() == 2 && right.size() == 2 && left[0] == right[1] && left[1] == right[0]) {
        return Edit::Exchanged;
    }
    return std::nullopt;
}

std::string_view AbbreviationOf(const RowList& rows, std::size_t row) {
    return ColumnText(rows.RowText(static_cast<std::int32_t>(row)), 0);
}

}  // namespace

void AbbreviationFinder::MakeSignatures() {
    if (signatures_.empty()) {
        signatures_.resize(static_cast<std::size_t>(rows_.RowCount()));
        for (std::size_t row = 0; row < signatures_.size(); ++row) {
            signatures_[row] = SignatureOf(AbbreviationOf(rows_, row));
        }
    }
}

bool AbbreviationFinder::IsAbbreviation(std::size_t row, std::string_view text,
                                        std::string_view key) const {
    return key.empty() ? AbbreviationOf(rows_, row) == text
                       : HasKey(rows_.RowText(static_cast<std::int32_t>(row)), key);
}

// Making signatures takes longer than a single search without them.
std::vector<std::int32_t> AbbreviationFinder::Find(std::string_view text) {
    if (std::exchange(hasSearched_, true)) {
        MakeSignatures();
    }
    const std::uint64_t signature = SignatureOf(text);
    const std::string key = KeyOf(text);
    const auto count = static_cast<std::size_t>(rows_.RowCount());
    std::vector<std::int32_t> found;
    for (std::size_t row = 0; row < count; ++row) {
        const bool isPossible = signatures_.empty() || signatures_[row] == signature;
        if (isPossible && IsAbbreviation(row, text, key)) {
            found.push_back(static_cast<std::int32_t>(row));
        }
    }
    return found;
}

std::vector<std::string_view> AbbreviationFinder::FindSimilar(std::string_view text,
                                                              std::size_t limit) {
    struct Similar {
        std::tuple<bool, Edit> rank;
        std::string key;
        std::string_view abbreviation;
    };

    MakeSignatures();
    const std::uint64_t signature = SignatureOf(text);
    const std::string key = KeyOf(text);
    std::vector<Similar> similar;
    for (std::size_t row = 0; row < signatures_.size() && !key.empty(); ++row) {
        // An edit takes away one character at most, and adds one at most.
        if (std::popcount(signatures_[row] ^ signature) > 2) {
            continue;
        }
        const std::string_view abbreviation = AbbreviationOf(rows_, row);
        std::string other = KeyOf(abbreviation);
        const std::optional<Edit> edit = EditBetween(key, other);
        if (edit && !other.empty()) {
            similar.push_back({{other.front() != key.front(), *edit}, other, abbreviation});
        }
    }
    std::stable_sort(similar.begin(), similar.end(),
                     [](const Similar& a, const Similar& b) { return a.rank < b.rank; });
    std::vector<std::string_view> abbreviations;
    for (auto one = similar.begin(); one != similar.end() && abbreviations.size() < limit; ++one) {
        const auto isSame = [one](const Similar& other) { return other.key == one->key; };
        if (std::none_of(similar.begin(), one, isSame)) {
            abbreviations.push_back(one->abbreviation);
        }
    }
    return abbreviations;
}

}  // namespace brelex
